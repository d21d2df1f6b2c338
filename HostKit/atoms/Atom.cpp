#include "HostKit/atoms/Atom.h"

#include "HostKit/base/Names.h"
#include "HostKit/pictures/Pictograms.h"
#include "Toolkit/graphics/ImageList.h"

#include <algorithm>
#include <memory>

namespace hostkit
{
namespace
{

DWORD NextId()
{
    static DWORD s_dwLast = 0;
    return ++s_dwLast;
}

struct DestroyIconHandle
{
    void operator()(HICON hIcon) const { ::DestroyIcon(hIcon); }
};

} // namespace

CAtom::CAtom(std::string name) : m_name(std::move(name)), m_dwID(NextId()) {}

bool CAtom::IsWithin(const CAtom& atom) const
{
    const CAtom* pAt = this;
    while (pAt && pAt != &atom)
        pAt = pAt->m_pContainer;
    return pAt != nullptr;
}

BOOL CAtom::GetName(char* pBuffer, DWORD* pLength)
{
    return GiveName(m_name, pBuffer, pLength);
}

BOOL CAtom::GetContainer(void** ppOut, DWORD dwInterfaceId)
{
    if (!ppOut)
        return FALSE;
    *ppOut = nullptr;
    if (m_pContainer)
        m_pContainer->GetInterface(dwInterfaceId, ppOut);
    return *ppOut != nullptr;
}

BOOL CAtom::GetIcon(ICONREQUEST* pRequest)
{
    if (!pRequest || pRequest->cx <= 0 || pRequest->cy <= 0)
        return FALSE;
    pRequest->hIcon = CreateIconFromSurface(DrawIcon({pRequest->cx, pRequest->cy}));
    return pRequest->hIcon != nullptr;
}

int CAtom::AddToImageList(HIMAGELIST hImageList, int nReplace)
{
    int cx = 0, cy = 0;
    if (!ImageList_GetIconSize(hImageList, &cx, &cy))
        return -1;
    const std::unique_ptr<HICON__, DestroyIconHandle> hIcon(CreateIconFromSurface(DrawIcon({cx, cy})));
    return ImageList_ReplaceIcon(hImageList, nReplace, hIcon.get());
}

toolkit::Surface CAtom::DrawIcon(CSize size)
{
    return DrawPictogram(Pictogram::Placeholder, std::min<int>(size.cx, size.cy));
}

} // namespace hostkit
