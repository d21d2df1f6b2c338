#include "HostKit/atoms/GlobalMedium.h"

#include "Toolkit/base/Files.h"
#include "Toolkit/base/GlobalMemory.h"
#include "Views/clipboard/TransferFileOwner.h"

namespace hostkit
{

// The file has no other owner, and would stay for ever.
void GlobalMedium::OwnTransferFile()
try {
    m_medium.pUnkForRelease = new CTransferFileOwner(m_medium.hGlobal);
} catch (...) {
    if (const toolkit::GlobalLocker<const char> path(m_medium.hGlobal); path.Get())
        ::DeleteFile(path.Get());
    throw;
}

} // namespace hostkit
