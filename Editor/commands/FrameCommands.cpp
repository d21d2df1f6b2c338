#include "Editor/commands/FrameCommands.h"

#include "Editor/disk/Trash.h"
#include "Editor/model/PictureMember.h"
#include "Editor/model/PlainFile.h"
#include "HostKit/base/ErrorInfo.h"
#include "Toolkit/menu/MessageBox.h"
#include "Views/clipboard/Naming.h"

#include <algorithm>

namespace editor
{
namespace
{

// What stands in a step's way may go; else it would stand in the way of all others for ever.
constexpr const char* kForget = ".\n\nNothing was changed. Forget this step?";

using hostkit::UserAgrees;

} // namespace

// Whether there is anything to paste only the clipboard's owner knows, who may be another program that hangs: nobody
// waits for it before a menu. Pasting tells what there is not.
void FrameCommands::Describe(CommandState& state) const
{
    DescribeSelection(state);
    state.earlier = WhyNotMove(false);
    state.later = WhyNotMove(true);
    if (!m_parts.navigation.ShownContainer())
        state.paste = "no folder is shown";
    const bool bFolder = dynamic_cast<CFolder*>(m_parts.navigation.ShownContainer()) != nullptr;
    state.makeFolder = bFolder ? "" : "no folder is shown";
    const bool bPictures = !OwnOf<CPicture>(GetActiveMembers(m_parts.editor)).empty();
    state.makePhase = !bFolder ? "no folder is shown" : bPictures ? "" : "no pictures are selected";
    state.nameToRestore = GetHistory().NameToRestore();
    state.restore = state.nameToRestore.empty() ? "nothing that was removed is in the trash" : "";
    state.nameToUndo = GetHistory().NameToUndo();
    state.nameToRedo = GetHistory().NameToRedo();
    state.undo = state.nameToUndo.empty() ? "nothing has been done yet" : "";
    state.redo = state.nameToRedo.empty() ? "nothing has been taken back" : "";
    state.selectAll = m_parts.content.IsPictureShown() ? "a picture is shown"
                      : List().GetItemCount() == 0     ? "there are no objects here"
                      : List().AreAllSelected()        ? "all objects are selected"
                                                       : "";
    state.save = m_parts.modified.SaveQuestion().empty() ? "nothing has been changed since it was saved" : "";
}

void FrameCommands::DescribeSelection(CommandState& state) const
{
    const ActiveMembers members = GetActiveMembers(m_parts.editor);
    if (members.size() != 1)
        state.open = state.rename = members.empty() ? "no object is selected" : "several objects are selected";
    if (members.empty())
        state.carry = state.remove = "no object is selected";
    if (const auto at = std::ranges::find_if_not(members, &ActiveMember::MayGo); at != members.end())
        state.remove = ShownNameOf(at->pAtom.Get()) + " has to stay";
    if (members.size() != 1)
        return;
    const ActiveMember& one = members.front();
    if (one.pAtom.Get() == m_parts.navigation.Shown() && !dynamic_cast<CPlainFile*>(m_parts.navigation.Shown()))
        state.open = "it is shown already";
    if (!CanRenameObject(one.pAtom.Get(), one.pContainer.Get()))
        state.rename = ShownNameOf(one.pAtom.Get()) + " has to keep its name";
}

std::string FrameCommands::WhyNotMove(bool bLater) const
{
    const FrameDrops frames(List());
    if (m_parts.content.IsPictureShown() || !frames.Phase() || List().GetSelectedCount() == 0)
        return "no frames of a phase are selected";
    if (frames.CanShift(bLater))
        return {};
    return bLater ? "nothing comes after them" : "nothing comes before them";
}

void FrameCommands::MoveFrames(bool bLater)
{
    ShowFailure(IDS_MOVE_FAILED, FrameDrops(List()).Shift(bLater));
    m_parts.updateStatus();
}

void FrameCommands::OpenSelected()
{
    const ActiveMembers members = GetActiveMembers(m_parts.editor);
    CMember* const pMember = members.size() == 1 ? CMember::Of(members.front().pAtom.Get()) : nullptr;
    if (pMember)
        m_parts.navigation.Open(pMember);
}

void FrameCommands::RenameSelected()
{
    m_parts.editor.NotifyHandlers(nullptr, &IAEStateHandler::OnAtomRename, nullptr, nullptr, 0);
}

void FrameCommands::SelectAll()
{
    List().SetFocus();
    List().SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
}

void FrameCommands::CopySelection()
{
    ShowFailure(IDS_COPY_FAILED, CarryAsAgreed([this] { return Copy(); }));
}

void FrameCommands::CutSelection()
{
    const std::string question = m_commands.CutQuestion();
    if (question.empty() || UserAgrees(question))
        ShowFailure(IDS_CUT_FAILED, CarryAsAgreed([this] { return Cut(); }));
}

// What cannot be carried is named, and the rest goes when the user agrees.
template <class Carry>
std::string FrameCommands::CarryAsAgreed(Carry carry)
{
    std::string reason = carry();
    if (reason.empty() || !m_parts.editor.CanLeaveOut())
        return reason;
    if (!UserAgrees(reason + ".\n\nGo on with the rest?"))
        return {};
    const CAtomEditor::LeavingOut agreed(m_parts.editor);
    return carry();
}

// What goes to the trash can be fetched back; what no trash takes, the user is asked about once more.
void FrameCommands::RemoveSelection()
{
    if (!UserAgrees(m_commands.RemoveQuestion()))
        return;
    const int nMissed = CountMissedTrashes();
    std::string reason = Remove();
    if (CountMissedTrashes() > nMissed && !GetActiveMembers(m_parts.editor).empty()) {
        if (!UserAgrees(reason + ".\n\n" + m_commands.RemoveQuestion(Removal::ForGood), MB_DEFBUTTON2))
            return;
        const PermanentRemoval agreed;
        reason = Remove();
    }
    ShowFailure(IDS_REMOVE_FAILED, std::move(reason));
}

void FrameCommands::PasteHere()
{
    bool bAny = false;
    std::string reason = MakeAnd(&Commands::Paste, &bAny);
    ShowFailure(bAny ? IDS_PASTE_FAILED : IDS_NOTHING_PASTED, std::move(reason));
}

void FrameCommands::MakeAndName(Make make)
{
    bool bAny = false;
    ShowFailure(IDS_NEW_FAILED, MakeAnd(make, &bAny));
    if (!bAny)
        return;
    List().SetFocus();
    RenameSelected();
}

void FrameCommands::TellAndForget(const std::string& reason, void (History::*forget)())
{
    if (!WasCancelled() && !reason.empty() && UserAgrees(reason + kForget, MB_DEFBUTTON2))
        (GetHistory().*forget)();
}

bool FrameCommands::SaveOrTell()
{
    const std::string failure = m_parts.modified.Save();
    m_parts.updateStatus();
    ShowFailure(IDS_SAVE_FAILED, failure);
    return failure.empty();
}

void FrameCommands::ShowFailure(UINT nCaptionID, std::string reason) const
{
    if (!WasCancelled())
        hostkit::ShowFailure(m_parts.editor.GetMainWindow(), nCaptionID, std::move(reason));
}

} // namespace editor
