#include "tests/walk/Views.h"

void CacheWatch::Begin()
{
    if (m_nCached != 0 && fault.empty())
        fault = "cache: " + std::to_string(m_nCached) + " records outlived the window";
    m_nCached = 0;
    m_free.clear();
}

void CacheWatch::BeforeCaching()
{
    m_nOffered = m_free.empty() ? -1 : m_free.front();
    if (!m_free.empty())
        m_free.pop_front();
}

void CacheWatch::Cached(int nImage, bool bWantsImage, int nImagesBefore)
{
    ++m_nCached;
    if (isRude || !fault.empty())
        return;
    const int nExpected = m_bSharesDefault && !bWantsImage ? 0 : m_nOffered == -1 ? nImagesBefore : m_nOffered;
    if (nImage != nExpected)
        fault = "slots: a row got image " + std::to_string(nImage) + ", not " + std::to_string(nExpected);
}

void CacheWatch::Uncached(int nImage)
{
    --m_nCached;
    if (!m_bSharesDefault || nImage != 0)
        m_free.push_back(nImage);
}

namespace
{

template <class Base>
class ListOf final : public ListView, public Base
{
public:
    explicit ListOf(bool bSharesDefault) : ListView(bSharesDefault) {}
    ~ListOf() override { Base::DestroyWindow(); }

    CWnd& Wnd() override { return *this; }
    IAEStateHandler& Handler() override { return *this; }
    CListCtrl& List() override { return *this; }
    BOOL Make(CWnd* pParent) override
    {
        cache.Begin();
        return Base::Create(pParent);
    }
    BOOL SetRoot(Atom* pAtom) override { return Base::SetRootAtom(pAtom); }
    Atom* RowAtom(int nRow) const override { return Pair(nRow) ? Atom::As(Pair(nRow)->pAtom) : nullptr; }
    Atom* Container() const override { return Pair(0) ? Atom::As(Pair(0)->pContainer) : nullptr; }

protected:
    using CACHEDATA = CObjectsList::CACHEDATA;

    void OnCacheItem(int nItem, IAtom* pAtom, IAtomContainer* pContainer, CACHEDATA* pData) override
    {
        cache.BeforeCaching();
        const auto hImages = reinterpret_cast<HIMAGELIST>(Base::SendMessage(LVM_GETIMAGELIST, LVSIL_NORMAL));
        const int nBefore = ImageList_GetImageCount(hImages);
        Base::OnCacheItem(nItem, pAtom, pContainer, pData);
        cache.Cached(pData->nImage, Atom::As(pAtom)->hasIcon, nBefore);
    }
    void OnUncacheItem(int nItem, IAtom* pAtom, IAtomContainer* pContainer, CACHEDATA* pData) override
    {
        cache.Uncached(pData->nImage);
        Base::OnUncacheItem(nItem, pAtom, pContainer, pData);
    }

private:
    const OBJPAIR* Pair(int nRow) const { return reinterpret_cast<const OBJPAIR*>(Base::GetItemData(nRow)); }
};

} // namespace

Rows ListView::Shows()
{
    Rows rows;
    const int nRows = IsAlive() ? List().GetItemCount() : 0;
    for (int i = 0; i < nRows; ++i) {
        const UINT nState = List().GetItemState(i, LVIS_SELECTED | LVIS_FOCUSED);
        rows.push_back({.pAtom = RowAtom(i),
                        .pContainer = Container(),
                        .isSelected = (nState & LVIS_SELECTED) != 0,
                        .isFocused = (nState & LVIS_FOCUSED) != 0});
    }
    return rows;
}

std::vector<HTREEITEM> TreeView::Items(HTREEITEM hBelow) const
{
    std::vector<HTREEITEM> items;
    for (HTREEITEM hItem = m_hWnd ? GetChildItem(hBelow) : nullptr; hItem; hItem = GetNextSiblingItem(hItem)) {
        items.push_back(hItem);
        const auto below = Items(hItem);
        items.insert(items.end(), below.begin(), below.end());
    }
    return items;
}

Row TreeView::RowOf(HTREEITEM hItem) const
{
    const auto* const pRecord = hItem ? reinterpret_cast<const TREEITEMDATA*>(GetItemData(hItem)) : nullptr;
    if (!pRecord)
        return {};
    const UINT nState = GetItemState(hItem, TVIS_BOLD | TVIS_EXPANDED);
    Row row{.pAtom = Atom::As(pRecord->pAtom.Get()),
            .pContainer = Atom::As(pRecord->pContainer.Get()),
            .isSelected = hItem == GetSelectedItem(),
            .isExpanded = (nState & TVIS_EXPANDED) != 0,
            .isBold = (nState & TVIS_BOLD) != 0};
    while ((hItem = GetParentItem(hItem)))
        ++row.depth;
    return row;
}

Rows TreeView::Shows()
{
    Rows rows;
    for (const HTREEITEM hItem : Items())
        rows.push_back(RowOf(hItem));
    return rows;
}

std::unique_ptr<ListView> MakeIconList()
{
    return std::make_unique<ListOf<CIconList>>(true);
}

std::unique_ptr<ListView> MakeThumbList()
{
    return std::make_unique<ListOf<CThumbList>>(false);
}
