// How the tree control finds the places of items among sorted siblings, and sorts those that are there.
//
// What is inserted in label order is only gathered behind its siblings. Its place is found when somebody may see it or
// asks for it: before the next paint, input or question. Then many are merged with their siblings, all labels read
// once; a few find their places one by one.
//
// A container whose children are known to be in label order is bisected: the place lies between a label that is not
// greater and one that is. Where they are not, labels are looked through for the first greater one; where nobody knows,
// a merge shows it. Small containers are always merged: there it costs nothing and holds whatever the owner has renamed
// since.
#include "Toolkit/base/Text.h"
#include "Toolkit/base/TextKeys.h"
#include "Toolkit/controls/tree/TreeControl.h"

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
    std::vector<std::uint32_t> ranks(settled), others;
    others.reserve(items.size() - settled);
    std::vector<std::uint32_t> otherRanks;
    for (std::uint32_t rank = 0; rank < keys.size(); ++rank) {
        const std::uint32_t i = keys[rank].nIndex;
        if (i < settled)
            ranks[i] = rank;
        else
            others.push_back(i), otherRanks.push_back(rank);
    }
    inOrder = std::is_sorted(ranks.begin(), ranks.end());
    std::vector<ItemIndex> order;
    order.reserve(items.size());
    std::size_t other = 0;
    for (std::size_t i = 0; i < settled; ++i) {
        while (other < others.size() && otherRanks[other] < ranks[i])
            order.push_back(items[others[other++]]);
        order.push_back(items[i]);
    }
    while (other < others.size())
        order.push_back(items[others[other++]]);
    return order;
}

} // namespace

// Only what hangs on the order of siblings or on rows has to wait for it.
bool TreeControl::NeedsOrder(UINT message, WPARAM wParam)
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

// The last of its siblings. One pixel is enough to have a paint come, which puts it in its place.
void TreeControl::Gather(ItemIndex item, ItemIndex parent, bool withFormer)
{
    m_items[item].gathered = true;
    if (withFormer)
        return;
    m_unsettled.push_back(m_items.HandleOf(parent)); // there is room
    const CRect pixel(0, 0, 1, 1);
    if (m_items.IsShown(item))
        InvalidateRect(m_hWnd, &pixel);
}

// What memory is lacking for stays gathered until the next time.
bool TreeControl::SettleGathered()
{
    if (m_nSettling > 0)
        return true;
    const UnderWay settling(m_nSettling);
    try {
        while (!m_unsettled.empty()) {
            const HTREEITEM hParent = m_unsettled.back();
            if (!SettleBelow(hParent))
                return false;
            std::erase(m_unsettled, hParent);
        }
    } catch (const std::bad_alloc&) {
    }
    return true;
}

// The owner may have more inserted while it is asked for labels.
bool TreeControl::SettleBelow(HTREEITEM hParent)
{
    for (;;) {
        const ItemIndex parent = m_items.FindParent(hParent);
        const std::vector<HTREEITEM> gathered = parent == kNoItem ? std::vector<HTREEITEM>() : GatheredBelow(parent);
        if (gathered.empty())
            return true;
        const int count = static_cast<int>(gathered.size()), settled = m_items.ChildCount(parent) - count;
        const bool few = count * kFewer < settled;
        const ChildOrder order = m_items[parent].order;
        const bool merges = order == ChildOrder::Unknown || (order == ChildOrder::ByLabel ? !few : count > 1);
        bool done = false;
        if (merges && !SortByLabel(hParent, settled, done))
            return false;
        if (!done && !SettleEach(gathered))
            return false;
    }
}

bool TreeControl::SettleEach(const std::vector<HTREEITEM>& gathered)
{
    for (const HTREEITEM hItem : gathered)
        if (!SettleOne(hItem))
            return false;
    return true;
}

std::vector<HTREEITEM> TreeControl::GatheredBelow(ItemIndex parent) const
{
    std::vector<HTREEITEM> gathered;
    for (ItemIndex item = m_items.LastChild(parent); m_items[item].gathered; item = m_items.Previous(item))
        gathered.push_back(m_items.HandleOf(item));
    std::reverse(gathered.begin(), gathered.end());
    return gathered;
}

