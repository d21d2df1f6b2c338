#include "Editor/frame/DiskFollower.h"

#include "Editor/model/Phase.h"
#include "Editor/services/MemberBroadcast.h"

namespace editor
{

std::string DiskFollower::Follow(const std::vector<FolderNews>& news)
{
    const auto pShown = CStubRef<CMember>::Share(m_navigation.Shown());
    bool bRenamed = false;
    for (const FolderNews& one : news)
        bRenamed |= Follow(one, pShown.Get());
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

bool DiskFollower::Follow(const FolderNews& news, CMember* pShown)
{
    auto* const pFolder = dynamic_cast<CFolder*>(m_navigation.Library()->FindLive(news.folder));
    if (!pFolder)
        return false;
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
    bool bRenamed = false;
    for (const auto& [pFormer, pNow] : found.renamed)
        for (CMember* pMember = pShown; pMember; pMember = pMember->Container())
            bRenamed |= pMember == pFormer.Get();
    TellOf(m_editor, *pFolder, found);
    return bRenamed;
}

} // namespace editor
