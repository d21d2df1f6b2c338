// Inside the library: atoms that are dragged, at both ends.
#pragma once

#include "Toolkit/ole/DataObject.h"
#include "Views/host/IArchive.h"
#include "Views/host/StubRef.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

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
// The transfer file that it leads to is read only when it is another one than at the last look, or another content:
// a host sees one stream and one archive made for a drag, and the same verdicts as if there were one to each movement.
class DraggedAtoms
{
public:
    struct Look
    {
        bool bMedium = false;          // only global memory will do
        CStubRef<IArchive> pArchive{}; // empty when the medium leads to none
    };

    Look LookAt(COleDataObject* pData, CLIPFORMAT cfAtoms);
    // The archive for a drop, after which it is forgotten.
    CStubRef<IArchive> TakeFrom(COleDataObject* pData, CLIPFORMAT cfAtoms);
    void Forget(); // the drag is over

private:
    // A file as it was found; none for one that is not there.
    struct File
    {
        std::string path;
        std::uintmax_t nSize = 0;
        std::filesystem::file_time_type changed;

        friend bool operator==(const File&, const File&) = default;
    };

    static std::optional<File> FileBehind(HGLOBAL hPath);

    std::optional<File> m_file;
    CStubRef<IArchive> m_pArchive; // of that file
};

} // namespace views
