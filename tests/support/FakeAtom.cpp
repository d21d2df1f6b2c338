#include "tests/support/FakeAtom.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/base/String.h"
#include "Toolkit/graphics/ImageList.h"

#include <algorithm>
#include <cstring>
#include <sstream>

namespace
{

// The name protocol. FALSE for the length, which no one looks at.
BOOL CopyText(const std::string& text, char* pBuffer, DWORD* pLength)
{
    if (pBuffer)
        std::memcpy(pBuffer, text.c_str(), std::min<std::size_t>(text.size() + 1, *pLength));
    else
        *pLength = static_cast<DWORD>(text.size()) + 1;
    return pBuffer != nullptr;
}

} // namespace

std::string NameOf(IAtom* pAtom)
{
    return pAtom ? FakeAtom::As(pAtom)->name : "-";
}

FakeAtom* FakeAtom::Add(FakeAtom* pNew)
{
    pNew->parent = this;
    pNew->isLink |= isPhase;
    members.push_back(AtomRef::Adopt(pNew));
    return pNew;
}

AtomRef FakeAtom::Remove(FakeAtom* pMember)
{
    const auto found = std::ranges::find(members, pMember, &AtomRef::Get);
    if (found == members.end())
        return nullptr;
    AtomRef pRemoved = std::move(*found);
    members.erase(found);
    return pRemoved;
}

FakeAtom* FakeAtom::Named(const std::string& strName) const
{
    const auto found = std::ranges::find(members, strName, [](const auto& p) { return p->name; });
    return found == members.end() ? nullptr : found->Get();
}

void FakeAtom::Write(const std::string& line)
{
    if (pLedger)
        pLedger->push_back(line);
}

bool FakeAtom::Does(const std::string& strCall, FakeAtom* pAbout)
{
    OnCalled(pAbout);
    Write(name + " " + strCall);
    if (const auto hook = onCall)
        hook(strCall);
    return !refused.contains(strCall);
}

BOOL FakeAtom::Give(FakeAtom* pAtom, void** ppOut, DWORD id)
{
    if (ppOut)
        *ppOut = nullptr;
    if (ppOut && pAtom)
        pAtom->GetInterface(id, ppOut);
    return pAtom && (!ppOut || *ppOut);
}

BOOL FakeAtom::GetName(char* pBuffer, DWORD* pLength)
{
    Called();
    if (!pBuffer && announcedLength) {
        *pLength = *announcedLength;
        return TRUE;
    }
    nNameReads += pBuffer != nullptr;
    const BOOL bRead = pBuffer && nameFails ? FALSE : CopyText(name, pBuffer, pLength);
    if (pBuffer && onAsked)
        onAsked();
    return bRead;
}

BOOL FakeAtom::GetDisplayName(char* pBuffer, DWORD* pLength)
{
    Called();
    return pBuffer && displayNameFails ? FALSE : CopyText(*displayName, pBuffer, pLength);
}

BOOL FakeAtom::GetIcon(ICONREQUEST* pRequest)
{
    Called().Write("icon " + name + " " + std::to_string(pRequest->cx) + "x" + std::to_string(pRequest->cy));
    if (iconFails)
        return FALSE;
    pRequest->hIcon = CreateIconFromSurface(toolkit::Surface(CSize(pRequest->cx, pRequest->cy), iconColor));
    return TRUE;
}

int FakeAtom::AddToImageList(HIMAGELIST hImageList, int nReplace)
{
    Called().Write("icon " + name + " at " + std::to_string(nReplace));
    if (iconNeedsTooMuch)
        AfxThrowMemoryException();
    if (iconFails)
        return -1;
    const HICON hIcon = CreateIconFromSurface(toolkit::Surface(CSize(48, 48), iconColor));
    const int nImage = ImageList_ReplaceIcon(hImageList, nReplace, hIcon);
    DestroyIcon(hIcon);
    if (onAsked)
        onAsked();
    return nImage;
}

