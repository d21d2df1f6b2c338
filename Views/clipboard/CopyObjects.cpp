#include "Toolkit/base/Files.h"
#include "Toolkit/base/GlobalMemory.h"
#include "Toolkit/ole/DataSource.h"
#include "Toolkit/window/WaitCursor.h"
#include "Views/clipboard/Archives.h"
#include "Views/clipboard/Commands.h"
#include "Views/clipboard/RemovedAtoms.h"
#include "Views/clipboard/TransferFileOwner.h"
#include "Views/host/IArchive.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"
#include "Views/host/StubRef.h"

#include <memory>
#include <utility>

namespace
{

// A path handle that no one has taken yet: when it goes, its file goes with it.
class TransferHandle
{
public:
    explicit TransferHandle(HGLOBAL hPath) : m_hPath(hPath) {}
    ~TransferHandle();
    TransferHandle(const TransferHandle&) = delete;
    TransferHandle& operator=(const TransferHandle&) = delete;

    explicit operator bool() const { return m_hPath != nullptr; }
    HGLOBAL Get() const { return m_hPath; }
    void Detach() { m_hPath = nullptr; }

private:
    HGLOBAL m_hPath;
};

TransferHandle::~TransferHandle()
{
    if (!m_hPath)
        return;
    if (const toolkit::GlobalLocker<const char> path(m_hPath); path.Get())
        ::DeleteFile(path.Get());
    ::GlobalFree(m_hPath);
}

struct ReleaseReference
{
    void operator()(IUnknown* p) const { p->Release(); }
};
using OwnerHolder = std::unique_ptr<CTransferFileOwner, ReleaseReference>;

// All or nothing: what is not cut as a whole is not cut.
bool Cut(IAtomEditor* pEditor, IArchive* pArchive)
{
    views::RemovedAtoms removed;
    const bool bAll = removed.RemoveActive(pEditor);
    if (!bAll)
        removed.PutBack(pEditor, pArchive);
    removed.Announce(pEditor);
    return bAll;
}

OwnerHolder OwnerOf(TransferHandle& handle)
{
    OwnerHolder pOwner(new CTransferFileOwner(handle.Get()));
    handle.Detach();
    return pOwner;
}

void PutOnClipboard(CLIPFORMAT cfAtoms, TransferHandle& handle)
{
    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = handle.Get();
    OwnerHolder pOwner = OwnerOf(handle);
    medium.pUnkForRelease = pOwner.get();

    auto pSource = std::make_unique<COleDataSource>();
    pSource->CacheData(cfAtoms, &medium);
    pOwner.release(); // the data source's now
    COleDataSource::FlushClipboard();
    pSource.release()->SetClipboard(); // the clipboard's now, also if this raises something
}

} // namespace

int CopyObjects(int bCut)
{
    const CWaitCursor wait;
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    if (!pEditor)
        return FALSE;
    const auto pArchive = CStubRef<IArchive>::Adopt(ConstructMemoryArchive());
    if (!pArchive || !pEditor->WriteActiveObjects(pArchive.Get()))
        return FALSE;
    TransferHandle handle(HGLOBALFromArchive(pArchive.Get()));
    if (!handle || (bCut && !Cut(pEditor.Get(), pArchive.Get())))
        return FALSE;
    PutOnClipboard(pEditor->GetClipboardFormat(), handle);
    return TRUE;
}
