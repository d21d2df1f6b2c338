// Items: from an atom announced to its item, with the members below it, and back.
#include "Toolkit/base/Exception.h"
#include "Toolkit/menu/MessageBox.h"
#include "Views/host/Resources.h"
#include "Views/host/inside/HeldPair.h"
#include "Views/tree/ObjectsTree.h"
#include "Views/tree/inside/MemberKeys.h"
#include "Views/tree/inside/TreeIconSlots.h"
#include "Views/tree/inside/TreeRecords.h"

#include <memory>
#include <utility>

namespace
{

using State = views::TreeRecord::State;

// False for an item that is gone, or going.
bool Advance(views::TreeRecord* pRecord, State from, State to)
{
    if (!pRecord || pRecord->state != from)
        return false;
    pRecord->state = to;
    return true;
}

void ReportInsertFailed()
{
    CString strMessage;
    strMessage.LoadString(views::IDS_NOT_INSERTED);
    AfxMessageBox(strMessage, MB_OK);
}

} // namespace

HTREEITEM CObjectsTree::GetItem(IAtom* pAtom) const
{
    const RECORD* pRecord = m_pRecords->Find(pAtom);
    return pRecord ? pRecord->hItem : nullptr;
}

bool CObjectsTree::IsItem(HTREEITEM hItem) const
{
    TVITEM item{};
    item.mask = TVIF_HANDLE;
    item.hItem = hItem;
    return CTreeCtrl::GetItem(&item) != FALSE;
}

CObjectsTree::RECORD* CObjectsTree::RecordOf(HTREEITEM hItem) const
{
    return hItem ? static_cast<RECORD*>(reinterpret_cast<TREEITEMDATA*>(GetItemData(hItem))) : nullptr;
}

CObjectsTree::HELDPAIR CObjectsTree::HoldPair(HTREEITEM hItem) const
{
    const RECORD* pRecord = RecordOf(hItem);
    return pRecord ? HELDPAIR::Share(pRecord->pAtom.Get(), pRecord->pContainer.Get()) : HELDPAIR();
}

CStubRef<IAtomContainer> CObjectsTree::ContainerInItem(HTREEITEM hItem) const
{
    return CStubRef<IAtomContainer>::From(HoldPair(hItem).pAtom.Get());
}

std::vector<HTREEITEM> CObjectsTree::ChildrenOf(HTREEITEM hItem) const
{
    std::vector<HTREEITEM> children;
    for (HTREEITEM hChild = GetChildItem(hItem); hChild; hChild = GetNextSiblingItem(hChild))
        children.push_back(hChild);
    return children;
}

std::unordered_set<IAtom*> CObjectsTree::AtomsBelow(HTREEITEM hItem) const
{
    std::unordered_set<IAtom*> atoms;
    for (HTREEITEM hChild = GetChildItem(hItem); hChild; hChild = GetNextSiblingItem(hChild)) {
        if (const RECORD* pRecord = RecordOf(hChild))
            atoms.insert(pRecord->pAtom.Get());
    }
    return atoms;
}

bool CObjectsTree::IsWithin(HTREEITEM hBranch, HTREEITEM hItem) const
{
    while (hItem && hItem != hBranch)
        hItem = GetParentItem(hItem);
    return hItem != nullptr;
}

BOOL CObjectsTree::OnCreateAtom(IAtom* pAtom, IAtomContainer* pContainer)
{
    if (!pAtom || m_bClosing)
        return FALSE;

    const RECORD* pParent = nullptr;
    if (const auto pOwner = CStubRef<IAtom>::From(pContainer)) {
        pParent = m_pRecords->Find(pOwner.Get());
        if (!TakesMember(pParent, pAtom))
            return FALSE;
    }
    const HTREEITEM hItem = AddItem(pAtom, pContainer, pParent);
    if (!hItem)
        return FALSE;
    if (!m_bOnDemand)
        AddMembers(hItem, pAtom);
    return TRUE;
}

