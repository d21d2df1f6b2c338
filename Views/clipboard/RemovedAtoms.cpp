#include "Views/clipboard/RemovedAtoms.h"

#include "Toolkit/base/Exception.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/ReadName.h"
#include "Views/host/Services.h"

#include <algorithm>

namespace views
{

BOOL RemovedAtoms::RemoveActive(IAtomEditor* pEditor)
{
    return pEditor->EnumActivePairs(&RemoveObjectFn, this);
}

// Each call has its place, so that the archive's atoms, which come in the same order, find theirs.
bool RemovedAtoms::Note(IAtomContainer* pContainer)
{
    try {
        m_containers.push_back(CStubRef<IAtomContainer>::Share(pContainer));
        return true;
    } catch (CMemoryException& e) {
        e.ReportError();
        return false;
    }
}

BOOL RemovedAtoms::RemoveObjectFn(IAtom* pAtom, IAtomContainer* pContainer, void* pContext)
{
    if (!pAtom || !pContainer)
        return FALSE;
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    auto& removed = *static_cast<RemovedAtoms*>(pContext);
    if (!pEditor || !removed.Note(pContainer))
        return FALSE;
    if ((pContainer->GetPermissions(pAtom) & APF_REMOVE) && pContainer->RemoveAtom(pAtom))
        return TRUE;
    removed.m_containers.back().Release();
    return FALSE;
}

IAtomContainer* RemovedAtoms::FirstContainer() const
{
    const auto first = std::find_if(m_containers.begin(), m_containers.end(), [](const auto& p) { return bool(p); });
    return first == m_containers.end() ? nullptr : first->Get();
}

void RemovedAtoms::Announce(IAtomEditor* pEditor) const
{
    if (IAtomContainer* const pContainer = FirstContainer())
        pEditor->NotifyHandlers(nullptr, &IAEStateHandler::OnDeleteAtom, nullptr, pContainer, 0);
}

void RemovedAtoms::PutBack(IAtomEditor* pEditor, IArchive* pArchive)
{
    m_nRead = 0;
    if (FirstContainer())
        pEditor->ReadArchive(&PutBackFn, pArchive, this);
}

// An atom that is there did not go, whatever its place says.
BOOL RemovedAtoms::PutBackFn(IAtom* pAtom, void* pContext)
try {
    auto& removed = *static_cast<RemovedAtoms*>(pContext);
    if (removed.m_nRead >= removed.m_containers.size())
        return FALSE;
    IAtomContainer* const pContainer = removed.m_containers[removed.m_nRead++].Get();
    CString strName;
    CStubRef<IAtom> pPresent, pBack;
    if (!pContainer || !ReadName(pAtom, &IAtom::GetName, strName) ||
        pContainer->FindAtom(strName, pPresent.Receive(), IID_IAtom) ||
        !pContainer->AddAtom(pAtom, 0, strName, pBack.Receive(), IID_IAtom))
        return TRUE;
    if (const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor()))
        pEditor->NotifyHandlers(nullptr, &IAEStateHandler::OnCreateAtom, pBack.Get(), pContainer, 0);
    return TRUE;
} catch (CMemoryException& e) {
    e.ReportError();
    return TRUE; // the others may still find their way
}

} // namespace views
