#include "Toolkit/exchange/StgMedium.h"

#include <cstdlib>
#include <cwchar>
#include <utility>

namespace
{
LPOLESTR CopyFileName(LPCOLESTR pszName)
{
    const std::size_t nBytes = (std::wcslen(pszName) + 1) * sizeof *pszName;
    const auto pszCopy = static_cast<LPOLESTR>(CoTaskMemAlloc(nBytes));
    return pszCopy ? std::wcscpy(pszCopy, pszName) : nullptr;
}

void FreeMedium(const STGMEDIUM& medium)
{
    if (medium.tymed == TYMED_HGLOBAL)
        GlobalFree(medium.hGlobal);
    else if (medium.tymed == TYMED_FILE)
        CoTaskMemFree(medium.lpszFileName);
}
} // namespace

void ReleaseStgMedium(STGMEDIUM* pMedium)
{
    if (!pMedium)
        return;
    const STGMEDIUM medium = std::exchange(*pMedium, STGMEDIUM{}); // a releaser may re-enter
    if (medium.pUnkForRelease)
        medium.pUnkForRelease->Release();
    else
        FreeMedium(medium);
}

void* CoTaskMemAlloc(std::size_t nBytes)
{
    return std::malloc(nBytes > 0 ? nBytes : 1);
}

void CoTaskMemFree(void* p)
{
    std::free(p);
}

STGMEDIUM toolkit::CopyMedium(const STGMEDIUM& medium)
{
    STGMEDIUM copy{};
    if (medium.tymed == TYMED_HGLOBAL) {
        copy.hGlobal = CopyGlobal(medium.hGlobal);
        copy.tymed = copy.hGlobal ? TYMED_HGLOBAL : TYMED_NULL;
    } else if (medium.tymed == TYMED_FILE && medium.lpszFileName) {
        copy.lpszFileName = CopyFileName(medium.lpszFileName);
        copy.tymed = copy.lpszFileName ? TYMED_FILE : TYMED_NULL;
    }
    return copy;
}
