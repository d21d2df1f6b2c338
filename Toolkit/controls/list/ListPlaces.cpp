// What the list control's rows show, and which of them lies under a point.
#include "Toolkit/controls/list/ListControl.h"

#include <array>

namespace toolkit
{

namespace
{

constexpr int kLabelLines = 2;
constexpr int kLabelPadding = 4; // left and right of a label's lines, inside its box
constexpr int kLabelEdge = 1;    // above and below them, where the cell has room for it

} // namespace

bool ListControl::Hint(RowRange rows)
{
    NMLVCACHEHINT hint{};
    hint.iFrom = rows.first;
    hint.iTo = rows.end - 1;
    m_hinted = rows;
    return Tell(LVN_ODCACHEHINT, hint.hdr);
}

std::optional<ListControl::Face> ListControl::AskFace(int row)
{
    std::array<char, 512> buffer{};
    NMLVDISPINFO info{};
    info.item.mask = LVIF_TEXT | (Images() ? LVIF_IMAGE : 0);
    info.item.iItem = row;
    info.item.pszText = buffer.data(); // the owner fills it, or names a text of its own
    info.item.cchTextMax = static_cast<int>(buffer.size());
    info.item.iImage = -1;
    if (!Tell(LVN_GETDISPINFO, info.hdr))
        return std::nullopt;
    return Face{info.item.pszText ? info.item.pszText : "", info.item.iImage};
}

std::optional<ListControl::Face> ListControl::HintAndAsk(int row)
{
    if ((row < m_hinted.first || row >= m_hinted.end) && !Hint({row, row + 1}))
        return std::nullopt;
    return AskFace(row);
}

ListControl::Label ListControl::PlaceLabel(int row, const std::string& text) const
{
    const CRect room = m_layout.LabelRoom(row);
    const int lineHeight = std::max(CurrentTextEngine().LineHeight(), 1);
    Label label;
    label.lines = WrapLabel(text, room.Width() - 2 * kLabelPadding, std::min(kLabelLines, room.Height() / lineHeight));
    if (label.lines.empty())
        return label;

    int width = 0;
    for (const LabelLine& line : label.lines)
        width = std::max(width, line.width);
    width = std::min(width + 2 * kLabelPadding, room.Width());
    const int height = static_cast<int>(label.lines.size()) * lineHeight + 2 * kLabelEdge;
    label.box =
        CRect(CPoint(room.left + (room.Width() - width) / 2, room.top), CSize(width, std::min(height, room.Height())));
    return label;
}

std::optional<ListControl::Hit> ListControl::HitTest(CPoint client)
{
    const Hit none{-1, LVHT_NOWHERE};
    const int row = m_layout.CellAt(client);
    if (row < 0 || !CRect(CPoint(), m_layout.Client()).PtInRect(client))
        return none;
    if (m_layout.IconRect(row).PtInRect(client))
        return Hit{row, LVHT_ONITEMICON};
    if (!m_layout.LabelRoom(row).PtInRect(client))
        return none;

    const std::optional<Face> face = HintAndAsk(row);
    if (!face)
        return std::nullopt;
    return m_rows.Has(row) && PlaceLabel(row, face->text).box.PtInRect(client) ? Hit{row, LVHT_ONITEMLABEL} : none;
}

LRESULT ListControl::OnHitTest(WPARAM, LPARAM lParam)
{
    auto* const pInfo = reinterpret_cast<LVHITTESTINFO*>(lParam);
    if (!pInfo)
        return -1;
    const Hit hit = HitTest(pInfo->pt).value_or(Hit{-1, LVHT_NOWHERE});
    pInfo->iItem = hit.row;
    pInfo->flags = hit.flags;
    return hit.row;
}

LRESULT ListControl::OnGetItemRect(WPARAM wParam, LPARAM lParam)
{
    auto* const pRect = reinterpret_cast<RECT*>(lParam);
    const int row = static_cast<int>(wParam);
    if (!pRect || !m_rows.Has(row))
        return FALSE;

    const CRect icon = m_layout.IconRect(row);
    if (pRect->left == LVIR_ICON) {
        *pRect = icon;
        return TRUE;
    }
    const std::optional<Face> face = HintAndAsk(row);
    if (!face || !m_rows.Has(row))
        return FALSE;
    const CRect label = PlaceLabel(row, face->text).box;
    *pRect = pRect->left == LVIR_LABEL ? label : icon | label;
    return TRUE;
}

} // namespace toolkit
