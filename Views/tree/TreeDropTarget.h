#pragma once

#include "Toolkit/controls/TreeView.h"
#include "Toolkit/ole/DropTarget.h"
#include "Views/clipboard/Drags.h"
#include "Views/host/Api.h"

class CObjectsTree;

// Takes atoms that are dropped on a tree's item, into its atom's container. The item is highlighted while it would take
// them. When the drag leaves the tree the highlight stays until the next one comes.
class VIEWS_API CTreeDropTarget : public COleDropTarget
{
public:
    CTreeDropTarget(); // asks the editor for the format of atoms; without an editor nothing will ever be taken

    BOOL Register(CObjectsTree* pTree); // the tree outlives this

    DROPEFFECT OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) override;
    BOOL OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point) override;
    // Both only let go of what was read.
    void OnDragLeave(CWnd* pWnd) override;
    void Revoke() override;

private:
    bool Offers(CWnd* pWnd, COleDataObject* pDataObject) const;
    void ClearHighlight();
    DROPEFFECT OverItem(HTREEITEM hItem, COleDataObject* pDataObject, DROPEFFECT effect);

    static inline const HTREEITEM kNoItem = reinterpret_cast<HTREEITEM>(INT_PTR{-1}); // of no tree

    const CLIPFORMAT m_cfAtoms; // under which atoms travel
    CObjectsTree* m_pTree = nullptr;
    HTREEITEM m_hDropItem = kNoItem; // under the drag at its previous movement; NULL when that was outside all items
    views::DraggedAtoms m_atoms;
};
