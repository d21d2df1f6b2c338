// Which of the tree control's items is selected, and which are open: selecting opens the ancestors, and closing an item
// takes the selection out of it. Every change asks, changes, shows and tells. And the drop highlight, which does not.
#pragma once

#include "Toolkit/controls/tree/TreeOrder.h"

namespace toolkit
{

class TreeSelection
{
public:
    TreeSelection(TreeItems& items, TreeLayout& layout, const TreeOwner& owner, TreeOrder& order,
                  TreeViewport& viewport)
        : m_items(items), m_layout(layout), m_owner(owner), m_order(order), m_viewport(viewport)
    {}

    HTREEITEM Caret() const { return m_hCaret; } // the selected item
    bool IsChanging() const { return m_changes > 0; }
    bool Select(HTREEITEM hItem, UINT cause); // is it the selected one now?
    void Forget() { m_hCaret = nullptr; }     // tells nobody
    BOOL OnSelectItem(UINT code, HTREEITEM hItem);

    bool HasDropMarks() const { return m_dropMarks > 0; }
    void SetState(ItemIndex item, UINT state, UINT mask); // TVIS_*, of those that need no asking

    // Each says whether an item has opened, or closed.
    bool Expand(HTREEITEM hItem, UINT code, UINT cause);
    bool ExpandAncestors(HTREEITEM hItem);
    bool Reveal(HTREEITEM hItem); // expands ancestors and scrolls
    void ExpandBranch(HTREEITEM hTop);
    BOOL OnExpand(UINT code, HTREEITEM hItem) { return Expand(hItem, code, TVC_UNKNOWN); }
    BOOL OnEnsureVisible(WPARAM, HTREEITEM hItem);

private:
    bool MaySelect(HTREEITEM hItem) const;
    void SetCaret(HTREEITEM hItem); // tells nobody
    bool ShowChildren(HTREEITEM hItem, bool expanded, UINT cause);

    TreeItems& m_items;
    TreeLayout& m_layout;
    const TreeOwner& m_owner;
    TreeOrder& m_order;
    TreeViewport& m_viewport;
    HTREEITEM m_hCaret = nullptr;
    int m_changes = 0;   // of the selection, under way
    int m_dropMarks = 0; // items with TVIS_DROPHILITED
};

} // namespace toolkit