BOOL FakeAtom::Draw(HDC hdc, CRect& rect, DWORD dwReserved, DWORD dwMode, UINT nFrame)
{
    std::ostringstream line;
    line << "draw " << name << " at " << rect.left << ',' << rect.top << '-' << rect.right << ',' << rect.bottom << " ("
         << dwReserved << ", " << dwMode << ", " << nFrame << ')';
    Called().Write(line.str());
    FillSolidRect(hdc, CRect(rect.left, rect.top, rect.CenterPoint().x, rect.bottom), thumbColor);
    return !thumbFails;
}

void FakeAtom::GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD id)
{
    Called();
    for (UINT i = 0; i < nCount; ++i)
        Give(nFirst + i < members.size() ? members[nFirst + i].Get() : nullptr, &ppOut[i], id);
}

BOOL FakeAtom::FindAtomByID(DWORD dwID, void** ppOut, DWORD id)
{
    Called();
    const auto found = std::ranges::find(members, dwID, [](const auto& p) { return p->GetID(); });
    return Give(found == members.end() ? nullptr : found->Get(), ppOut, id);
}

int FakeAtom::GetPosition(IImageLink* pLink)
{
    const int nPosition = (Called(), static_cast<FakeAtom*>(pLink)->position);
    return isBackward ? -nPosition : nPosition;
}

BOOL FakeAtom::FindAtom(const char* pszName, void** ppOut, DWORD id)
{
    return Give(Does(std::string("finds ") + pszName, this) ? Named(pszName) : nullptr, ppOut, id);
}

BOOL FakeAtom::AddAtom(IAtom* pSource, DWORD dwReserved, const char* pszName, void** ppOut, DWORD id)
{
    EXPECT_EQ(0u, dwReserved);
    const bool bDoes = Does("adds " + NameOf(pSource) + " as " + pszName, As(pSource));
    return Give(bDoes ? Add(pszName) : nullptr, ppOut, id);
}

BOOL FakeAtom::RenameAtom(IAtom* pAtom, const char* pszNewName, void** ppOut, DWORD id)
{
    const bool bDoes = Does("renames " + NameOf(pAtom) + " to " + pszNewName, As(pAtom));
    const AtomRef pFormer = bDoes ? Remove(As(pAtom)) : nullptr;
    return Give(pFormer ? Add(pszNewName) : nullptr, ppOut, id);
}

BOOL FakeAtom::RemoveAtom(IAtom* pAtom)
{
    return Does("removes " + NameOf(pAtom), As(pAtom)) && Remove(As(pAtom));
}

DWORD FakeAtom::GetPermissions(IAtom* pAtom)
{
    Does("permits " + NameOf(pAtom), As(pAtom));
    const auto found = permissionsFor.find(NameOf(pAtom));
    return found == permissionsFor.end() ? permissions : found->second;
}

BOOL FakeAtom::ValidateName(CString& strName, DWORD dwReserved)
{
    EXPECT_EQ(0u, dwReserved);
    if (!Does(std::string("validates ") + strName.GetString(), this))
        return FALSE;
    while (Named(strName.GetString()))
        strName += " (2)";
    return TRUE;
}

void* FakeAtom::Find(DWORD id)
{
    if (id == IID_IAtom)
        return static_cast<IAtom*>(this);
    if (id == IID_IAtomContainer && isContainer)
        return static_cast<IAtomContainer*>(this);
    if (id == IID_IPhase && isPhase)
        return static_cast<IPhase*>(this);
    if (id == IID_IDispAtom && displayName)
        return static_cast<IDispAtom*>(this);
    if (id == IID_IAtomIcon && hasIcon)
        return static_cast<IAtomIcon*>(this);
    if (id == IID_IAtomThumbnail && nFrames > 0)
        return static_cast<IAtomThumbnail*>(this);
    if (id == IID_IImageLink && isLink)
        return static_cast<IImageLink*>(this);
    if (id == IID_ICharacterLibrary && isLibrary)
        return static_cast<ICharacterLibrary*>(this);
    if (id != IID_IMyErrorInfo)
        return id == STUB_BASE_INTERFACE_ID ? static_cast<CStubBaseInterface*>(this) : nullptr;
    if (onCall)
        onCall("errs");
    return nameFails || displayNameFails || !refused.empty() ? static_cast<IMyErrorInfo*>(this) : nullptr;
}
