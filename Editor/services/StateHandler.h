// A state handler that agrees to everything and has nothing selected: override what matters.
#pragma once

#include "Views/host/host.h"

namespace editor
{

// Not counted: whoever registers it sees to it that it is unregistered before it goes.
class CStateHandler : public IAEStateHandler
{
public:
    void AddRef() override {}
    void Release() override {}
    void GetInterface(DWORD id, void** out) override;

    BOOL PreRenameAtom(IAtom*, IAtomContainer*) override { return TRUE; }
    BOOL PreSaveAtom(IAtom*, IAtomContainer*) override { return TRUE; }
    BOOL OnCreateAtom(IAtom*, IAtomContainer*) override { return TRUE; }
    BOOL OnDeleteAtom(IAtom*, IAtomContainer*) override { return TRUE; }
    BOOL OnChangeAtom(IAtom*, IAtomContainer*) override { return TRUE; }
    BOOL OnAtomSelected(IAtom*, IAtomContainer*) override { return TRUE; }
    BOOL OnAtomDeselected(IAtom*, IAtomContainer*) override { return TRUE; }
    BOOL OnAtomSelecting(IAtom*, IAtomContainer*) override { return TRUE; }
    BOOL OnAtomDeselecting(IAtom*, IAtomContainer*) override { return TRUE; }
    BOOL OnAtomEntered(IAtom*, IAtomContainer*) override { return TRUE; }
    BOOL OnAtomRename(IAtom*, IAtomContainer*) override { return FALSE; }
    BOOL OnGetActivePairs(OBJPAIR* pairs, DWORD* pCount) override;

protected:
    ~CStateHandler() = default;
};

} // namespace editor
