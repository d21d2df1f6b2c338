// Inside the library: what the members of an item are ordered by, read as they come.
#pragma once

#include "Toolkit/controls/tree/TreeView.h"
#include "Views/host/inside/AtomOrder.h"

#include <vector>

namespace views
{

// The innermost of those being filled is known while it lives.
struct MemberKeys
{
    MemberKeys(HTREEITEM hParentItem, MemberKeys*& pInnermost, UINT nOrder)
        : hParent(hParentItem), pOuter(pInnermost), names(0, nOrder), m_pInnermost(pInnermost)
    {
        m_pInnermost = this;
    }
    ~MemberKeys() { m_pInnermost = pOuter; }
    MemberKeys(const MemberKeys&) = delete;
    MemberKeys& operator=(const MemberKeys&) = delete;

    void Add(IAtom* pAtom, HTREEITEM hItem);

    const HTREEITEM hParent;
    MemberKeys* const pOuter;
    NameKeys names;
    std::vector<HTREEITEM> items;
    int nAdded = 0;
    bool bNamesDecide = true;    // they were read, and no member is an image link
    bool bLabelsAreNames = true; // no member has a display name or a mark

private:
    MemberKeys*& m_pInnermost;
};

} // namespace views
