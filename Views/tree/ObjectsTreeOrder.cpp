// The order of a container's members, made when it is announced.
#include "Toolkit/base/Exception.h"
#include "Toolkit/base/Text.h"
#include "Views/host/IDispAtom.h"
#include "Views/host/IPhase.h"
#include "Views/host/inside/AtomOrder.h"
#include "Views/host/inside/HeldPair.h"
#include "Views/host/inside/ReadName.h"
#include "Views/tree/ObjectsTree.h"
#include "Views/tree/inside/MemberKeys.h"

namespace
{

// A name that cannot be read counts as empty.
int CompareNames(IAtom* a, IAtom* b)
{
    CString strA, strB;
    views::ReadName(a, &IAtom::GetName, strA);
    views::ReadName(b, &IAtom::GetName, strB);
    return _mbsicmp(strA, strB);
}

} // namespace

int CObjectsTree::MyFunc(LPARAM lParam1, LPARAM lParam2, LPARAM)
{
    if (!lParam1 || !lParam2) // a derived class's own items come last
        return static_cast<int>(!lParam1) - static_cast<int>(!lParam2);
    // Held: whoever is asked may remove one of the items.
    const auto a = CStubRef<IAtom>::Share(reinterpret_cast<const TREEITEMDATA*>(lParam1)->pAtom.Get());
    const auto b = CStubRef<IAtom>::Share(reinterpret_cast<const TREEITEMDATA*>(lParam2)->pAtom.Get());
    try {
        if (const std::optional<int> order = views::CompareLinks(a.Get(), b.Get()))
            return *order;
        return CompareNames(a.Get(), b.Get());
    } catch (CMemoryException& e) {
        e.ReportError();
        return 0;
    }
}

void views::MemberKeys::Add(IAtom* pAtom, HTREEITEM hItem)
{
    ++nAdded;
    try {
        bNamesDecide = bNamesDecide && !CStubRef<IImageLink>::From(pAtom) && names.Add(pAtom);
        bLabelsAreNames = bLabelsAreNames && bNamesDecide && !CStubRef<IDispAtom>::From(pAtom) && !pAtom->IsModified();
        if (bNamesDecide)
            items.push_back(hItem);
    } catch (CMemoryException&) {
        bNamesDecide = false; // comparing needs no room
    }
}

void CObjectsTree::NoteMember(HTREEITEM hParent, IAtom* pAtom, HTREEITEM hItem)
{
    for (views::MemberKeys* p = m_pFilling; p; p = p->pOuter) {
        if (p->hParent == hParent)
            return p->Add(pAtom, hItem);
    }
}

// Where all names are different they decide alone, and no label is asked for.
void CObjectsTree::OrderMembers(HTREEITEM hItem, views::MemberKeys& keys)
{
    try {
        if (ArrangeByName(hItem, keys, false) || OrderByLabelAndName(hItem))
            return;
    } catch (CMemoryException&) {
        // No room for the keys.
    }
    TVSORTCB sort{hItem, &MyFunc, 0};
    SortChildrenCB(&sort);
}

// Members stand by their labels first, as if each had been inserted by its own, and so do those that MyFunc finds
// equal.
bool CObjectsTree::OrderByLabelAndName(HTREEITEM hItem)
{
    SortChildren(hItem);
    views::MemberKeys keys(hItem, m_pFilling);
    for (const HTREEITEM hChild : ChildrenOf(hItem)) {
        const HELDPAIR pair = HoldPair(hChild);
        if (!pair.pAtom)
            return false;
        keys.Add(pair.pAtom.Get(), hChild);
    }
    return ArrangeByName(hItem, keys, true);
}

// False when names do not decide, or are not those of all children, and nothing has changed.
bool CObjectsTree::ArrangeByName(HTREEITEM hItem, views::MemberKeys& keys, bool bEqualOnesToo)
{
    if (!keys.bNamesDecide)
        return false;
    const toolkit::TextKeys::Keys& sorted = keys.names.Sort();
    if (!bEqualOnesToo && keys.names.HasEqual())
        return false;
    std::vector<HTREEITEM> order;
    order.reserve(sorted.size());
    for (const auto& key : sorted)
        order.push_back(keys.items[key.nIndex]);
    return ArrangeChildren(hItem, order, keys.bLabelsAreNames) != FALSE;
}
