// The tree control's items: their structure, which of them are shown, and in which row. Knows no window.
//
// Rows count the shown items from 0. Shown is an item all of whose ancestors are expanded. Row and item find each
// other in logarithmic time, times the item's depth; so does every change of the structure.
#pragma once

#include "Toolkit/controls/tree/TreeSiblings.h"

#include <unordered_map>

namespace toolkit
{

class TOOLKIT_API TreeItems
{
public:
    TreeItem& operator[](ItemIndex i) { return m_pool[i]; }
    const TreeItem& operator[](ItemIndex i) const { return m_pool[i]; }

    HTREEITEM HandleOf(ItemIndex item) const { return m_pool.HandleOf(item); }
    ItemIndex Find(HTREEITEM hItem) const { return m_pool.Find(hItem); }
    ItemIndex FindParent(HTREEITEM hItem) const // as Find, and the root for TVI_ROOT and NULL
    {
        return !hItem || hItem == TVI_ROOT ? kRootItem : Find(hItem);
    }

    int Count() const { return m_pool.Count(); }
    bool IsExpanded(ItemIndex item) const { return (m_pool[item].state & TVIS_EXPANDED) != 0; }
    bool IsWithin(ItemIndex ancestor, ItemIndex item) const; // an item is within itself
    bool Goes(ItemIndex item) const;                         // it or an ancestor is being deleted
    int& Deletions() { return m_deletions; }                 // under way
    int Level(ItemIndex item) const;                         // 0 for a top-level item

    // Neighbours; kNoItem where there is none.
    ItemIndex Parent(ItemIndex item) const; // kNoItem for a top-level item
    ItemIndex ParentOrRoot(ItemIndex item) const { return m_siblings.ParentOf(item); }
    int ChildCount(ItemIndex parent) const { return m_siblings.Count(parent); }
    ItemIndex ChildAt(ItemIndex parent, int place) const { return m_siblings.At(parent, place); }
    std::vector<ItemIndex> Children(ItemIndex parent) const { return m_siblings.All(parent); }
    int PlaceOf(ItemIndex item) const { return m_siblings.PlaceOf(item); }
    ItemIndex FirstChild(ItemIndex parent) const { return m_siblings.First(parent); }
    ItemIndex LastChild(ItemIndex parent) const { return m_siblings.Last(parent); }
    ItemIndex Next(ItemIndex item) const { return m_siblings.Next(item); }
    ItemIndex Previous(ItemIndex item) const { return m_siblings.Previous(item); }

    // Rows.
    int RowCount() const { return m_siblings.Rows(kRootItem); }
    bool IsShown(ItemIndex item) const;
    int RowOf(ItemIndex item) const; // -1 when it is not shown
    ItemIndex AtRow(int row) const;  // kNoItem without such a row

    bool AreChildren(ItemIndex parent, std::span<const ItemIndex> items); // each of them once, as many as there are

    // What an item shows of its own.
    const TreeFace& FaceOf(ItemIndex item) const;
    void SetFace(ItemIndex item, const TreeFace& face);

    // Changes. Those that need memory throw CMemoryException, and nothing has changed then.
    ItemIndex Insert(ItemIndex parent, int place, UINT state = 0); // kNoItem when there are too many
    void MoveUp(ItemIndex item, int place);                        // among its siblings, to a place before its own
    void Delete(ItemIndex item);                                   // which has no children
    void SetExpanded(ItemIndex item, bool expanded);
    void Arrange(ItemIndex parent, std::span<const ItemIndex> order); // names each child once

    // Moves on with every change of the structure.
    unsigned Version() const { return m_nVersion; }

private:
    void AddRowsAbove(ItemIndex parent, int rows); // below `parent` there are so many rows more

    TreePool m_pool;
    TreeSiblings m_siblings{m_pool};
    std::unordered_map<ItemIndex, TreeFace> m_faces; // of items with hasFace
    unsigned m_nVersion = 0;
    int m_deletions = 0;
};

} // namespace toolkit
