#include "Editor/frame/DiskFollower.h"

#include "Editor/model/Phase.h"
#include "Editor/services/MemberBroadcast.h"

namespace editor
{

std::string DiskFollower::Follow(const std::vector<FolderNews>& news)
{
    const auto pShown = CStubRef<CMember>::Share(m_navigation.Shown());
    for (const FolderNews& one : news)
        Follow(one);
    m_navigation.LeaveWhatIsGone();
    CMember* const pNow = m_navigation.Shown();
    const bool bHigher = pNow != pShown.Get() && WhatIsLeftOf(pShown.Get()) == pNow;
    return bHigher ? pShown->ShownName() + ": is not there any more" : std::string();
}

std::vector<FolderNews> DiskFollower::Unfollowed() const
{
    std::vector<FolderNews> unknown;
    for (CMember* pMember = m_navigation.Shown(); pMember; pMember = pMember->Container())
        if (auto* const pFolder = dynamic_cast<CFolder*>(pMember); pFolder && !pFolder->IsFollowed())
            unknown.push_back({pFolder->Path(), {}, {}, true});
    return unknown;
}

void DiskFollower::Follow(const FolderNews& news)
{
    auto* const pFolder = dynamic_cast<CFolder*>(m_navigation.Library()->FindLive(news.folder));
    if (!pFolder)
        return;
    const auto pHeld = CStubRef<CFolder>::Share(pFolder);
    MemberNews found;
    pFolder->LookFor(news, found);
    for (const std::string& name : news.names)
        m_pictures.Recheck(news.folder + '/' + name);
    if (news.isUnknown)
        m_pictures.Recheck();
    for (const auto& pMember : found.written)
        if (auto* const pPhase = dynamic_cast<CPhase*>(pMember.Get()))
            ReadAgainAndTell(m_editor, *pPhase);
    TellOf(m_editor, *pFolder, found);
}

} // namespace editor
