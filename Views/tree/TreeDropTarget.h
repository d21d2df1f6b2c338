#pragma once

#include "Toolkit/controls/tree/TreeView.h"
#include "Views/clipboard/AtomDropTarget.h"

class CObjectsTree;

// Takes atoms that are dropped on a tree's item, into its atom's container. The item is highlighted while it would take
// them. When the drag leaves the tree the highlight stays until the next one comes.
class VIEWS_API CTreeDropTarget : public CAtomDropTarget
{
public:
    BOOL Register(CObjectsTree* pTree); // the tree outlives this

    DROPEFFECT OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) override;

protected:
    void ForgetPlace() override;
    std::optional<CStubRef<IAtomContainer>> FindContainer(CPoint point) const override;

private:
    void ClearHighlight();
    DROPEFFECT OverItem(HTREEITEM hItem, COleDataObject* pDataObject, DROPEFFECT effect);

    static inline const HTREEITEM kNoItem = reinterpret_cast<HTREEITEM>(INT_PTR{-1}); // of no tree

    CObjectsTree* m_pTree = nullptr;
    HTREEITEM m_hDropItem = kNoItem; // under the drag at its previous movement; NULL when that was outside all items
};
