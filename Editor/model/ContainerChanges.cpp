// A container's members added, renamed and removed.
#include "Editor/archive/ArchivedAtom.h"
#include "Editor/disk/FileText.h"
#include "Editor/model/Container.h"
#include "Editor/model/LibraryContext.h"
#include "Editor/model/RevocableRemoval.h"

#include <new>
#include <utility>

namespace editor
{

BOOL CContainer::AddAtom(IAtom* pSource, DWORD, const char* pszName, void** ppOut, DWORD dwInterfaceId)
{
    if (ppOut)
        *ppOut = nullptr;
    CArchivedAtom* const pArchived = CArchivedAtom::Of(pSource);
    if (!pArchived || !pszName)
        return Note(ShownName() + ": only what was read from an archive can be added");
    Members();
    if (const auto nReturned = BringBack(pszName)) {
        Note({});
        return GiveMember(*nReturned, ppOut, dwInterfaceId);
    }
    Entry added;
    // A copy comes under the name that it has just been given here, a move under its own.
    const bool bCopied = std::exchange(m_validName, {}) == pszName;
    std::string failure = bCopied ? std::string() : TroubleOfMove(pArchived->Record(), pszName);
    if (failure.empty())
        failure = Add(pArchived->Record(), pszName, bCopied, added);
    pArchived->SetFailure(failure);
    if (!Note(std::move(failure)))
        return FALSE;
    return GiveMember(Append(added), ppOut, dwInterfaceId);
}

BOOL CContainer::RenameAtom(IAtom* pAtom, const char* pszNewName, void** ppOut, DWORD dwInterfaceId)
{
    if (ppOut)
        *ppOut = nullptr;
    const CMember* const pMember = CMember::Of(pAtom);
    if (!IsPresent(pMember) || !pszNewName)
        return Note(ShownName() + ": the object to be renamed is not there any more");
    Entry renamed;
    if (!Note(Rename(*pMember, pszNewName, renamed)))
        return FALSE;
    Drop(pMember->Index());
    return GiveMember(Append(renamed), ppOut, dwInterfaceId);
}

BOOL CContainer::RemoveAtom(IAtom* pAtom)
{
    CMember* const pMember = CMember::Of(pAtom);
    if (!IsPresent(pMember))
        return Note(ShownName() + ": the object to be removed is not there any more");
    RevocableRemoval* const pRevocable = RevocableRemoval::Current();
    if (pRevocable)
        pRevocable->Begin(*pMember, KindOf(*pMember));
    TrashPlace place;
    const bool bRemoved = Note(Remove(*pMember, place));
    if (pRevocable)
        pRevocable->End(bRemoved, place);
    if (bRemoved)
        Drop(pMember->Index());
    else
        m_stayed[pAtom->GetID()] = m_failure;
    return bRemoved;
}

std::string CContainer::WhyItStayed(DWORD dwID) const
{
    const auto found = m_stayed.find(dwID);
    return found == m_stayed.end() ? std::string() : found->second;
}

DWORD CContainer::GetPermissions(IAtom* pAtom)
{
    if (const CArchivedAtom* const pArchived = CArchivedAtom::Of(pAtom)) {
        m_failure.clear();
        return PermissionsFor(pArchived->Record(), m_failure);
    }
    return IsPresent(CMember::Of(pAtom)) ? MemberPermissions() : 0;
}

BOOL CContainer::ValidateName(CString& strName, DWORD)
{
    const std::string valid = ValidNameFor(strName.View());
    if (valid.empty())
        return Note(ShownName() + ": no name can be found in it");
    strName = valid.c_str();
    m_validName = valid;
    return TRUE;
}

std::string CContainer::TroubleOfMove(const ArchiveRecord& record, std::string_view name)
{
    std::string trouble;
    if (PermissionsFor(record, trouble) != APF_ACCEPTCOPY)
        return {};
    return ToShown(name) + ": can only be copied there, not moved";
}

bool CContainer::IsPresent(const CMember* pMember) const
{
    return pMember && pMember->Container() == this && pMember->Index() != MemberTable::kNone;
}

BOOL CContainer::Note(std::string failure)
{
    m_failure = std::move(failure);
    return m_failure.empty();
}

// What is listed under the name of the new member is a file that has gone without the library's doing.
UINT CContainer::Append(const Entry& entry)
{
    MemberTable& table = m_pContents->table;
    if (entry.kind != MemberKind::Link)
        if (const UINT nStale = FindName(table, entry.name); nStale != MemberTable::kNone)
            Drop(nStale);
    return table.Append(entry.name, entry.kind, Context().nextId++);
}

// The index of what has come back instead of being made anew.
std::optional<UINT> CContainer::BringBack(std::string_view name)
{
    RevocableRemoval* const pRevocable = RevocableRemoval::Current();
    const auto returned = pRevocable ? pRevocable->BringBack(*this, name) : std::nullopt;
    if (!returned)
        return std::nullopt;
    if (!returned->pMember) {
        ReadAgain();
        return returned->nLine;
    }
    CMember& member = *returned->pMember.Get();
    if (History* const pHistory = Context().pHistory)
        pHistory->CameBack(Path() + '/' + std::string(name));
    const UINT nIndex = Append({std::string(name), returned->kind});
    m_pContents->table.Identify(nIndex, returned->dwID, &member);
    m_pContents->gone.erase(&member);
    member.m_nIndex = nIndex;
    return nIndex;
}

// The disk has changed already: nothing may fail now. Without memory nobody remembers how it was called.
void CContainer::Drop(UINT nIndex) noexcept
{
    MemberTable& table = m_pContents->table;
    if (CMember* const pLive = table.LiveAt(nIndex)) {
        try {
            m_pContents->gone[pLive] = {std::string(table.NameOf(nIndex)), table.IdOf(nIndex)};
        } catch (const std::bad_alloc&) {
            m_pContents->gone.erase(pLive);
        }
        pLive->m_nIndex = MemberTable::kNone;
    }
    table.Drop(nIndex);
}

void CContainer::Tidy()
{
    MemberTable& table = m_pContents->table;
    table.Tidy();
    for (UINT i = 0; i < table.GetCount(); ++i)
        if (CMember* const pLive = table.LiveAt(i))
            pLive->m_nIndex = i;
}

} // namespace editor
