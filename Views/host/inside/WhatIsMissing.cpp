#include "Views/host/inside/WhatIsMissing.h"

#include "Kernel/Kernel.h"
#include "Toolkit/graphics/Resources.h"
#include "Views/host/IArchive.h"
#include "Views/host/Resources.h"
#include "Views/host/Services.h"
#include "Views/host/StubRef.h"

namespace views
{
namespace
{

void Add(std::string& line, const std::string& what)
{
    line += (line.empty() ? "" : ", ") + what;
}

bool HasArchives()
{
    CStubRef<IArchive> pArchive;
    const auto pKernel = CStubRef<IKernel>::Adopt(KRNL_GetKernel());
    return pKernel->CreateObject(kArchiveClass, pArchive.Receive(), IID_IArchive) != FALSE;
}

bool HasIcon(UINT nID)
{
    const HICON hIcon = ::LoadIcon(nID);
    ::DestroyIcon(hIcon);
    return hIcon != nullptr;
}

} // namespace

std::string WhatIsMissing()
{
    std::string line;
    for (const LPCSTR pszService : {kAtomEditorService, kErrorService, kMemoryStreamService})
        if (!SRVN_GetUniqueServiceID(pszService)->provider)
            Add(line, std::string("service ") + pszService);
    if (!HasArchives())
        Add(line, std::string("class ") + kArchiveClass);
    for (const UINT nText : {IDS_NAME_FAILED, IDS_NOT_INSERTED, IDS_TREE_PANE, IDS_RENAME_FAILED, IDS_CONFIRM_REMOVE,
                             IDR_ICON_PANE, IDR_THUMBNAIL_PANE})
        if (CString text; !text.LoadString(nText))
            Add(line, "text " + std::to_string(nText));
    for (const UINT nBitmap : {IDB_LIST_ITEMS, IDB_CONTAINER_MARK, IDB_TREE_ITEMS})
        if (!toolkit::FindBitmapResource(nBitmap))
            Add(line, "bitmap " + std::to_string(nBitmap));
    for (const UINT nIcon : {IDR_TREE_PANE, IDR_ICON_PANE, IDR_THUMBNAIL_PANE})
        if (!HasIcon(nIcon))
            Add(line, "icon " + std::to_string(nIcon));
    return line;
}

} // namespace views
