// Storage media: what data travels in.
#pragma once

#include "Toolkit/base/GlobalMemory.h"
#include "Toolkit/base/WideText.h"
#include "Toolkit/exchange/ClipboardFormat.h"
#include "Toolkit/exchange/Unknown.h"

inline constexpr DWORD TYMED_NULL = 0;
inline constexpr DWORD TYMED_HGLOBAL = 1;
inline constexpr DWORD TYMED_FILE = 2;
inline constexpr DWORD TYMED_ISTREAM = 4;

inline constexpr DWORD DVASPECT_CONTENT = 1;

struct DVTARGETDEVICE;

// Which data, and in which medium (a set of TYMED_*). Only whole data without a target device exists here.
struct FORMATETC
{
    CLIPFORMAT cfFormat;
    DVTARGETDEVICE* ptd; // NULL
    DWORD dwAspect;      // DVASPECT_CONTENT
    LONG lindex;         // -1
    DWORD tymed;
};

// Data in its medium. Whoever has one owns it, until ReleaseStgMedium.
struct STGMEDIUM
{
    DWORD tymed;
    union
    {
        HBITMAP hBitmap;
        HGLOBAL hGlobal;       // TYMED_HGLOBAL
        LPOLESTR lpszFileName; // TYMED_FILE; allocated by CoTaskMemAlloc
        void* pstm;
        void* pstg;
    };
    IUnknown* pUnkForRelease; // who disposes of it; NULL: ReleaseStgMedium itself
};

// With a releaser, releases that once and nothing else; without one, frees the block of an HGLOBAL medium and the name
// of a FILE medium (the file stays). The medium is TYMED_NULL afterwards.
TOOLKIT_API void ReleaseStgMedium(STGMEDIUM* pMedium);

// Memory for the strings of media.
TOOLKIT_API void* CoTaskMemAlloc(std::size_t nBytes); // NULL when there is none
TOOLKIT_API void CoTaskMemFree(void* p);

namespace toolkit
{
// A medium of the same data without a releaser; TYMED_NULL when it is neither HGLOBAL nor FILE or memory runs out.
TOOLKIT_API STGMEDIUM CopyMedium(const STGMEDIUM& medium);
} // namespace toolkit
