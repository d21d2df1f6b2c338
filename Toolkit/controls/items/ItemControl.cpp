#include "Toolkit/controls/items/ItemControl.h"

#include "Toolkit/base/Ticks.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace toolkit
{

namespace
{
constexpr int kDragDistance = 4;
} // namespace

bool ItemControl::IsDrag(CPoint from, CPoint to)
{
    return std::max(std::abs(to.x - from.x), std::abs(to.y - from.y)) >= kDragDistance;
}

LRESULT ItemControl::OnCreate(WPARAM, LPARAM)
{
    Measure();
    return Relayout() ? 0 : -1;
}

LRESULT ItemControl::OnGetImageList(WPARAM wParam, LPARAM)
{
    return wParam == kNormalImages ? reinterpret_cast<LRESULT>(m_hImages) : 0;
}

LRESULT ItemControl::OnSetImageList(WPARAM wParam, LPARAM lParam)
{
    if (wParam != kNormalImages)
        return 0;
    const HIMAGELIST former = std::exchange(m_hImages, reinterpret_cast<HIMAGELIST>(lParam));
    Measure();
    RedrawAll();
    static_cast<void>(Relayout());
    return reinterpret_cast<LRESULT>(former);
}

CSize ItemControl::ClientSize() const
{
    CRect rect;
    GetClientRect(m_hWnd, &rect);
    return rect.Size();
}

CSize ItemControl::SizeWithoutBars() const
{
    const int edge = (GetWindowExStyle(m_hWnd) & WS_EX_CLIENTEDGE ? kClientEdge : 0) + (Is(WS_BORDER) ? 1 : 0);
    CRect rect;
    GetWindowRect(m_hWnd, &rect);
    return {rect.Width() - 2 * edge, rect.Height() - 2 * edge};
}

void ItemControl::DrawImage(HDC hdc, CPoint at, int image, UINT style) const
{
    if (image >= 0)
        ImageList_Draw(m_hImages, image, hdc, at.x, at.y, style);
}

bool ItemControl::Tell(UINT code, NMHDR& header, LRESULT* pAnswer) const
{
    const HWND hWnd = m_hWnd;
    const LRESULT answer = Notify(code, header);
    if (pAnswer)
        *pAnswer = answer;
    return IsWindow(hWnd);
}

bool ItemControl::TellPlain(UINT code, LRESULT* pAnswer) const
{
    NMHDR header{};
    return Tell(code, header, pAnswer);
}

bool ItemControl::OpenLabelField(const std::string& text, DWORD align)
{
    const HWND hWnd = m_hWnd;
    const HWND hField = CreateLabelField(hWnd, text, align);
    if (!IsWindow(hWnd) || !hField)
        return IsWindow(hWnd);
    m_hLabelField = hField;
    PlaceLabelField();
    ShowWindow(hField, SW_SHOW);
    SetFocus(hField);
    return IsWindow(hWnd);
}

std::optional<std::string> ItemControl::CloseLabelField()
{
    const HWND hWnd = m_hWnd;
    const HWND hField = std::exchange(m_hLabelField, nullptr);
    std::string text(GetWindowText(hField).View());
    DestroyWindow(hField); // the focus comes back, unless it is elsewhere already
    return IsWindow(hWnd) ? std::optional(std::move(text)) : std::nullopt;
}

void ItemControl::LabelDone(bool taken)
{
    static_cast<void>(FinishLabel(taken));
}

// A click into a window that was not the active one comes right behind the focus that it brings.
bool ItemControl::HasJustComeBack() const
{
    return GetTickCount() - m_focusedAt < GetDoubleClickTime();
}

void ItemControl::StartLabelClock()
{
    StopLabelClock();
    m_hLabelClock = toolkit::StartLabelClock(m_hWnd);
}

void ItemControl::StopLabelClock()
{
    if (const HWND hClock = std::exchange(m_hLabelClock, nullptr))
        DestroyWindow(hClock);
}

} // namespace toolkit
