#include "Editor/services/DragData.h"

#include "Editor/services/OfferedFiles.h"
#include "HostKit/GlobalMedium.h"
#include "Views/clipboard/Archives.h"

namespace editor
{
namespace
{

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
