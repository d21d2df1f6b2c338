#include "Views/clipboard/Naming.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/base/String.h"
#include "Views/host/IAtomContainer.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/IMyErrorInfo.h"
#include "Views/host/Resources.h"
#include "Views/host/StubRef.h"
#include "Views/host/inside/ReadName.h"
#include "Views/host/inside/ServiceCalls.h"

namespace
{

// The one that was given, else the one that holds the atom.
CStubRef<IAtomContainer> ContainerOf(IAtom* pAtom, IAtomContainer* pContainer)
{
    if (pContainer)
        return CStubRef<IAtomContainer>::Share(pContainer);
    CStubRef<IAtomContainer> pHolder;
    if (!pAtom->GetContainer(pHolder.Receive(), IID_IAtomContainer))
        return nullptr;
    return pHolder;
}

bool BearsName(IAtom* pAtom, IAtomContainer* pContainer, const char* pszName)
{
    CStubRef<IAtom> pMember;
    return pContainer->FindAtom(pszName, pMember.Receive(), IID_IAtom) && pMember.Get() == pAtom;
}

BOOL AnnounceRename(IAtom* pRenamed, IAtom* pFormer, IAtomContainer* pContainer)
{
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    if (!pEditor)
        return FALSE;
    pEditor->NotifyHandlers(nullptr, &IAEStateHandler::OnCreateAtom, pRenamed, pContainer, 0);
    pEditor->NotifyHandlers(nullptr, &IAEStateHandler::OnDeleteAtom, pFormer, pContainer, 0);
    return TRUE;
}

void ShowRenameError(IAtomContainer* pContainer)
{
    try {
        CString strCaption;
        strCaption.LoadString(views::IDS_RENAME_FAILED);
        const auto pError = CStubRef<IMyErrorInfo>::From(pContainer);
        views::ShowAtomError(nullptr, strCaption, pError.Get());
    } catch (CMemoryException& e) {
        e.ReportError();
    }
}

} // namespace

int GetValidName(IAtom* pAtom, IAtomContainer* pContainer, CString& strName)
{
    try {
        CString strValid;
        if (!views::ReadName(pAtom, &IAtom::GetName, strValid) || !pContainer->ValidateName(strValid, 0))
            return FALSE;
        strName = strValid;
        return TRUE;
    } catch (CMemoryException& e) {
        e.ReportError();
        return FALSE;
    }
}

int CanRenameObject(IAtom* pAtom, IAtomContainer* pContainer)
{
    const auto pHolder = ContainerOf(pAtom, pContainer);
    return pHolder ? static_cast<int>(pHolder->GetPermissions(pAtom) & APF_RENAME) : 0;
}

int RenameObject(IAtom* pAtom, IAtomContainer* pContainer, const char* lpszNewName)
{
    if (!pAtom)
        return FALSE;
    const auto pHolder = ContainerOf(pAtom, pContainer);
    if (!pHolder)
        return FALSE;
    if (BearsName(pAtom, pHolder.Get(), lpszNewName))
        return TRUE;
    if (!(pHolder->GetPermissions(pAtom) & APF_RENAME))
        return FALSE;

    const auto pFormer = CStubRef<IAtom>::Share(pAtom); // the container lets go of it
    CStubRef<IAtom> pRenamed;
    if (!pHolder->RenameAtom(pAtom, lpszNewName, pRenamed.Receive(), IID_IAtom)) {
        ShowRenameError(pHolder.Get());
        return FALSE;
    }
    return AnnounceRename(pRenamed.Get(), pAtom, pHolder.Get());
}
