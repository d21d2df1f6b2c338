// The order of a container's members, made when it is announced.
#include "Toolkit/base/Exception.h"
#include "Toolkit/base/Text.h"
#include "Views/host/IPhase.h"
#include "Views/host/LinkOrder.h"
#include "Views/host/NameKeys.h"
#include "Views/host/ReadName.h"
#include "Views/tree/ObjectsTree.h"

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

// Members stand by their labels first, as if each had been inserted by its own, and so do those that MyFunc
// finds equal. Where names alone decide they are read once for each member, not for each comparison.
void CObjectsTree::OrderMembers(HTREEITEM hItem)
{
    SortChildren(hItem);
    try {
        if (OrderByName(hItem))
            return;
    } catch (CMemoryException&) {
        // No room for the keys: comparing needs none.
    }
    TVSORTCB sort{hItem, &MyFunc, 0};
    SortChildrenCB(&sort);
}

// False when names do not decide, or cannot be read, and nothing has changed. When the labels give the same order,
// which they nearly always do, the control is left to know that: a later atom finds its place among them by halving.
bool CObjectsTree::OrderByName(HTREEITEM hItem)
{
    const std::vector<HTREEITEM> children = ChildrenOf(hItem);
    views::NameKeys keys(children.size());
    for (const HTREEITEM hChild : children) {
        const HELDPAIR pair = HoldPair(hChild);
        if (!pair.pAtom || CStubRef<IImageLink>::From(pair.pAtom.Get()) || !keys.Add(pair.pAtom.Get()))
            return false;
    }
    bool bByLabel = true;
    int nRank = 0;
    for (const auto& key : keys.Sort()) {
        bByLabel &= key.nIndex == static_cast<std::uint32_t>(nRank);
        if (TREEITEMDATA* const pRecord = RecordOf(children[key.nIndex]))
            pRecord->nRank = nRank;
        ++nRank;
    }
    if (bByLabel)
        return true;
    TVSORTCB sort{hItem, &CompareRanks, 0};
    SortChildrenCB(&sort);
    return true;
}

int CObjectsTree::CompareRanks(LPARAM lParam1, LPARAM lParam2, LPARAM)
{
    return reinterpret_cast<const TREEITEMDATA*>(lParam1)->nRank -
           reinterpret_cast<const TREEITEMDATA*>(lParam2)->nRank;
}
