#include "Toolkit/handle/WindowRecord.h"

#include <algorithm>

namespace
{
struct
{
    toolkit::HandleTable<HWND, toolkit::WindowRecord> all;
    std::vector<toolkit::WindowRecord*> tops;
} s_windows;

std::vector<toolkit::WindowRecord*>& Siblings(const toolkit::WindowRecord& window)
{
    return window.pParent ? window.pParent->children : s_windows.tops;
}
} // namespace

toolkit::WindowRecord::WindowRecord(const CREATESTRUCT& cs)
    : nID(cs.nID),
      style(cs.style & ~WS_VISIBLE),
      exStyle(cs.dwExStyle),
      rect({cs.x, cs.y}, {cs.cx, cs.cy}),
      text(cs.lpszName)
{
    bars[SB_HORZ].bShown = Is(WS_HSCROLL);
    bars[SB_VERT].bShown = Is(WS_VSCROLL);
}

toolkit::WindowRecord::~WindowRecord()
{
    if (pTemporaryWnd)
        pTemporaryWnd->m_hWnd = nullptr;
}

void toolkit::WindowRecord::ValidateAll()
{
    update.Clear();
    bErase = false;
}

toolkit::WindowRecord* toolkit::FindRecord(HWND hWnd)
{
    return s_windows.all.Find(hWnd);
}

const std::vector<toolkit::WindowRecord*>& toolkit::TopLevelRecords()
{
    return s_windows.tops;
}

int toolkit::CountRecords()
{
    return s_windows.all.GetCount();
}

HWND toolkit::AddRecord(std::unique_ptr<WindowRecord> pWindow, WindowRecord* pParent)
{
    WindowRecord* const p = pWindow.get();
    p->pParent = pParent;
    auto& siblings = Siblings(*p);
    if (siblings.size() == siblings.capacity())
        siblings.reserve(2 * siblings.size() + 4); // before anything changes: the only memory needed after Add
    const HWND hWnd = s_windows.all.Add(std::move(pWindow));
    if (!hWnd)
        return nullptr;
    p->hWnd = hWnd;
    siblings.push_back(p);
    return hWnd;
}

void toolkit::RemoveRecord(HWND hWnd) noexcept
{
    std::unique_ptr<WindowRecord> pWindow = s_windows.all.Remove(hWnd);
    if (!pWindow)
        return;
    std::erase(Siblings(*pWindow), pWindow.get());
    if (pWindow->pTemporaryWnd)
        pWindow->pTemporaryWnd->m_hWnd = nullptr;
    WindowRecord& window = *pWindow;
    window.pParent = nullptr;
    if (window.nHolds > 0)
        window.pSelf = std::move(pWindow);
}

void toolkit::RaiseRecord(WindowRecord& window)
{
    auto& siblings = Siblings(window);
    const auto it = std::find(siblings.begin(), siblings.end(), &window);
    std::rotate(it, it + 1, siblings.end());
}
