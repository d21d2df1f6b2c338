#include "Toolkit/base/Files.h"
#include "Toolkit/base/GlobalMemory.h"
#include "Toolkit/desktop/WaitCursor.h"
#include "Toolkit/exchange/DataSource.h"
#include "Views/clipboard/Archives.h"
#include "Views/clipboard/Commands.h"
#include "Views/clipboard/TransferFileOwner.h"
#include "Views/clipboard/inside/RemovedAtoms.h"
#include "Views/host/IArchive.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"
#include "Views/host/StubRef.h"

#include <memory>
#include <utility>

namespace
{

using Offer = std::function<void(COleDataSource&)>;

// A path handle that no one has taken yet: when it goes, its file goes with it.
class TransferHandle
{
public:
    explicit TransferHandle(HGLOBAL hPath) : m_hPath(hPath) {}
    ~TransferHandle()
    {
        if (!m_hPath)
            return;
        if (const toolkit::GlobalLocker<const char> path(m_hPath); path.Get())
            ::DeleteFile(path.Get());
        ::GlobalFree(m_hPath);
    }
    TransferHandle(const TransferHandle&) = delete;
    TransferHandle& operator=(const TransferHandle&) = delete;

    explicit operator bool() const { return m_hPath != nullptr; }
    HGLOBAL Get() const { return m_hPath; }
    void Detach() { m_hPath = nullptr; }

private:
    HGLOBAL m_hPath;
};

// Lets go of an owner that is to dispose of nothing.
struct Abandon
{
    void operator()(CTransferFileOwner* pOwner) const
    {
        pOwner->Detach();
        pOwner->Release();
    }
};

// A copy's data, all of it made before anything is removed. What does not get to the clipboard goes again, and the
// handle stays whose it was.
class ClipboardData
{
public:
    ClipboardData(TransferHandle& handle, CLIPFORMAT cfAtoms);
    ClipboardData(const ClipboardData&) = delete;
    ClipboardData& operator=(const ClipboardData&) = delete;

    COleDataSource& Source() { return *m_pSource; }
    void PutOnClipboard();

private:
    TransferHandle& m_handle;
    std::unique_ptr<COleDataSource> m_pSource = std::make_unique<COleDataSource>();
    std::unique_ptr<CTransferFileOwner, Abandon> m_pOwner; // shared with the data source
};

ClipboardData::ClipboardData(TransferHandle& handle, CLIPFORMAT cfAtoms)
    : m_handle(handle), m_pOwner(new CTransferFileOwner(handle.Get()))
{
    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = handle.Get();
    medium.pUnkForRelease = m_pOwner.get();
    m_pSource->CacheData(cfAtoms, &medium);
    m_pOwner->AddRef();
}

void ClipboardData::PutOnClipboard()
{
    COleDataSource::FlushClipboard();
    m_handle.Detach();
    m_pOwner.release()->Release();
    m_pSource.release()->SetClipboard(); // the clipboard's now, also if this raises something
}

// All or nothing: what is not cut as a whole is not cut.
bool CutToClipboard(IAtomEditor* pEditor, IArchive* pArchive, ClipboardData& data, const Offer& offer)
{
    views::RemovedAtoms removed;
    try {
        if (!removed.RemoveActive(pEditor)) {
            removed.PutBack(pEditor, pArchive);
            return false;
        }
        removed.Announce(pEditor);
        offer(data.Source());
        data.PutOnClipboard();
        return true;
    } catch (...) {
        removed.PutBack(pEditor, pArchive);
        throw;
    }
}

} // namespace

int CopyObjects(int bCut)
{
    return CopyObjects(bCut, [](COleDataSource&) {});
}

int CopyObjects(int bCut, const Offer& offer)
{
    const CWaitCursor wait;
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    if (!pEditor)
        return FALSE;
    const auto pArchive = CStubRef<IArchive>::Adopt(ConstructMemoryArchive());
    if (!pArchive || !pEditor->WriteActiveObjects(pArchive.Get()))
        return FALSE;
    TransferHandle handle(HGLOBALFromArchive(pArchive.Get()));
    if (!handle)
        return FALSE;
    ClipboardData data(handle, pEditor->GetClipboardFormat());
    if (bCut)
        return CutToClipboard(pEditor.Get(), pArchive.Get(), data, offer);
    offer(data.Source());
    data.PutOnClipboard();
    return TRUE;
}
