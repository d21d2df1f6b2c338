#include "Editor/widgets/SearchSheet.h"

#include "Toolkit/graphics/SysColors.h"

#include <algorithm>

namespace editor
{
namespace
{

constexpr int kMargin = 2 * kSpace;
constexpr int kLine = 26; // pixels high
constexpr int kWheelLines = 3;

} // namespace

BEGIN_MESSAGE_MAP(CSearchSheet, hostkit::CWidget)
    ON_WM_SIZE()
    ON_WM_MOUSEWHEEL()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

CSearchSheet::CSearchSheet(Events events)
    : CWidget(WS_CLIPCHILDREN),
      m_events(std::move(events)),
      m_field({.change = m_events.typed,
               .enter =
                   [this](const std::string&) {
                       if (!m_lines.empty())
                           m_events.chosen(static_cast<std::size_t>(m_nChosen));
                   },
               .leave = m_events.leave,
               .other = [this](UINT vkey) { return HandleKey(vkey); },
               .lost = {}})
{}

BOOL CSearchSheet::Create(CWnd* pParent)
{
    return CWidget::Create(pParent) && m_field.Create(WS_CHILD | WS_VISIBLE, CRect(), this, 1) &&
           SetAccessibleName(m_field.m_hWnd, "Search for a name");
}

void CSearchSheet::Show(const std::string& text)
{
    Clear();
    m_field.SetText(text);
    ShowWindow(SW_SHOW);
    m_field.SetFocus();
}

void CSearchSheet::Clear()
{
    m_lines.clear();
    m_nChosen = m_nFirst = 0;
    SetNews({});
}

void CSearchSheet::Add(std::vector<Line> lines)
{
    std::move(lines.begin(), lines.end(), std::back_inserter(m_lines));
    Invalidate();
    NotifyWinEvent(EVENT_OBJECT_REORDER, m_hWnd, OBJID_CLIENT, CHILDID_SELF);
}

void CSearchSheet::SetNews(std::string news)
{
    m_news = std::move(news);
    Invalidate();
    NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, m_hWnd, OBJID_CLIENT, CHILDID_SELF);
}

CRect CSearchSheet::FieldRect() const
{
    CRect rect = Client();
    rect.DeflateRect(kMargin, kMargin);
    return {rect.left, rect.top, rect.left + rect.Width() / 2, rect.top + kFieldHeight};
}

CRect CSearchSheet::ListRect() const
{
    CRect rect = Client();
    rect.top = FieldRect().bottom + kSpace;
    return rect;
}

int CSearchSheet::LinesInSight() const
{
    return std::max(1, ListRect().Height() / kLine);
}

void CSearchSheet::Draw(HDC hdc)
{
    const CRect field = FieldRect(), list = ListRect();
    FillField(hdc, field);
    DrawTextLine(hdc, {field.right + kMargin, field.top, list.right - kMargin, field.bottom}, m_news,
                 GetSysColor(COLOR_GRAYTEXT));
    CRect line(list.left, list.top, list.right, list.top + kLine);
    for (int i = m_nFirst; i < static_cast<int>(m_lines.size()) && line.top < list.bottom; ++i) {
        const bool bChosen = i == m_nChosen;
        if (bChosen)
            FillSolidRect(hdc, line, GetSysColor(COLOR_HIGHLIGHT));
        const int split = list.left + list.Width() / 2;
        DrawTextLine(hdc, {list.left + kMargin, line.top, split - kSpace, line.bottom}, m_lines[i].what,
                     GetSysColor(bChosen ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
        DrawTextLine(hdc, {split, line.top, list.right - kMargin, line.bottom}, m_lines[i].where,
                     GetSysColor(bChosen ? COLOR_HIGHLIGHTTEXT : COLOR_GRAYTEXT));
        line.OffsetRect(0, kLine);
    }
}

void CSearchSheet::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    CRect text = FieldRect();
    text.DeflateRect(kFieldMargin.cx, kFieldMargin.cy);
    m_field.MoveWindow(text);
    Invalidate();
}

BOOL CSearchSheet::OnMouseWheel(UINT, short zDelta, CPoint)
{
    ScrollTo(m_nFirst - (zDelta > 0 ? kWheelLines : -kWheelLines));
    return TRUE;
}

void CSearchSheet::OnLButtonDown(UINT nFlags, CPoint point)
{
    CWnd::OnLButtonDown(nFlags, point);
    if (const CRect list = ListRect(); list.PtInRect(point))
        Choose(m_nFirst + (point.y - list.top) / kLine);
}

void CSearchSheet::OnLButtonDblClk(UINT, CPoint point)
{
    const CRect list = ListRect();
    const auto nLine = static_cast<std::size_t>(m_nFirst + (point.y - list.top) / kLine);
    if (list.PtInRect(point) && nLine < m_lines.size())
        m_events.chosen(nLine);
}

bool CSearchSheet::HandleKey(UINT vkey)
{
    const int nPage = LinesInSight() - 1;
    const int nStep = vkey == VK_UP      ? -1
                      : vkey == VK_DOWN  ? 1
                      : vkey == VK_PRIOR ? -nPage
                      : vkey == VK_NEXT  ? nPage
                                         : 0;
    if (nStep != 0)
        Choose(m_nChosen + nStep);
    return nStep != 0;
}

void CSearchSheet::Choose(int nLine)
{
    m_nChosen = std::max(0, std::min(nLine, static_cast<int>(m_lines.size()) - 1));
    ScrollTo(std::clamp(m_nFirst, m_nChosen - LinesInSight() + 1, m_nChosen));
    NotifyWinEvent(EVENT_OBJECT_SELECTIONADD, m_hWnd, OBJID_CLIENT, m_nChosen + 1);
}

UINT CSearchSheet::AccState(LPARAM item)
{
    if (item == CHILDID_SELF)
        return 0;
    return STATE_SYSTEM_SELECTABLE | (item == m_nChosen + 1 ? STATE_SYSTEM_SELECTED : 0) |
           ((AccPlace(item) & Client()).IsRectEmpty() ? STATE_SYSTEM_OFFSCREEN : 0);
}

std::string CSearchSheet::AccName(LPARAM item)
{
    if (item == CHILDID_SELF)
        return "Found. " + m_news;
    const Line& line = m_lines[static_cast<std::size_t>(item) - 1];
    return line.what + ", in " + line.where;
}

CRect CSearchSheet::AccPlace(LPARAM item)
{
    const CRect list = ListRect();
    const int top = list.top + (static_cast<int>(item) - 1 - m_nFirst) * kLine;
    return {list.left, top, list.right, top + kLine};
}

void CSearchSheet::ScrollTo(int nFirst)
{
    m_nFirst = std::max(0, std::min(nFirst, static_cast<int>(m_lines.size()) - LinesInSight()));
    Invalidate();
}

} // namespace editor
