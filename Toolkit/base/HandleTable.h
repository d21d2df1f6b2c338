// Handles that go stale safely: a table from handle to object.
//
// A handle packs a slot's index and the slot's generation into 32 bits, whatever the width of a pointer. When
// an object leaves, its slot's generation moves on, so the old handle finds nothing, also after the slot has
// been taken again (up to 4,095 times). The table owns what it holds. One thread only.
#pragma once

#include "Toolkit/base/Types.h"

#include <memory>
#include <utility>
#include <vector>

namespace toolkit
{

template <class Handle, class Object>
class HandleTable
{
public:
    // Takes the object over; NULL, and the object is gone, when a million are alive. The only operation that needs
    // memory.
    Handle Add(std::unique_ptr<Object> object)
    {
        const DWORD index = TakeSlot();
        if (index == kNone)
            return nullptr;
        m_slots[index].object = std::move(object);
        ++m_nLive;
        return Pack(index, m_slots[index].generation);
    }

    // NULL when the handle is NULL, stale or never was one.
    Object* Find(Handle handle) const
    {
        const Slot* slot = FindSlot(handle);
        return slot ? slot->object.get() : nullptr;
    }

    // Takes the object out and makes its handle stale; empty when there is none.
    std::unique_ptr<Object> Remove(Handle handle) noexcept
    {
        Slot* slot = const_cast<Slot*>(FindSlot(handle));
        if (!slot)
            return nullptr;
        slot->generation = slot->generation == kMaxGeneration ? 1 : slot->generation + 1;
        FreeSlot(static_cast<DWORD>(slot - m_slots.data()));
        --m_nLive;
        return std::move(slot->object);
    }

    int GetCount() const { return m_nLive; }

private:
    static constexpr DWORD kMaxIndex = 0xFFFFF;
    static constexpr DWORD kNone = 0xFFFFFFFF;
    static constexpr DWORD kMaxGeneration = 0xFFF;

    struct Slot
    {
        std::unique_ptr<Object> object;
        DWORD generation = 1; // never 0, so that no handle is NULL
        DWORD next = kNone;   // of the free slots
    };

    static Handle Pack(DWORD index, DWORD generation)
    {
        return reinterpret_cast<Handle>(static_cast<UINT_PTR>(generation << 20 | index));
    }

    const Slot* FindSlot(Handle handle) const
    {
        const auto value = reinterpret_cast<UINT_PTR>(handle);
        const DWORD index = static_cast<DWORD>(value & kMaxIndex);
        if (index >= m_slots.size() || Pack(index, m_slots[index].generation) != handle || !m_slots[index].object)
            return nullptr;
        return &m_slots[index];
    }

    DWORD TakeSlot()
    {
        if (m_firstFree != kNone) {
            const DWORD index = m_firstFree;
            m_firstFree = std::exchange(m_slots[index].next, kNone);
            return index;
        }
        if (m_slots.size() > kMaxIndex)
            return kNone;
        m_slots.emplace_back();
        return static_cast<DWORD>(m_slots.size() - 1);
    }

    void FreeSlot(DWORD index) noexcept
    {
        (m_firstFree == kNone ? m_firstFree : m_slots[m_lastFree].next) = index;
        m_lastFree = index;
    }

    std::vector<Slot> m_slots;
    DWORD m_firstFree = kNone, m_lastFree = kNone;
    int m_nLive = 0;
};

} // namespace toolkit
