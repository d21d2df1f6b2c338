#pragma once

#include "Toolkit/ole/DropTarget.h"
#include "Views/clipboard/Drags.h"
#include "Views/host/Api.h"

class CObjectsList;

// Takes atoms that are dropped on a list view: into the container that it shows, or, on a row whose atom is a
// container, into that. The row is highlighted while it would take them.
//
// A highlight also stays when the drag leaves, or comes over empty space that would not take the atoms: until the next
// drop, or the next movement that would be accepted.
class VIEWS_API CListDropTarget : public COleDropTarget
{
public:
    CListDropTarget(); // asks the editor for the format of atoms; without an editor nothing will ever be taken

    BOOL Register(CObjectsList* pList); // the list outlives this

    DROPEFFECT OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point) override;
    BOOL OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point) override;
    // Both only let go of what was read.
    void OnDragLeave(CWnd* pWnd) override;
    void Revoke() override;

protected:
    // What CheckPaste has said at the latest movement; PASTE_REFUSED when it was not asked.
    DWORD GetVerdict() const { return m_dwVerdict; }

private:
    bool Offers(CWnd* pWnd, COleDataObject* pDataObject) const;
    void ClearHighlight();
    DROPEFFECT OverEmptySpace(IArchive* pArchive, DROPEFFECT effect);
    DROPEFFECT OverRow(int nRow, IArchive* pArchive, DROPEFFECT effect);

    const CLIPFORMAT m_cfAtoms; // under which atoms travel
    CObjectsList* m_pList = nullptr;
    int m_nDropItem = -1; // the row that the drag was over at its previous movement
    DWORD m_dwVerdict = 0;
    views::DraggedAtoms m_atoms;
};
