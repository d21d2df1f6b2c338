// How the tree control has a label edited in place. The field stays with its item wherever that goes, and out of sight
// while the item is inside a collapsed branch; it goes with the item.
#include "Toolkit/base/Ticks.h"
#include "Toolkit/controls/EditMessages.h"
#include "Toolkit/controls/TreeControl.h"

#include <utility>

namespace toolkit
{

namespace
{
constexpr int kLeastWidth = 40; // of the field
} // namespace

LRESULT TreeControl::OnEditLabel(WPARAM, LPARAM lParam)
{
    if (!FinishLabel(true) || !BeginLabel(reinterpret_cast<HTREEITEM>(lParam)))
        return 0;
    return OnGetEditControl(0, 0);
}

LRESULT TreeControl::OnGetEditControl(WPARAM, LPARAM)
{
    return m_label ? reinterpret_cast<LRESULT>(m_label->hField) : 0;
}

LRESULT TreeControl::OnEndEditLabelNow(WPARAM wParam, LPARAM)
{
    const bool bOpen = m_label.has_value();
    static_cast<void>(FinishLabel(wParam == FALSE));
    return bOpen;
}

bool TreeControl::BeginLabel(HTREEITEM hItem)
{
    const HWND hWnd = m_hWnd;
    StopLabelClock();
    if (!Is(TVS_EDITLABELS) || m_items.Find(hItem) == kNoItem)
        return true;
    if (!CancelPress() || !TakeFocus())
        return false;
    if (GetFocus() != hWnd)
        return true; // refused
    if (!Reveal(hItem))
        return false;
    std::string text;
    bool allowed = false;
    if (!AskLabelEdit(hItem, text, allowed))
        return false;
    const ItemIndex item = m_items.Find(hItem);
    const bool opens = allowed && !m_label && item != kNoItem && !IsGoing(item);
    return !opens || OpenLabelField(hItem, text);
}

// The owner may give another text than the label to begin with.
bool TreeControl::AskLabelEdit(HTREEITEM hItem, std::string& text, bool& allowed)
{
    Face face;
    if (!AskFace(hItem, TVIF_TEXT, face))
        return false;
    text = face.text;
    NMTVDISPINFO info{};
    info.item = Describe(hItem);
    info.item.mask |= TVIF_TEXT;
    info.item.pszText = face.text.data();
    info.item.cchTextMax = static_cast<int>(face.text.size()) + 1;
    LRESULT refused = 0;
    if (!Tell(TVN_BEGINLABELEDIT, info.hdr, &refused))
        return false;
    if (info.item.pszText && info.item.pszText != LPSTR_TEXTCALLBACK)
        text = info.item.pszText;
    allowed = refused == 0;
    return true;
}

bool TreeControl::OpenLabelField(HTREEITEM hItem, const std::string& text)
{
    const HWND hWnd = m_hWnd;
    const HWND hField = CreateLabelField(hWnd, text, ES_LEFT);
    if (!IsWindow(hWnd) || !hField)
        return IsWindow(hWnd);
    m_label = LabelEdit{hItem, hField};
    Redraw(hItem);
    PlaceLabelField();
    ShowWindow(hField, SW_SHOW);
    SetFocus(hField);
    return IsWindow(hWnd);
}

// Its text lies on the label's; it grows to the right, inside the client area as far as that goes.
void TreeControl::PlaceLabelField()
{
    if (!m_label)
        return;
    const CSize wanted = LabelFieldSize(m_label->hField);
    const ItemIndex item = m_items.Find(m_label->hItem);
    const int row = item == kNoItem ? -1 : m_items.RowOf(item);
    if (row < 0) {
        MoveWindow(m_label->hField, 0, -2 * wanted.cy, wanted.cx, wanted.cy);
        return;
    }
    const CRect label = m_layout.LabelBox(row, m_items.Level(item), 0);
    const int left = std::max<int>(label.left + TreeLayout::kLabelPadding - kLabelFieldEdge, 0);
    const int room = std::max<int>(m_layout.Client().cx - left, kLeastWidth);
    const int height = std::max<int>(wanted.cy, label.Height());
    MoveWindow(m_label->hField, left, label.top + (label.Height() - height) / 2,
               std::clamp<int>(wanted.cx, kLeastWidth, room), height);
}

bool TreeControl::FinishLabel(bool taken)
{
    if (!m_label)
        return true;
    const HWND hWnd = m_hWnd;
    const LabelEdit done = *std::exchange(m_label, std::nullopt);
    std::string text(GetWindowText(done.hField).View());
    Redraw(done.hItem);
    DestroyWindow(done.hField); // the focus comes back, unless it is elsewhere already
    if (!IsWindow(hWnd))
        return false;

    NMTVDISPINFO info{};
    info.item = Describe(done.hItem);
    info.item.mask |= TVIF_TEXT;
    info.item.pszText = taken ? text.data() : nullptr;
    info.item.cchTextMax = static_cast<int>(text.size()) + 1;
    LRESULT accepted = 0;
    if (!Tell(TVN_ENDLABELEDIT, info.hdr, &accepted))
        return false;
    return !taken || accepted == 0 || TakeLabel(done.hItem, text);
}

// What the owner keeps itself it is told to change.
bool TreeControl::TakeLabel(HTREEITEM hItem, std::string& text)
{
    const ItemIndex item = m_items.Find(hItem);
    if (item == kNoItem)
        return true;
    NMTVDISPINFO info{};
    info.item = Describe(hItem);
    info.item.mask |= TVIF_TEXT;
    info.item.pszText = text.data();
    if (m_items[item].asksForText)
        return Tell(TVN_SETDISPINFO, info.hdr);
    info.item.mask = TVIF_TEXT | TVIF_HANDLE;
    OnSetItem(0, reinterpret_cast<LPARAM>(&info.item));
    return true;
}

bool TreeControl::CancelLabelWithin(HTREEITEM hTop)
{
    const ItemIndex top = m_items.Find(hTop);
    if (!m_label || top == kNoItem || !m_items.IsWithin(top, m_items.Find(m_label->hItem)))
        return true;
    return FinishLabel(false);
}

void TreeControl::LabelDone(bool taken)
{
    static_cast<void>(FinishLabel(taken));
}

// A press on a label means it for editing when its item was the selected one before, and the press has not just brought
// the user here.
bool TreeControl::MeansLabel(const Hit& hit) const
{
    return (hit.flags & TVHT_ONITEMLABEL) && hit.hItem == m_hCaret && Is(TVS_EDITLABELS) && !HasJustComeBack();
}

// A click into a window that was not the active one comes right behind the focus that it brings.
bool TreeControl::HasJustComeBack() const
{
    return GetTickCount() - m_focusedAt < GetDoubleClickTime();
}

void TreeControl::StartLabelClockFor(HTREEITEM hItem)
{
    StopLabelClock();
    m_labelClick = LabelEdit{hItem, StartLabelClock(m_hWnd)};
}

void TreeControl::StopLabelClock()
{
    if (m_labelClick)
        DestroyWindow(std::exchange(m_labelClick, std::nullopt)->hField);
}

void TreeControl::LabelClickDue()
{
    if (!m_labelClick)
        return;
    const HTREEITEM hItem = m_labelClick->hItem;
    StopLabelClock();
    if (hItem == m_hCaret && IsFocused() && !m_press)
        static_cast<void>(BeginLabel(hItem));
}

} // namespace toolkit
