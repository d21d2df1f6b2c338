// A phase: a text file whose lines name pictures, in order.
#pragma once

#include "Editor/model/Container.h"

namespace editor
{

// A line names a picture by its path from the phase's own folder or, failing that, from the library's. Empty lines
// and those that begin with # do not count; a picture may be named any number of times. The members bear the last
// part of the path as their name.
class CPhase : public CContainer, public IPhase
{
public:
    CPhase(CContainer* pContainer, UINT nIndex) : CContainer(pContainer, nIndex) {}

    std::string_view LineOf(const CMember& link) const { return CContainer::NameOf(link); }

    int GetPosition(IImageLink* pLink) override; // from 0; -1 for what is no member

protected:
    void* FindInterface(DWORD id) override;
    Listing Read() override;
    UINT FindName(const MemberTable& table, std::string_view name) const override;
    CMember* MakeMember(UINT nIndex, MemberKind kind) override;
    toolkit::Surface DrawIcon(CSize size) override;
};

} // namespace editor
