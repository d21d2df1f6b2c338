#include "Views/clipboard/Drags.h"

#include "Toolkit/base/Exception.h"
#include "Views/clipboard/Archives.h"
#include "Views/clipboard/Commands.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"

#include <cstring>
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

// Asked before it is read: what changes under the reading is then found out at the next look.
std::optional<views::DraggedAtoms::File> views::DraggedAtoms::FileBehind(HGLOBAL hPath)
try {
    const toolkit::GlobalLocker<const char> block(hPath);
    if (!block.Get())
        return std::nullopt;
    File file;
    file.path.assign(block.Get(), strnlen(block.Get(), GlobalSize(hPath)));
    std::error_code error;
    file.nSize = std::filesystem::file_size(file.path, error);
    if (!error)
        file.changed = std::filesystem::last_write_time(file.path, error);
    return error ? std::nullopt : std::optional(std::move(file));
} catch (const CMemoryException&) {
    return std::nullopt;
}

views::DraggedAtoms::Look views::DraggedAtoms::LookAt(COleDataObject* pData, CLIPFORMAT cfAtoms)
{
    const Medium medium(pData, cfAtoms);
    if (medium.Get().tymed != TYMED_HGLOBAL) {
        Forget();
        return {};
    }
    std::optional<File> file = FileBehind(medium.Get().hGlobal);
    if (!m_pArchive || !file || file != m_file) {
        Forget();
        m_pArchive = CStubRef<IArchive>::Adopt(::ArchiveFromStgMedium(medium.Get()));
        m_file = std::move(file);
    }
    return {true, CStubRef<IArchive>::Share(m_pArchive.Get())};
}

CStubRef<IArchive> views::DraggedAtoms::TakeFrom(COleDataObject* pData, CLIPFORMAT cfAtoms)
{
    Look look = LookAt(pData, cfAtoms);
    Forget();
    return std::move(look.pArchive);
}

void views::DraggedAtoms::Forget()
{
    m_file.reset();
    m_pArchive.Release();
}
