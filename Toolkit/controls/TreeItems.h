// The tree control's items: their structure, which of them are shown, and in which row. Knows no window.
//
// Rows count the shown items from 0. Shown is an item all of whose ancestors are expanded. Row and item find each
// other in logarithmic time, times the item's depth; so does every change of the structure.
#pragma once

#include "Toolkit/controls/TreeSiblings.h"

namespace toolkit
{

class TOOLKIT_API TreeItems
{
public:
    TreeItem& operator[](ItemIndex i) { return m_pool[i]; }
    const TreeItem& operator[](ItemIndex i) const { return m_pool[i]; }

    HTREEITEM HandleOf(ItemIndex item) const { return m_pool.HandleOf(item); }
    ItemIndex Find(HTREEITEM hItem) const { return m_pool.Find(hItem); }
    ItemIndex FindParent(HTREEITEM hItem) const; // as Find, and the root for TVI_ROOT and NULL

    int Count() const { return m_pool.Count(); }
    bool IsExpanded(ItemIndex item) const { return (m_pool[item].state & TVIS_EXPANDED) != 0; }
    bool IsWithin(ItemIndex ancestor, ItemIndex item) const; // an item is within itself
    bool Goes(ItemIndex item) const;                         // it or an ancestor is being deleted
    int Level(ItemIndex item) const;                         // 0 for a top-level item

    // Neighbours; kNoItem where there is none, also for an item that has no place yet.
    ItemIndex Parent(ItemIndex item) const; // kNoItem for a top-level item
    int ChildCount(ItemIndex parent) const { return m_siblings.Count(parent); }
    ItemIndex ChildAt(ItemIndex parent, int place) const { return m_siblings.At(parent, place); }
    TreeSiblings::Part ChildrenOf(ItemIndex parent) const { return m_siblings.All(parent); }
    // Of these, what has all places from first on, without end. A part holds until the structure changes; finding
    // places in ever smaller parts costs as much as finding one.
    TreeSiblings::Part Narrow(TreeSiblings::Part part, int first, int end) const
    {
        return m_siblings.Narrow(part, first, end);
    }
    ItemIndex ChildAt(TreeSiblings::Part part, int place) const { return m_siblings.At(part, place); }
    int PlaceOf(ItemIndex item) const { return m_siblings.PlaceOf(item); }
    ItemIndex FirstChild(ItemIndex parent) const { return m_siblings.First(parent); }
    ItemIndex LastChild(ItemIndex parent) const { return m_siblings.Last(parent); }
    ItemIndex Next(ItemIndex item) const { return m_siblings.Next(item); }
    ItemIndex Previous(ItemIndex item) const { return m_siblings.Previous(item); }

    // Rows.
    int RowCount() const { return m_siblings.Rows(kRootItem); }
    bool IsShown(ItemIndex item) const;
    int RowOf(ItemIndex item) const;                                      // -1 when it is not shown
    ItemIndex AtRow(int row) const;                                       // kNoItem without such a row
    int RowsOf(ItemIndex item) const { return m_siblings.OwnRows(item); } // with its subtree, if it were shown

    // Changes. A new item has no place until it is placed; throws CMemoryException, and gives kNoItem when there
    // are too many.
    ItemIndex Make() { return m_pool.Take(); }
    void Place(ItemIndex item, ItemIndex parent, int place);
    void Delete(ItemIndex item); // which has no children
    void SetExpanded(ItemIndex item, bool expanded);
    void Arrange(ItemIndex parent, std::span<const ItemIndex> order); // names each child once

    // Moves on with every change of the structure.
    unsigned Version() const { return m_nVersion; }

private:
    void AddRowsAbove(ItemIndex parent, int rows); // below `parent` there are so many rows more

    TreePool m_pool;
    TreeSiblings m_siblings{m_pool};
    unsigned m_nVersion = 0;
};

} // namespace toolkit
