// How the tree control has a label edited in place. The field stays with its item wherever that goes, and out of sight
// while the item is inside a collapsed branch; it goes with the item.
#include "Toolkit/controls/items/LabelField.h"
#include "Toolkit/controls/tree/TreeControl.h"

namespace toolkit
{

namespace
{

constexpr int kLeastWidth = 40; // of the field

HTREEITEM ToHandle(LPARAM item)
{
    return reinterpret_cast<HTREEITEM>(item);
}

NMTVDISPINFO LabelInfo(const TVITEM& item, std::string& text)
{
    NMTVDISPINFO info{};
    info.item = item;
    info.item.mask |= TVIF_TEXT;
    info.item.pszText = text.data();
    info.item.cchTextMax = static_cast<int>(text.size()) + 1;
    return info;
}

} // namespace

bool TreeControl::HasItem(LPARAM item) const
{
    const ItemIndex index = m_items.Find(ToHandle(item));
    return index != kNoItem && !IsGoing(index);
}

// The owner may give another text than the label to begin with.
std::optional<std::string> TreeControl::AskLabel(LPARAM item)
{
    Face face;
    if (!AskFace(ToHandle(item), TVIF_TEXT, face))
        return std::nullopt;
    NMTVDISPINFO info = LabelInfo(Describe(ToHandle(item)), face.text);
    if (Notify(TVN_BEGINLABELEDIT, info.hdr) != 0)
        return std::nullopt;
    const bool named = info.item.pszText && info.item.pszText != LPSTR_TEXTCALLBACK;
    return named ? std::string(info.item.pszText) : face.text;
}

// Its text lies on the label's; it grows to the right, inside the client area as far as that goes.
CRect TreeControl::FieldBox(LPARAM item, CSize wanted) const
{
    const ItemIndex index = m_items.Find(ToHandle(item));
    const int row = index == kNoItem ? -1 : m_items.RowOf(index);
    if (row < 0)
        return {CPoint(0, -2 * wanted.cy), wanted};
    const CRect label = m_layout.LabelBox(row, m_items.Level(index), 0);
    const int left = std::max<int>(label.left + TreeLayout::kLabelPadding - kLabelFieldEdge, 0);
    const int room = std::max<int>(m_layout.Client().cx - left, kLeastWidth);
    const int height = std::max<int>(wanted.cy, label.Height());
    return {CPoint(left, label.top + (label.Height() - height) / 2),
            CSize(std::clamp<int>(wanted.cx, kLeastWidth, room), height)};
}

// What the owner keeps itself it is told to change.
void TreeControl::TellLabel(LPARAM item, std::string& text, bool taken)
{
    const HTREEITEM hItem = ToHandle(item);
    NMTVDISPINFO info = LabelInfo(Describe(hItem), text);
    if (!taken)
        info.item.pszText = nullptr;
    const bool accepted = Notify(TVN_ENDLABELEDIT, info.hdr) != 0;
    const ItemIndex index = m_items.Find(hItem);
    if (!taken || !accepted || index == kNoItem)
        return;
    info = LabelInfo(Describe(hItem), text);
    if (m_items.FaceOf(index).asksForText) {
        Notify(TVN_SETDISPINFO, info.hdr);
        return;
    }
    info.item.mask = TVIF_TEXT | TVIF_HANDLE;
    OnSetItem(0, reinterpret_cast<LPARAM>(&info.item));
}

bool TreeControl::CancelLabelWithin(HTREEITEM hTop)
{
    const ItemIndex top = m_items.Find(hTop);
    if (top != kNoItem && m_items.IsWithin(top, m_items.Find(Edited())))
        Labels().Finish(false);
    return IsAlive();
}

} // namespace toolkit
