// Windows that take drags. Internal to the toolkit: everybody else registers a COleDropTarget.
#pragma once

#include "Toolkit/base/Geometry.h"
#include "Toolkit/desktop/DropEffect.h"

#include <memory>

namespace toolkit
{

class OfferedData;

// Where a drag is: over which window, at which point of its client area, with which keys and buttons (MK_*).
struct DragPlace
{
    HWND hWnd = nullptr;
    CPoint at;
    DWORD dwKeyState = 0;

    friend bool operator==(const DragPlace& a, const DragPlace& b)
    {
        return a.hWnd == b.hWnd && a.at == b.at && a.dwKeyState == b.dwKeyState;
    }
};

// What a window does with a drag. Any call may revoke the site or destroy the window: look it up again afterwards.
class DropSite
{
public:
    using Data = std::shared_ptr<OfferedData>;

    virtual DROPEFFECT Enter(const Data& data, const DragPlace& place) = 0;
    virtual DROPEFFECT Over(const Data& data, const DragPlace& place) = 0;
    virtual void Leave(HWND hWnd) = 0;
    virtual bool Scroll(const DragPlace& place) = 0; // it did, towards the edge that the place is at
    // What has become of the data, which was to be treated so; `allowed` is all that its source lets be done.
    virtual DROPEFFECT Drop(const Data& data, const DragPlace& place, DROPEFFECT effect, DROPEFFECT allowed) = 0;
    virtual void WindowGone() = 0; // the drag is not told to leave a window that is gone

protected:
    ~DropSite() = default;
};

bool RegisterDropSite(HWND hWnd, DropSite* pSite); // false for a stale handle and when the window has one
void RevokeDropSite(HWND hWnd);
DropSite* FindDropSite(HWND hWnd); // NULL when the window has none

} // namespace toolkit
