// What the tree control keeps of one item. Internal to the tree control.
#pragma once

#include "Toolkit/base/String.h"
#include "Toolkit/controls/TreeView.h"

namespace toolkit
{

// An item's place in its pool. Valid as long as the item lives: what outlasts a notification is a handle.
using ItemIndex = std::uint32_t;
inline constexpr ItemIndex kNoItem = 0;
inline constexpr ItemIndex kRootItem = 1; // the parent of the top-level items; never shown

// Are an item's children in the order of their labels? Only as far as the control was told: labels that the owner
// is asked for may change at any time.
enum class ChildOrder : BYTE
{
    ByLabel,
    Unknown,
    NotByLabel
};

struct TreeItem
{
    static constexpr std::int8_t kChildrenCounted = -2; // the children flag follows from the child items

    LPARAM lParam = 0;
    CString text;
    int image = 0, selectedImage = 0;

    ItemIndex parent = kNoItem;
    ItemIndex children = kNoItem; // the top of the children's search tree

    // Its node in the search tree of its siblings, and the sums over the part of it that hangs on this node.
    ItemIndex up = kNoItem, left = kNoItem, right = kNoItem;
    int siblings = 0; // nodes
    int rows = 0;     // rows shown of them and their subtrees, as if their parent were shown and expanded

    WORD generation = 1;                         // of the handle; never 0
    BYTE state = 0;                              // TVIS_*
    std::int8_t childrenFlag = kChildrenCounted; // or as in TVITEM::cChildren
    ChildOrder order = ChildOrder::ByLabel;
    bool live : 1 = false;
    bool placed : 1 = false;      // among its siblings
    bool asksForText : 1 = false; // of the owner
    bool goes : 1 = false;        // it is being deleted, and its subtree with it
    bool announced : 1 = false;   // as deleted
};

} // namespace toolkit
