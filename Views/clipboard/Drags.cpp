#include "Views/clipboard/Drags.h"

#include "Views/clipboard/Archives.h"
#include "Views/clipboard/Commands.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"

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

views::DraggedAtoms::DraggedAtoms(COleDataObject* pData, CLIPFORMAT cfAtoms)
{
    if (!pData->GetData(cfAtoms, &m_medium))
        return;
    if (m_medium.tymed == TYMED_HGLOBAL)
        m_pArchive = CStubRef<IArchive>::Adopt(::ArchiveFromStgMedium(m_medium));
    else
        ::ReleaseStgMedium(&m_medium);
}
