// A menu as the desktop shows it.
#pragma once

#include "Toolkit/base/Types.h"

#include <string>
#include <vector>

namespace toolkit
{

struct MenuItem
{
    std::string text; // "&Open\tCtrl+O"; a separator has none
    std::string hint; // said beside it when the mouse rests there
    UINT command = 0;
    bool separator = false, checked = false, enabled = true;
    bool popup = false;
    std::vector<MenuItem> items; // of the menu below, when popup
};

// The text as a person reads it, without mark and shortcut.
TOOLKIT_API std::string PlainMenuText(const std::string& text);
// The whole menu in one line: "[Open | *Checked | (grayed) | - | New > [Folder | Phase]]".
TOOLKIT_API std::string DescribeMenu(const std::vector<MenuItem>& items);
// The command of the enabled item with that plain text, those below included; 0 when there is none.
TOOLKIT_API UINT FindMenuCommand(const std::vector<MenuItem>& items, std::string_view plainText);

} // namespace toolkit
