// Inside the library: what the drop targets of all views have in common.
#pragma once

#include "Toolkit/exchange/DropTarget.h"
#include "Views/clipboard/inside/Drags.h"
#include "Views/host/Api.h"
#include "Views/host/IAtomContainer.h"

#include <optional>

// Takes atoms that are dropped on a view. Which container is meant, and what is highlighted, the view's own class says.
//
// The host is asked while a drag moves, and may take the view away under it. Before there is a view nothing is taken.
class VIEWS_API CAtomDropTarget : public COleDropTarget
{
public:
    BOOL OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point) override;
    // Both only let go of what was read of the drag.
    void OnDragLeave(CWnd* pWnd) override;
    void Revoke() override;

protected:
    CAtomDropTarget(); // asks the editor for the format of atoms; without an editor nothing will ever be taken

    BOOL Register(CWnd* pView);

    static DROPEFFECT WantedEffect(DWORD dwKeyState); // a move, or a copy with Ctrl
    bool Offers(CWnd* pWnd, COleDataObject* pDataObject) const;
    views::DraggedAtoms::Look LookAt(COleDataObject* pDataObject) { return m_atoms.LookAt(pDataObject, m_cfAtoms); }
    // What CheckPaste says of a drop that has the effect. Nothing when the view's window is gone.
    std::optional<DWORD> Check(IArchive* pArchive, IAtomContainer* pContainer, DROPEFFECT effect);
    // What Check has found last.
    DWORD GetVerdict() const { return m_dwVerdict; }

    // The drag is over no place any more; takes the highlight away.
    virtual void ForgetPlace() = 0;
    // The container that a drop at that point is meant for, empty where none is. Nothing: no drop.
    virtual std::optional<CStubRef<IAtomContainer>> FindContainer(CPoint point) const = 0;

private:
    const CLIPFORMAT m_cfAtoms; // under which atoms travel
    CWnd* m_pView = nullptr;
    views::DraggedAtoms m_atoms;
    DWORD m_dwVerdict = 0;
};
