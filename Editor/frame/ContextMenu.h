// The menu for what is selected.
#pragma once

#include "Toolkit/window/Menu.h"

#include <memory>

namespace editor
{

// The commands, which go to the frame.
inline constexpr UINT ID_OPEN = 3001;
inline constexpr UINT ID_CUT = 3002;
inline constexpr UINT ID_COPY = 3003;
inline constexpr UINT ID_PASTE = 3004;
inline constexpr UINT ID_RENAME = 3005;
inline constexpr UINT ID_REMOVE = 3006;
inline constexpr UINT ID_SELECT_ALL = 3007;
inline constexpr UINT ID_REFRESH = 3008;

// What can be done; all else is grayed.
struct MenuState
{
    bool canOpen = false, canCarry = false, canRemove = false, canRename = false, canPaste = false;
    bool canSelectAll = false;
};

std::unique_ptr<CMenu> MakeContextMenu(const MenuState& state); // NULL without memory

} // namespace editor
