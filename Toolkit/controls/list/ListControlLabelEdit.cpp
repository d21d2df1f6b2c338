// How the list control has a label edited in place.
//
// The control knows rows by number only. An owner that moves rows meanwhile says where the edited one is now, so that
// no row is ever given a name that was meant for another. What the row shows may change: what was typed is taken all
// the same.
#include "Toolkit/controls/items/LabelField.h"
#include "Toolkit/controls/list/ListControl.h"

namespace toolkit
{

LRESULT ListControl::OnEditLabel(WPARAM wParam, LPARAM)
{
    const int row = static_cast<int>(wParam);
    return EditLabel(row, row >= 0);
}

LRESULT ListControl::OnMoveEditLabel(WPARAM wParam, LPARAM)
{
    const int row = static_cast<int>(wParam);
    if (!Labels().Field())
        return FALSE;
    if (m_rows.Has(row))
        Labels().MoveTo(row);
    else
        Labels().Finish(false);
    return TRUE;
}

bool ListControl::IsSelected(LPARAM row) const
{
    return (m_rows.State(static_cast<int>(row)) & kSelectedAndFocused) == kSelectedAndFocused &&
           m_rows.CountWith(LVIS_SELECTED) == 1;
}

void ListControl::ShowItem(LPARAM row)
{
    static_cast<void>(ScrollTo(m_layout.ScrollToShow(static_cast<int>(row), false)));
}

// The owner may give another text than the label to begin with.
std::optional<std::string> ListControl::AskLabel(LPARAM row)
{
    const std::optional<Face> face = HintAndAsk(static_cast<int>(row));
    if (!face)
        return std::nullopt;
    std::string text = face->text;
    NMLVDISPINFO info{};
    info.item.mask = LVIF_TEXT;
    info.item.iItem = static_cast<int>(row);
    info.item.pszText = text.data();
    info.item.cchTextMax = static_cast<int>(text.size()) + 1;
    if (Notify(LVN_BEGINLABELEDIT, info.hdr) != 0)
        return std::nullopt;
    return info.item.pszText ? std::string(info.item.pszText) : text;
}

// In the middle below the picture, as wide as its text needs, inside the client area as far as that goes.
CRect ListControl::FieldBox(LPARAM row, CSize wanted) const
{
    const CRect room = m_layout.LabelRoom(static_cast<int>(row));
    const int width = std::min<int>(std::max<int>(wanted.cx, m_layout.Cell().cx / 2), m_layout.Client().cx);
    const int left = std::clamp<int>(room.CenterPoint().x - width / 2, 0, m_layout.Client().cx - width);
    return {CPoint(left, room.top - kLabelFieldTop + 1), CSize(width, wanted.cy)};
}

void ListControl::TellLabel(LPARAM row, std::string& text, bool taken)
{
    NMLVDISPINFO info{};
    info.item.mask = LVIF_TEXT;
    info.item.iItem = static_cast<int>(row);
    info.item.pszText = taken && HasItem(row) ? text.data() : nullptr;
    info.item.cchTextMax = static_cast<int>(text.size()) + 1;
    Notify(LVN_ENDLABELEDIT, info.hdr);
}

} // namespace toolkit
