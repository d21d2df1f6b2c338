// The atoms that a command acts on, held for as long as it takes.
#pragma once

#include "HostKit/base/Api.h"
#include "Views/host/IAtomContainer.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/StubRef.h"

#include <vector>

namespace hostkit
{

struct ActiveMember
{
    CStubRef<IAtom> pAtom;
    CStubRef<IAtomContainer> pContainer;

    bool IsThere() const { return pContainer->FindAtomByID(pAtom->GetID(), nullptr, 0) != FALSE; }
    bool MayGo() const { return (pContainer->GetPermissions(pAtom.Get()) & APF_REMOVE) != 0; }
};
using ActiveMembers = std::vector<ActiveMember>;

HOSTKIT_API ActiveMembers GetActiveMembers(IAtomEditor& editor);

} // namespace hostkit
