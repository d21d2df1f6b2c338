// Inside the library: atoms that are dragged, at both ends.
#pragma once

#include "Toolkit/exchange/DataObject.h"
#include "Views/host/IArchive.h"
#include "Views/host/StubRef.h"

#include <cstdint>
#include <optional>

class IAtomEditor;

namespace views
{

// Has the editor drag its active atoms, to be copied or moved, until they are dropped. Those that were moved are then
// removed from where they were, without a question. The caller's view may be gone afterwards.
void DragActiveAtoms(IAtomEditor* pEditor);

// The format under which atoms travel; 0 without an editor.
CLIPFORMAT AtomFormat();

// The atoms that the drag over a drop target brings.
//
// The data is asked for its medium at every look, as if nothing were known of it, and the medium is given back at once.
// Each look makes an archive of its own. The transfer file behind it is read into a stream, which later archives share
// for as long as it is the same file, unchanged: what a look costs does not depend on how much is dragged.
class DraggedAtoms
{
public:
    // Nothing for a medium that is not global memory; an empty archive when it leads to none.
    std::optional<CStubRef<IArchive>> LookAt(COleDataObject* pData, CLIPFORMAT cfAtoms);
    // The archive for a drop, after which all else is forgotten.
    CStubRef<IArchive> TakeFrom(COleDataObject* pData, CLIPFORMAT cfAtoms);
    void Forget(); // the drag is over

private:
    // A file as it was found: which one it is, and when it was changed last, its attributes included.
    struct File
    {
        std::uint64_t device, inode, size;
        std::int64_t changed, changedNanoseconds;

        friend bool operator==(const File&, const File&) = default;
    };

    static std::optional<File> FileAt(const char* pszPath);
    CStubRef<IArchive> ArchiveOf(const char* pszPath);

    std::optional<File> m_file;
    CStubRef<IByteStream> m_pStream; // that file's bytes
};

} // namespace views
