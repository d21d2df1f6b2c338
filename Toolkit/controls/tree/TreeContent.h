// The tree control's items as they come, change, are asked about and go.
#pragma once

#include "Toolkit/controls/tree/TreeSelection.h"

namespace toolkit
{

class TreeContent
{
public:
    TreeContent(ItemControl& control, TreeItems& items, const TreeOwner& owner, TreeOrder& order,
                TreeViewport& viewport, TreeSelection& selection)
        : m_control(control),
          m_items(items),
          m_owner(owner),
          m_order(order),
          m_viewport(viewport),
          m_selection(selection)
    {}

    HTREEITEM OnInsertItem(WPARAM, const TVINSERTSTRUCT* pInsert);
    BOOL OnGetItem(WPARAM, TVITEM* pItem) const;
    BOOL OnSetItem(WPARAM, const TVITEM* pItem);
    UINT OnGetItemState(HTREEITEM hItem, UINT mask) const;
    void TakeLabel(HTREEITEM hItem, std::string& text); // that the user has given

    // The selection leaves first, then each item is announced, children first.
    BOOL OnDeleteItem(WPARAM, HTREEITEM hItem);
    void DeleteChildren(ItemIndex parent);

private:
    void Insert(const TVINSERTSTRUCT& insert, HTREEITEM& hNew);
    ItemIndex Make(const TVINSERTSTRUCT& insert, ItemIndex parent); // at the end for TVI_SORT; kNoItem: no room
    int FindPlace(ItemIndex parent, HTREEITEM hInsertAfter) const;
    void AssignRest(ItemIndex item, const TVITEM& from); // than what it shows

    void DeleteBranch(HTREEITEM hTop);
    void MoveSelectionOutOf(ItemIndex item);
    void Remove(HTREEITEM hItem); // a leaf that was announced
    void CancelLabelWithin(HTREEITEM hTop);

    ItemControl& m_control;
    TreeItems& m_items;
    const TreeOwner& m_owner;
    TreeOrder& m_order;
    TreeViewport& m_viewport;
    TreeSelection& m_selection;
};

} // namespace toolkit