// The first of those gathered.
bool TreeControl::SettleOne(HTREEITEM hItem)
{
    const ItemIndex item = m_items.Find(hItem);
    if (item == kNoItem)
        return true;
    const HTREEITEM hParent = m_items.HandleOf(m_items.Parent(item));
    int place = 0;
    if (!FindSortedPlace(hItem, hParent, place))
        return false;
    const ItemIndex itemNow = m_items.Find(hItem);
    if (itemNow == kNoItem)
        return true;
    if (place < m_items.PlaceOf(itemNow))
        m_items.MoveUp(itemNow, place);
    m_items[itemNow].gathered = false;
    return ShowPlaced(itemNow, m_items.FindParent(hParent));
}

// Behind the siblings that are settled.
bool TreeControl::FindSortedPlace(HTREEITEM hNew, HTREEITEM hParent, int& place)
{
    const ItemIndex parent = m_items.FindParent(hParent);
    const bool bisects = m_items[parent].order == ChildOrder::ByLabel;
    Face face;
    if (!AskFace(hNew, TVIF_TEXT, face))
        return false;
    return bisects ? Bisect(face.text, hNew, hParent, place) : LookThrough(face.text, hNew, hParent, place);
}

// The place lies behind hNotGreater and not behind hGreater; NULL and the new item stand for the ends. So it is found,
// too, when a handler adds siblings or takes some away meanwhile.
bool TreeControl::Bisect(const std::string& label, HTREEITEM hNew, HTREEITEM hParent, int& place)
{
    HTREEITEM hNotGreater = nullptr, hGreater = hNew;
    int end = 0;
    for (unsigned version = ~m_items.Version();;) {
        if (std::exchange(version, m_items.Version()) != m_items.Version()) {
            const ItemIndex notGreater = m_items.Find(hNotGreater), greater = m_items.Find(hGreater);
            place = notGreater == kNoItem ? 0 : m_items.PlaceOf(notGreater) + 1;
            end = greater == kNoItem ? 0 : m_items.PlaceOf(greater);
        }
        if (place >= end)
            return true;
        const int middle = place + (end - place) / 2;
        const HTREEITEM hChild = m_items.HandleOf(m_items.ChildAt(m_items.FindParent(hParent), middle));
        Face face;
        if (!AskFace(hChild, TVIF_TEXT, face))
            return false;
        const bool greater = CompareNoCase(face.text, label) > 0;
        (greater ? hGreater : hNotGreater) = hChild;
        (greater ? end : place) = greater ? middle : middle + 1;
    }
}

bool TreeControl::LookThrough(const std::string& label, HTREEITEM hNew, HTREEITEM hParent, int& place)
{
    for (place = 0;; ++place) {
        const HTREEITEM hChild = m_items.HandleOf(m_items.ChildAt(m_items.FindParent(hParent), place));
        Face face;
        if (!hChild || hChild == hNew)
            return true;
        if (!AskFace(hChild, TVIF_TEXT, face))
            return false;
        if (CompareNoCase(face.text, label) > 0)
            return true;
    }
}

void TreeControl::DoubtOrder(ItemIndex parent)
{
    if (m_items[parent].order == ChildOrder::ByLabel)
        m_items[parent].order = ChildOrder::Unknown;
}

LRESULT TreeControl::OnSortChildren(WPARAM, LPARAM lParam)
{
    const auto hParent = reinterpret_cast<HTREEITEM>(lParam);
    ItemIndex parent = m_items.FindParent(hParent);
    // Among siblings that are out of order the place of what is gathered tells which of its equals it follows.
    if (parent != kNoItem && m_items[parent].order != ChildOrder::ByLabel && !Settle())
        return FALSE;
    parent = m_items.FindParent(hParent);
    bool done = false;
    return parent != kNoItem && !IsGoing(parent) && SortByLabel(hParent, 0, done) && done;
}

