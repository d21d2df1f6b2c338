// A queue that keeps its memory: once it has grown, putting in and taking out do not allocate.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace toolkit
{

template <class Item>
class Fifo
{
public:
    bool IsEmpty() const { return m_first == m_items.size(); }
    Item& Last() { return m_items.back(); } // not of an empty queue

    // Makes sure that the next Put needs no memory.
    void MakeRoom()
    {
        if (m_first > 64 && m_first > m_items.size() / 2)
            Compact();
        if (m_items.size() == m_items.capacity())
            m_items.reserve(2 * m_items.size() + 16);
    }

    void Put(Item item)
    {
        MakeRoom();
        m_items.push_back(std::move(item));
    }

    Item Take() // not from an empty queue
    {
        Item item = std::move(m_items[m_first++]);
        if (IsEmpty())
            Compact();
        return item;
    }

    template <class Condition>
    void RemoveIf(Condition condition)
    {
        Compact();
        std::erase_if(m_items, condition);
    }

    auto begin() const { return m_items.begin() + static_cast<std::ptrdiff_t>(m_first); }
    auto end() const { return m_items.end(); }

private:
    void Compact()
    {
        m_items.erase(m_items.begin(), m_items.begin() + static_cast<std::ptrdiff_t>(m_first));
        m_first = 0;
    }

    std::vector<Item> m_items;
    std::size_t m_first = 0;
};

} // namespace toolkit
