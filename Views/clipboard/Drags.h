// Inside the library: atoms that are dragged, at both ends.
#pragma once

#include "Toolkit/ole/DataObject.h"
#include "Views/host/IArchive.h"
#include "Views/host/StubRef.h"

class IAtomEditor;

namespace views
{

// Has the editor drag its active atoms, to be copied or moved, until they are dropped. Those that were moved are then
// removed from where they were, without a question. The caller's view may be gone afterwards.
void DragActiveAtoms(IAtomEditor* pEditor);

// The format under which atoms travel; 0 without an editor.
CLIPFORMAT AtomFormat();

// The atoms that a drag brings: the medium that its data comes in, and the archive that the medium leads to. Both are
// given back when this goes.
class DraggedAtoms
{
public:
    DraggedAtoms(COleDataObject* pData, CLIPFORMAT cfAtoms);
    ~DraggedAtoms() { ::ReleaseStgMedium(&m_medium); }
    DraggedAtoms(const DraggedAtoms&) = delete;
    DraggedAtoms& operator=(const DraggedAtoms&) = delete;

    bool HasMedium() const { return m_medium.tymed == TYMED_HGLOBAL; } // only global memory will do
    IArchive* GetArchive() const { return m_pArchive.Get(); }          // NULL when the medium leads to none

private:
    STGMEDIUM m_medium{};
    CStubRef<IArchive> m_pArchive;
};

} // namespace views
