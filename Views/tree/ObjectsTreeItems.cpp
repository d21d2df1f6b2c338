// Items: from an atom announced to its item, with the members below it, and back.
#include "Toolkit/base/Exception.h"
#include "Toolkit/window/MessageBox.h"
#include "Views/tree/ObjectsTree.h"

#include <memory>
#include <utility>

namespace
{

constexpr UINT kInsertFailed = 57355;

void ReportInsertFailed()
{
    CString strMessage;
    strMessage.LoadString(kInsertFailed);
    AfxMessageBox(strMessage, MB_OK);
}

} // namespace

HTREEITEM CObjectsTree::GetItem(IAtom* pAtom) const
{
    const auto found = m_itemMap.find(pAtom);
    return found == m_itemMap.end() ? nullptr : found->second;
}

bool CObjectsTree::IsItem(HTREEITEM hItem) const
{
    TVITEM item{};
    item.mask = TVIF_HANDLE;
    item.hItem = hItem;
    return CTreeCtrl::GetItem(&item) != FALSE;
}

CObjectsTree::TREEITEMDATA* CObjectsTree::RecordOf(HTREEITEM hItem) const
{
    return hItem ? reinterpret_cast<TREEITEMDATA*>(GetItemData(hItem)) : nullptr;
}

CObjectsTree::HELDPAIR CObjectsTree::HoldPair(HTREEITEM hItem) const
{
    const TREEITEMDATA* pRecord = RecordOf(hItem);
    if (!pRecord)
        return {};
    return HELDPAIR::Share(pRecord->pAtom.Get(), pRecord->pContainer.Get());
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
        if (const TREEITEMDATA* pRecord = RecordOf(hChild))
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

    HTREEITEM hParent = TVI_ROOT;
    if (const auto pOwner = CStubRef<IAtom>::From(pContainer)) {
        hParent = GetItem(pOwner.Get());
        if (!TakesMember(hParent, pAtom))
            return FALSE;
    }
    const HTREEITEM hItem = AddItem(pAtom, pContainer, hParent);
    if (!hItem)
        return FALSE;
    if (!m_bOnDemand)
        AddMembers(hItem, pAtom, {});
    return TRUE;
}

BOOL CObjectsTree::ShowMembers(IAtom* pAtom)
{
    const HTREEITEM hItem = pAtom ? GetItem(pAtom) : nullptr;
    try {
        return hItem && AddMembers(hItem, pAtom, AtomsBelow(hItem));
    } catch (CMemoryException& e) {
        e.ReportError();
        return FALSE;
    }
}

bool CObjectsTree::AreMembersShown(HTREEITEM hItem) const
{
    const TREEITEMDATA* pRecord = RecordOf(hItem);
    return pRecord && pRecord->bMembersShown;
}

// Not an item that is going, and not one that shows the atom itself or stands below it.
bool CObjectsTree::TakesMember(HTREEITEM hParent, IAtom* pAtom) const
{
    const TREEITEMDATA* pRecord = RecordOf(hParent);
    if (!pRecord || pRecord->state == TREEITEMDATA::State::Leaving || (m_bOnDemand && !pRecord->bMembersShown))
        return false;
    if (!GetItem(pAtom))
        return true;
    for (HTREEITEM hItem = hParent; hItem && pRecord; pRecord = RecordOf(hItem = GetParentItem(hItem))) {
        if (pRecord->pAtom.Get() == pAtom)
            return false;
    }
    return true;
}

// The new item, in the map; NULL when there is none, and the user has been told.
HTREEITEM CObjectsTree::AddItem(IAtom* pAtom, IAtomContainer* pContainer, HTREEITEM hParent)
{
    try {
        auto pRecord = std::make_unique<TREEITEMDATA>();
        pRecord->pAtom = CStubRef<IAtom>::Share(pAtom);
        pRecord->pContainer = CStubRef<IAtomContainer>::Share(pContainer);
        const HTREEITEM hItem = HandToControl(pRecord.get(), hParent);
        if (!hItem) {
            if (!m_bClosing && (hParent == TVI_ROOT || RecordOf(hParent)))
                ReportInsertFailed();
            return nullptr;
        }
        pRecord.release()->state = TREEITEMDATA::State::Settled;
        MapItem(pAtom, hItem);
        return hItem;
    } catch (CMemoryException& e) {
        e.ReportError();
        return nullptr;
    }
}

