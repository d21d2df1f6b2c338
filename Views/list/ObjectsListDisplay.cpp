// What the list view answers when its control draws.
#include "Toolkit/base/Exception.h"
#include "Toolkit/base/Ticks.h"
#include "Toolkit/controls/items/TypeAhead.h"
#include "Views/host/inside/HeldPair.h"
#include "Views/host/inside/ReadName.h"
#include "Views/list/ObjectsList.h"
#include "Views/list/inside/ObjectsListCache.h"
#include "Views/list/inside/Rows.h"

#include <algorithm>

namespace
{

constexpr int kMostRows = 1024;

} // namespace

void CObjectsList::OnOdCacheHint(NMLVCACHEHINT* pHint, LRESULT* pResult)
{
    *pResult = 0;
    m_nCacheFrom = pHint->iFrom;
    m_nCacheTo = pHint->iTo;

    const int nFirst = std::max(pHint->iFrom, 0);
    const int nLast = std::min(pHint->iTo, m_pRows->GetCount() - 1);
    for (int i = nFirst; i <= nLast; ++i) {
        if (m_pCache->Find(i))
            m_pCache->Touch(i, GetTickCount());
        else if (!CacheRow(i))
            return;
    }
}

// False when the rest of the hint must wait: the row's name could not be read, and the user has been told. The row is
// not stored then, so the next hint that covers it tries again. Nor is it when whoever was asked has given the row to
// another atom, or had it cached.
bool CObjectsList::CacheRow(int nItem)
{
    const HELDPAIR pair = HoldPair(nItem);
    if (!pair)
        return true;
    CACHEDATA data;
    if (!ReadText(pair.pAtom.Get(), data.strText))
        return false;
    if (!AwaitsRecord(nItem, pair))
        return true;
    if (!ReserveRecord())
        return false;
    OnCacheItem(nItem, pair.pAtom.Get(), pair.pContainer.Get(), &data);
    if (!AwaitsRecord(nItem, pair) || !ReserveRecord()) {
        OnUncacheItem(nItem, nullptr, nullptr, &data);
        return true;
    }
    if (m_pCache->GetCount() > std::max(m_nCacheLimit, std::min(m_nCacheTo - m_nCacheFrom, kMostRows)))
        EvictOne();
    data.dwTick = GetTickCount();
    m_pCache->Store(nItem, std::move(data));
    return true;
}

// Before the hook is called and once more afterwards, for others may have been stored meanwhile.
bool CObjectsList::ReserveRecord()
{
    try {
        m_pCache->Reserve();
        return true;
    } catch (CMemoryException& e) {
        e.ReportError();
        return false;
    }
}

bool CObjectsList::AwaitsRecord(int nItem, const HELDPAIR& pair) const
{
    const OBJPAIR* const pNow = PairAt(nItem);
    return pNow && pNow->pAtom == pair.pAtom.Get() && pNow->pContainer == pair.pContainer.Get() &&
           !m_pCache->Find(nItem);
}

// The display name where there is one, else the name. Without memory for it the text is empty, and the row goes on.
bool CObjectsList::ReadText(IAtom* pAtom, CString& strText)
{
    try {
        return views::ReadShownName(*this, pAtom, [&](auto* pSource, auto pfnGet) {
            return views::ReadName(pSource, pfnGet, strText) != FALSE;
        });
    } catch (CMemoryException& e) {
        e.ReportError();
        strText.Empty();
        return true;
    }
}

// Whoever is asked for a name may move the rows: any found then is as good.
void CObjectsList::OnOdFindItem(NMLVFINDITEM* pFind, LRESULT* pResult)
{
    *pResult = -1;
    const std::string prefix = pFind->lvfi.psz;
    CString strText;
    for (int i = 0; i < m_pRows->GetCount(); ++i) {
        const int nRow = (pFind->iStart + i) % m_pRows->GetCount();
        const HELDPAIR pair = HoldPair(nRow);
        if (pair && ReadText(pair.pAtom.Get(), strText) && toolkit::BeginsWith(strText.View(), prefix)) {
            *pResult = nRow;
            return;
        }
    }
}

// One record makes room for one new record; none does while all were hinted in this very millisecond.
void CObjectsList::EvictOne()
{
    const int nVictim = m_pCache->FindOldest(GetTickCount());
    if (nVictim < 0)
        return;
    UncacheRow(nVictim);
    m_pCache->Remove(nVictim);
}

// Tells the hook that the row's record leaves the cache, if it has one; the caller removes it.
void CObjectsList::UncacheRow(int nItem)
{
    const CACHEDATA* pRecord = m_pCache->Find(nItem);
    if (!pRecord)
        return;
    CACHEDATA data = *pRecord;
    const HELDPAIR pair = HoldPair(nItem);
    OnUncacheItem(nItem, pair.pAtom.Get(), pair.pContainer.Get(), &data);
}

void CObjectsList::UncacheAll()
{
    for (const auto& node : *m_pCache)
        UncacheRow(node.nRow);
}

int CObjectsList::FindCachedRow(IAtom* pAtom) const
{
    for (const auto& node : *m_pCache) {
        const OBJPAIR* pPair = PairAt(node.nRow);
        if (pPair && pPair->pAtom == pAtom)
            return node.nRow;
    }
    return -1;
}

// The rows after nRemoved, which has no record any more, move up by one; their records move along untouched. Without
// memory for that all records leave, to be read again.
void CObjectsList::RekeyCache(int nRemoved)
{
    try {
        m_pSpareCache->CopyWithoutRow(*m_pCache, nRemoved);
        m_pCache.swap(m_pSpareCache);
    } catch (CMemoryException& e) {
        e.ReportError();
        ForgetCache();
    }
}

void CObjectsList::ForgetCache()
{
    UncacheAll();
    m_pCache->RemoveAll();
}

void CObjectsList::OnObjectsGetDispinfo(NMLVDISPINFO* pInfo, LRESULT*)
{
    const CACHEDATA* pRecord = m_pCache->Find(pInfo->item.iItem);
    if (!pRecord)
        return;
    if (pInfo->item.mask & LVIF_IMAGE)
        pInfo->item.iImage = pRecord->nImage;
    if (pInfo->item.mask & LVIF_TEXT)
        pInfo->item.pszText = const_cast<LPSTR>(pRecord->strText.GetString()); // read, never written
}

int CObjectsList::GetCachedImage(int nItem) const
{
    const CACHEDATA* const pData = m_pCache->Find(nItem);
    return pData ? pData->nImage : -1;
}
