// Inside the library: reading names by the name protocol (IAtom.h).
#pragma once

#include "Toolkit/base/Exception.h"
#include "Toolkit/base/String.h"
#include "Toolkit/window/Wnd.h"
#include "Views/host/IAtom.h"
#include "Views/host/IDispAtom.h"
#include "Views/host/IMyErrorInfo.h"
#include "Views/host/Resources.h"
#include "Views/host/Services.h"
#include "Views/host/StubRef.h"

#include <climits>
#include <cstring>

namespace views
{

// The size of buffer that the name needs. Raises CMemoryException for one that no string can have.
template <class Source>
int AskNameLength(Source* pSource, BOOL (Source::*pfnGet)(char*, DWORD*))
{
    DWORD dwLength = 0;
    (pSource->*pfnGet)(nullptr, &dwLength);
    if (dwLength > INT_MAX)
        AfxThrowMemoryException();
    return static_cast<int>(dwLength);
}

// Lends strName's buffer, made that long, to the source. FALSE when the name is not available: strName is then what it
// held before, cut to the length. Raises CMemoryException.
template <class Source>
BOOL FillName(Source* pSource, BOOL (Source::*pfnGet)(char*, DWORD*), int nLength, CString& strName)
{
    const int nFormer = strName.GetLength();
    LPSTR pszBuffer = strName.GetBufferSetLength(nLength);
    if (nLength > nFormer)
        std::memset(pszBuffer + nFormer, 0, static_cast<std::size_t>(nLength - nFormer));
    DWORD dwLength = static_cast<DWORD>(nLength);
    const BOOL bRead = (pSource->*pfnGet)(pszBuffer, &dwLength);
    strName.ReleaseBuffer();
    return bRead;
}

template <class Source>
BOOL ReadName(Source* pSource, BOOL (Source::*pfnGet)(char*, DWORD*), CString& strName)
{
    return FillName(pSource, pfnGet, AskNameLength(pSource, pfnGet), strName);
}

// What an atom is called where it is shown: `read` is handed the atom and its operation, or those of its display name
// where it has one. False when it could not read that: the user has been told.
template <class Read>
bool ReadShownName(const CWnd& view, IAtom* pAtom, const Read& read)
{
    const auto pDispAtom = CStubRef<IDispAtom>::From(pAtom);
    if (pDispAtom ? read(pDispAtom.Get(), &IDispAtom::GetDisplayName) : read(pAtom, &IAtom::GetName))
        return true;
    const auto pError = pDispAtom ? CStubRef<IMyErrorInfo>::From(pDispAtom.Get()) : CStubRef<IMyErrorInfo>::From(pAtom);
    ShowAtomError(view.m_hWnd, IDS_NAME_FAILED, pError.Get());
    return false;
}

} // namespace views
