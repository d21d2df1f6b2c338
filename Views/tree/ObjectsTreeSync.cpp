// Dropping items whose atoms their container holds no longer.
#include "Toolkit/base/Exception.h"
#include "Views/host/inside/HeldPair.h"
#include "Views/tree/ObjectsTree.h"

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
