#include "Toolkit/exchange/DataSource.h"

#include "Toolkit/exchange/Clipboard.h"
#include "Toolkit/exchange/DataCache.h"
#include "Toolkit/exchange/OleException.h"

#include <utility>

COleDataSource::COleDataSource() : m_cache(std::make_shared<toolkit::DataCache>()) {}

COleDataSource::~COleDataSource()
{
    m_cache->Close();
}

COleDataSource* COleDataSource::GetClipboardOwner()
{
    return toolkit::ClipboardOwner();
}

void COleDataSource::CacheData(CLIPFORMAT cfFormat, STGMEDIUM* pMedium, FORMATETC* pFormat)
{
    m_cache->Put(pFormat && !cfFormat ? pFormat->cfFormat : cfFormat, *pMedium);
    *pMedium = {};
}

void COleDataSource::CacheGlobalData(CLIPFORMAT cfFormat, HGLOBAL hGlobal, FORMATETC* pFormat)
{
    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = hGlobal;
    CacheData(cfFormat, &medium, pFormat);
}

void COleDataSource::SetClipboard()
{
    if (toolkit::ClipboardOwner() != this && !toolkit::OwnClipboard(std::unique_ptr<COleDataSource>(this), m_cache))
        throw COleException(CLIPBRD_E_CANT_SET);
}

void COleDataSource::FlushClipboard()
{
    toolkit::FlushClipboard();
}
