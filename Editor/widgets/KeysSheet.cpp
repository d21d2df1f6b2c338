#include "Editor/widgets/KeysSheet.h"

#include "Toolkit/graphics/SysColors.h"

#include <algorithm>

namespace editor
{
namespace
{

constexpr int kMargin = 2 * kSpace;
constexpr int kGap = kSpace;      // between groups
constexpr int kLeastColumn = 340; // pixels wide

int LineStep()
{
    return toolkit::CurrentTextEngine().LineHeight() + 2;
}

int HeightOf(const CKeysSheet::Group& group)
{
    return static_cast<int>(group.lines.size() + 1) * LineStep();
}

} // namespace

BEGIN_MESSAGE_MAP(CKeysSheet, hostkit::CWidget)
    ON_WM_KEYDOWN()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEWHEEL()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

void CKeysSheet::Show(std::vector<Group> groups)
{
    m_groups = std::move(groups);
    m_nScrolled = 0;
    ShowWindow(SW_SHOW);
    SetFocus();
    Invalidate();
}

// Filled from the left: a column is full once it holds its part of the whole.
std::vector<CKeysSheet::Place> CKeysSheet::Layout() const
{
    CRect room = Client();
    room.DeflateRect(kMargin, kMargin);
    const int nColumns = std::clamp(room.Width() / kLeastColumn, 1, 3);
    const int width = (room.Width() - (nColumns - 1) * kMargin) / nColumns;
    int whole = 0;
    for (const Group& group : m_groups)
        whole += HeightOf(group) + kGap;

    std::vector<Place> places;
    CPoint at = room.TopLeft();
    int column = 0;
    for (const Group& group : m_groups) {
        const int height = HeightOf(group);
        const bool bFull = at.y - room.top + height / 2 > whole / nColumns;
        if (bFull && column + 1 < nColumns)
            at = {room.left + ++column * (width + kMargin), room.top};
        places.push_back({{at, CSize(width, height)}, &group});
        at.y += height + kGap;
    }
    return places;
}

std::vector<CKeysSheet::Part> CKeysSheet::AccParts()
{
    const int step = LineStep();
    std::vector<Part> parts;
    for (const Place& place : Layout()) {
        CRect line(place.rect.left, place.rect.top - m_nScrolled, place.rect.right,
                   place.rect.top - m_nScrolled + step);
        parts.push_back({ROLE_SYSTEM_STATICTEXT, 0, place.pGroup->title, line, {}});
        for (const Line& one : place.pGroup->lines) {
            line.OffsetRect(0, step);
            parts.push_back({ROLE_SYSTEM_LISTITEM, 0, one.key + ": " + one.what, line, {}});
        }
    }
    return parts;
}

void CKeysSheet::Draw(HDC hdc)
{
    for (const Place& place : Layout())
        DrawGroup(hdc, place);
}

void CKeysSheet::DrawGroup(HDC hdc, const Place& place) const
{
    const int step = LineStep();
    const int keys = place.rect.Width() * 42 / 100;
    CRect line(place.rect.left, place.rect.top - m_nScrolled, place.rect.right, place.rect.top - m_nScrolled + step);
    DrawTextLine(hdc, line, place.pGroup->title, GetSysColor(COLOR_WINDOWTEXT), Align::Left, toolkit::FontStyle::Bold);
    for (const Line& one : place.pGroup->lines) {
        line.OffsetRect(0, step);
        const int split = line.left + keys;
        DrawTextLine(hdc, {line.left, line.top, split - kSpace, line.bottom}, one.key, GetSysColor(COLOR_GRAYTEXT));
        DrawTextLine(hdc, {split, line.top, line.right, line.bottom}, one.what, GetSysColor(COLOR_WINDOWTEXT));
    }
}

void CKeysSheet::OnKeyDown(UINT nChar, UINT, UINT)
{
    if (nChar == VK_ESCAPE || nChar == VK_RETURN)
        Leave();
    else if (nChar == VK_UP || nChar == VK_DOWN)
        ScrollBy(nChar == VK_UP ? -LineStep() : LineStep());
    else if (nChar == VK_PRIOR || nChar == VK_NEXT)
        ScrollBy(nChar == VK_PRIOR ? -Client().Height() : Client().Height());
}

BOOL CKeysSheet::OnMouseWheel(UINT, short zDelta, CPoint)
{
    ScrollBy(-zDelta * 3 * LineStep() / WHEEL_DELTA);
    return TRUE;
}

void CKeysSheet::OnKillFocus(CWnd* pNewWnd)
{
    CWnd::OnKillFocus(pNewWnd);
    ShowWindow(SW_HIDE);
}

void CKeysSheet::ScrollBy(int nPixels)
{
    int bottom = 0;
    for (const Place& place : Layout())
        bottom = std::max<int>(bottom, place.rect.bottom + kMargin);
    m_nScrolled = std::clamp(m_nScrolled + nPixels, 0, std::max(0, bottom - Client().Height()));
    Invalidate();
}

} // namespace editor
