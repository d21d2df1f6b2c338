#include "Toolkit/exchange/DataObject.h"

#include "Toolkit/exchange/DataCache.h"

namespace
{
constexpr DWORD kAnyMedium = 0xFFFFFFFF;

struct Wanted
{
    CLIPFORMAT format;
    DWORD tymed; // 0 when there is no such data at all
};

Wanted WhatIsWanted(CLIPFORMAT cfFormat, const FORMATETC* pFormat)
{
    if (!pFormat)
        return {cfFormat, kAnyMedium};
    return {cfFormat ? cfFormat : pFormat->cfFormat, pFormat->dwAspect == DVASPECT_CONTENT ? pFormat->tymed : 0};
}
} // namespace

BOOL COleDataObject::AttachClipboard()
{
    m_provider = toolkit::ClipboardData();
    return m_provider != nullptr;
}

BOOL COleDataObject::IsDataAvailable(CLIPFORMAT cfFormat, FORMATETC* pFormat)
{
    const Wanted wanted = WhatIsWanted(cfFormat, pFormat);
    return m_provider && m_provider->Offers(wanted.format, wanted.tymed);
}

BOOL COleDataObject::GetData(CLIPFORMAT cfFormat, STGMEDIUM* pMedium, FORMATETC* pFormat)
{
    const Wanted wanted = WhatIsWanted(cfFormat, pFormat);
    const auto provider = m_provider; // rendering may release this object's hold
    *pMedium = provider ? provider->Get(wanted.format, wanted.tymed) : STGMEDIUM{};
    return pMedium->tymed != TYMED_NULL;
}

HGLOBAL COleDataObject::GetGlobalData(CLIPFORMAT cfFormat, FORMATETC* pFormat)
{
    FORMATETC format{cfFormat, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    if (pFormat)
        format = *pFormat;
    format.tymed &= TYMED_HGLOBAL;
    STGMEDIUM medium{};
    return GetData(cfFormat, &medium, &format) ? medium.hGlobal : nullptr;
}
