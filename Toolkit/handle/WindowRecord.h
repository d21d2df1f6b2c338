// What a window's handle stands for. Whoever is not of the toolkit uses handles.
#pragma once

#include "Toolkit/base/HandleTable.h"
#include "Toolkit/base/String.h"
#include "Toolkit/graphics/Surface.h"
#include "Toolkit/handle/NotedRegion.h"
#include "Toolkit/handle/WindowObject.h"
#include "Toolkit/handle/WindowTypes.h"

#include <array>
#include <memory>
#include <vector>

namespace toolkit
{

class DropSite;

struct ScrollBarState
{
    SCROLLINFO info{0, 100, 0, 0, 0};
    bool bShown = false;
};

struct WindowRecord
{
    explicit WindowRecord(const CREATESTRUCT& cs);
    ~WindowRecord();

    bool Is(DWORD styleBit) const { return (style & styleBit) != 0; }
    bool IsTop() const { return !pParent; }
    void ValidateAll(); // nothing of the client area is to be painted any more

    HWND hWnd = nullptr;
    WindowRecord* pParent = nullptr;
    std::vector<WindowRecord*> children; // from the bottom to the top
    UINT nID;
    DWORD style, exStyle;
    CRect rect; // the whole window, in the parent's client area; a top-level window's on the screen
    CString text;
    CString accessibleName;             // as set; empty: none
    std::array<ScrollBarState, 2> bars; // by SB_HORZ, SB_VERT

    WindowObject* pWnd = nullptr;                // the CWnd it was created with
    std::unique_ptr<WindowObject> pTemporaryWnd; // made by CWnd::FromHandle for a window without one
    std::unique_ptr<MessageReceiver> pNative;    // its class's behaviour, a NativeWindow
    DropSite* pDropSite = nullptr;
    bool bDestroying = false;

    // What is to be painted, and whether the background is to be erased there; the frame is border and scroll bars.
    NotedRegion update;      // client
    NotedRegion frameUpdate; // from the window's top left corner
    bool bErase = false;
    bool bPaintBegun = false; // by the WM_PAINT being handled
    unsigned nPaintPass = 0;  // the last UpdateWindow that painted it

    // Top-level windows only.
    Surface surface;
    CRect dirty; // painted, not yet presented
    HWND hLastFocus = nullptr;
    bool bKnownToDesktop = false;

    // A destroyed window's record lives on, owning itself, until nobody holds it any more (WindowHold).
    int nHolds = 0;
    std::unique_ptr<WindowRecord> pSelf;
};

// NULL for a stale handle.
WindowRecord* FindRecord(HWND hWnd);
const std::vector<WindowRecord*>& TopLevelRecords(); // from the bottom to the top
int CountRecords();

// Puts the record above its siblings to be, under a new handle; NULL when there is no room. Takes it out again.
HWND AddRecord(std::unique_ptr<WindowRecord> pWindow, WindowRecord* pParent);
void RemoveRecord(HWND hWnd) noexcept;
void RaiseRecord(WindowRecord& window);

} // namespace toolkit
