#include "Toolkit/controls/list/ListPlaces.h"

namespace toolkit
{

ListPlaces::Hit ListPlaces::HitTest(CPoint client) const
{
    const int row = m_layout.CellAt(client);
    if (row < 0 || !CRect(CPoint(), m_layout.Client()).PtInRect(client))
        return {};
    if (m_layout.IconRect(row).PtInRect(client))
        return {row, LVHT_ONITEMICON};
    if (!m_layout.LabelRoom(row).PtInRect(client))
        return {};

    const RowFace face = m_owner.HintAndAsk(row);
    const bool hit = m_layout.Has(row) && m_layout.PlaceLabel(row, face.text).box.PtInRect(client);
    return hit ? Hit{row, LVHT_ONITEMLABEL} : Hit();
}

LRESULT ListPlaces::OnHitTest(WPARAM, LPARAM lParam)
{
    auto* const pInfo = reinterpret_cast<LVHITTESTINFO*>(lParam);
    if (!pInfo)
        return -1;
    const Hit hit = HitTest(pInfo->pt);
    pInfo->iItem = hit.row;
    pInfo->flags = hit.flags;
    return hit.row;
}

LRESULT ListPlaces::OnGetItemRect(WPARAM wParam, LPARAM lParam)
{
    auto* const pRect = reinterpret_cast<RECT*>(lParam);
    const int row = static_cast<int>(wParam);
    if (!pRect || !m_layout.Has(row))
        return FALSE;

    if (pRect->left == LVIR_ICON) {
        *pRect = m_layout.IconRect(row);
        return TRUE;
    }
    const RowFace face = m_owner.HintAndAsk(row);
    if (!m_layout.Has(row))
        return FALSE;
    const CRect label = m_layout.PlaceLabel(row, face.text).box;
    *pRect = pRect->left == LVIR_LABEL ? label : m_layout.IconRect(row) | label;
    return TRUE;
}

} // namespace toolkit
