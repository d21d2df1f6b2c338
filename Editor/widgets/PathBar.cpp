#include "Editor/widgets/PathBar.h"

#include "HostKit/pictures/Pictograms.h"
#include "Toolkit/graphics/SysColors.h"

#include <utility>

namespace editor
{
namespace
{

constexpr int kIcon = 16;
constexpr int kGap = 16; // between two parts: room for an arrow
constexpr const char* kDotsText = "...";
constexpr const char* kName = "Path";

toolkit::FontStyle StyleOf(bool isLast)
{
    return isLast ? toolkit::FontStyle::Bold : toolkit::FontStyle::Regular;
}

} // namespace

BEGIN_MESSAGE_MAP(CPathBar, CSpotBar)
    ON_WM_SIZE()
END_MESSAGE_MAP()

CPathBar::CPathBar(Events events)
    : m_events(std::move(events)),
      m_field({.change = {},
               .enter = [this](const std::string& path) { Enter(path); },
               .leave = [this] { m_events.leave(); },
               .other = {},
               .lost = [this] { EndTyping(); }})
{}

BOOL CPathBar::Create(CWnd* pParent)
{
    return CSpotBar::Create(pParent) && m_field.Create(WS_CHILD, CRect(), this, 1) &&
           SetAccessibleName(m_hWnd, kName) && SetAccessibleName(m_field.m_hWnd, kName);
}

void CPathBar::SetPath(std::vector<std::string> parts)
{
    m_parts = std::move(parts);
    ForgetSpots();
}

void CPathBar::BeginTyping(const std::string& path)
{
    m_field.SetText(path);
    m_field.ShowWindow(SW_SHOW);
    m_field.SetFocus();
    ForgetSpots();
}

// What cannot be shown stays to be put right.
void CPathBar::Enter(const std::string& path)
{
    if (m_events.type(path).empty())
        m_events.leave();
}

void CPathBar::EndTyping()
{
    m_field.ShowWindow(SW_HIDE);
    ForgetSpots();
}

// Those that are left out for want of room, too: as the path goes, and not as it is drawn.
std::vector<CPathBar::Part> CPathBar::AccParts()
{
    std::vector<Part> parts;
    if (m_field.IsWindowVisible())
        return parts;
    for (const std::string& part : m_parts)
        parts.push_back({ROLE_SYSTEM_LINK, 0, part, {}, "Go there"});
    if (!parts.empty()) // where one is already
        parts.back() = {ROLE_SYSTEM_STATICTEXT, 0, m_parts.back(), {}, {}};
    const CrumbLayout layout = Layout();
    for (const CrumbLayout::Crumb& crumb : layout.Crumbs())
        if (crumb.nPart != CrumbLayout::kDots)
            parts[static_cast<std::size_t>(crumb.nPart)].place = crumb.rect;
    return parts;
}

void CPathBar::AccUse(int nPart)
{
    if (nPart + 1 < static_cast<int>(m_parts.size()))
        UseSpot(nPart);
}

void CPathBar::Draw(HDC hdc)
{
    if (m_field.IsWindowVisible())
        FillField(hdc, FieldRect());
    else
        DrawCrumbs(hdc);
}

void CPathBar::OnSize(UINT nType, int cx, int cy)
{
    CSpotBar::OnSize(nType, cx, cy);
    CRect text = FieldRect();
    text.DeflateRect(kFieldMargin.cx, kFieldMargin.cy);
    m_field.MoveWindow(text);
}

CRect CPathBar::FieldRect() const
{
    CRect rect = Client();
    rect.DeflateRect(0, (kPathBarHeight - kFieldHeight) / 2);
    return rect;
}

CrumbLayout CPathBar::Layout() const
{
    CRect room = Client();
    room.DeflateRect(0, kSpace / 2);
    std::vector<int> widths;
    for (const std::string& part : m_parts)
        widths.push_back(TextWidth(part, StyleOf(&part == &m_parts.back())) + 2 * kSpace);
    return {widths, kGap, TextWidth(kDotsText) + 2 * kSpace, room};
}

// The last part is where one is already.
int CPathBar::SpotAt(CPoint point) const
{
    const CrumbLayout layout = Layout();
    const int nPart = layout.PartAt(point);
    if (nPart >= 0)
        return nPart + 1 < static_cast<int>(m_parts.size()) ? nPart : kNothing;
    return !layout.Crumbs().empty() && point.x > layout.Crumbs().back().rect.right ? kBeside : kNothing;
}

void CPathBar::UseSpot(int nSpot)
{
    if (nSpot == kBeside)
        m_events.wantTyping();
    else
        m_events.go(nSpot);
}

void CPathBar::DrawCrumbs(HDC hdc) const
{
    const CrumbLayout layout = Layout();
    const int nLast = static_cast<int>(m_parts.size()) - 1;
    for (const CrumbLayout::Crumb& crumb : layout.Crumbs()) {
        const bool isDots = crumb.nPart == CrumbLayout::kDots;
        const bool isLast = crumb.nPart == nLast;
        if (crumb.nPart != 0)
            DrawCentred(hdc, {crumb.rect.left - kGap, crumb.rect.top, crumb.rect.left, crumb.rect.bottom},
                        hostkit::GetPictogram(hostkit::Pictogram::PathArrow, kIcon));
        if (!isDots)
            DrawGround(hdc, crumb.rect, crumb.nPart);
        CRect text = crumb.rect;
        text.DeflateRect(kSpace, 0);
        DrawTextLine(hdc, text, isDots ? kDotsText : m_parts[static_cast<std::size_t>(crumb.nPart)],
                     TextColor(isLast || IsHot(crumb.nPart) ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT, GroundOf(crumb.nPart)),
                     Align::Left, StyleOf(isLast));
    }
}

} // namespace editor
