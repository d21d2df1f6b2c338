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
