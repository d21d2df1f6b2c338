// How the tree control finds the place of a new item among sorted siblings, and sorts those that are there.
//
// A container whose children are known to be in label order is bisected: the place lies between a label that is not
// greater and one that is. Where they are not, or nobody knows, all labels are looked through for the first greater
// one, and the look shows whether they are in order after all. Small containers are always looked through: there it
// costs nothing and holds whatever the owner has renamed since.
#include "Toolkit/base/Text.h"
#include "Toolkit/controls/TreeControl.h"

#include <utility>

namespace toolkit
{

namespace
{

constexpr int kSmall = 16; // children

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

template <class Entry>
std::vector<ItemIndex> ItemsOf(const std::vector<Entry>& entries)
{
    std::vector<ItemIndex> items;
    items.reserve(entries.size());
    for (const Entry& entry : entries)
        items.push_back(entry.item);
    return items;
}

} // namespace

bool TreeControl::FindSortedPlace(HTREEITEM hNew, HTREEITEM hParent, int& place)
{
    const ItemIndex parent = m_items.FindParent(hParent);
    place = 0;
    if (m_items.ChildCount(parent) == 0)
        return true;
    const bool bisects = m_items[parent].order == ChildOrder::ByLabel && m_items.ChildCount(parent) > kSmall;
    Face face;
    if (!AskFace(hNew, TVIF_TEXT, face))
        return false;
    return bisects ? Bisect(face.text, hParent, place) : LookThrough(face.text, hParent, place);
}

// The place lies behind hNotGreater and not behind hGreater; NULL stands for either end. So it is found, too, when a
// handler adds siblings or takes some away meanwhile.
bool TreeControl::Bisect(const std::string& label, HTREEITEM hParent, int& place)
{
    HTREEITEM hNotGreater = nullptr, hGreater = nullptr;
    TreeSiblings::Part part{};
    int end = 0;
    for (unsigned version = ~m_items.Version();;) {
        if (std::exchange(version, m_items.Version()) != m_items.Version()) {
            const ItemIndex parent = m_items.FindParent(hParent);
            const ItemIndex notGreater = m_items.Find(hNotGreater), greater = m_items.Find(hGreater);
            part = m_items.ChildrenOf(parent);
            place = notGreater == kNoItem ? 0 : m_items.PlaceOf(notGreater) + 1;
            end = greater == kNoItem ? m_items.ChildCount(parent) : m_items.PlaceOf(greater);
        }
        if (place >= end)
            return true;
        const int middle = place + (end - place) / 2;
        part = m_items.Narrow(part, place, end);
        const HTREEITEM hChild = m_items.HandleOf(m_items.ChildAt(part, middle));
        Face face;
        if (!AskFace(hChild, TVIF_TEXT, face))
            return false;
        const bool greater = CompareNoCase(face.text, label) > 0;
        (greater ? hGreater : hNotGreater) = hChild;
        (greater ? end : place) = greater ? middle : middle + 1;
    }
}

bool TreeControl::LookThrough(const std::string& label, HTREEITEM hParent, int& place)
{
    bool found = false, inOrder = true;
    std::string former;
    for (int i = 0; !found || inOrder; ++i) {
        const ItemIndex child = m_items.ChildAt(m_items.FindParent(hParent), i);
        if (child == kNoItem)
            break;
        Face face;
        if (!AskFace(m_items.HandleOf(child), TVIF_TEXT, face))
            return false;
        inOrder = inOrder && (i == 0 || CompareNoCase(former, face.text) <= 0);
        found = found || CompareNoCase(face.text, label) > 0;
        if (!found)
            place = i + 1;
        const ItemIndex parent = m_items.FindParent(hParent);
        if (found && parent != kNoItem && m_items[parent].order != ChildOrder::Unknown)
            return true; // there is nothing more to learn
        former = std::move(face.text);
    }
    const ItemIndex parent = m_items.FindParent(hParent);
    if (parent != kNoItem)
        m_items[parent].order = inOrder ? ChildOrder::ByLabel : ChildOrder::NotByLabel;
    return true;
}

void TreeControl::DoubtOrder(ItemIndex parent)
{
    if (m_items[parent].order == ChildOrder::ByLabel)
        m_items[parent].order = ChildOrder::Unknown;
}

LRESULT TreeControl::OnSortChildren(WPARAM, LPARAM lParam)
{
    struct Entry
    {
        std::string label;
        ItemIndex item;
    };
    const auto hParent = reinterpret_cast<HTREEITEM>(lParam);
    const ItemIndex parent = m_items.FindParent(hParent);
    if (parent == kNoItem || IsGoing(parent))
        return FALSE;

    const unsigned version = m_items.Version();
    std::vector<Entry> entries;
    entries.reserve(static_cast<std::size_t>(m_items.ChildCount(parent)));
    for (ItemIndex item = m_items.FirstChild(parent); item != kNoItem; item = m_items.Next(item)) {
        Face face;
        if (!AskFace(m_items.HandleOf(item), TVIF_TEXT, face) || m_items.Version() != version)
            return FALSE;
        entries.push_back({std::move(face.text), item});
    }
    SortStably(entries, [](const Entry& a, const Entry& b) { return CompareNoCase(a.label, b.label) > 0; });
    m_items[parent].order = ChildOrder::ByLabel;
    return Rearrange(parent, ItemsOf(entries));
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

    std::vector<Entry> entries;
    entries.reserve(static_cast<std::size_t>(m_items.ChildCount(parent)));
    for (ItemIndex item = m_items.FirstChild(parent); item != kNoItem; item = m_items.Next(item))
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
    m_items[parent].order = ChildOrder::Unknown;
    return Rearrange(parent, ItemsOf(entries));
}

bool TreeControl::Rearrange(ItemIndex parent, std::span<const ItemIndex> order)
{
    ItemIndex child = m_items.FirstChild(parent);
    for (std::size_t i = 0; i < order.size() && order[i] == child; ++i)
        child = m_items.Next(child);
    if (child == kNoItem)
        return true; // as it was

    m_items.Arrange(parent, order);
    const int row = parent == kRootItem ? 0 : m_items.RowOf(parent);
    if (row < 0 || !m_items.IsExpanded(parent))
        return true;
    KeepPlace();
    return RowsChanged(row);
}

} // namespace toolkit
