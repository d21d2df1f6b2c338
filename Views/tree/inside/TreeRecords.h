// Inside the library: what a tree knows of its items, and which of them shows which atom.
#pragma once

#include "Views/host/IAtomContainer.h"
#include "Views/tree/ObjectsTree.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace views
{

struct TreeRecord : CObjectsTree::TREEITEMDATA
{
    enum class State : std::uint8_t
    {
        Arriving, // the control is being handed the item
        Filling,  // its members are being inserted
        Settled,
        Leaving
    };

    HTREEITEM hItem = nullptr;
    std::uint32_t nIndex = 0; // in its pool
    State state = State::Arriving;
    bool bMembersShown = false; // the atom's members have become items, or are becoming items
};

class TreeRecords;

struct GiveBackRecord
{
    TreeRecords* pRecords = nullptr;
    void operator()(TreeRecord* pRecord) const;
};

// There may be millions: they stand in blocks, and are found by their atoms in a table without nodes.
class TreeRecords
{
public:
    using Holder = std::unique_ptr<TreeRecord, GiveBackRecord>;

    TreeRecords() = default;
    TreeRecords(const TreeRecords&) = delete;
    TreeRecords& operator=(const TreeRecords&) = delete;

    Holder Make(); // raises CMemoryException
    Holder Hold(TreeRecord* pRecord) { return Holder(pRecord, {this}); }

    // An atom has one record by which it is found: the one mapped last. The atom is the record's; it needs no memory.
    void Map(TreeRecord* pRecord);
    void Unmap(const TreeRecord* pRecord); // nothing when its atom is found by another one
    TreeRecord* Find(IAtom* pAtom) const;  // NULL: none

private:
    friend struct GiveBackRecord;

    static constexpr std::uint32_t kBlock = 128;

    struct Entry
    {
        std::uint32_t nHash = 0;
        std::uint32_t nRecord = 0; // index + 1; 0: none
    };

    TreeRecord& At(std::uint32_t nIndex) const { return m_blocks[nIndex / kBlock][nIndex % kBlock]; }
    void Free(TreeRecord& record);

    static std::uint32_t HashOf(const IAtom* pAtom);
    std::size_t HomeOf(std::uint32_t nHash) const { return std::uint64_t{nHash} * m_entries.size() >> 32; }
    std::size_t Next(std::size_t i) const { return i + 1 < m_entries.size() ? i + 1 : 0; }
    std::size_t Locate(IAtom* pAtom) const; // its entry, or the empty one where it would be
    void MakeRoom();

    std::vector<std::unique_ptr<TreeRecord[]>> m_blocks;
    std::uint32_t m_nUsed = 0;      // records ever made
    std::uint32_t m_nFirstFree = 0; // index + 1, chained by nIndex; 0: none
    std::size_t m_nMade = 0;
    std::vector<Entry> m_entries; // each at its home or in the run of entries from there on
};

} // namespace views
