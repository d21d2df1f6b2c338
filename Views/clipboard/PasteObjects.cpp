// Pasting an archive's atoms into a container, and whether that may be.
#include "Toolkit/base/Exception.h"
#include "Toolkit/desktop/WaitCursor.h"
#include "Views/clipboard/Commands.h"
#include "Views/clipboard/Naming.h"
#include "Views/host/IAtomContainer.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"
#include "Views/host/StubRef.h"
#include "Views/host/inside/ReadName.h"

namespace
{

// What the callbacks are told.
struct PASTEDATA
{
    BOOL bMove; // the atoms keep their own names
    IAtomContainer* pContainer;
    DWORD dwResult; // CheckPaste's verdict so far
};

// An atom whose name cannot be read, or for which there is no memory, which is reported, has none.
BOOL NameFor(IAtom* pAtom, const PASTEDATA& paste, CString& strName)
try {
    return paste.bMove ? views::ReadName(pAtom, &IAtom::GetName, strName)
                       : GetValidName(pAtom, paste.pContainer, strName);
} catch (CMemoryException& e) {
    e.ReportError();
    return FALSE;
}

// An atom that the container does not add after all is passed over. What the container or a view raises is the
// caller's.
BOOL PasteObjectFn(IAtom* pAtom, void* pContext)
{
    if (!pAtom)
        return FALSE;
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    const auto& paste = *static_cast<PASTEDATA*>(pContext);
    if (!pEditor || !paste.pContainer || paste.pContainer->GetPermissions(pAtom) == 0)
        return FALSE;
    CString strName;
    if (!NameFor(pAtom, paste, strName))
        return FALSE;
    CStubRef<IAtom> pAdded;
    if (paste.pContainer->AddAtom(pAtom, 0, strName, pAdded.Receive(), IID_IAtom))
        pEditor->NotifyHandlers(nullptr, &IAEStateHandler::OnCreateAtom, pAdded.Get(), paste.pContainer, 0);
    return TRUE;
}

DWORD VerdictOn(DWORD dwPermissions)
{
    if (dwPermissions & APF_ACCEPT)
        return PASTE_ANY;
    return dwPermissions & APF_ACCEPTCOPY ? PASTE_COPY : PASTE_REFUSED;
}

// A member of the atom's name refuses a move; without a name, nothing is looked for and the verdict stays.
BOOL CheckName(IAtom* pAtom, PASTEDATA& paste)
try {
    CString strName;
    if (!views::ReadName(pAtom, &IAtom::GetName, strName))
        return FALSE;
    CStubRef<IAtom> pPresent;
    if (!paste.pContainer->FindAtom(strName, pPresent.Receive(), IID_IAtom))
        return TRUE;
    paste.dwResult = PASTE_REFUSED;
    return FALSE;
} catch (CMemoryException& e) {
    e.ReportError();
    return FALSE;
}

BOOL CheckPasteFn(IAtom* pAtom, void* pContext)
{
    auto* const pPaste = static_cast<PASTEDATA*>(pContext);
    if (!pAtom || !pPaste || !pPaste->pContainer)
        return FALSE;
    pPaste->dwResult = VerdictOn(pPaste->pContainer->GetPermissions(pAtom));
    if (pPaste->dwResult == PASTE_REFUSED)
        return FALSE;
    return pPaste->bMove ? CheckName(pAtom, *pPaste) : TRUE;
}

} // namespace

int PasteObjects(IArchive* pArchive, IAtomContainer* pContainer, int bMove)
{
    const CWaitCursor wait;
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    if (!pEditor)
        return FALSE;
    PASTEDATA paste{bMove, pContainer, PASTE_REFUSED};
    return pEditor->ReadArchive(&PasteObjectFn, pArchive, &paste);
}

DWORD CheckPaste(IArchive* pArchive, IAtomContainer* pContainer, int bMove)
{
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    if (!pEditor)
        return PASTE_REFUSED;
    PASTEDATA paste{bMove, pContainer, PASTE_REFUSED};
    pEditor->ReadArchive(&CheckPasteFn, pArchive, &paste);
    return paste.dwResult;
}
