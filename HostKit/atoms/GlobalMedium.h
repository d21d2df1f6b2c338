// A block of memory on its way to a data source.
#pragma once

#include "HostKit/base/Api.h"
#include "Toolkit/exchange/DataSource.h"
#include "Toolkit/exchange/StgMedium.h"

namespace hostkit
{

// Owned by whoever has it, with a releaser once it has one.
class HOSTKIT_API GlobalMedium
{
public:
    explicit GlobalMedium(HGLOBAL hGlobal) : m_medium{TYMED_HGLOBAL, {}, nullptr} { m_medium.hGlobal = hGlobal; }
    ~GlobalMedium()
    {
        if (m_medium.tymed != TYMED_NULL)
            ReleaseStgMedium(&m_medium);
    }
    GlobalMedium(const GlobalMedium&) = delete;
    GlobalMedium& operator=(const GlobalMedium&) = delete;

    void OwnTransferFile(); // whose path it holds
    void GiveTo(COleDataSource& source, CLIPFORMAT format) { source.CacheData(format, &m_medium); }

private:
    STGMEDIUM m_medium;
};

} // namespace hostkit
