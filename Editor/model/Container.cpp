#include "Editor/model/Container.h"

#include "Editor/model/LibraryContext.h"

#include <algorithm>

namespace editor
{
namespace
{

// The indexes of the members that `wanted` accepts, in the order of their names.
template <class Wanted>
std::vector<UINT> ByName(const MemberTable& table, Wanted wanted)
{
    std::vector<UINT> indexes;
    for (UINT i = 0; i < table.GetCount(); ++i)
        if (wanted(i))
            indexes.push_back(i);
    const auto before = [&](UINT a, UINT b) { return table.NameOf(a) < table.NameOf(b); };
    if (!std::is_sorted(indexes.begin(), indexes.end(), before))
        std::stable_sort(indexes.begin(), indexes.end(), before);
    return indexes;
}

} // namespace

// Whoever looks while the members are read aside sees those before or, the first time, none.
class CContainer::BeingRead
{
public:
    explicit BeingRead(CContainer& container) : m_container(container), m_bFirst(!container.m_pContents)
    {
        if (m_bFirst) {
            m_container.m_pContents = std::make_unique<Contents>();
            m_container.m_pContents->error = "reading ...";
        }
    }
    ~BeingRead()
    {
        if (m_bFirst)
            m_container.m_pContents.reset();
    }
    BeingRead(const BeingRead&) = delete;
    BeingRead& operator=(const BeingRead&) = delete;

private:
    CContainer& m_container;
    const bool m_bFirst;
};

void CContainer::ReadAgain()
{
    auto pNow = std::make_unique<Contents>();
    {
        const BeingRead now(*this);
        static_cast<Listing&>(*pNow) = Aside(Context().work, [this] { return Read(); });
    }
    if (m_pContents)
        MoveMembers(*m_pContents, *pNow);
    pNow->table.NumberTheRest(Context().nextId);
    m_pContents = std::move(pNow);
    m_failure.clear();
}

void CContainer::ReadAgain(MemberNews& news)
{
    m_holdsAny.reset();
    if (!m_pContents)
        return;
    const MemberTable former = Members().table;
    ReadAgain();
    MemberTable& now = m_pContents->table;
    news.isOther = former.GetCount() != now.GetCount();
    for (UINT i = 0; i < now.GetCount() && i < former.GetCount(); ++i) {
        if (former.NameOf(i) == now.NameOf(i) && former.KindOf(i) == now.KindOf(i))
            continue;
        news.isOther = true;
        if (now.LiveAt(i) && now.IdOf(i) == former.IdOf(i)) // in its place, under another name
            news.written.push_back(CStubRef<CMember>::Share(now.LiveAt(i)));
    }
}

CMember* CContainer::LiveMember(std::string_view name)
{
    const UINT nIndex = m_pContents ? FindName(Members().table, name) : MemberTable::kNone;
    return nIndex == MemberTable::kNone ? nullptr : m_pContents->table.LiveAt(nIndex);
}

std::string CContainer::ErrorReason() const
{
    return m_pContents ? m_pContents->error : std::string();
}

void CContainer::GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD dwInterfaceId)
{
    const UINT nMembers = GetCount();
    for (UINT i = 0; i < nCount; ++i) {
        ppOut[i] = nullptr;
        if (nFirst < nMembers && i < nMembers - nFirst)
            GiveMember(nFirst + i, ppOut + i, dwInterfaceId);
    }
}

BOOL CContainer::FindAtomByID(DWORD dwID, void** ppOut, DWORD dwInterfaceId)
{
    return GiveMember(Members().table.FindID(dwID), ppOut, dwInterfaceId);
}

BOOL CContainer::FindAtom(const char* pszName, void** ppOut, DWORD dwInterfaceId)
{
    return GiveMember(pszName ? FindName(Members().table, pszName) : MemberTable::kNone, ppOut, dwInterfaceId);
}

CContainer::Contents& CContainer::Members()
{
    if (!m_pContents)
        ReadAgain();
    else if (!m_pContents->table.IsTidy())
        Tidy();
    return *m_pContents;
}

CStubRef<CMember> CContainer::MemberAt(UINT nIndex)
{
    MemberTable& table = m_pContents->table;
    CMember*& pLive = table.LiveAt(nIndex);
    if (pLive)
        return CStubRef<CMember>::Share(pLive);
    pLive = MakeMember(nIndex, table.KindOf(nIndex));
    return CStubRef<CMember>::Adopt(pLive);
}

BOOL CContainer::GiveMember(UINT nIndex, void** ppOut, DWORD dwInterfaceId)
{
    if (ppOut)
        *ppOut = nullptr;
    if (nIndex == MemberTable::kNone)
        return FALSE;
    if (ppOut)
        MemberAt(nIndex)->GetInterface(dwInterfaceId, ppOut);
    return !ppOut || *ppOut;
}

// Former and present members, both in the order of their names, go side by side. Where none has come or gone, a place
// whose name is new to the container may be the same member's.
void CContainer::MoveMembers(Contents& former, Contents& contents)
{
    MemberTable& now = contents.table;
    contents.gone = std::move(former.gone);
    const std::vector<UINT> alive = ByName(former.table, [&](UINT i) { return former.table.LiveAt(i) != nullptr; });
    const std::vector<UINT> present = ByName(now, [&](UINT) { return !alive.empty(); });
    auto next = present.begin();
    std::vector<UINT> missed;
    for (const UINT i : alive) {
        const std::string_view name = former.table.NameOf(i);
        while (next != present.end() && now.NameOf(*next) < name)
            ++next;
        CMember& member = *former.table.LiveAt(i);
        if (auto* const pContainer = dynamic_cast<CContainer*>(&member))
            pContainer->m_holdsAny.reset();
        if (next != present.end() && now.NameOf(*next) == name && now.KindOf(*next) == former.table.KindOf(i)) {
            now.Identify(*next, former.table.IdOf(i), &member);
            member.m_nIndex = *next++;
        } else {
            missed.push_back(i);
        }
    }
    const bool bPlaces = KeepsPlaces() && now.GetCount() == former.table.GetCount();
    for (const UINT i : missed) {
        CMember& member = *former.table.LiveAt(i);
        if (bPlaces && now.IdOf(i) == 0) {
            now.Identify(i, former.table.IdOf(i), &member);
            continue;
        }
        contents.gone[&member] = {std::string(former.table.NameOf(i)), former.table.IdOf(i)};
        member.m_nIndex = MemberTable::kNone;
    }
}

std::string_view CContainer::NameOf(const CMember& member) const
{
    if (member.m_nIndex != MemberTable::kNone)
        return m_pContents->table.NameOf(member.m_nIndex);
    const auto gone = m_pContents->gone.find(&member);
    return gone == m_pContents->gone.end() ? std::string_view() : gone->second.name;
}

DWORD CContainer::IdOf(const CMember& member) const
{
    if (member.m_nIndex != MemberTable::kNone)
        return m_pContents->table.IdOf(member.m_nIndex);
    const auto gone = m_pContents->gone.find(&member);
    return gone == m_pContents->gone.end() ? 0 : gone->second.id;
}

void CContainer::Forget(const CMember& member)
{
    if (member.m_nIndex != MemberTable::kNone)
        m_pContents->table.LiveAt(member.m_nIndex) = nullptr;
    else
        m_pContents->gone.erase(&member);
}

} // namespace editor
