#include "Views/clipboard/TransferFileOwner.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/base/Files.h"
#include "Views/clipboard/Archives.h"
#include "Views/clipboard/inside/HeldFiles.h"
#include "Views/host/IArchive.h"
#include "Views/host/IAtom.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"
#include "Views/host/StubRef.h"

#include <utility>

namespace
{

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
        views::HoldFile(hPath, path.Get());
}

HGLOBAL CTransferFileOwner::Detach()
{
    views::LetGoOfFile(m_hPath);
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
    views::LetGoOfFile(m_hPath);
    ::GlobalUnlock(m_hPath);
    ::GlobalFree(m_hPath);
}
