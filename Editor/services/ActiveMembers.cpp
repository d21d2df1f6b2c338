#include "Editor/services/ActiveMembers.h"

#include "Editor/model/Container.h"
#include "Editor/services/Troubles.h"
#include "HostKit/base/ErrorInfo.h"

#include <map>
#include <new>
#include <utility>

namespace editor
{

JointRemoval::JointRemoval(const ActiveMembers& members)
{
    std::map<CPhase*, std::vector<const CMember*>> links;
    for (const ActiveMember& member : members)
        if (auto* const pPhase = dynamic_cast<CPhase*>(member.pContainer.Get()))
            if (const CMember* const pLink = CMember::Of(member.pAtom.Get()))
                links[pPhase].push_back(pLink);
    for (auto& [pPhase, itsLinks] : links)
        m_phases.push_back(CStubRef<CPhase>::Share(pPhase));
    for (const auto& pPhase : m_phases)
        pPhase->BeginRemovals(std::move(links[pPhase.Get()]));
}

JointRemoval::~JointRemoval()
try {
    for (const auto& pPhase : m_phases)
        pPhase->EndRemovals();
} catch (const std::bad_alloc&) {
    return; // who reads the phase again sees which lines are left
}

std::string ShownNameOf(IAtom* pAtom)
{
    const CMember* const pMember = CMember::Of(pAtom);
    return pMember ? pMember->ShownName() : std::string("an object");
}

void ForgetWhatStayed(const ActiveMembers& members)
{
    for (const ActiveMember& member : members)
        if (auto* const pContainer = dynamic_cast<CContainer*>(member.pContainer.Get()))
            pContainer->ForgetWhatStayed();
}

namespace
{

std::string WhyStillThere(const ActiveMember& member)
{
    const auto* const pContainer = dynamic_cast<const CContainer*>(member.pContainer.Get());
    std::string reason = pContainer ? pContainer->WhyItStayed(member.pAtom->GetID()) : std::string();
    if (reason.empty() && !member.MayGo())
        reason = ShownNameOf(member.pAtom.Get()) + ": it cannot be removed";
    return reason;
}

} // namespace

// The container's own error may be that of a change since: what else had been cut is put back, and is there as well.
std::string WhyStillThere(const ActiveMembers& members)
{
    Troubles troubles;
    for (const ActiveMember& member : members)
        troubles.Add(member.IsThere() ? WhyStillThere(member) : std::string());
    return troubles.Text();
}

} // namespace editor
