// Inside the library: the labels of tree items.
#pragma once

#include "Toolkit/base/Exception.h"
#include "Toolkit/base/String.h"

#include <climits>
#include <cstring>

namespace views
{

// Cuts the text at nLength bytes and, for a modified atom, writes the mark behind it. The buffer has room for it.
inline void EndLabel(char* pszLabel, std::size_t nLength, bool bModified)
{
    char* const pszEnd = pszLabel + strnlen(pszLabel, nLength);
    std::memcpy(pszEnd, bModified ? " *" : "", bModified ? 3 : 1);
}

// Reads a name by the name protocol (IAtom.h) into strLabel and marks it when the atom is modified. The buffer is
// sized once, mark included, so what is there already is reused. The label, in strLabel's buffer; NULL when the name is
// not available: strLabel is empty then. Raises CMemoryException.
template <class Source>
LPSTR BuildLabel(Source* pSource, BOOL (Source::*pfnGet)(char*, DWORD*), bool bModified, CString& strLabel)
{
    constexpr DWORD kMark = 2;
    DWORD dwLength = 0;
    (pSource->*pfnGet)(nullptr, &dwLength);
    if (dwLength > INT_MAX - kMark)
        AfxThrowMemoryException();

    const DWORD dwSize = dwLength;
    const LPSTR pszLabel = strLabel.GetBufferSetLength(static_cast<int>(dwSize + (bModified ? kMark : 0)));
    std::memset(pszLabel, 0, dwSize); // whatever the source leaves unwritten
    const BOOL bRead = (pSource->*pfnGet)(pszLabel, &dwLength);
    EndLabel(pszLabel, bRead ? dwSize : 0, bRead && bModified);
    strLabel.ReleaseBuffer();
    return bRead ? pszLabel : nullptr;
}

} // namespace views
