#include "Toolkit/controls/tree/TreeOrder.h"

#include "Toolkit/base/TextKeys.h"

#include <algorithm>
#include <new>
#include <utility>

namespace toolkit
{

namespace
{

constexpr int kFewer = 20; // times fewer than their siblings: then items find their places one by one

// A comparison that contradicts itself gives some order, no worse. Siblings in order are compared once each.
template <class Entry, class IsAfter>
void SortStably(std::vector<Entry>& entries, const IsAfter& isAfter)
{
    std::vector<Entry> merged(entries.size());
    for (std::size_t run = 1; run < entries.size(); run *= 2) {
        for (std::size_t start = 0; start < entries.size(); start += 2 * run) {
            const std::size_t middle = std::min(start + run, entries.size());
            const std::size_t end = std::min(middle + run, entries.size());
            const bool inOrder = middle == end || !isAfter(entries[middle - 1], entries[middle]);
            std::size_t one = start, other = middle;
            for (std::size_t to = start; to < end; ++to) {
                const bool takeOne =
                    other == end || (one < middle && (inOrder || !isAfter(entries[one], entries[other])));
                merged[to] = std::move(entries[takeOne ? one++ : other++]);
            }
        }
        entries.swap(merged);
    }
}

// The items in the order of their keys, but for the first `settled`, which keep theirs: of the others each goes before
// the first of those whose label is greater.
std::vector<ItemIndex> Merge(const std::vector<ItemIndex>& items, std::size_t settled, const TextKeys::Keys& keys,
                             bool& inOrder)
{
    std::vector<std::uint32_t> ranks(settled);
    for (std::uint32_t rank = 0; rank < keys.size(); ++rank)
        if (keys[rank].nIndex < settled)
            ranks[keys[rank].nIndex] = rank;
    inOrder = std::is_sorted(ranks.begin(), ranks.end());
    std::vector<ItemIndex> order;
    order.reserve(items.size());
    std::size_t rank = 0;
    const auto takeOthersBefore = [&](std::size_t end) {
        for (; rank < end; ++rank)
            if (keys[rank].nIndex >= settled)
                order.push_back(items[keys[rank].nIndex]);
    };
    for (std::size_t i = 0; i < settled; ++i) {
        takeOthersBefore(ranks[i]);
        order.push_back(items[i]);
    }
    takeOthersBefore(keys.size());
    return order;
}

} // namespace

// Only what hangs on the order of siblings or on rows has to wait for it.
bool TreeOrder::IsNeededBy(UINT message, WPARAM wParam)
{
    switch (message) {
    case WM_DESTROY:
    case TVM_INSERTITEM:
    case TVM_GETITEM:
    case TVM_SETITEM:
    case TVM_GETITEMSTATE:
    case TVM_GETCOUNT:
    case TVM_SORTCHILDREN:
    case TVM_ARRANGECHILDREN:
        return false;
    case TVM_GETNEXTITEM:
        return wParam != TVGN_CARET && wParam != TVGN_PARENT;
    default:
        return true;
    }
}

// One pixel is enough to have a paint come, which puts it in its place.
void TreeOrder::Gather(ItemIndex item, ItemIndex parent, bool withFormer)
{
    m_items[item].gathered = true;
    if (withFormer)
        return;
    m_unsettled.push_back(m_items.HandleOf(parent));
    const CRect pixel(0, 0, 1, 1);
    if (m_items.IsShown(item))
        InvalidateRect(m_window.m_hWnd, &pixel);
}

// What memory is lacking for stays gathered until the next time.
void TreeOrder::SettleGathered()
{
    if (m_settling > 0)
        return;
    const UnderWay settling(m_settling);
    try {
        while (!m_unsettled.empty()) {
            const HTREEITEM hParent = m_unsettled.back();
            SettleBelow(hParent);
            std::erase(m_unsettled, hParent);
        }
    } catch (const std::bad_alloc&) {
    }
}

// The owner may have more inserted while it is asked for labels.
void TreeOrder::SettleBelow(HTREEITEM hParent)
{
    for (;;) {
        const ItemIndex parent = m_items.FindParent(hParent);
        const std::vector<HTREEITEM> gathered = parent == kNoItem ? std::vector<HTREEITEM>() : GatheredBelow(parent);
        if (gathered.empty())
            return;
        const int count = static_cast<int>(gathered.size()), settled = m_items.ChildCount(parent) - count;
        const bool few = count * kFewer < settled;
        const ChildOrder order = m_items[parent].order;
        const bool merges = order == ChildOrder::Unknown || (order == ChildOrder::ByLabel ? !few : count > 1);
        if (merges && SortByLabel(hParent, settled))
            continue;
        for (const HTREEITEM hItem : gathered)
            SettleOne(hItem);
    }
}

std::vector<HTREEITEM> TreeOrder::GatheredBelow(ItemIndex parent) const
{
    std::vector<HTREEITEM> gathered;
    for (ItemIndex item = m_items.LastChild(parent); m_items[item].gathered; item = m_items.Previous(item))
        gathered.push_back(m_items.HandleOf(item));
    std::reverse(gathered.begin(), gathered.end());
    return gathered;
}

// The first of those gathered.
void TreeOrder::SettleOne(HTREEITEM hItem)
{
    if (m_items.Find(hItem) == kNoItem)
        return;
    const int place = FindPlace(hItem, m_items.HandleOf(m_items.Parent(m_items.Find(hItem))));
    const ItemIndex item = m_items.Find(hItem);
    if (item == kNoItem)
        return;
    if (place < m_items.PlaceOf(item))
        m_items.MoveUp(item, place);
    m_items[item].gathered = false;
    m_viewport.ItemIsPlaced(item);
}

// Behind the siblings that are settled.
int TreeOrder::FindPlace(HTREEITEM hNew, HTREEITEM hParent) const
{
    const bool bisects = m_items[m_items.FindParent(hParent)].order == ChildOrder::ByLabel;
    const std::string key = KeyOf(hNew);
    return bisects ? Bisect(key, hNew, hParent) : LookThrough(key, hNew, hParent);
}

std::string TreeOrder::KeyOf(HTREEITEM hItem) const
{
    const std::string label = m_owner.AskText(hItem);
    return m_items.Find(hItem) == kNoItem ? std::string() : MakeKey(hItem, label.c_str());
}

std::string TreeOrder::MakeKey(HTREEITEM hItem, const char* pszLabel) const
{
    std::string key;
    if (m_makeKey)
        m_makeKey(m_items[m_items.Find(hItem)].lParam, pszLabel, key);
    else
        AppendSortKey(key, pszLabel, TextOrder::NoCase);
    return key;
}

// The place lies behind hNotGreater and not behind hGreater; NULL and the new item stand for the ends. So it is found,
// too, when a handler adds siblings or takes some away meanwhile.
int TreeOrder::Bisect(const std::string& key, HTREEITEM hNew, HTREEITEM hParent) const
{
    HTREEITEM hNotGreater = nullptr, hGreater = hNew;
    int place = 0, end = 0;
    for (unsigned version = ~m_items.Version();;) {
        if (std::exchange(version, m_items.Version()) != m_items.Version()) {
            const ItemIndex notGreater = m_items.Find(hNotGreater), greater = m_items.Find(hGreater);
            place = notGreater == kNoItem ? 0 : m_items.PlaceOf(notGreater) + 1;
            end = greater == kNoItem ? 0 : m_items.PlaceOf(greater);
        }
        if (place >= end)
            return place;
        const int middle = place + (end - place) / 2;
        const HTREEITEM hChild = m_items.HandleOf(m_items.ChildAt(m_items.FindParent(hParent), middle));
        const bool greater = KeyOf(hChild) > key;
        (greater ? hGreater : hNotGreater) = hChild;
        (greater ? end : place) = greater ? middle : middle + 1;
    }
}

int TreeOrder::LookThrough(const std::string& key, HTREEITEM hNew, HTREEITEM hParent) const
{
    for (int place = 0;; ++place) {
        const HTREEITEM hChild = m_items.HandleOf(m_items.ChildAt(m_items.FindParent(hParent), place));
        if (!hChild || hChild == hNew || KeyOf(hChild) > key)
            return place;
    }
}

void TreeOrder::Doubt(ItemIndex parent)
{
    if (m_items[parent].order == ChildOrder::ByLabel)
        m_items[parent].order = ChildOrder::Unknown;
}

BOOL TreeOrder::OnSortChildren(WPARAM, HTREEITEM hParent)
{
    ItemIndex parent = m_items.FindParent(hParent);
    // Among siblings that are out of order the place of what is gathered tells which of its equals it follows.
    if (parent != kNoItem && m_items[parent].order != ChildOrder::ByLabel)
        Settle();
    parent = m_items.FindParent(hParent);
    return parent != kNoItem && !m_items.Goes(parent) && SortByLabel(hParent, 0);
}

// Puts those behind the first `settled` children in the places that their labels give them. False: the owner has
// changed the tree while it was asked.
bool TreeOrder::SortByLabel(HTREEITEM hParent, int settled)
{
    const ItemIndex parent = m_items.FindParent(hParent);
    const std::vector<ItemIndex> children = m_items.Children(parent);
    const unsigned version = m_items.Version();
    TextKeys keys(children.size());
    ItemFace face;
    for (const ItemIndex child : children) {
        m_owner.AskFace(m_items.HandleOf(child), TVIF_TEXT, face);
        if (m_items.Version() != version)
            return false;
        if (m_makeKey)
            keys.AddKey(MakeKey(m_items.HandleOf(child), face.text.c_str()));
        else
            keys.Add(face.text.c_str());
    }
    bool inOrder = true;
    const std::vector<ItemIndex> order = Merge(children, static_cast<std::size_t>(settled), keys.Sort(), inOrder);
    Rearrange(parent, children, order, inOrder ? ChildOrder::ByLabel : ChildOrder::NotByLabel);
    return true;
}

BOOL TreeOrder::OnSortChildrenCB(WPARAM, const TVSORTCB* pSort)
{
    const ItemIndex parent = pSort ? m_items.FindParent(pSort->hParent) : kNoItem;
    if (parent == kNoItem || !pSort->lpfnCompare || m_items.Goes(parent))
        return FALSE;

    // A comparison may change the tree. What an item's lParam names may be gone then: nothing more is compared.
    const unsigned version = m_items.Version();
    const auto isUnchanged = [&] { return m_window.IsAlive() && m_items.Version() == version; };
    const TVSORTCB sort = *pSort;
    const std::vector<ItemIndex> children = m_items.Children(parent);
    std::vector<std::pair<LPARAM, ItemIndex>> entries;
    entries.reserve(children.size());
    for (const ItemIndex item : children)
        entries.emplace_back(m_items[item].lParam, item);
    SortStably(entries, [&](const auto& a, const auto& b) {
        return isUnchanged() && sort.lpfnCompare(a.first, b.first, sort.lParam) > 0;
    });
    if (!isUnchanged())
        return FALSE;
    std::vector<ItemIndex> order;
    order.reserve(entries.size());
    for (const auto& entry : entries)
        order.push_back(entry.second);
    Rearrange(parent, children, order, ChildOrder::Unknown);
    return TRUE;
}

LRESULT TreeOrder::OnSetOrderKey(WPARAM, LPARAM lParam)
{
    Settle();
    m_makeKey = reinterpret_cast<PFNTVORDERKEY>(lParam);
    std::vector<ItemIndex> parents = {kRootItem};
    while (!parents.empty()) {
        const ItemIndex parent = parents.back();
        parents.pop_back();
        Doubt(parent);
        for (const ItemIndex child : m_items.Children(parent))
            if (m_items.ChildCount(child) > 0)
                parents.push_back(child);
    }
    return 0;
}

BOOL TreeOrder::OnArrangeChildren(WPARAM, const TVARRANGECHILDREN* pArrange)
{
    const ItemIndex parent = pArrange ? m_items.FindParent(pArrange->hParent) : kNoItem;
    if (parent == kNoItem || m_items.Goes(parent) || pArrange->cChildren != m_items.ChildCount(parent))
        return FALSE;
    std::vector<ItemIndex> order;
    order.reserve(static_cast<std::size_t>(pArrange->cChildren));
    for (int i = 0; i < pArrange->cChildren; ++i)
        order.push_back(m_items.Find(pArrange->phChildren[i]));
    if (!m_items.AreChildren(parent, order))
        return FALSE;
    std::erase(m_unsettled, m_items.HandleOf(parent));
    Rearrange(parent, m_items.Children(parent), order, pArrange->bByLabel ? ChildOrder::ByLabel : ChildOrder::Unknown);
    return TRUE;
}

// From the first one on that stands elsewhere now, or was gathered: nobody has seen that one yet.
void TreeOrder::Rearrange(ItemIndex parent, const std::vector<ItemIndex>& former, const std::vector<ItemIndex>& order,
                          ChildOrder known)
{
    const auto first = std::mismatch(former.begin(), former.end(), order.begin(),
                                     [this](ItemIndex a, ItemIndex b) { return a == b && !m_items[b].gathered; });
    if (known != ChildOrder::Unknown || first.second != order.end())
        m_items[parent].order = known;
    if (first.second == order.end())
        return;
    const ItemIndex item = *first.second;
    const bool gathered = m_items[former.back()].gathered;
    m_items.Arrange(parent, order);
    for (const ItemIndex child : order)
        m_items[child].gathered = false;
    if (!m_items.IsShown(item))
        return;
    if (!gathered)
        m_viewport.KeepPlace(); // whatever comes to lie in it: nothing is new
    m_viewport.RowsChanged(m_viewport.RowAbove(item));
}

} // namespace toolkit