BOOL CObjectsTree::ShowMembers(IAtom* pAtom)
{
    const HTREEITEM hItem = pAtom ? GetItem(pAtom) : nullptr;
    try {
        const std::unordered_set<IAtom*> shown = AtomsBelow(hItem);
        return hItem && AddMembers(hItem, pAtom, &shown);
    } catch (CMemoryException& e) {
        e.ReportError();
        return FALSE;
    }
}

bool CObjectsTree::AreMembersShown(HTREEITEM hItem) const
{
    const RECORD* pRecord = RecordOf(hItem);
    return pRecord && pRecord->bMembersShown;
}

// Not an item that is going, and not one that shows the atom itself or stands below it.
bool CObjectsTree::TakesMember(const RECORD* pParent, IAtom* pAtom) const
{
    if (!pParent || pParent->state == State::Leaving || (m_bOnDemand && !pParent->bMembersShown))
        return false;
    if (!m_pRecords->Find(pAtom))
        return true;
    for (HTREEITEM hItem = pParent->hItem; pParent; pParent = RecordOf(hItem = GetParentItem(hItem))) {
        if (pParent->pAtom.Get() == pAtom)
            return false;
    }
    return true;
}

// The new item, found by its atom; NULL when there is none, and the user has been told.
HTREEITEM CObjectsTree::AddItem(IAtom* pAtom, IAtomContainer* pContainer, const RECORD* pParent)
{
    try {
        RecordHolder pRecord = m_pRecords->Make();
        pRecord->pAtom = CStubRef<IAtom>::Share(pAtom);
        pRecord->pContainer = CStubRef<IAtomContainer>::Share(pContainer);
        const HTREEITEM hParent = pParent ? pParent->hItem : TVI_ROOT;
        const HTREEITEM hItem = HandToControl(pRecord.get(), hParent);
        if (!hItem) {
            if (!m_bClosing && (hParent == TVI_ROOT || RecordOf(hParent)))
                ReportInsertFailed();
            return nullptr;
        }
        pRecord->hItem = hItem;
        pRecord->state = State::Settled;
        m_pRecords->Map(pRecord.release());
        NoteMember(hParent, pAtom, hItem);
        return hItem;
    } catch (CMemoryException& e) {
        e.ReportError();
        return nullptr;
    }
}

// NULL when the control refuses.
HTREEITEM CObjectsTree::HandToControl(RECORD* pRecord, HTREEITEM hParent)
{
    TVINSERTSTRUCT insert{};
    insert.hParent = hParent;
    insert.hInsertAfter = TVI_SORT;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN | TVIF_PARAM;
    insert.item.pszText = LPSTR_TEXTCALLBACK;
    insert.item.iImage = insert.item.iSelectedImage = I_IMAGECALLBACK;
    insert.item.cChildren = I_CHILDRENCALLBACK;
    insert.item.lParam = reinterpret_cast<LPARAM>(static_cast<TREEITEMDATA*>(pRecord));
    return InsertItem(&insert);
}

// But for those that have an item there already (NULL: none has). Their order is made once, when all are there.
BOOL CObjectsTree::AddMembers(HTREEITEM hItem, IAtom* pAtom, const std::unordered_set<IAtom*>* pShown)
{
    const auto pMembers = CStubRef<IAtomContainer>::From(pAtom);
    if (!pMembers || !Advance(RecordOf(hItem), State::Settled, State::Filling))
        return FALSE;
    RecordOf(hItem)->bMembersShown = true;
    views::MemberKeys keys(hItem, m_pFilling, m_nOrder);
    for (UINT i = 0; i < pMembers->GetCount(); ++i) {
        CStubRef<IAtom> pMember;
        pMembers->GetAtoms(i, 1, pMember.Receive(), IID_IAtom);
        if (pMember && (!pShown || !pShown->contains(pMember.Get())))
            OnCreateAtom(pMember.Get(), pMembers.Get());
    }
    if (Advance(RecordOf(hItem), State::Filling, State::Settled) && keys.nAdded > 0)
        OrderMembers(hItem, keys);
    return TRUE;
}

