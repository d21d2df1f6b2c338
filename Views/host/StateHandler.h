#pragma once

#include "Views/host/IAEStateHandler.h"

// A state handler that agrees to everything, takes no notice of anything and has nothing selected: override what
// matters. The views are made from it; hosts may be, too.
//
// Not counted: whoever registers it sees to it that it is unregistered before it goes.
class VIEWS_API CStateHandler : public IAEStateHandler
{
public:
    void AddRef() override {}
    void Release() override {}
    void GetInterface(DWORD id, void** out) override; // IAEStateHandler and CStubBaseInterface

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
