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
    INT_PTR PlaceAt(CPoint point) const override; // 0: in no item
    void MarkPlace(INT_PTR nPlace, bool bMarked) override;
    std::optional<CStubRef<IAtomContainer>> ContainerAt(INT_PTR nPlace) const override;

private:
    CObjectsTree* m_pTree = nullptr;
};
