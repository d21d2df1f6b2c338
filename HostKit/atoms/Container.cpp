#include "HostKit/atoms/Atom.h"
#include "HostKit/atoms/inside/AtomFormat.h"
#include "HostKit/base/ErrorInfo.h"
#include "HostKit/pictures/Pictograms.h"
#include "Toolkit/base/String.h"
#include "Toolkit/base/Text.h"

#include <algorithm>

namespace hostkit
{
namespace
{

void Clear(void** ppOut)
{
    if (ppOut)
        *ppOut = nullptr;
}

std::string InOneCase(std::string_view name)
{
    std::string folded;
    while (!name.empty()) {
        const toolkit::CodePoint c = toolkit::DecodeUtf8(name);
        const bool bValid = c.value < 0x110000;
        folded += bValid ? toolkit::EncodeUtf8(toolkit::FoldCase(c.value)) : std::string(name.substr(0, 1));
        name.remove_prefix(static_cast<std::size_t>(c.bytes));
    }
    return folded;
}

BOOL Give(CAtom* pAtom, void** ppOut, DWORD dwInterfaceId)
{
    Clear(ppOut);
    if (pAtom && ppOut)
        pAtom->GetInterface(dwInterfaceId, ppOut);
    return pAtom && (!ppOut || *ppOut);
}

} // namespace

CContainer::~CContainer()
{
    for (const CStubRef<CAtom>& pMember : m_members)
        pMember->m_pContainer = nullptr; // somebody may hold it longer
}

CAtom* CContainer::Add(CAtom* pAtom)
{
    if (!pAtom || pAtom->m_pContainer || IsWithin(*pAtom) || !NameTrouble(pAtom->m_name).empty() || Find(pAtom->m_name))
        return nullptr;
    m_members.push_back(CStubRef<CAtom>::Share(pAtom));
    m_byName[InOneCase(pAtom->m_name)] = pAtom;
    m_byId[pAtom->m_dwID] = pAtom;
    pAtom->m_pContainer = this;
    return pAtom;
}

bool CContainer::Remove(CAtom* pMember)
{
    return pMember && pMember->m_pContainer == this && TakeOut(*pMember);
}

CStubRef<CAtom> CContainer::TakeOut(CAtom& member)
{
    const auto found = std::ranges::find(m_members, &member, &CStubRef<CAtom>::Get);
    CStubRef<CAtom> pRemoved = std::move(*found);
    m_members.erase(found);
    m_byName.erase(InOneCase(member.m_name));
    m_byId.erase(member.m_dwID);
    member.m_pContainer = nullptr;
    return pRemoved;
}

void CContainer::GetInterface(DWORD id, void** out)
{
    Counted::GetInterface(id, out);
    if (!*out && id == IID_IMyErrorInfo && !m_failure.empty())
        *out = CErrorInfo::Make(m_failure).Detach();
}

void CContainer::GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD dwInterfaceId)
{
    for (UINT i = 0; i < nCount; ++i) {
        const std::size_t at = std::size_t{nFirst} + i;
        Give(at < m_members.size() ? m_members[at].Get() : nullptr, &ppOut[i], dwInterfaceId);
    }
}

BOOL CContainer::FindAtomByID(DWORD dwID, void** ppOut, DWORD dwInterfaceId)
{
    const auto found = m_byId.find(dwID);
    return Give(found == m_byId.end() ? nullptr : found->second, ppOut, dwInterfaceId);
}

BOOL CContainer::FindAtom(const char* pszName, void** ppOut, DWORD dwInterfaceId)
{
    return Give(pszName ? Find(pszName) : nullptr, ppOut, dwInterfaceId);
}

CAtom* CContainer::Find(std::string_view name) const
{
    const auto found = m_byName.find(InOneCase(name));
    return found == m_byName.end() ? nullptr : found->second;
}

