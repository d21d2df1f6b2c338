#include "tests/walk/Atom.h"

#include "Toolkit/base/String.h"
#include "Toolkit/graphics/ImageList.h"
#include "tests/walk/Host.h"

#include <algorithm>
#include <cstring>

std::string Print(const Atom* pAtom)
{
    return pAtom ? pAtom->name + "#" + std::to_string(pAtom->serial) : "-";
}

Atom::Atom(Host& of, std::string strName, Kind kindOf)
    : host(of), serial(++of.nSerials), name(std::move(strName)), kind(kindOf)
{
    host.live.insert(this);
}

Atom::~Atom()
{
    for (const AtomRef& pMember : members)
        pMember->parent = nullptr;
    host.live.erase(this);
}

void* Atom::Find(DWORD id)
{
    if (id == IID_IAtom)
        return static_cast<IAtom*>(this);
    if (id == IID_IAtomContainer && IsContainer())
        return static_cast<IAtomContainer*>(this);
    if (id == IID_IPhase && kind == Kind::Phase)
        return static_cast<IPhase*>(this);
    if (id == IID_IDispAtom && !displayName.empty())
        return static_cast<IDispAtom*>(this);
    if (id == IID_IAtomIcon && hasIcon)
        return static_cast<IAtomIcon*>(this);
    if (id == IID_IAtomThumbnail && nFrames > 0)
        return static_cast<IAtomThumbnail*>(this);
    if (id == IID_IImageLink && IsLink())
        return static_cast<IImageLink*>(this);
    if (id == IID_ICharacterLibrary && this == host.pWorld.Get())
        return static_cast<ICharacterLibrary*>(this);
    return id == STUB_BASE_INTERFACE_ID ? static_cast<CStubBaseInterface*>(this) : nullptr;
}

Atom* Atom::Add(Atom* pNew)
{
    pNew->parent = this;
    members.push_back(AtomRef::Adopt(pNew));
    return pNew;
}

bool Atom::Remove(Atom* pMember)
{
    const auto found = std::ranges::find(members, pMember, &AtomRef::Get);
    if (found == members.end())
        return false;
    pMember->parent = nullptr;
    host.former.push_back(std::move(*found));
    members.erase(found);
    return true;
}

Atom* Atom::Named(const char* pszName) const
{
    const auto found = std::ranges::find(members, pszName, [](const AtomRef& p) { return p->name; });
    return found == members.end() ? nullptr : found->Get();
}

Atom& Atom::Called(Atom* pAbout)
{
    host.Called(pAbout);
    return *this;
}

BOOL Atom::Copy(const std::string& text, char* pBuffer, DWORD* pLength)
{
    if (pBuffer)
        std::memcpy(pBuffer, text.c_str(), std::min<std::size_t>(text.size() + 1, *pLength));
    else
        *pLength = static_cast<DWORD>(text.size()) + 1;
    return pBuffer != nullptr;
}

BOOL Atom::Give(Atom* pAtom, void** ppOut, DWORD id)
{
    if (ppOut)
        *ppOut = nullptr;
    if (ppOut && pAtom)
        pAtom->GetInterface(id, ppOut);
    return pAtom && (!ppOut || *ppOut);
}

BOOL Atom::GetIcon(ICONREQUEST* pRequest)
{
    Called(this);
    const auto color = static_cast<toolkit::Pixel>(0xFF000000u | static_cast<unsigned>(serial * 7919) % 0xFFFFFF);
    pRequest->hIcon = CreateIconFromSurface(toolkit::Surface(CSize(pRequest->cx, pRequest->cy), color));
    return TRUE;
}

int Atom::AddToImageList(HIMAGELIST hImageList, int nReplace)
{
    ICONREQUEST request{16, 16, nullptr};
    GetIcon(&request);
    const int nImage = ImageList_ReplaceIcon(hImageList, nReplace, request.hIcon);
    DestroyIcon(request.hIcon);
    host.pictures[{hImageList, nImage}] = this;
    return nImage;
}

BOOL Atom::Draw(HDC hdc, CRect& rect, DWORD, DWORD, UINT)
{
    Called(this);
    FillSolidRect(hdc, rect, RGB(serial * 31 % 256, 0, 255));
    return TRUE;
}

void Atom::GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD id)
{
    Called(this);
    for (UINT i = 0; i < nCount; ++i)
        Give(nFirst + i < members.size() ? members[nFirst + i].Get() : nullptr, &ppOut[i], id);
}

BOOL Atom::FindAtomByID(DWORD dwID, void** ppOut, DWORD id)
{
    Called(this);
    const auto found = std::ranges::find(members, dwID, [](const AtomRef& p) { return p->GetID(); });
    return Give(found == members.end() ? nullptr : found->Get(), ppOut, id);
}

BOOL Atom::AddAtom(IAtom* pSource, DWORD, const char* pszName, void** ppOut, DWORD id)
{
    Called(As(pSource));
    return Give(Add(new Atom(host, pszName)), ppOut, id);
}

BOOL Atom::RenameAtom(IAtom* pAtom, const char* pszNewName, void** ppOut, DWORD id)
{
    Atom* const pFormer = As(pAtom);
    host.calls.push_back({kNobody, Op::Renames, pFormer, this});
    Called(pFormer);
    if (pFormer->IsContainer() || !*pszNewName || !Remove(pFormer))
        return Give(nullptr, ppOut, id);
    Atom* const pNew = Add(new Atom(host, pszNewName));
    pNew->hasIcon = pFormer->hasIcon;
    pNew->nFrames = pFormer->nFrames;
    pNew->position = pFormer->position;
    host.renamed[pFormer] = AtomRef::Share(pNew);
    return Give(pNew, ppOut, id);
}

BOOL Atom::ValidateName(CString& strName, DWORD)
{
    Called(this);
    while (Named(strName.GetString()))
        strName += "x";
    return TRUE;
}
