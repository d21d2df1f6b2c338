// COleDropTarget: what a window does with a drag that comes over it.
#pragma once

#include "Toolkit/desktop/DropEffect.h"
#include "Toolkit/exchange/DataObject.h"
#include "Toolkit/window/Wnd.h"

#include <memory>

// Registered for one window at a time. The handlers get the window, the data, the keys and buttons (MK_*) and the point
// in the window's client area. A drag that comes over the window gives OnDragEnter; every movement and every change of
// Ctrl, Shift or a button after that OnDragOver; a drag that goes elsewhere or is cancelled OnDragLeave. At the drop
// OnDragOver is asked once more: with an effect, of those that the source allows, OnDropEx and OnDrop follow, without
// one OnDragLeave. A drag over a child window that is no target itself is one over its parent. A handler may destroy
// the window or the drop target.
class TOOLKIT_API COleDropTarget
{
public:
    COleDropTarget();
    virtual ~COleDropTarget(); // revokes
    COleDropTarget(const COleDropTarget&) = delete;
    COleDropTarget& operator=(const COleDropTarget&) = delete;

    // FALSE when it is registered already, the window has a drop target, or there is no window.
    BOOL Register(CWnd* pWnd);
    virtual void Revoke(); // also called when the window is destroyed, after its last message

    // Both answer the effect that a drop would have; none here.
    virtual DROPEFFECT OnDragEnter(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point);
    virtual DROPEFFECT OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point);
    // FALSE: the data was not taken, the drop has no effect after all. FALSE here.
    virtual BOOL OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point);
    // The effect that the drop had; kNotHandled, as here, has OnDrop called. dropList: all effects the source allows.
    virtual DROPEFFECT OnDropEx(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropDefault, DROPEFFECT dropList,
                                CPoint point);
    virtual void OnDragLeave(CWnd* pWnd); // nothing here
    // The drag has rested at the window's edge, and again every so often while it stays there: DROPEFFECT_SCROLL when
    // the window scrolled, after which OnDragOver is asked again. Here the scroll bars move a line towards that edge.
    virtual DROPEFFECT OnDragScroll(CWnd* pWnd, DWORD dwKeyState, CPoint point);

    static constexpr DROPEFFECT kNotHandled = 0xFFFFFFFF;

private:
    class Site;

    const std::unique_ptr<Site> m_site;
    HWND m_hWnd = nullptr; // the window it is registered for; may be stale
};
