#pragma once

#include "Kernel/StubBaseInterface.h"
#include "Views/host/Api.h"

class IAtom;
class IAtomContainer;

// An active atom and the container it is shown in.
struct OBJPAIR
{
    IAtom* pAtom;
    IAtomContainer* pContainer;
};
static_assert(sizeof(OBJPAIR) == 2 * sizeof(void*));

// What the editor tells and asks its views. Each call is about one atom in one container. It may come while the
// view is inside a call to the editor.
class VIEWS_API IAEStateHandler : public virtual CStubBaseInterface
{
public:
    // Asked: FALSE vetoes.
    virtual BOOL PreRenameAtom(IAtom* pAtom, IAtomContainer* pContainer) = 0; // a rename is about to begin
    virtual BOOL PreSaveAtom(IAtom* pAtom, IAtomContainer* pContainer) = 0;   // pending edits are to be committed

    // Told: the answer is ignored.
    virtual BOOL OnCreateAtom(IAtom* pAtom, IAtomContainer* pContainer) = 0; // added to the container
    // Removed from the container; atom NULL: its members changed as a whole.
    virtual BOOL OnDeleteAtom(IAtom* pAtom, IAtomContainer* pContainer) = 0;
    virtual BOOL OnChangeAtom(IAtom* pAtom, IAtomContainer* pContainer) = 0; // its name or picture changed
    // Selected, or selected no longer; atom NULL with a container: all its members.
    virtual BOOL OnAtomSelected(IAtom* pAtom, IAtomContainer* pContainer) = 0;
    virtual BOOL OnAtomDeselected(IAtom* pAtom, IAtomContainer* pContainer) = 0;

    // Asked before a view's selection changes: FALSE vetoes.
    virtual BOOL OnAtomSelecting(IAtom* pAtom, IAtomContainer* pContainer) = 0;
    virtual BOOL OnAtomDeselecting(IAtom* pAtom, IAtomContainer* pContainer) = 0;

    virtual BOOL OnAtomEntered(IAtom* pAtom, IAtomContainer* pContainer) = 0; // told: opened for browsing
    // The user wants to rename what is current in the view: TRUE when label editing has begun.
    virtual BOOL OnAtomRename(IAtom* pAtom, IAtomContainer* pContainer) = 0;

    // The view's active atoms, in two calls: with pairs NULL, or *pCount below what there is, *pCount receives the
    // number of slots needed and the answer is FALSE; else the first slots are filled, each pointer with a
    // reference, after what they held has been released, and the answer is TRUE. A slot may stay NULL. pCount
    // NULL is refused.
    virtual BOOL OnGetActivePairs(OBJPAIR* pairs, DWORD* pCount) = 0;

protected:
    ~IAEStateHandler() = default;
};

// One of the operations above that are about an atom in a container.
using AEStateOperation = BOOL (IAEStateHandler::*)(IAtom* pAtom, IAtomContainer* pContainer);
