// What the tree control keeps of one item. Internal to the tree control.
#pragma once

#include "Toolkit/base/String.h"
#include "Toolkit/controls/tree/TreeView.h"

namespace toolkit
{

// An item's place in its pool. Valid as long as the item lives: what outlasts a notification is a handle.
using ItemIndex = std::uint32_t;
inline constexpr ItemIndex kNoItem = 0;
inline constexpr ItemIndex kRootItem = 1; // the parent of the top-level items; never shown

// A block of siblings (TreeSiblings.h).
using BlockIndex = std::uint32_t;
inline constexpr BlockIndex kNoBlock = 0;

// Are an item's children in the order of their labels, those gathered apart? Only as far as the control was told:
// labels that the owner is asked for may change at any time.
enum class ChildOrder : BYTE
{
    ByLabel,
    Unknown,
    NotByLabel
};

// There may be millions: what few of them have stands elsewhere.
struct TreeItem
{
    LPARAM lParam = 0;
    BlockIndex block = kNoBlock;    // among its siblings
    BlockIndex children = kNoBlock; // the top of the search tree of its children's blocks
    WORD generation = 1;            // of the handle; never 0
    BYTE state = 0;                 // TVIS_*
    ChildOrder order : 2 = ChildOrder::ByLabel;
    bool live : 1 = false;
    bool hasFace : 1 = false;   // else the owner is asked for all that it shows
    bool gathered : 1 = false;  // stands behind its siblings until its label tells its place among them
    bool goes : 1 = false;      // it is being deleted, and its subtree with it
    bool announced : 1 = false; // as deleted
    bool marked : 1 = false;    // while items are counted
};
static_assert(sizeof(TreeItem) <= sizeof(LPARAM) + 16);

// What an item shows when its owner is not asked for all of it.
struct TreeFace
{
    static constexpr int kChildrenCounted = -2; // the children flag follows from the child items

    CString text;
    bool asksForText = false;
    int image = 0, selectedImage = 0;
    int childrenFlag = kChildrenCounted; // or as in TVITEM::cChildren

    static constexpr UINT kParts = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN;

    TreeFace With(const TVITEM& changes) const;
    bool AsksForAll() const
    {
        return asksForText && image == I_IMAGECALLBACK && selectedImage == I_IMAGECALLBACK &&
               childrenFlag == I_CHILDRENCALLBACK;
    }
};

} // namespace toolkit
