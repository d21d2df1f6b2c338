// The members of one container, as little of each as will do.
#pragma once

#include "Toolkit/base/Types.h"

#include <string>
#include <string_view>
#include <vector>

namespace editor
{

class CMember;

enum class MemberKind : BYTE
{
    Folder,
    Phase,
    Picture,
    File, // any other
    Link
};

// A member costs 24 bytes and its name. Its atom is made when somebody asks for it and gone when nobody holds it;
// the table only notes where it is. Indexes count from 0; identifiers are never 0 and never given twice.
//
// Members that come later stand at the end, in no order. One that is dropped keeps its place, without an identifier,
// until the table is tidied: so many can go, one after the other, without the rest being moved each time.
class MemberTable
{
public:
    static constexpr UINT kNone = 0xFFFFFFFF;

    UINT GetCount() const { return static_cast<UINT>(m_entries.size()); }
    std::string_view NameOf(UINT nIndex) const { return NameOf(m_entries[nIndex]); }
    MemberKind KindOf(UINT nIndex) const { return m_entries[nIndex].kind; }
    DWORD IdOf(UINT nIndex) const { return m_entries[nIndex].id; }
    CMember*& LiveAt(UINT nIndex) { return m_entries[nIndex].pLive; }
    UINT FindID(DWORD dwID) const; // kNone without it; logarithmic once the order is known
    // After Sort; kNone without it. Logarithmic but for those that came after the last tidying.
    UINT FindSorted(std::string_view name) const;
    bool IsDropped(UINT nIndex) const { return m_entries[nIndex].id == 0; }
    bool IsTidy() const; // has nothing been dropped, and have not too many come after a Sort?

    void Add(std::string_view name, MemberKind kind);
    void Sort(); // by the names' bytes
    // The member is the one that had this identifier, and this atom or none, in a former table.
    void Identify(UINT nIndex, DWORD dwID, CMember* pLive);
    void NumberTheRest(DWORD& nextId); // gives the members that are not identified new identifiers
    UINT Append(std::string_view name, MemberKind kind, DWORD dwID); // dwID is greater than all there are
    void Drop(UINT nIndex);
    void Tidy(); // indexes change

private:
    struct Entry
    {
        DWORD nameAt, nameLength;
        DWORD id;
        MemberKind kind;
        CMember* pLive; // NULL while there is no atom
    };

    std::string_view NameOf(const Entry& entry) const { return {m_names.data() + entry.nameAt, entry.nameLength}; }

    std::vector<Entry> m_entries;
    std::size_t m_nSorted = 0; // so many of the first are in the order of their names
    bool m_bSorted = false;    // is that the order they are to have?
    std::size_t m_nDropped = 0;
    std::string m_names;                 // one behind the other
    mutable std::vector<UINT> m_idOrder; // the indexes in the order of identifiers; made when first needed
};

} // namespace editor
