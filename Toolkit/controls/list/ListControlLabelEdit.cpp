// How the list control has a label edited in place.
//
// The control knows rows by number only. An owner that moves rows meanwhile says where the edited one is now, so that
// no row is ever given a name that was meant for another. What the row shows may change: what was typed is taken all
// the same.
#include "Toolkit/controls/edit/EditMessages.h"
#include "Toolkit/controls/list/ListControl.h"

namespace toolkit
{

LRESULT ListControl::OnEditLabel(WPARAM wParam, LPARAM)
{
    const int row = static_cast<int>(wParam);
    if (!FinishLabel(row >= 0) || !BeginLabel(row))
        return 0;
    return OnGetEditControl(0, 0);
}

LRESULT ListControl::OnMoveEditLabel(WPARAM wParam, LPARAM)
{
    const int row = static_cast<int>(wParam);
    if (!m_hLabelField)
        return FALSE;
    if (!m_rows.Has(row))
        return FinishLabel(false);
    Redraw(std::exchange(m_editedRow, row));
    Redraw(row);
    PlaceLabelField();
    return TRUE;
}

bool ListControl::BeginLabel(int row)
{
    StopLabelClock();
    if (!Is(LVS_EDITLABELS) || !m_rows.Has(row))
        return true;
    EndTracking();
    TakeFocus();
    if (!IsAlive())
        return false;
    if (!IsFocused() || !m_rows.Has(row))
        return true; // refused
    if (!ScrollTo(m_layout.ScrollToShow(row, false)))
        return false;
    std::string text;
    bool allowed = false;
    if (!AskLabelEdit(row, text, &allowed))
        return false;
    if (!allowed || m_hLabelField || !m_rows.Has(row))
        return true;
    m_editedRow = row;
    Redraw(row);
    return OpenLabelField(text, ES_CENTER);
}

// The owner may give another text than the label to begin with.
bool ListControl::AskLabelEdit(int row, std::string& text, bool* pAllowed)
{
    const std::optional<Face> face = HintAndAsk(row);
    if (!face)
        return false;
    text = face->text;
    NMLVDISPINFO info{};
    info.item.mask = LVIF_TEXT;
    info.item.iItem = row;
    info.item.pszText = text.data();
    info.item.cchTextMax = static_cast<int>(text.size()) + 1;
    LRESULT refused = 0;
    if (!Tell(LVN_BEGINLABELEDIT, info.hdr, &refused))
        return false;
    if (info.item.pszText && info.item.pszText != text.data())
        text = info.item.pszText;
    *pAllowed = refused == 0;
    return true;
}

// In the middle below the picture, as wide as its text needs, inside the client area as far as that goes.
void ListControl::PlaceLabelField()
{
    if (!m_hLabelField)
        return;
    const CRect room = m_layout.LabelRoom(m_editedRow);
    const CSize wanted = LabelFieldSize(m_hLabelField);
    const int width = std::min<int>(std::max<int>(wanted.cx, m_layout.Cell().cx / 2), m_layout.Client().cx);
    const int left = std::clamp<int>(room.CenterPoint().x - width / 2, 0, m_layout.Client().cx - width);
    MoveWindow(m_hLabelField, left, room.top - kLabelFieldTop + 1, width, wanted.cy);
}

bool ListControl::FinishLabel(bool taken)
{
    if (!m_hLabelField)
        return true;
    const int row = m_editedRow;
    Redraw(row);
    std::optional<std::string> text = CloseLabelField();
    if (!text)
        return false;

    NMLVDISPINFO info{};
    info.item.mask = LVIF_TEXT;
    info.item.iItem = row;
    info.item.pszText = taken && m_rows.Has(row) ? text->data() : nullptr;
    info.item.cchTextMax = static_cast<int>(text->size()) + 1;
    return Tell(LVN_ENDLABELEDIT, info.hdr);
}

// A press on a label means its row alone, and means it for editing, when the row was so before and the press has not
// just brought the user here.
bool ListControl::MeansLabel(const Press& press, UINT hitFlags) const
{
    constexpr UINT kOwn = LVIS_SELECTED | LVIS_FOCUSED;
    return !press.right && !press.keys.shift && !press.keys.control && (hitFlags & LVHT_ONITEMLABEL) &&
           Is(LVS_EDITLABELS) && !HasJustComeBack() && (m_rows.State(press.row) & kOwn) == kOwn &&
           m_rows.CountWith(LVIS_SELECTED) == 1;
}

void ListControl::LabelClickDue()
{
    const int row = m_clickedRow;
    StopLabelClock();
    const bool still = m_rows.Focus() == row && (m_rows.State(row) & LVIS_SELECTED) &&
                       m_rows.CountWith(LVIS_SELECTED) == 1 && IsFocused() && !m_press;
    if (still)
        static_cast<void>(BeginLabel(row));
}

} // namespace toolkit
