#include "Editor/commands/UndoRedo.h"

#include "Editor/disk/FileText.h"
#include "Editor/services/MemberBroadcast.h"

#include <algorithm>
#include <ranges>

namespace editor
{

std::string UndoRedo::Take(std::string (History::*step)(Changes&), Atoms& present)
{
    const std::string shown = m_navigation.Shown()->Path();
    Changes changes;
    const LongWork::Command command(m_editor.GetWork(), "Putting back", Progress::Unit::Objects);
    std::string reason = (m_editor.GetHistory().*step)(changes);
    m_pictures.Recheck();
    for (const auto& [path, names] : changes.containers)
        TellOf(path, names);
    FollowNames(changes, shown);
    KeepUnsaved(changes);
    if (reason.empty())
        GoWhereItIsSeen(changes);
    present = Present(changes);
    return reason;
}

void UndoRedo::TellOf(const std::string& path, const std::set<std::string>& names)
{
    CContainer* const pContainer = m_navigation.Library()->FindLive(path);
    auto* const pFolder = dynamic_cast<CFolder*>(pContainer);
    if (pFolder && !names.empty()) {
        MemberNews news;
        pFolder->LookFor({path, names, {}, false}, news);
        editor::TellOf(m_editor, *pFolder, news);
    } else if (pContainer) {
        ReadAgainAndTell(m_editor, *pContainer);
    }
}

void UndoRedo::FollowNames(const Changes& changes, const std::string& shown)
{
    for (const auto& [from, to] : changes.otherNames) {
        m_modified.Follow(from, to, *m_navigation.Library());
        if (!IsOrIsBelow(shown, from))
            continue;
        if (const CStubRef<CMember> pNow = m_navigation.Library()->Find(to + shown.substr(from.size())))
            m_navigation.GoTo(pNow.Get());
    }
}

// Nowhere when something of it is seen where the user is: what is shown, a phase in it, or what is in its path.
void UndoRedo::GoWhereItIsSeen(const Changes& changes)
{
    const std::string shown = m_navigation.ShownContainer()->Path();
    const auto isSeen = [&](const std::string& path) {
        return path == shown || (FolderOf(path) == shown && ExtensionOf(path) == "phase");
    };
    const auto isInPath = [&](const std::string& path) { return IsOrIsBelow(shown, path); };
    const auto& containers = changes.containers;
    if (containers.empty() || std::ranges::any_of(std::views::keys(containers), isSeen) ||
        std::any_of(changes.present.begin(), changes.present.end(), isInPath))
        return;
    const std::string& path = changes.present.empty() ? containers.begin()->first : FolderOf(changes.present.front());
    if (const CStubRef<CMember> pContainer = m_navigation.Library()->Find(path))
        m_navigation.GoTo(pContainer.Get());
}

void UndoRedo::KeepUnsaved(const Changes& changes)
{
    ModifiedPhases::Phases phases;
    for (const Changes::Unsaved& one : changes.unsaved) {
        const CStubRef<CMember> pMember = m_navigation.Library()->Find(one.path);
        auto* const pPhase = dynamic_cast<CPhase*>(pMember.Get());
        if (!pPhase)
            continue;
        pPhase->SetUnsaved(one.text);
        phases.push_back(CStubRef<CPhase>::Share(pPhase));
    }
    m_modified.Add(phases);
}

UndoRedo::Atoms UndoRedo::Present(const Changes& changes) const
{
    Atoms atoms;
    CContainer* const pShown = m_navigation.ShownContainer();
    const std::string folder = pShown->Path();
    for (const std::string& path : changes.present) {
        const std::string_view name = BaseName(path);
        CStubRef<IAtom> pAtom;
        if (path.size() == folder.size() + 1 + name.size() && path.starts_with(folder))
            pShown->FindAtom(std::string(name).c_str(), pAtom.Receive(), IID_IAtom);
        if (pAtom)
            atoms.push_back(std::move(pAtom));
    }
    return atoms;
}

} // namespace editor
