#include "Editor/content/Navigation.h"

#include "Editor/model/PlainFile.h"
#include "Toolkit/desktop/Desktop.h"

#include <algorithm>

namespace editor
{
namespace
{

constexpr std::size_t kMostVisited = 200;

bool IsThere(CMember* pMember)
{
    return !pMember->Container() || pMember->Container()->FindAtomByID(pMember->GetID(), nullptr, 0);
}

} // namespace

CMember* WhatIsLeftOf(CMember* pMember)
{
    CMember* pLeft = pMember;
    for (; pMember; pMember = pMember->Container())
        if (!IsThere(pMember))
            pLeft = pMember->Container();
    return pLeft;
}

void Trail::Visit(const std::string& path)
{
    if (m_at < m_paths.size() && m_paths[m_at] == path)
        return;
    m_paths.resize(std::min(m_paths.size(), m_at + 1));
    if (m_paths.size() == kMostVisited)
        m_paths.erase(m_paths.begin());
    m_paths.push_back(path);
    m_at = m_paths.size() - 1;
}

bool Trail::CanGo(int nStep) const
{
    return nStep < 0 ? m_at > 0 : m_at + 1 < m_paths.size();
}

bool Trail::Go(int nStep, const std::function<bool(const std::string& path)>& show)
{
    while (CanGo(nStep)) {
        m_at += static_cast<std::size_t>(nStep);
        const std::string path = m_paths[m_at];
        if (show(path))
            return true;
        m_paths.erase(m_paths.begin() + static_cast<std::ptrdiff_t>(m_at));
        m_at -= nStep > 0 ? 1 : 0;
    }
    return false;
}

CContainer* Navigation::ShownContainer() const
{
    if (auto* const pContainer = dynamic_cast<CContainer*>(Shown()))
        return pContainer;
    return Shown() ? Shown()->Container() : nullptr;
}

std::vector<CMember*> Navigation::Path() const
{
    std::vector<CMember*> path;
    for (CMember* pMember = Shown(); pMember; pMember = pMember->Container())
        path.push_back(pMember);
    std::reverse(path.begin(), path.end());
    return path;
}

void Navigation::ReadAside(CMember* pMember) const
{
    const LongWork::Command command(m_editor.GetWork(), "Reading", Progress::Unit::Found);
    if (auto* const pContainer = dynamic_cast<CContainer*>(pMember))
        pContainer->GetCount();
}

void Navigation::SetShown(CMember* pMember)
{
    m_pShown = CStubRef<CMember>::Share(pMember);
    if (pMember)
        m_trail.Visit(pMember->Path());
}

void Navigation::GoTo(CMember* pMember)
{
    const auto pHeld = CStubRef<CMember>::Share(pMember);
    m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnAtomEntered, pMember, pMember->Container(), 0);
}

void Navigation::Open(CMember* pMember)
{
    if (!dynamic_cast<CPlainFile*>(pMember))
        return GoTo(pMember);
    const std::string name = pMember->ShownName();
    const std::string reason = toolkit::CurrentDesktop().OpenOutside(pMember->Path());
    m_say(reason.empty() ? name + ": opened with its program" : name + ": " + reason);
}

void Navigation::GoUp()
{
    if (Shown() && Shown()->Container())
        GoBackTo(Shown()->Container());
}

void Navigation::GoToPart(int nPart)
{
    const std::vector<CMember*> path = Path();
    if (nPart + 1 < static_cast<int>(path.size()))
        GoBackTo(path[static_cast<std::size_t>(nPart) + 1]->Container());
}

// What one came from is selected there.
void Navigation::GoBackTo(CContainer* pContainer)
{
    CMember* pFrom = Shown();
    while (pFrom && pFrom->Container() != pContainer)
        pFrom = pFrom->Container();
    const auto pHeld = CStubRef<CMember>::Share(pFrom);
    GoTo(pContainer);
    if (!pFrom)
        return;
    m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnAtomSelected, pFrom, pContainer, 0);
    m_cameBack();
}

void Navigation::LeaveWhatIsGone()
{
    CMember* const pStay = WhatIsLeftOf(Shown());
    if (pStay && pStay != Shown())
        GoTo(pStay);
}

} // namespace editor
