#include "Editor/frame/CommandTable.h"

#include "Editor/frame/FrameCommands.h"

#include <algorithm>

namespace editor
{
namespace
{

using With = hostkit::CommandKey::With;
using State = CommandState;
using Run = FrameCommands;

// In the menu's order.
constexpr CommandEntry kCommands[] = {
    {ID_OPEN, "&Open", true, {VK_RETURN, With::Views}, &State::canOpen, &Run::OpenSelected, nullptr, nullptr},
    {ID_UNDO, "&Undo", true, {'Z', With::Control}, &State::canUndo, &Run::UndoOrTell, "undo", &Run::Undo},
    {ID_REDO, "Re&do", false, {'Z', With::ControlShift}, &State::canRedo, &Run::RedoOrTell, "redo", &Run::Redo},
    {ID_REDO, nullptr, false, {'Y', With::Control}, &State::canRedo, &Run::RedoOrTell, nullptr, nullptr},
    {ID_CUT, "Cu&t", true, {'X', With::Control}, &State::canRemove, &Run::CutSelection, "cut", &Run::Cut},
    {ID_COPY, "&Copy", false, {'C', With::Control}, &State::canCarry, &Run::CopySelection, "copy", &Run::Copy},
    {ID_PASTE, "&Paste", false, {'V', With::Control}, &State::canPaste, &Run::PasteHere, "paste", &Run::Paste},
    {ID_NEW_FOLDER,
     "&New folder",
     true,
     {'N', With::ControlShift},
     &State::canMakeFolder,
     &Run::NewFolderAndName,
     "new-folder",
     &Run::NewFolder},
    {ID_NEW_PHASE,
     "New p&hase",
     false,
     {'P', With::ControlShift},
     &State::canMakePhase,
     &Run::NewPhaseAndName,
     "new-phase",
     &Run::NewPhase},
    {ID_RENAME, "&Rename", true, {VK_F2, With::Nothing}, &State::canRename, &Run::RenameSelected, nullptr, nullptr},
    {ID_REMOVE,
     "&Delete",
     false,
     {VK_DELETE, With::Nothing},
     &State::canRemove,
     &Run::RemoveSelection,
     nullptr,
     nullptr},
    {ID_RESTORE, "Re&store", false, {}, &State::canRestore, &Run::RestoreOrTell, "restore", &Run::Restore},
    {ID_SELECT_ALL, "Select &all", true, {'A', With::Views}, &State::canSelectAll, &Run::SelectAll, nullptr, nullptr},
    {ID_REFRESH,
     "Re&fresh",
     false,
     {VK_F5, With::Whatever},
     &State::always,
     &Run::Refresh,
     "refresh",
     &Run::RefreshQuietly},
    {ID_ICONS, nullptr, false, {'1', With::Control}, &State::always, &Run::ShowIcons, nullptr, nullptr},
    {ID_THUMBNAILS, nullptr, false, {'2', With::Control}, &State::always, &Run::ShowThumbnails, nullptr, nullptr},
};

template <class Matches>
const CommandEntry* Find(Matches matches)
{
    const auto* const pFound = std::find_if(std::begin(kCommands), std::end(kCommands), matches);
    return pFound == std::end(kCommands) ? nullptr : pFound;
}

// " rename of "walk.png"" behind what takes a step back or does it again. What is an & there is none of the menu's.
std::string StepOf(const CommandEntry& command, const CommandState& state)
{
    std::string name = command.nID == ID_UNDO      ? state.undo
                       : command.nID == ID_REDO    ? state.redo
                       : command.nID == ID_RESTORE ? state.restore
                                                   : std::string();
    for (std::size_t at = name.find('&'); at != name.npos; at = name.find('&', at + 2))
        name.insert(at, 1, '&');
    return name.empty() ? name : ' ' + name;
}

} // namespace

const CommandEntry* FindCommand(UINT nID)
{
    return Find([=](const CommandEntry& command) { return command.nID == nID; });
}

const CommandEntry* FindCommandOfKey(UINT vkey, bool bControl, bool bShift)
{
    return Find([=](const CommandEntry& command) { return command.key.IsGivenBy(vkey, bControl, bShift); });
}

const CommandEntry* FindCommandOfWord(std::string_view word)
{
    return Find([=](const CommandEntry& command) { return command.pszWord && word == command.pszWord; });
}

std::unique_ptr<CMenu> MakeContextMenu(const CommandState& state)
{
    auto pMenu = std::make_unique<CMenu>();
    if (!pMenu->CreatePopupMenu())
        return nullptr;
    for (const CommandEntry& command : kCommands) {
        if (!command.pszMenu)
            continue;
        if (command.bSection && &command != kCommands)
            pMenu->AppendMenu(MF_SEPARATOR);
        const std::string text = command.pszMenu + StepOf(command, state) + '\t' + command.key.Text();
        pMenu->AppendMenu(MF_STRING | (state.*command.pCan ? MF_ENABLED : MF_GRAYED), command.nID, text.c_str());
    }
    return pMenu;
}

} // namespace editor
