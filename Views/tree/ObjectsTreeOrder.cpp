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
int CompareNames(IAtom* a, IAtom* b, UINT nOrder)
{
    CString strA, strB;
    views::ReadName(a, &IAtom::GetName, strA);
    views::ReadName(b, &IAtom::GetName, strB);
    if (nOrder == MOF_BYNAME)
        return _mbsicmp(strA, strB);
    return views::AtomKey(a, strA, nOrder).compare(views::AtomKey(b, strB, nOrder));
}

// A derived class's own items come last.
template <UINT nOrder>
void MakeOrderKey(LPARAM lParam, LPCSTR pszLabel, std::string& key)
{
    const auto* const pData = reinterpret_cast<const CObjectsTree::TREEITEMDATA*>(lParam);
    key += pData ? views::AtomKey(pData->pAtom.Get(), pszLabel, nOrder) : "\x7F" + std::string(pszLabel);
}

} // namespace

// What is shown is ordered anew from the top down.
void CObjectsTree::SetMemberOrder(UINT nOrder)
{
    static constexpr PFNTVORDERKEY makers[] = {nullptr, &MakeOrderKey<MOF_NATURAL>, &MakeOrderKey<MOF_CONTAINERSFIRST>,
                                               &MakeOrderKey<MOF_NATURAL | MOF_CONTAINERSFIRST>};
    m_nOrder = nOrder & (MOF_NATURAL | MOF_CONTAINERSFIRST);
    if (!m_hWnd)
        return;
    SetOrderKey(makers[m_nOrder]);
    try {
        std::vector<HTREEITEM> items = ChildrenOf(TVI_ROOT);
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (!IsItem(items[i]))
                continue;
            OrderMembersAnew(items[i]);
            const std::vector<HTREEITEM> children = ChildrenOf(items[i]);
            items.insert(items.end(), children.begin(), children.end());
        }
    } catch (CMemoryException& e) {
        e.ReportError();
    }
}

void CObjectsTree::OrderMembersAnew(HTREEITEM hItem)
{
    if (!GetChildItem(hItem) || OrderByLabelAndName(hItem))
        return;
    TVSORTCB sort{hItem, &MyFunc, static_cast<LPARAM>(m_nOrder)};
    SortChildrenCB(&sort);
}

int CObjectsTree::MyFunc(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort)
{
    if (!lParam1 || !lParam2) // a derived class's own items come last
        return static_cast<int>(!lParam1) - static_cast<int>(!lParam2);
    // Held: whoever is asked may remove one of the items.
    const auto a = CStubRef<IAtom>::Share(reinterpret_cast<const TREEITEMDATA*>(lParam1)->pAtom.Get());
    const auto b = CStubRef<IAtom>::Share(reinterpret_cast<const TREEITEMDATA*>(lParam2)->pAtom.Get());
    try {
        if (const std::optional<int> order = views::CompareLinks(a.Get(), b.Get()))
            return *order;
        return CompareNames(a.Get(), b.Get(), static_cast<UINT>(lParamSort));
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
    TVSORTCB sort{hItem, &MyFunc, static_cast<LPARAM>(m_nOrder)};
    SortChildrenCB(&sort);
}

// Members stand by their labels first, as if each had been inserted by its own, and so do those that MyFunc finds
// equal.
bool CObjectsTree::OrderByLabelAndName(HTREEITEM hItem)
{
    SortChildren(hItem);
    views::MemberKeys keys(hItem, m_pFilling, m_nOrder);
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
