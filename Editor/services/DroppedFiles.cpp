#include "Editor/services/DroppedFiles.h"

#include "Editor/archive/ArchiveWriter.h"
#include "Editor/disk/DiskFile.h"
#include "Editor/disk/FileText.h"
#include "Editor/model/Folder.h"
#include "Editor/services/FileUris.h"
#include "Editor/services/FramePlacing.h"
#include "Editor/services/Troubles.h"
#include "Toolkit/base/Exception.h"
#include "Views/clipboard/clipboard.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
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
    writer.SetMeter(&folder.Context().work.GetMeter());
    const auto write = [&] {
        std::string failure = writer.AddPath(path, {});
        return failure.empty() ? writer.Finish() : failure;
    };
    if (std::string failure = Aside(folder.Context().work, write); !failure.empty())
        return failure;
    if (CheckPaste(pArchive.Get(), &folder, FALSE) == PASTE_REFUSED)
        return ToShown(path.substr(path.rfind('/') + 1)) + ": not a file that the library shows";
    if (!PasteObjects(pArchive.Get(), &folder, FALSE))
        return DropError();
    return writer.LeftOut().empty() ? std::string() : writer.LeftOut().front();
}

std::string AppendFiles(CPhase& phase, const std::vector<std::string>& paths)
{
    UINT nPlaced = 0;
    return InsertFiles(phase, paths, phase.GetCount(), nPlaced);
}

const PictureFormat* FindPictureFormat(COleDataObject& data)
{
    for (const PictureFormat& one : kPictureFormats)
        if (data.IsDataAvailable(RegisterClipboardFormat(one.pszName)))
            return &one;
    return nullptr;
}

// Goes with what was written into it.
class TempFolder
{
public:
    TempFolder() : m_path((std::filesystem::temp_directory_path() / "views-picture-XXXXXX").string())
    {
        if (!mkdtemp(m_path.data()))
            m_path.clear();
    }
    ~TempFolder()
    {
        std::error_code error;
        if (!m_path.empty())
            std::filesystem::remove_all(m_path, error);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::string& Path() const { return m_path; }
    static int Write(const std::string& path, std::string_view bytes)
    {
        FileDescriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
        if (!file)
            return errno;
        const int error = WriteAll(file.Get(), bytes);
        return error == 0 && !file.Close() ? errno : error;
    }

private:
    std::string m_path;
};

} // namespace

bool OffersFilesFor(COleDataObject& data, IAtomContainer* pContainer)
{
    if (!data.IsDataAvailable(UriListFormat()))
        return false;
    if (const auto* const pPhase = dynamic_cast<CPhase*>(pContainer))
        return eaccess(pPhase->Path().c_str(), W_OK) == 0;
    const CFolder* const pFolder = FolderBehind(pContainer);
    return pFolder && eaccess(pFolder->Path().c_str(), W_OK | X_OK) == 0;
}

std::vector<std::string> OfferedPaths(COleDataObject& data)
{
    return PathsIn(TakeText(data.GetGlobalData(UriListFormat())));
}

std::string PasteFiles(COleDataObject& data, IAtomContainer* pContainer)
try {
    if (auto* const pPhase = dynamic_cast<CPhase*>(pContainer))
        return AppendFiles(*pPhase, OfferedPaths(data));
    const std::vector<std::string> paths = OfferedPaths(data);
    CFolder* const pFolder = FolderBehind(pContainer);
    if (paths.empty() || !pFolder)
        return "there are no files of this computer in it";
    LongWork& work = pFolder->Context().work;
    Aside(work, [&] {
        for (const std::string& path : paths) // read once, and written once
            work.GetMeter().SetTotal(work.GetMeter().Total() + 2 * BytesBelow(path, work.GetMeter()));
    });
    const bool bCut = IsCut(TakeText(data.GetGlobalData(CopiedFilesFormat())));
    Troubles troubles;
    for (const std::string& path : paths) {
        std::string failure = PasteFile(path, *pFolder);
        if (failure.empty() && bCut)
            failure = pFolder->RemoveOriginal(path);
        troubles.Add(std::move(failure));
        if (work.IsCancelled())
            break;
    }
    return troubles.Text();
} catch (const CMemoryException& exception) {
    return exception.GetErrorMessage();
}

bool OffersPictureFor(COleDataObject& data, IAtomContainer* pContainer)
{
    const CFolder* const pFolder = FolderBehind(pContainer);
    return pFolder && FindPictureFormat(data) && eaccess(pFolder->Path().c_str(), W_OK | X_OK) == 0;
}

// By way of a file of its own.
std::string PastePicture(COleDataObject& data, IAtomContainer* pContainer)
try {
    const PictureFormat* const pFormat = FindPictureFormat(data);
    CFolder* const pFolder = FolderBehind(pContainer);
    const std::string bytes =
        pFormat ? TakeText(data.GetGlobalData(RegisterClipboardFormat(pFormat->pszName))) : std::string();
    if (bytes.empty() || !pFolder)
        return "there is no picture in it";
    TempFolder temp;
    const std::string path = temp.Path() + "/Picture." + pFormat->pszExtension;
    if (const int error = temp.Write(path, bytes); error != 0)
        return pFolder->ShownName() + ": " + SystemErrorText(error);
    return PasteFile(path, *pFolder);
} catch (const CMemoryException& exception) {
    return exception.GetErrorMessage();
}

DROPEFFECT SafeEffect(DROPEFFECT effect, IAtomContainer* pContainer, bool bControl)
{
    return effect == DROPEFFECT_COPY && !bControl && FolderBehind(pContainer) ? DROPEFFECT_NONE : effect;
}

std::string DropError()
{
    const std::string& line = CAtomEditor::Current().GetArchiveError();
    return line.empty() ? "The reason is not known." : line;
}

} // namespace editor
