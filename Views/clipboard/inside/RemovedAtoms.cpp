#include "Views/clipboard/inside/RemovedAtoms.h"

#include "Toolkit/base/Exception.h"
#include "Views/clipboard/Naming.h"
#include "Views/host/IArchive.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"
#include "Views/host/inside/ReadName.h"

#include <algorithm>

namespace views
{
namespace
{

void TellOfLoss(IAtomEditor* pEditor, IAtomContainer* pContainer)
{
    pEditor->NotifyHandlers(nullptr, &IAEStateHandler::OnDeleteAtom, nullptr, pContainer, 0);
}

CStubRef<IAtom> AddAgain(IAtom* pAtom, IAtomContainer* pContainer)
{
    CString strName;
    CStubRef<IAtom> pBack;
    if (!ReadName(pAtom, &IAtom::GetName, strName))
        return nullptr;
    if (!pContainer->AddAtom(pAtom, 0, strName, pBack.Receive(), IID_IAtom) && GetValidName(pAtom, pContainer, strName))
        pContainer->AddAtom(pAtom, 0, strName, pBack.Receive(), IID_IAtom);
    return pBack;
}

} // namespace

BOOL RemovedAtoms::RemoveActive(IAtomEditor* pEditor)
{
    return pEditor->EnumActivePairs(&RemoveObjectFn, this);
}

// Each call has its place, so that the archive's atoms, which come in the same order, find theirs.
bool RemovedAtoms::AddPlace()
{
    try {
        m_containers.emplace_back();
        return true;
    } catch (CMemoryException& e) {
        e.ReportError();
        return false;
    }
}

BOOL RemovedAtoms::RemoveObjectFn(IAtom* pAtom, IAtomContainer* pContainer, void* pContext)
{
    auto& removed = *static_cast<RemovedAtoms*>(pContext);
    if (!removed.AddPlace() || !pAtom || !pContainer)
        return FALSE;
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    if (!pEditor || !(pContainer->GetPermissions(pAtom) & APF_REMOVE) || !pContainer->RemoveAtom(pAtom))
        return FALSE;
    removed.m_containers.back() = CStubRef<IAtomContainer>::Share(pContainer);
    return TRUE;
}

void RemovedAtoms::Announce(IAtomEditor* pEditor) const
{
    const auto first = std::ranges::find_if(m_containers, [](const auto& p) { return bool(p); });
    if (first != m_containers.end())
        TellOfLoss(pEditor, first->Get());
}

// Where the archive stands, whoever wrote it has left it.
void RemovedAtoms::PutBack(IAtomEditor* pEditor, IArchive* pArchive)
try {
    if (std::ranges::none_of(m_containers, [](const auto& p) { return bool(p); }))
        return;
    for (auto p = m_containers.begin(); p != m_containers.end(); ++p)
        if (*p && std::find_if(m_containers.begin(), p, [p](const auto& q) { return q.Get() == p->Get(); }) == p)
            TellOfLoss(pEditor, p->Get());
    m_nRead = 0;
    pArchive->Seek(0, 0);
    pEditor->ReadArchive(&PutBackFn, pArchive, this);
} catch (CException& e) {
    e.ReportError();
}

BOOL RemovedAtoms::PutBackFn(IAtom* pAtom, void* pContext)
{
    auto& removed = *static_cast<RemovedAtoms*>(pContext);
    if (removed.m_nRead >= removed.m_containers.size())
        return FALSE;
    IAtomContainer* const pContainer = removed.m_containers[removed.m_nRead++].Get();
    try {
        const CStubRef<IAtom> pBack = pContainer ? AddAgain(pAtom, pContainer) : nullptr;
        const auto pEditor = CStubRef<IAtomEditor>::Adopt(pBack ? GetAtomEditor() : nullptr);
        if (pEditor)
            pEditor->NotifyHandlers(nullptr, &IAEStateHandler::OnCreateAtom, pBack.Get(), pContainer, 0);
    } catch (CException& e) {
        e.ReportError(); // the others may still find their way
    }
    return TRUE;
}

} // namespace views
