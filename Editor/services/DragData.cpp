#include "Editor/services/DragData.h"

#include "Editor/services/OfferedFiles.h"
#include "Toolkit/base/Exception.h"
#include "Toolkit/base/Files.h"
#include "Views/clipboard/Archives.h"
#include "Views/clipboard/TransferFileOwner.h"

namespace editor
{
namespace
{

// Owned by whoever has it, with a releaser once it has one.
class GlobalMedium
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

    void OwnTransferFile();
    void GiveTo(COleDataSource& source, CLIPFORMAT format) { source.CacheData(format, &m_medium); }

private:
    STGMEDIUM m_medium;
};

// The file has no other owner, and would stay for ever.
void GlobalMedium::OwnTransferFile()
try {
    m_medium.pUnkForRelease = new CTransferFileOwner(m_medium.hGlobal);
} catch (...) {
    if (const toolkit::GlobalLocker<const char> path(m_medium.hGlobal); path.Get())
        ::DeleteFile(path.Get());
    throw;
}

void CacheAtoms(COleDataSource& source, CLIPFORMAT format, HGLOBAL hPath)
{
    GlobalMedium medium(hPath);
    medium.OwnTransferFile();
    medium.GiveTo(source, format);
}

} // namespace

std::unique_ptr<COleDataSource> MakeDragData(IAtomEditor& editor, const ActiveMembers& members)
{
    const auto pArchive = CStubRef<IArchive>::Adopt(ConstructMemoryArchive());
    if (!pArchive || !editor.WriteActiveObjects(pArchive.Get()))
        return nullptr;
    auto pSource = std::make_unique<COleDataSource>();
    const HGLOBAL hPath = HGLOBALFromArchive(pArchive.Get());
    if (!hPath)
        return nullptr;
    CacheAtoms(*pSource, editor.GetClipboardFormat(), hPath);
    OfferFiles(*pSource, PathsOf(members));
    return pSource;
}

} // namespace editor
