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
    INT_PTR PlaceAt(CPoint point) const override; // -1: in no row
    void MarkPlace(INT_PTR nPlace, bool bMarked) override;
    std::optional<CStubRef<IAtomContainer>> ContainerAt(INT_PTR nPlace) const override;

private:
    DROPEFFECT OverEmptySpace(IArchive* pArchive, DROPEFFECT effect);

    CObjectsList* m_pList = nullptr;
};