BOOL CContainer::AddAtom(IAtom* pSource, DWORD, const char* pszName, void** ppOut, DWORD dwInterfaceId)
{
    Clear(ppOut);
    CAtom* const pAtom = Of(pSource);
    if (!pAtom || pAtom->m_pContainer || !pszName)
        return Refuse(m_name + ": it takes no objects of another program");
    return Put(pAtom, pszName, ppOut, dwInterfaceId);
}

// A new object of the same content takes the place: views tell objects apart by their addresses.
BOOL CContainer::RenameAtom(IAtom* pAtom, const char* pszNewName, void** ppOut, DWORD dwInterfaceId)
{
    Clear(ppOut);
    CAtom* const pMember = Of(pAtom);
    if (!pMember || pMember->m_pContainer != this || !pszNewName)
        return Refuse(m_name + ": it has no such member");
    const std::string name = pszNewName;
    const CAtom* const pOther = Find(name);
    if (pOther && pOther != pMember)
        return Refuse('"' + pOther->m_name + "\" is there already");
    if (std::string trouble = NameTrouble(name); !trouble.empty())
        return Refuse(std::move(trouble));
    const CStubRef<CAtom> pRenamed = AtomFormat::MakeAnew(*pMember);
    if (!pRenamed)
        return Refuse(pMember->m_name + ": it cannot be renamed");
    const CStubRef<CAtom> pFormer = TakeOut(*pMember);
    return Put(pRenamed.Get(), name, ppOut, dwInterfaceId);
}

BOOL CContainer::RemoveAtom(IAtom* pAtom)
{
    CAtom* const pMember = Of(pAtom);
    if (!pMember || pMember->m_pContainer != this)
        return Refuse(m_name + ": it has no such member");
    m_failure.clear();
    return Remove(pMember);
}

DWORD CContainer::GetPermissions(IAtom* pAtom)
{
    CAtom* const pKnown = Of(pAtom);
    if (!pKnown)
        return 0;
    const DWORD dwPermitted = PermissionsFor(*pKnown);
    for (const CAtom* pAt = pKnown->m_dwOrigin ? this : nullptr; pAt; pAt = pAt->m_pContainer)
        if (pAt->m_dwID == pKnown->m_dwOrigin)
            return dwPermitted & APF_ACCEPT ? APF_ACCEPTCOPY : dwPermitted & APF_ACCEPTCOPY;
    return AtomFormat::IsKnown(*pKnown) ? dwPermitted : dwPermitted & ~APF_RENAME;
}

BOOL CContainer::ValidateName(CString& strName, DWORD)
{
    const std::string wanted = strName.GetString();
    std::string name = wanted;
    for (int i = 2; Find(name); ++i)
        name = wanted + " (" + std::to_string(i) + ')';
    if (!NameTrouble(name).empty())
        return FALSE;
    strName = name.c_str();
    return TRUE;
}

std::string CContainer::NameTrouble(const std::string& name) const
{
    if (name.find_first_not_of(' ') == name.npos)
        return "An object needs a name";
    const bool bControl = std::ranges::any_of(name, [](char c) { return static_cast<unsigned char>(c) < ' '; });
    return bControl ? "A name is one line of text" : "";
}

toolkit::Surface CContainer::DrawIcon(CSize size)
{
    return DrawPictogram(Pictogram::Folder, std::min<int>(size.cx, size.cy));
}

BOOL CContainer::Put(CAtom* pAtom, std::string name, void** ppOut, DWORD dwInterfaceId)
{
    pAtom->m_name.swap(name);
    if (!Add(pAtom)) {
        pAtom->m_name.swap(name);
        return Refuse('"' + name + "\": that name is taken, or none");
    }
    m_failure.clear();
    pAtom->m_dwOrigin = 0;
    return Give(pAtom, ppOut, dwInterfaceId);
}

BOOL CContainer::Refuse(std::string line)
{
    m_failure = std::move(line);
    return FALSE;
}

} // namespace hostkit
