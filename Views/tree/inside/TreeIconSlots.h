// Inside the library: which image of the tree's image list is lent to which item.
#pragma once

#include "Toolkit/controls/tree/TreeView.h"

#include <cstdint>
#include <list>
#include <map>
#include <unordered_map>

namespace views
{

struct ICONSLOT
{
    HTREEITEM hItem; // NULL: given up
    int nImage;      // -1: the item's icon could not be added
};

// Items borrow an image when they are first drawn. An image is taken over by another item once its own is gone or
// hidden in a collapsed branch, the one lent longest ago first; so there are about as many images as items with icons
// are shown at a time.
//
// Looking for a slot goes on where the last search ended, and knows which of those before were given up since, so that
// drawing one item after another costs the same for each, however many have an image; it begins anew after items were
// hidden.
class TreeIconSlots
{
public:
    TreeIconSlots() = default;
    TreeIconSlots(const TreeIconSlots&) = delete;
    TreeIconSlots& operator=(const TreeIconSlots&) = delete;

    const ICONSLOT* Find(HTREEITEM hItem) const; // NULL: none is lent to it; good until the next change
    int GetCount() const { return static_cast<int>(m_slots.size()); }

    // Removes the oldest slot that was given up or whose item is not shown: its image, -1 when there is no such
    // slot. isShown is asked about an item and must leave the slots alone.
    template <class IsShown>
    int TakeOver(const IsShown& isShown)
    {
        if (!m_givenUp.empty() && (m_next == m_slots.end() || m_givenUp.begin()->first < m_next->nNumber))
            return Remove(m_givenUp.begin()->second);
        while (m_next != m_slots.end() && m_next->hItem && isShown(m_next->hItem))
            ++m_next;
        return m_next == m_slots.end() ? -1 : Remove(m_next++);
    }
    // The newest slot, and the item's only one. Raises CMemoryException: no slot is lent to the item then.
    void Lend(HTREEITEM hItem, int nImage);
    void GiveUp(HTREEITEM hItem); // nothing when none is lent to the item
    void Clear();
    void ItemsHidden() { m_next = m_slots.begin(); }

private:
    struct Slot : ICONSLOT
    {
        std::uint64_t nNumber; // the older, the smaller
    };
    using Slots = std::list<Slot>; // the oldest first

    int Remove(Slots::iterator slot);

    Slots m_slots;
    Slots::iterator m_next = m_slots.begin(); // those before it are in use, or among those given up
    std::unordered_map<HTREEITEM, Slots::iterator> m_lent;
    std::map<std::uint64_t, Slots::iterator> m_givenUp; // by their numbers
    std::uint64_t m_nLast = 0;
};

} // namespace views
