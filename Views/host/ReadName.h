// Inside the library: reading names by the name protocol (IAtom.h).
#pragma once

#include "Toolkit/base/Exception.h"
#include "Toolkit/base/String.h"

#include <climits>
#include <cstring>

namespace views
{

// Lends strName's buffer to the source. FALSE when the name is not available: strName is then what it held before,
// cut to the announced length. Raises CMemoryException.
template <class Source>
BOOL ReadName(Source* pSource, BOOL (Source::*pfnGet)(char*, DWORD*), CString& strName)
{
    DWORD dwLength = 0;
    (pSource->*pfnGet)(nullptr, &dwLength);
    if (dwLength > INT_MAX)
        AfxThrowMemoryException();

    const int nFormer = strName.GetLength();
    const int nLength = static_cast<int>(dwLength);
    LPSTR pszBuffer = strName.GetBufferSetLength(nLength);
    if (nLength > nFormer)
        std::memset(pszBuffer + nFormer, 0, static_cast<std::size_t>(nLength - nFormer));
    const BOOL bRead = (pSource->*pfnGet)(pszBuffer, &dwLength);
    strName.ReleaseBuffer();
    return bRead;
}

} // namespace views
