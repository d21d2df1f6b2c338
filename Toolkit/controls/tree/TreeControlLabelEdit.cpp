// How the tree control has a label edited in place. The field stays with its item wherever that goes, and out of sight
// while the item is inside a collapsed branch; it goes with the item.
#include "Toolkit/controls/edit/EditMessages.h"
#include "Toolkit/controls/tree/TreeControl.h"

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

bool TreeControl::BeginLabel(HTREEITEM hItem)
{
    StopLabelClock();
    if (!Is(TVS_EDITLABELS) || m_items.Find(hItem) == kNoItem)
        return true;
    if (!CancelPress() || !Focus())
        return false;
    if (!IsFocused())
        return true; // refused
    if (!Reveal(hItem))
        return false;
    std::string text;
    bool allowed = false;
    if (!AskLabelEdit(hItem, text, allowed))
        return false;
    const ItemIndex item = m_items.Find(hItem);
    if (!allowed || m_hLabelField || item == kNoItem || IsGoing(item))
        return true;
    m_hEdited = hItem;
    Redraw(hItem);
    return OpenLabelField(text, ES_LEFT);
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

// Its text lies on the label's; it grows to the right, inside the client area as far as that goes.
void TreeControl::PlaceLabelField()
{
    if (!m_hLabelField)
        return;
    const CSize wanted = LabelFieldSize(m_hLabelField);
    const ItemIndex item = m_items.Find(m_hEdited);
    const int row = item == kNoItem ? -1 : m_items.RowOf(item);
    if (row < 0) {
        MoveWindow(m_hLabelField, 0, -2 * wanted.cy, wanted.cx, wanted.cy);
        return;
    }
    const CRect label = m_layout.LabelBox(row, m_items.Level(item), 0);
    const int left = std::max<int>(label.left + TreeLayout::kLabelPadding - kLabelFieldEdge, 0);
    const int room = std::max<int>(m_layout.Client().cx - left, kLeastWidth);
    const int height = std::max<int>(wanted.cy, label.Height());
    MoveWindow(m_hLabelField, left, label.top + (label.Height() - height) / 2,
               std::clamp<int>(wanted.cx, kLeastWidth, room), height);
}

bool TreeControl::FinishLabel(bool taken)
{
    if (!m_hLabelField)
        return true;
    const HTREEITEM hItem = m_hEdited;
    Redraw(hItem);
    std::optional<std::string> text = CloseLabelField();
    if (!text)
        return false;

    NMTVDISPINFO info{};
    info.item = Describe(hItem);
    info.item.mask |= TVIF_TEXT;
    info.item.pszText = taken ? text->data() : nullptr;
    info.item.cchTextMax = static_cast<int>(text->size()) + 1;
    LRESULT accepted = 0;
    if (!Tell(TVN_ENDLABELEDIT, info.hdr, &accepted))
        return false;
    return !taken || accepted == 0 || TakeLabel(hItem, *text);
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
    if (m_items.FaceOf(item).asksForText)
        return Tell(TVN_SETDISPINFO, info.hdr);
    info.item.mask = TVIF_TEXT | TVIF_HANDLE;
    OnSetItem(0, reinterpret_cast<LPARAM>(&info.item));
    return true;
}

bool TreeControl::CancelLabelWithin(HTREEITEM hTop)
{
    const ItemIndex top = m_items.Find(hTop);
    if (!m_hLabelField || top == kNoItem || !m_items.IsWithin(top, m_items.Find(m_hEdited)))
        return true;
    return FinishLabel(false);
}

// A press on a label means it for editing when its item was the selected one before, and the press has not just brought
// the user here.
bool TreeControl::MeansLabel(const Hit& hit) const
{
    return (hit.flags & TVHT_ONITEMLABEL) && hit.hItem == m_hCaret && Is(TVS_EDITLABELS) && !HasJustComeBack();
}

void TreeControl::LabelClickDue()
{
    const HTREEITEM hItem = m_hClicked;
    StopLabelClock();
    if (hItem == m_hCaret && IsFocused() && !m_press)
        static_cast<void>(BeginLabel(hItem));
}

} // namespace toolkit