// In a container that is being filled the order is made once, when all members are there. NULL when the control
// refuses, or the parent went while the host was asked for labels.
HTREEITEM CObjectsTree::HandToControl(TREEITEMDATA* pRecord, HTREEITEM hParent)
{
    TREEITEMDATA* const pParent = hParent == TVI_ROOT ? nullptr : RecordOf(hParent);
    const bool bFilling = pParent && pParent->state == TREEITEMDATA::State::Filling;
    if (bFilling)
        pParent->bUnordered = true;

    TVINSERTSTRUCT insert{};
    insert.hParent = hParent;
    insert.hInsertAfter = bFilling ? TVI_LAST : TVI_SORT;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN | TVIF_PARAM;
    insert.item.pszText = LPSTR_TEXTCALLBACK;
    insert.item.iImage = insert.item.iSelectedImage = I_IMAGECALLBACK;
    insert.item.cChildren = I_CHILDRENCALLBACK;
    insert.item.lParam = reinterpret_cast<LPARAM>(pRecord);
    const HTREEITEM hItem = InsertItem(&insert);
    return IsItem(hItem) ? hItem : nullptr;
}

void CObjectsTree::MapItem(IAtom* pAtom, HTREEITEM hItem)
{
    try {
        m_itemMap[pAtom] = hItem;
    } catch (...) {
        RemoveItem(hItem);
        throw;
    }
}

// But for those that have an item there already.
BOOL CObjectsTree::AddMembers(HTREEITEM hItem, IAtom* pAtom, const std::unordered_set<IAtom*>& shown)
{
    const auto pMembers = CStubRef<IAtomContainer>::From(pAtom);
    if (!pMembers || !Advance(hItem, TREEITEMDATA::State::Settled, TREEITEMDATA::State::Filling))
        return FALSE;
    RecordOf(hItem)->bMembersShown = true;
    for (UINT i = 0; i < pMembers->GetCount(); ++i) {
        CStubRef<IAtom> pMember;
        pMembers->GetAtoms(i, 1, pMember.Receive(), IID_IAtom);
        if (pMember && !shown.contains(pMember.Get()))
            OnCreateAtom(pMember.Get(), pMembers.Get());
    }
    if (Advance(hItem, TREEITEMDATA::State::Filling, TREEITEMDATA::State::Settled) &&
        std::exchange(RecordOf(hItem)->bUnordered, false))
        OrderMembers(hItem);
    return TRUE;
}

// False when the item is gone, or going.
bool CObjectsTree::Advance(HTREEITEM hItem, TREEITEMDATA::State from, TREEITEMDATA::State to)
{
    TREEITEMDATA* const pRecord = RecordOf(hItem);
    if (!pRecord || pRecord->state != from)
        return false;
    pRecord->state = to;
    return true;
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
        DropItem(hItem, pAtom);
    }
    return TRUE;
}

// From here on the item is going: it is not removed twice, however its removal comes back, and takes no members. Empty
// when it is going already, or only arriving: the one who began that ends it.
CObjectsTree::RecordHolder CObjectsTree::TakeRecord(HTREEITEM hItem)
{
    TREEITEMDATA* const pRecord = RecordOf(hItem);
    if (!pRecord || pRecord->state == TREEITEMDATA::State::Arriving || pRecord->state == TREEITEMDATA::State::Leaving)
        return nullptr;
    pRecord->state = TREEITEMDATA::State::Leaving;
    return RecordHolder(pRecord);
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
        DropItem(hItem, pRecord->pAtom.Get());
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
void CObjectsTree::DropItem(HTREEITEM hItem, IAtom* pAtom)
{
    RemoveChildren(hItem);
    const HTREEITEM hParent = GetParentItem(hItem);
    DeleteItem(hItem);
    if (!GetSelectedItem())
        SetBoldRoot(hParent, FALSE); // the selection went with the item: no one would take it, or be left by it
    if (GetItem(pAtom) == hItem)
        m_itemMap.erase(pAtom);
    m_iconSlots.GiveUp(hItem);
}