// Puts those behind the first `settled` children in the places that their labels give them. Not done: the owner has
// changed the tree while it was asked.
bool TreeControl::SortByLabel(HTREEITEM hParent, int settled, bool& done)
{
    const ItemIndex parent = m_items.FindParent(hParent);
    const std::vector<ItemIndex> children = m_items.Children(parent);
    const unsigned version = m_items.Version();
    TextKeys keys(children.size());
    Face face;
    for (const ItemIndex child : children) {
        if (!AskFace(m_items.HandleOf(child), TVIF_TEXT, face))
            return false;
        if (m_items.Version() != version)
            return true;
        keys.Add(face.text.c_str());
    }
    bool inOrder = true;
    const std::vector<ItemIndex> order = Merge(children, static_cast<std::size_t>(settled), keys.Sort(), inOrder);
    done = true;
    return Rearrange(parent, children, order, inOrder ? ChildOrder::ByLabel : ChildOrder::NotByLabel);
}

LRESULT TreeControl::OnSortChildrenCB(WPARAM, LPARAM lParam)
{
    struct Entry
    {
        LPARAM lParam;
        ItemIndex item;
    };
    const auto* const pSort = reinterpret_cast<const TVSORTCB*>(lParam);
    const ItemIndex parent = pSort ? m_items.FindParent(pSort->hParent) : kNoItem;
    if (parent == kNoItem || !pSort->lpfnCompare || IsGoing(parent))
        return FALSE;

    const std::vector<ItemIndex> children = m_items.Children(parent);
    std::vector<Entry> entries;
    entries.reserve(children.size());
    for (const ItemIndex item : children)
        entries.push_back({m_items[item].lParam, item});

    const HWND hWnd = m_hWnd;
    const unsigned version = m_items.Version();
    const TVSORTCB sort = *pSort;
    // A comparison may change the tree. What an item's lParam names may be gone then: nothing more is compared.
    const auto isUnchanged = [&] { return IsWindow(hWnd) && m_items.Version() == version; };
    SortStably(entries, [&](const Entry& a, const Entry& b) {
        return isUnchanged() && sort.lpfnCompare(a.lParam, b.lParam, sort.lParam) > 0;
    });
    if (!isUnchanged())
        return FALSE;
    std::vector<ItemIndex> order;
    order.reserve(entries.size());
    for (const Entry& entry : entries)
        order.push_back(entry.item);
    return Rearrange(parent, children, order, ChildOrder::Unknown);
}

LRESULT TreeControl::OnArrangeChildren(WPARAM, LPARAM lParam)
{
    const auto* const pArrange = reinterpret_cast<const TVARRANGECHILDREN*>(lParam);
    const ItemIndex parent = pArrange ? m_items.FindParent(pArrange->hParent) : kNoItem;
    if (parent == kNoItem || IsGoing(parent) || pArrange->cChildren != m_items.ChildCount(parent))
        return FALSE;
    std::vector<ItemIndex> order;
    order.reserve(static_cast<std::size_t>(pArrange->cChildren));
    for (int i = 0; i < pArrange->cChildren; ++i)
        order.push_back(m_items.Find(pArrange->phChildren[i]));
    if (!m_items.AreChildren(parent, order))
        return FALSE;
    std::erase(m_unsettled, m_items.HandleOf(parent));
    const ChildOrder known = pArrange->bByLabel ? ChildOrder::ByLabel : ChildOrder::Unknown;
    return Rearrange(parent, m_items.Children(parent), order, known);
}

// From the first one on that stands elsewhere now, or was gathered: nobody has seen that one yet.
bool TreeControl::Rearrange(ItemIndex parent, const std::vector<ItemIndex>& former, const std::vector<ItemIndex>& order,
                            ChildOrder known)
{
    const auto first = std::mismatch(former.begin(), former.end(), order.begin(),
                                     [this](ItemIndex a, ItemIndex b) { return a == b && !m_items[b].gathered; });
    if (known != ChildOrder::Unknown || first.second != order.end())
        m_items[parent].order = known;
    if (first.second == order.end())
        return true;
    const ItemIndex item = *first.second;
    const bool gathered = m_items[former.back()].gathered;
    m_items.Arrange(parent, order);
    for (const ItemIndex child : order)
        m_items[child].gathered = false;
    if (!m_items.IsShown(item))
        return true;
    if (!gathered)
        KeepPlace(); // whatever comes to lie in it: nothing is new
    return RowsChanged(RowAbove(item));
}

} // namespace toolkit