BOOL CObjectsTree::OnDeleteAtom(IAtom* pAtom, IAtomContainer* pContainer)
{
    if (!pAtom) {
        if (const HTREEITEM hContainer = GetItem(pContainer))
            SyncItems(hContainer, pContainer);
        return TRUE;
    }
    const HTREEITEM hItem = GetItem(pAtom);
    if (!hItem || (pContainer && !GetItem(CStubRef<IAtom>::From(pContainer).Get())))
        return TRUE;
    if (const auto pRecord = TakeRecord(hItem)) {
        if (!m_bOnDemand || pRecord->bMembersShown)
            RemoveMembers(hItem, pAtom);
        DropItem(hItem, pRecord.get());
    }
    return TRUE;
}

// Members without an item are not looked for: new ones are announced. The first item of an atom announced twice is
// out of OnDeleteAtom's reach, which would remove the second one instead.
void CObjectsTree::SyncItems(HTREEITEM hParent, IAtomContainer* pContainer)
{
    const auto pHeld = CStubRef<IAtomContainer>::Share(pContainer); // removing may re-enter and remove the parent
    try {
        for (const HTREEITEM hChild : ChildrenOf(hParent)) {
            const HELDPAIR pair = HoldPair(hChild);
            if (!pair.pAtom || pContainer->FindAtomByID(pair.pAtom->GetID(), nullptr, 0))
                continue;
            if (GetItem(pair.pAtom.Get()) == hChild)
                OnDeleteAtom(pair.pAtom.Get(), pair.pContainer.Get());
            else
                RemoveItem(hChild);
        }
    } catch (CMemoryException& e) {
        e.ReportError();
    }
}

// From here on the item is going: it is not removed twice, however its removal comes back, and takes no members. Empty
// when it is going already, or only arriving: the one who began that ends it.
CObjectsTree::RecordHolder CObjectsTree::TakeRecord(HTREEITEM hItem)
{
    RECORD* const pRecord = RecordOf(hItem);
    if (!pRecord || pRecord->state == State::Arriving || pRecord->state == State::Leaving)
        return nullptr;
    pRecord->state = State::Leaving;
    return m_pRecords->Hold(pRecord);
}

// A member that is shown above its own container stays: it is not below it.
void CObjectsTree::RemoveMembers(HTREEITEM hItem, IAtom* pAtom)
{
    const auto pMembers = CStubRef<IAtomContainer>::From(pAtom);
    if (!pMembers)
        return;
    for (UINT i = 0; i < pMembers->GetCount(); ++i) {
        CStubRef<IAtom> pMember;
        pMembers->GetAtoms(i, 1, pMember.Receive(), IID_IAtom);
        if (pMember && !IsWithin(GetItem(pMember.Get()), hItem))
            OnDeleteAtom(pMember.Get(), pMembers.Get());
    }
}

// Without asking OnDeleteAtom: for items that it does not reach, a derived class's own among them. One that is going
// already only loses what is below it.
void CObjectsTree::RemoveItem(HTREEITEM hItem)
{
    if (const auto pRecord = TakeRecord(hItem)) {
        DropItem(hItem, pRecord.get());
        return;
    }
    RemoveChildren(hItem);
    if (!RecordOf(hItem))
        DeleteItem(hItem);
}

// But for those that an outer call is bringing or removing just now.
void CObjectsTree::RemoveChildren(HTREEITEM hItem)
{
    HTREEITEM hPassed = nullptr;
    while (const HTREEITEM hChild = hPassed ? GetNextSiblingItem(hPassed) : GetChildItem(hItem)) {
        RemoveItem(hChild);
        if (RecordOf(hChild))
            hPassed = hChild;
    }
}

// The caller holds the record until the item is gone: the control still tells of the item when the selection leaves it.
// Below it are only items whose atoms are members no longer, or have another item.
void CObjectsTree::DropItem(HTREEITEM hItem, const RECORD* pRecord)
{
    RemoveChildren(hItem);
    const HTREEITEM hParent = GetParentItem(hItem);
    DeleteItem(hItem);
    if (!GetSelectedItem())
        SetBoldRoot(hParent, FALSE); // the selection went with the item: no one would take it, or be left by it
    m_pRecords->Unmap(pRecord);
    m_pIconSlots->GiveUp(hItem);
}
