#include "Editor/services/DroppedFiles.h"

#include "Editor/archive/ArchiveWriter.h"
#include "Editor/disk/FileText.h"
#include "Editor/model/Folder.h"
#include "Editor/objects/ErrorInfo.h"
#include "Editor/services/FileUris.h"
#include "Toolkit/base/Exception.h"
#include "Views/clipboard/clipboard.h"

#include <unistd.h>

namespace editor
{
namespace
{

CFolder* FolderBehind(IAtomContainer* pContainer)
{
    return dynamic_cast<CFolder*>(pContainer);
}

std::string TakeText(HGLOBAL hGlobal)
{
    if (!hGlobal)
        return {};
    std::string text;
    if (const toolkit::GlobalLocker<const char> block(hGlobal); block.Get())
        text.assign(block.Get(), GlobalSize(hGlobal));
    GlobalFree(hGlobal);
    return text;
}

std::string PasteFile(const std::string& path, CFolder& folder)
{
    const auto pArchive = CStubRef<IArchive>::Adopt(ConstructMemoryArchive());
    if (!pArchive)
        return folder.ShownName() + ": no archive can be made for it";
    ArchiveWriter writer(*pArchive.Get());
    writer.AllowLeavingOut();
    if (std::string failure = writer.AddPath(path, {}); !failure.empty())
        return failure;
    if (std::string failure = writer.Finish(); !failure.empty())
        return failure;
    if (CheckPaste(pArchive.Get(), &folder, FALSE) == PASTE_REFUSED)
        return ToShown(path.substr(path.rfind('/') + 1)) + ": not a file that the library shows";
    if (!PasteObjects(pArchive.Get(), &folder, FALSE))
        return DropError();
    return writer.LeftOut().empty() ? std::string() : writer.LeftOut().front();
}

} // namespace

bool OffersFilesFor(COleDataObject& data, IAtomContainer* pContainer)
{
    const CFolder* const pFolder = FolderBehind(pContainer);
    return pFolder && data.IsDataAvailable(UriListFormat()) && eaccess(pFolder->Path().c_str(), W_OK | X_OK) == 0;
}

std::string PasteFiles(COleDataObject& data, IAtomContainer* pContainer)
try {
    const std::vector<std::string> paths = PathsIn(TakeText(data.GetGlobalData(UriListFormat())));
    CFolder* const pFolder = FolderBehind(pContainer);
    if (paths.empty() || !pFolder)
        return "there are no files of this computer in it";
    std::string first;
    for (const std::string& path : paths)
        if (std::string failure = PasteFile(path, *pFolder); first.empty())
            first = std::move(failure);
    return first;
} catch (const CMemoryException& exception) {
    return exception.GetErrorMessage();
}

DROPEFFECT SafeEffect(DROPEFFECT effect, IAtomContainer* pContainer, bool bControl)
{
    return effect == DROPEFFECT_COPY && !bControl && FolderBehind(pContainer) ? DROPEFFECT_NONE : effect;
}

std::string DropError()
{
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    const std::string line = CErrorInfo::LineOf(CStubRef<IMyErrorInfo>::From(pEditor.Get()).Get());
    return line.empty() ? "The reason is not known." : line;
}

} // namespace editor
