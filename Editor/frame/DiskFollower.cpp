#include "Editor/frame/DiskFollower.h"

#include "Editor/model/Phase.h"
#include "Editor/services/MemberBroadcast.h"

#include <algorithm>

namespace editor
{

DiskFollower::Found DiskFollower::Look(const std::vector<FolderNews>& news)
{
    Found found;
    for (const FolderNews& one : news) {
        auto* const pFolder = dynamic_cast<CFolder*>(m_navigation.Library()->FindLive(one.folder));
        if (!pFolder)
            continue;
        found.push_back({CStubRef<CFolder>::Share(pFolder), {}, m_navigation.Library()->LinksTo(one)});
        pFolder->LookFor(one, found.back().news);
        for (const std::string& name : one.names)
            m_pictures.Recheck(one.folder + '/' + name);
        if (one.isUnknown)
            m_pictures.Recheck();
    }
    return found;
}

bool DiskFollower::MovesRows(const Found& found)
{
    const auto isPhase = [](const auto& pMember) { return dynamic_cast<CPhase*>(pMember.Get()) != nullptr; };
    return std::any_of(found.begin(), found.end(), [&](const auto& one) {
        const MemberNews& news = one.news;
        return news.isOther || !news.come.empty() || !news.renamed.empty() ||
               std::any_of(news.written.begin(), news.written.end(), isPhase);
    });
}

std::string DiskFollower::Tell(const Found& found)
{
    const auto pShown = CStubRef<CMember>::Share(m_navigation.Shown());
    bool bRenamed = false; // it, or what it is in
    for (const auto& [pFolder, news, links] : found) {
        for (const auto& pMember : news.written)
            if (auto* const pPhase = dynamic_cast<CPhase*>(pMember.Get()))
                ReadAgainAndTell(m_editor, *pPhase);
        for (const auto& renamed : news.renamed)
            for (CMember* pMember = pShown.Get(); pMember; pMember = pMember->Container())
                bRenamed |= pMember == renamed.pFormer.Get();
        TellOf(m_editor, *pFolder.Get(), news);
        for (const auto& pLink : links)
            m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnChangeAtom, pLink.Get(), pLink->Container(), 0);
    }
    CMember* const pLeft = WhatIsLeftOf(pShown.Get());
    if (bRenamed || pLeft == pShown.Get())
        return {};
    m_navigation.GoTo(pLeft);
    return pShown->ShownName() + ": is not there any more";
}

std::vector<FolderNews> DiskFollower::Unfollowed() const
{
    std::vector<FolderNews> unknown;
    for (CMember* pMember = m_navigation.Shown(); pMember; pMember = pMember->Container())
        if (auto* const pFolder = dynamic_cast<CFolder*>(pMember); pFolder && !pFolder->IsFollowed())
            unknown.push_back({pFolder->Path(), {}, {}, true});
    return unknown;
}

} // namespace editor
