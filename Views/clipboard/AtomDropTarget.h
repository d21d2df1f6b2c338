// What the drop targets of all views have in common.
#pragma once

#include "Toolkit/exchange/DropTarget.h"
#include "Views/host/Api.h"
#include "Views/host/IArchive.h"
#include "Views/host/IAtomContainer.h"
#include "Views/host/StubRef.h"

#include <memory>
#include <optional>

namespace views
{
class DraggedAtoms;
}

// Takes atoms that are dropped on a view. Which container is meant, and what is highlighted, the view's own class says.
//
// The host is asked while a drag moves, and may take the view away under it. Before there is a view nothing is taken.
class VIEWS_API CAtomDropTarget : public COleDropTarget
{
public:
    ~CAtomDropTarget() override;
    BOOL OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point) override;
    // Both only let go of what was read of the drag.
    void OnDragLeave(CWnd* pWnd) override;
    void Revoke() override;

protected:
    CAtomDropTarget(); // asks the editor for the format of atoms; without an editor nothing will ever be taken

    BOOL Register(CWnd* pView);

    static DROPEFFECT WantedEffect(DWORD dwKeyState); // a move, or a copy with Ctrl
    bool Offers(CWnd* pWnd, COleDataObject* pDataObject) const;
    // An archive of what is dragged, empty where there is none; nothing when it does not come in global memory.
    std::optional<CStubRef<IArchive>> LookAt(COleDataObject* pDataObject);
    // What CheckPaste says of a drop that has the effect. Nothing when the view's window is gone.
    std::optional<DWORD> Check(IArchive* pArchive, IAtomContainer* pContainer, DROPEFFECT effect);
    // What Check has found last.
    DWORD GetVerdict() const { return m_dwVerdict; }

    // The same of the container at a place, which is where the drag is from now on, marked when it would be taken: the
    // effect.
    DROPEFFECT OverPlace(INT_PTR nPlace, IArchive* pArchive, DROPEFFECT effect);
    void ForgetPlace(); // the drag is over none any more

    // A place is a row's number or an item's handle.
    virtual INT_PTR PlaceAt(CPoint point) const = 0;
    virtual void MarkPlace(INT_PTR nPlace, bool bMarked) = 0;
    // The container that a drop there is meant for, empty where none is. Nothing: no drop.
    virtual std::optional<CStubRef<IAtomContainer>> ContainerAt(INT_PTR nPlace) const = 0;
    // What a drop at that point does: PasteObjects. FALSE: not all was taken.
    virtual BOOL Paste(IArchive* pArchive, IAtomContainer* pContainer, DROPEFFECT effect, CPoint point);

    INT_PTR m_nPlace = -1; // where the drag was at its previous movement; -1: at none

private:
    const CLIPFORMAT m_cfAtoms; // under which atoms travel
    CWnd* m_pView = nullptr;
    const std::unique_ptr<views::DraggedAtoms> m_pAtoms;
    DWORD m_dwVerdict = 0;
};
