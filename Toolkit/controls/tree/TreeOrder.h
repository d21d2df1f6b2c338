// How the tree control finds the places of items among sorted siblings, and sorts those that are there.
//
// What is inserted in label order is only gathered behind its siblings. Its place is found when somebody may see it or
// asks for it: before the next paint, input or question. Then many are merged with their siblings, all labels read
// once; a few find their places one by one.
//
// A container whose children are known to be in label order is bisected: the place lies between a label that is not
// greater and one that is. Where they are not, labels are looked through for the first greater one; where nobody knows,
// a merge shows it. Small containers are always merged: there it costs nothing and holds whatever the owner has renamed
// since.
#pragma once

#include "Toolkit/controls/tree/TreeViewport.h"

namespace toolkit
{

// A parent is NULL for the root.
class TreeOrder
{
public:
    TreeOrder(const NativeWindow& window, TreeItems& items, const TreeOwner& owner, TreeViewport& viewport)
        : m_window(window), m_items(items), m_owner(owner), m_viewport(viewport)
    {}

    // Gathers a new last child; its sibling before it may be gathered already. It needs no memory after MakeRoom.
    void MakeRoom() { m_unsettled.reserve(m_unsettled.size() + 1); }
    void Gather(ItemIndex item, ItemIndex parent, bool withFormer);
    // Finds the places of all that is gathered.
    void Settle()
    {
        if (!m_unsettled.empty())
            SettleGathered();
    }
    static bool IsNeededBy(UINT message, WPARAM wParam);

    void Doubt(ItemIndex parent); // its children's labels or places have changed
    BOOL OnSortChildren(WPARAM, HTREEITEM hParent);
    BOOL OnSortChildrenCB(WPARAM, const TVSORTCB* pSort);
    LRESULT OnSetOrderKey(WPARAM, LPARAM lParam);
    BOOL OnArrangeChildren(WPARAM, const TVARRANGECHILDREN* pArrange);

private:
    void SettleGathered();
    void SettleBelow(HTREEITEM hParent);
    void SettleOne(HTREEITEM hItem);
    std::vector<HTREEITEM> GatheredBelow(ItemIndex parent) const;
    // The place is the one before the first child whose label is greater.
    int FindPlace(HTREEITEM hNew, HTREEITEM hParent) const;
    int Bisect(const std::string& key, HTREEITEM hNew, HTREEITEM hParent) const;
    int LookThrough(const std::string& key, HTREEITEM hNew, HTREEITEM hParent) const;
    std::string KeyOf(HTREEITEM hItem) const; // empty for one that is gone
    std::string MakeKey(HTREEITEM hItem, const char* pszLabel) const;
    bool SortByLabel(HTREEITEM hParent, int settled);
    void Rearrange(ItemIndex parent, const std::vector<ItemIndex>& former, const std::vector<ItemIndex>& order,
                   ChildOrder known);

    const NativeWindow& m_window;
    TreeItems& m_items;
    const TreeOwner& m_owner;
    TreeViewport& m_viewport;
    std::vector<HTREEITEM> m_unsettled; // whose last children are gathered
    int m_settling = 0;                 // under way
    PFNTVORDERKEY m_makeKey = nullptr;
};

} // namespace toolkit
