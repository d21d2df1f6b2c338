#pragma once

#include "Views/clipboard/AtomDropTarget.h"

class CObjectsList;

// Takes atoms that are dropped on a list view: into the container that it shows, or, on a row whose atom is a
// container, into that. The row is highlighted while it would take them.
//
// A highlight also stays when the drag leaves, or comes over empty space that would not take the atoms: until the next
// drop, or the next movement that would be accepted.
//
// A derived class may have atoms put between rows instead (TakesBetweenRows).
class VIEWS_API CListDropTarget : public CAtomDropTarget
{
public:
    BOOL Register(CObjectsList* pList); // the list outlives this

    DROPEFFECT OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) override;
    BOOL OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point) override;
    void OnDragLeave(CWnd* pWnd) override;

protected:
    // Is what is dragged to come between rows, whatever they are, rather than into one? FALSE here. If so, everything
    // goes into the container that is shown, no row is highlighted, and the gap is marked where it would be taken. What
    // becomes of the gap at the drop is Paste's affair, which is given the point.
    virtual bool TakesBetweenRows() const { return false; }
    int GapAt(CPoint point) const;        // before that row; the number of rows: behind the last
    void MarkGap(CPoint point, bool bOn); // the one nearest to the point, and no other

    INT_PTR PlaceAt(CPoint point) const override; // -1: in no row, or between rows
    void MarkPlace(INT_PTR nPlace, bool bMarked) override;
    std::optional<CStubRef<IAtomContainer>> ContainerAt(INT_PTR nPlace) const override;

private:
    DROPEFFECT OverEmptySpace(IArchive* pArchive, DROPEFFECT effect);

    CObjectsList* m_pList = nullptr;
    bool m_bGapMarked = false;
};
