#include "Views/clipboard/TransferFileOwner.h"

#include "Toolkit/base/Apart.h"
#include "Toolkit/base/Exception.h"
#include "Toolkit/base/Files.h"
#include "Views/clipboard/Archives.h"
#include "Views/host/IArchive.h"
#include "Views/host/IAtom.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"
#include "Views/host/StubRef.h"

#include <fcntl.h>
#include <map>
#include <unistd.h>
#include <utility>

namespace
{

// The descriptors that bear the locks. Stays to the end of the process: what is on the clipboard may go later than any
// object with a destructor.
std::map<HGLOBAL, int>& Held()
{
    static auto& held = *new std::map<HGLOBAL, int>;
    return held;
}

bool LockForReading(int fd)
{
    struct flock lock = {};
    lock.l_type = F_RDLCK;
    lock.l_whence = SEEK_SET;
    return fcntl(fd, F_OFD_SETLK, &lock) == 0;
}

void HoldFile(HGLOBAL hPath, const char* pszPath)
{
    const auto place = Held().try_emplace(hPath, -1).first; // raises what it raises before there is a lock
    const int fd = open(pszPath, O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
    if (fd >= 0 && LockForReading(fd)) {
        place->second = fd;
        return;
    }
    if (fd >= 0)
        close(fd);
    Held().erase(place);
}

// Nothing happens for one that is not held.
void LetGoOfFile(HGLOBAL hPath)
{
    const auto place = Held().find(hPath);
    if (place == Held().end())
        return;
    toolkit::CloseApart(place->second);
    Held().erase(place);
}

BOOL ReleaseObjectFn(IAtom* pAtom, void*)
{
    CStubRef<IAtom>::Adopt(pAtom).Release();
    return TRUE;
}

// Whatever happens here, the file goes.
void ReleaseObjects(IAtomEditor* pEditor, HGLOBAL hPath)
try {
    if (const auto pArchive = CStubRef<IArchive>::Adopt(ArchiveFromHGLOBAL(hPath)))
        pEditor->ReadArchive(&ReleaseObjectFn, pArchive.Get(), nullptr);
} catch (CMemoryException& e) {
    e.ReportError();
}

} // namespace

CTransferFileOwner::CTransferFileOwner(HGLOBAL hPath) : m_hPath(hPath)
{
    const toolkit::GlobalLocker<const char> path(hPath);
    if (path.Get())
        HoldFile(hPath, path.Get());
}

HGLOBAL CTransferFileOwner::Detach()
{
    LetGoOfFile(m_hPath);
    return std::exchange(m_hPath, nullptr);
}

HRESULT CTransferFileOwner::QueryInterface(REFIID riid, void** ppvObject)
{
    *ppvObject = nullptr;
    if (riid != IID_IUnknown)
        return E_NOINTERFACE;
    AddRef();
    *ppvObject = static_cast<IUnknown*>(this);
    return S_OK;
}

ULONG CTransferFileOwner::AddRef()
{
    return static_cast<ULONG>(++m_nReferences);
}

ULONG CTransferFileOwner::Release()
{
    const std::int32_t nLeft = --m_nReferences;
    if (nLeft > 0)
        return static_cast<ULONG>(nLeft);
    Dispose();
    delete this;
    return 0;
}

void CTransferFileOwner::Dispose() const
{
    const auto* const pszPath = static_cast<const char*>(::GlobalLock(m_hPath));
    if (!pszPath)
        return;
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    if (pEditor)
        ReleaseObjects(pEditor.Get(), m_hPath);
    ::DeleteFile(pszPath);
    LetGoOfFile(m_hPath);
    ::GlobalUnlock(m_hPath);
    ::GlobalFree(m_hPath);
}
