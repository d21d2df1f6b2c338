#include "Views/tree/inside/TreeIconSlots.h"

const views::ICONSLOT* views::TreeIconSlots::Find(HTREEITEM hItem) const
{
    const auto found = m_lent.find(hItem);
    return found == m_lent.end() ? nullptr : &*found->second;
}

void views::TreeIconSlots::Lend(HTREEITEM hItem, int nImage)
{
    GiveUp(hItem);
    const auto slot = m_slots.insert(m_slots.end(), {{hItem, nImage}, ++m_nLast});
    if (m_next == m_slots.end())
        m_next = slot;
    try {
        m_lent.emplace(hItem, slot);
    } catch (...) {
        slot->hItem = nullptr;
        throw;
    }
}

void views::TreeIconSlots::GiveUp(HTREEITEM hItem)
{
    const auto found = m_lent.find(hItem);
    if (found == m_lent.end())
        return;
    const Slots::iterator slot = found->second;
    slot->hItem = nullptr;
    m_lent.erase(found);
    try {
        m_givenUp.emplace(slot->nNumber, slot);
    } catch (const std::bad_alloc&) {
        m_next = m_slots.begin(); // finds it, too
    }
}

void views::TreeIconSlots::Clear()
{
    m_lent.clear();
    m_givenUp.clear();
    m_slots.clear();
    m_next = m_slots.begin();
}

int views::TreeIconSlots::Remove(Slots::iterator slot)
{
    const int nImage = slot->nImage;
    if (slot->hItem)
        m_lent.erase(slot->hItem);
    else
        m_givenUp.erase(slot->nNumber);
    m_slots.erase(slot);
    return nImage;
}
