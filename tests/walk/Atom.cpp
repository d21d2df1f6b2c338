#include "tests/walk/Atom.h"

#include "Toolkit/base/String.h"
#include "Toolkit/graphics/ImageList.h"
#include "tests/walk/Host.h"

std::string Print(const Atom* pAtom)
{
    return pAtom ? pAtom->name + "#" + std::to_string(pAtom->serial) : "-";
}

Atom::Atom(Host& of, std::string strName, Kind kind) : HostAtom(std::move(strName)), host(of), serial(++of.nSerials)
{
    isContainer = kind != Kind::Plain;
    isPhase = kind == Kind::Phase;
    permissions = APF_ACCEPT | APF_REMOVE | APF_RENAME;
    host.live.insert(this);
}

Atom::~Atom()
{
    for (const AtomRef& pMember : members) {
        pMember->parent = nullptr;
        pMember->isLink = false;
    }
    host.live.erase(this);
}

Atom* Atom::Add(Atom* pNew)
{
    pNew->isLink = isPhase;
    return HostAtom::Add(pNew);
}

bool Atom::Remove(Atom* pMember)
{
    AtomRef pRemoved = TakeOut(pMember);
    if (!pRemoved)
        return false;
    pMember->parent = nullptr;
    pMember->isLink = false;
    host.former.push_back(std::move(pRemoved));
    return true;
}

void Atom::OnCalled(Atom* pAbout)
{
    host.Called(pAbout);
}

BOOL Atom::GetIcon(ICONREQUEST* pRequest)
{
    Called();
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
    Called();
    FillSolidRect(hdc, rect, RGB(serial * 31 % 256, 0, 255));
    return TRUE;
}

BOOL Atom::AddAtom(IAtom* pSource, DWORD, const char* pszName, void** ppOut, DWORD id)
{
    OnCalled(As(pSource));
    return Give(Add(new Atom(host, pszName)), ppOut, id);
}

BOOL Atom::RenameAtom(IAtom* pAtom, const char* pszNewName, void** ppOut, DWORD id)
{
    Atom* const pFormer = As(pAtom);
    host.calls.push_back({kNobody, Op::Renames, pFormer, this});
    OnCalled(pFormer);
    if (pFormer->isContainer || !*pszNewName || !Remove(pFormer))
        return Give(nullptr, ppOut, id);
    Atom* const pNew = Add(new Atom(host, pszNewName));
    pNew->hasIcon = pFormer->hasIcon;
    pNew->nFrames = pFormer->nFrames;
    pNew->position = pFormer->position;
    host.renamed[pFormer] = AtomRef::Share(pNew);
    return Give(pNew, ppOut, id);
}

BOOL Atom::RemoveAtom(IAtom* pAtom)
{
    OnCalled(As(pAtom));
    return Remove(As(pAtom));
}

DWORD Atom::GetPermissions(IAtom* pAtom)
{
    OnCalled(As(pAtom));
    return permissions;
}

BOOL Atom::ValidateName(CString& strName, DWORD)
{
    Called();
    while (Named(strName.GetString()))
        strName += "x";
    return TRUE;
}
