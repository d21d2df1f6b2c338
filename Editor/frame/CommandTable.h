// The commands of the frame: what each is called in the menu and in scripts, its key, when it can be given, what it
// does.
#pragma once

#include "HostKit/CommandKey.h"
#include "Toolkit/menu/Menu.h"

#include <memory>
#include <string>
#include <string_view>

namespace editor
{

class FrameCommands;

// As they go to the frame.
inline constexpr UINT ID_OPEN = 3001;
inline constexpr UINT ID_CUT = 3002;
inline constexpr UINT ID_COPY = 3003;
inline constexpr UINT ID_PASTE = 3004;
inline constexpr UINT ID_RENAME = 3005;
inline constexpr UINT ID_REMOVE = 3006;
inline constexpr UINT ID_SELECT_ALL = 3007;
inline constexpr UINT ID_REFRESH = 3008;
inline constexpr UINT ID_ICONS = 3009;
inline constexpr UINT ID_THUMBNAILS = 3010;
inline constexpr UINT ID_UNDO = 3011;
inline constexpr UINT ID_REDO = 3012;
inline constexpr UINT ID_NEW_FOLDER = 3031;
inline constexpr UINT ID_NEW_PHASE = 3032;
inline constexpr UINT ID_RESTORE = 3033;

// What can be done just now; all else is grayed.
struct CommandState
{
    bool canOpen = false, canCarry = false, canRemove = false, canRename = false, canPaste = false;
    bool canSelectAll = false, canUndo = false, canRedo = false, canMakeFolder = false, canMakePhase = false,
         canRestore = false;
    bool always = true;
    std::string undo, redo; // which step
    std::string restore;    // what
};

struct CommandEntry
{
    UINT nID;
    const char* pszMenu; // NULL: not in the menu
    bool bSection;       // begins a section of the menu
    hostkit::CommandKey key;
    bool CommandState::*pCan;
    void (FrameCommands::*run)(); // as the user gives it: asks, and tells what was not done
    const char* pszWord;          // in scripts, where nothing stands behind it; NULL: none
    // As scripts give it: nothing is asked. Empty when all was done, else the reason.
    std::string (FrameCommands::*runQuietly)();
};

// NULL where there is none.
const CommandEntry* FindCommand(UINT nID);
const CommandEntry* FindCommandOfKey(UINT vkey, bool bControl, bool bShift);
const CommandEntry* FindCommandOfWord(std::string_view word);

std::unique_ptr<CMenu> MakeContextMenu(const CommandState& state); // NULL without memory

} // namespace editor
