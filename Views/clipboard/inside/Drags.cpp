#include "Views/clipboard/inside/Drags.h"

#include "Toolkit/base/Exception.h"
#include "Views/clipboard/Commands.h"
#include "Views/clipboard/inside/FileArchive.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"

#include <sys/stat.h>
#include <utility>

namespace
{

// What data gave, given back when this goes.
class Medium
{
public:
    Medium(COleDataObject* pData, CLIPFORMAT format) { pData->GetData(format, &m_medium); }
    ~Medium() { ::ReleaseStgMedium(&m_medium); }
    Medium(const Medium&) = delete;
    Medium& operator=(const Medium&) = delete;

    const STGMEDIUM& Get() const { return m_medium; }

private:
    STGMEDIUM m_medium{};
};

} // namespace

void views::DragActiveAtoms(IAtomEditor* pEditor)
{
    if (pEditor->DoDragDrop(DROPEFFECT_COPY | DROPEFFECT_MOVE, 0) == DROPEFFECT_MOVE)
        RemoveObjects(FALSE);
}

CLIPFORMAT views::AtomFormat()
{
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    return pEditor ? pEditor->GetClipboardFormat() : CLIPFORMAT{0};
}

std::optional<views::DraggedAtoms::File> views::DraggedAtoms::FileAt(const char* pszPath)
{
    struct stat status;
    if (::stat(pszPath, &status) != 0)
        return std::nullopt;
    return File{status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size), status.st_ctim.tv_sec,
                status.st_ctim.tv_nsec};
}

// The file is asked about before it is read: what changes under the reading is then found out at the next look. A
// stream that a host has made longer or shorter is no longer what the file holds.
CStubRef<IArchive> views::DraggedAtoms::ArchiveOf(const char* pszPath)
{
    const std::optional<File> file = FileAt(pszPath);
    if (m_pStream && file && file == m_file && m_pStream->GetLength() == file->size)
        return ArchiveOver(m_pStream);
    Forget();
    FileArchive read = ReadTransferFile(pszPath);
    m_pStream = std::move(read.pStream);
    m_file = file;
    return std::move(read.pArchive);
}

std::optional<CStubRef<IArchive>> views::DraggedAtoms::LookAt(COleDataObject* pData, CLIPFORMAT cfAtoms)
try {
    const Medium medium(pData, cfAtoms);
    if (medium.Get().tymed != TYMED_HGLOBAL) {
        Forget();
        return std::nullopt;
    }
    const std::optional<CString> path = PathIn(medium.Get().hGlobal);
    return path ? ArchiveOf(*path) : nullptr;
} catch (const CMemoryException&) {
    return CStubRef<IArchive>();
}

CStubRef<IArchive> views::DraggedAtoms::TakeFrom(COleDataObject* pData, CLIPFORMAT cfAtoms)
{
    auto archive = LookAt(pData, cfAtoms);
    Forget();
    return archive ? std::move(*archive) : nullptr;
}

void views::DraggedAtoms::Forget()
{
    m_file.reset();
    m_pStream.Release();
}
