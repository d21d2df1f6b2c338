#include "Editor/services/ActiveMembers.h"

#include <map>
#include <new>
#include <utility>

namespace editor
{

JointRemoval::JointRemoval(const ActiveMembers& members)
{
    std::map<CPhase*, std::vector<const CMember*>> links;
    for (const ActiveMember& member : members) {
        if (auto* const pContainer = dynamic_cast<CContainer*>(member.pContainer.Get()))
            pContainer->ForgetWhatStayed();
        if (auto* const pPhase = dynamic_cast<CPhase*>(member.pContainer.Get()))
            if (const CMember* const pLink = CMember::Of(member.pAtom.Get()))
                links[pPhase].push_back(pLink);
    }
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

} // namespace editor
