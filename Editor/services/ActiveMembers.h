// The objects that a command acts on, held for as long as it takes.
#pragma once

#include "Editor/model/Phase.h"
#include "HostKit/atoms/ActiveMembers.h"
#include "HostKit/atoms/Commands.h"
#include "HostKit/base/Names.h"

#include <vector>

namespace editor
{

using hostkit::ActiveMember;
using hostkit::ActiveMembers;
using hostkit::ErrorOf;
using hostkit::GetActiveMembers;
using hostkit::ShownNameOf;

// Those that are such members of a library; borrowed.
template <class Member>
std::vector<Member*> OwnOf(const ActiveMembers& members)
{
    std::vector<Member*> own;
    for (const ActiveMember& member : members)
        if (auto* const pOwn = dynamic_cast<Member*>(member.pAtom.Get()))
            own.push_back(pOwn);
    return own;
}

// These are about to be removed: reasons of former commands do not count. While it lives, lines of a phase that are
// removed with the others are removed together: the phase is written once.
class JointRemoval
{
public:
    explicit JointRemoval(const ActiveMembers& members);
    ~JointRemoval();
    JointRemoval(const JointRemoval&) = delete;
    JointRemoval& operator=(const JointRemoval&) = delete;

private:
    std::vector<CStubRef<CPhase>> m_phases;
};

} // namespace editor
