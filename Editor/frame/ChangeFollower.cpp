#include "Editor/frame/ChangeFollower.h"

#include "Editor/disk/FileText.h"
#include "Editor/model/Phase.h"
#include "Editor/model/PhaseFollower.h"
#include "Editor/resources/EditorResources.h"
#include "Editor/services/MemberBroadcast.h"
#include "Toolkit/message/TaskInbox.h"

#include <algorithm>
#include <utility>

namespace editor
{
namespace
{

// Is it all that was selected?
bool IsOneThatIsGone(const CEditorList::State& list)
{
    CMember* const pOne = list.selected.size() == 1 ? CMember::Of(list.selected.front().Get()) : nullptr;
    return pOne && WhatIsLeftOf(pOne) != pOne;
}

// And not only what rows show?
bool MovesRows(const MemberNews& news)
{
    const auto isPhase = [](const auto& pMember) { return dynamic_cast<CPhase*>(pMember.Get()) != nullptr; };
    return news.isOther || !news.come.empty() || !news.renamed.empty() || std::ranges::any_of(news.written, isPhase);
}

} // namespace

void ChangeFollower::Later(std::function<void()> task)
{
    toolkit::PostTask([task = std::move(task), pAlive = std::weak_ptr<int>(m_pAlive)] {
        if (!pAlive.expired())
            task();
    });
}

void ChangeFollower::Went(IAtom* pAtom, IAtomContainer* pContainer)
{
    const CStubRef<CMember> pCreated = std::move(m_pCreated);
    if (pAtom && pCreated && pCreated->Container() && pContainer == pCreated->Container())
        FollowRenamed(pAtom, pCreated.Get());
}

// The views show the object under its new name last, and take the next one's selection for the one that went. They are
// put right when they have heard of both; where what is shown was renamed, before they turn to something else.
void ChangeFollower::FollowRenamed(IAtom* pFormer, CMember* pRenamed)
{
    for (CMember* pMember = m_parts.navigation.Shown(); pMember; pMember = pMember->Container()) {
        if (static_cast<IAtom*>(pMember) != pFormer)
            continue;
        m_parts.navigation.GoTo(pRenamed);
        break;
    }
    m_parts.modified.Follow(CMember::Of(pFormer)->Path(), pRenamed->Path(), *m_parts.navigation.Library());
    m_pRenamed = CStubRef<CMember>::Share(pRenamed);
    Later([this] { SelectRenamed(); });
}

void ChangeFollower::SelectRenamed()
{
    const CStubRef<CMember> pRenamed = std::move(m_pRenamed);
    if (!pRenamed || m_parts.navigation.Shown() != pRenamed->Container())
        return;
    std::vector<CStubRef<IAtom>> atoms;
    atoms.push_back(CStubRef<IAtom>::Share(pRenamed.Get()));
    m_parts.commands.GetPlain().Select(atoms, pRenamed->Container());
    m_parts.content.GetList().FocusSelection();
}

ChangeFollower::Found ChangeFollower::Look(const std::vector<FolderNews>& news) const
{
    Found found;
    for (const FolderNews& one : news) {
        auto* const pFolder = dynamic_cast<CFolder*>(m_parts.navigation.Library()->FindLive(one.folder));
        if (!pFolder)
            continue;
        found.push_back({CStubRef<CFolder>::Share(pFolder), {}, m_parts.navigation.Library()->LinksTo(one)});
        pFolder->LookFor(one, found.back().news);
        for (const std::string& name : one.names)
            m_parts.pictures.Recheck(one.folder + '/' + name);
        if (one.isUnknown)
            m_parts.pictures.Recheck();
    }
    return found;
}

// Every view hears of it as of what the user does. Where the folder that was shown has gone the innermost one that is
// still there is shown, and the answer says so; else it is empty.
std::string ChangeFollower::Tell(const Found& found) const
{
    const auto pShown = CStubRef<CMember>::Share(m_parts.navigation.Shown());
    bool bRenamed = false; // it, or what it is in
    for (const auto& [pFolder, news, links] : found) {
        for (const auto& pMember : news.written)
            if (auto* const pPhase = dynamic_cast<CPhase*>(pMember.Get()))
                ReadAgainAndTell(m_parts.editor, *pPhase);
        for (const auto& renamed : news.renamed)
            for (CMember* pMember = pShown.Get(); pMember; pMember = pMember->Container())
                bRenamed |= pMember == renamed.pFormer.Get();
        TellOf(m_parts.editor, *pFolder.Get(), news);
        for (const auto& pLink : links)
            m_parts.editor.NotifyHandlers(nullptr, &IAEStateHandler::OnChangeAtom, pLink.Get(), pLink->Container(), 0);
    }
    CMember* const pLeft = WhatIsLeftOf(pShown.Get());
    if (bRenamed || pLeft == pShown.Get())
        return {};
    m_parts.navigation.GoTo(pLeft);
    return pShown->ShownName() + ": is not there any more";
}

void ChangeFollower::OnDiskNews(const std::vector<FolderNews>& news)
{
    const Found found = Look(news);
    const auto movesRows = [](const FoundIn& one) { return MovesRows(one.news); };
    if (!std::ranges::any_of(found, movesRows)) { // as after all that the program has done itself: no row is looked at
        Tell(found);
        return;
    }
    const FrameCommands::Position position = m_parts.commands.RememberPosition();
    if (std::string line = Tell(found); !line.empty())
        m_parts.tell(std::move(line));
    m_pCreated.Release();
    if (m_pRenamed && !IsOneThatIsGone(position.list)) {
        m_pRenamed.Release(); // the user works on something else
        if (m_parts.navigation.Shown() == position.pShown.Get())
            m_parts.content.GetList().SetItemState(-1, 0, LVIS_SELECTED);
    }
    m_parts.commands.GoOnAt(position);
}

// Of what is shown, and what it is in.
void ChangeFollower::LookAround()
{
    std::vector<FolderNews> unknown;
    for (CMember* pMember = m_parts.navigation.Shown(); pMember; pMember = pMember->Container())
        if (auto* const pFolder = dynamic_cast<CFolder*>(pMember); pFolder && !pFolder->IsFollowed())
            unknown.push_back({pFolder->Path(), {}, {}, true});
    if (!unknown.empty())
        OnDiskNews(unknown);
}

// Who has just renamed a picture tells of that first.
std::string ChangeFollower::FollowPhases()
{
    PhaseFollower::Followed followed = m_parts.navigation.Library()->Context().pFollower->Follow(
        m_parts.editor.GetHistory(), m_parts.editor.GetWork());
    m_unfollowed = std::move(followed.trouble);
    if (followed.phases.empty() && m_unfollowed.empty())
        return {};
    Later([this, phases = followed.phases] { ShowFollowed(phases); });
    const std::size_t n = followed.phases.size();
    return n == 0 ? std::string() : ", followed by " + std::to_string(n) + (n == 1 ? " phase" : " phases");
}

void ChangeFollower::ShowFollowed(const std::vector<std::string>& phases)
{
    SelectRenamed(); // the views have heard of both by now
    std::vector<FolderNews> news;
    news.reserve(phases.size());
    for (const std::string& path : phases)
        news.push_back({FolderOf(path), {std::string(BaseName(path))}, {}, false});
    OnDiskNews(news);
    m_parts.commands.ShowFailure(IDS_FOLLOW_FAILED, TakeUnfollowed());
}

} // namespace editor
