#include "Editor/commands/QuietCommands.h"

#include <set>

namespace editor
{

std::string QuietCommands::Cut()
{
    return ChangeSelection([this] { return m_commands.Cut(); });
}

std::string QuietCommands::Remove()
{
    return ChangeSelection([this] { return m_commands.Remove(); });
}

std::string QuietCommands::Take(std::string (History::*step)(Changes&))
{
    UndoRedo::Atoms present;
    std::string reason = ChangeSelection([&] { return m_undoRedo.Take(step, present); });
    if (!present.empty())
        ShowJust(present);
    return reason;
}

std::string QuietCommands::MakeAnd(Make make, bool* pbAny)
{
    const auto pTarget = CStubRef<CContainer>::Share(m_parts.navigation.ShownContainer());
    std::vector<CStubRef<IAtom>> arrived;
    std::string reason = (m_commands.*make)(pTarget.Get(), arrived);
    if (!arrived.empty())
        ShowJust(arrived);
    if (pbAny)
        *pbAny = !arrived.empty();
    return reason;
}

// What is done next is done to these, so they are to be seen: not where a picture is shown in their place.
void QuietCommands::ShowJust(const std::vector<CStubRef<IAtom>>& atoms)
{
    if (m_parts.content.IsPictureShown())
        m_parts.navigation.GoTo(CStubRef<CContainer>::Share(m_parts.navigation.ShownContainer()).Get());
    SelectJust(atoms);
}

// A view that is told of an atom takes one of the same name in another case for it: the list's rows are those of the
// atoms themselves. New ones are the last.
void QuietCommands::SelectJust(const std::vector<CStubRef<IAtom>>& atoms)
{
    CContainer* const pContainer = m_parts.navigation.ShownContainer();
    m_commands.Select({}, pContainer);
    std::set<IAtom*> wanted;
    for (const CStubRef<IAtom>& pAtom : atoms)
        wanted.insert(pAtom.Get());
    {
        const CAtomEditor::Silence silence(m_parts.editor);
        for (int i = List().GetItemCount() - 1; i >= 0 && !wanted.empty(); --i)
            if (wanted.erase(List().GetAtom(i).Get()) > 0)
                List().SetItemState(i, LVIS_SELECTED, LVIS_SELECTED);
    }
    if (!atoms.empty())
        m_parts.editor.NotifyHandlers(List().Handler(), &IAEStateHandler::OnAtomSelected, atoms.back().Get(),
                                      pContainer, 0);
    List().FocusSelection();
    m_parts.updateStatus();
}

// The list loads its rows anew: the user goes on where the selection was.
template <class Change>
std::string QuietCommands::ChangeSelection(Change change)
{
    const Position position = RememberPosition();
    std::string reason = change();
    GoOnAt(position);
    return reason;
}

QuietCommands::Position QuietCommands::RememberPosition() const
{
    return {CStubRef<CMember>::Share(m_parts.navigation.Shown()), List().Remember()};
}

// What was not saved of a phase that went has gone with it: in the archive that took it away, or by the user's wish.
void QuietCommands::GoOnAt(const Position& position)
{
    m_parts.modified.ForgetGone();
    m_parts.navigation.LeaveWhatIsGone();
    if (m_parts.navigation.Shown() == position.pShown.Get() && !m_parts.content.IsPictureShown())
        List().Restore(position.list);
    m_parts.updateStatus();
}

void QuietCommands::Refresh()
{
    m_parts.pictures.Recheck();
    if (m_parts.content.IsPictureShown())
        return m_parts.content.GetPicture().OnPictureArrived();
    const auto pContainer = CStubRef<CContainer>::Share(dynamic_cast<CContainer*>(m_parts.navigation.Shown()));
    if (!pContainer)
        return;
    const CEditorList::State state = List().Remember();
    pContainer->ReadAgain();
    m_parts.editor.NotifyHandlers(nullptr, &IAEStateHandler::OnDeleteAtom, nullptr, pContainer.Get(), 0);
    List().Restore(state);
    m_parts.updateStatus();
}

std::string QuietCommands::RefreshQuietly()
{
    Refresh();
    return {};
}

} // namespace editor
