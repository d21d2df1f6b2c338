#pragma once

#include "Views/clipboard/AtomDropTarget.h"

class CObjectsList;

// Takes atoms that are dropped on a list view: into the container that it shows, or, on a row whose atom is a
// container, into that. The row is highlighted while it would take them.
//
// A highlight also stays when the drag leaves, or comes over empty space that would not take the atoms: until the next
// drop, or the next movement that would be accepted.
class VIEWS_API CListDropTarget : public CAtomDropTarget
{
public:
    BOOL Register(CObjectsList* pList); // the list outlives this

    DROPEFFECT OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) override;

protected:
    void ForgetPlace() override;
    std::optional<CStubRef<IAtomContainer>> FindContainer(CPoint point) const override;

private:
    void ClearHighlight();
    DROPEFFECT OverEmptySpace(IArchive* pArchive, DROPEFFECT effect);
    DROPEFFECT OverRow(int nRow, IArchive* pArchive, DROPEFFECT effect);

    CObjectsList* m_pList = nullptr;
    int m_nDropItem = -1; // the row that the drag was over at its previous movement
};
