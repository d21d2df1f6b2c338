// Where the tree control's items lie, and which part of which item lies under a point.
#include "Toolkit/controls/tree/TreeControl.h"

#include <cstring>

namespace toolkit
{

FontStyle TreeControl::FontOf(ItemIndex item) const
{
    return m_items[item].state & TVIS_BOLD ? FontStyle::Bold : FontStyle::Regular;
}

int TreeControl::TextWidth(ItemIndex item, const std::string& text) const
{
    return CurrentTextEngine().Measure(text, FontOf(item));
}

LRESULT TreeControl::OnGetItemRect(WPARAM wParam, LPARAM lParam)
{
    auto* const pRect = reinterpret_cast<RECT*>(lParam);
    if (!pRect)
        return FALSE;
    HTREEITEM hItem = nullptr;
    std::memcpy(&hItem, pRect, sizeof(hItem));
    Face face;
    if (wParam != FALSE && !AskFace(hItem, TVIF_TEXT, face))
        return FALSE;

    const ItemIndex item = m_items.Find(hItem);
    const int row = item == kNoItem ? -1 : m_items.RowOf(item);
    if (row < 0)
        return FALSE;
    *pRect = wParam == FALSE ? m_layout.RowRect(row)
                             : m_layout.LabelBox(row, m_items.Level(item), TextWidth(item, face.text));
    return TRUE;
}

LRESULT TreeControl::OnHitTest(WPARAM, LPARAM lParam)
{
    auto* const pInfo = reinterpret_cast<TVHITTESTINFO*>(lParam);
    if (!pInfo)
        return 0;
    Hit hit;
    if (!HitTest(pInfo->pt, hit))
        hit = Hit();
    pInfo->hItem = hit.hItem;
    pInfo->flags = hit.flags;
    return reinterpret_cast<LRESULT>(hit.hItem);
}

UINT TreeControl::Outside(CPoint client) const
{
    UINT flags = 0;
    if (client.y < 0)
        flags |= TVHT_ABOVE;
    else if (client.y >= m_layout.Client().cy)
        flags |= TVHT_BELOW;
    if (client.x < 0)
        flags |= TVHT_TOLEFT;
    else if (client.x >= m_layout.Client().cx)
        flags |= TVHT_TORIGHT;
    return flags;
}

bool TreeControl::HitTest(CPoint client, Hit& hit)
{
    hit = Hit();
    const UINT outside = Outside(client);
    if (outside != 0)
        hit.flags = outside;
    const int row = outside == 0 ? m_layout.RowAt(client.y) : -1;
    return row < 0 || HitTestRow(client, row, hit);
}

// The owner is asked for what the answer hangs on, and only then.
bool TreeControl::HitTestRow(CPoint client, int row, Hit& hit)
{
    const ItemIndex item = m_items.AtRow(row);
    const HTREEITEM hItem = m_items.HandleOf(item);
    const int level = m_items.Level(item);
    const CRect button = m_layout.ButtonSlot(row, level);
    const CRect icon = m_layout.IconSlot(row, level);
    Face face;
    UINT flags = TVHT_ONITEMINDENT;
    if (client.x >= icon.right) {
        if (!AskFace(hItem, TVIF_TEXT, face))
            return false;
        const ItemIndex itemNow = m_items.Find(hItem);
        if (itemNow == kNoItem)
            return true;
        const CRect label = m_layout.LabelBox(row, level, TextWidth(itemNow, face.text));
        flags = client.x < label.right ? TVHT_ONITEMLABEL : TVHT_ONITEMRIGHT;
    } else if (client.x >= icon.left) {
        flags = TVHT_ONITEMICON;
    } else if (client.x >= button.left && HasButtonAt(level)) {
        if (!AskFace(hItem, TVIF_CHILDREN, face))
            return false;
        if (face.hasChildren)
            flags = TVHT_ONITEMBUTTON;
    }
    if (m_items.Find(hItem) != kNoItem)
        hit = {hItem, flags};
    return true;
}

} // namespace toolkit
