// What the tree control asks its owner, and tells it.
#pragma once

#include "Toolkit/controls/items/ItemControl.h"
#include "Toolkit/controls/tree/TreeItems.h"

namespace toolkit
{

// What an item shows; as far as it was asked for.
struct ItemFace
{
    std::string text;
    int image = -1, selectedImage = -1; // -1: none
    bool hasChildren = false;
};

class TreeOwner
{
public:
    TreeOwner(const NativeWindow& window, TreeItems& items) : m_window(window), m_items(items) {}

    // The parts asked for (TVIF_*), of the item's own or from the owner; none of them when the item is gone.
    void AskFace(HTREEITEM hItem, UINT parts, ItemFace& face) const;
    ItemFace AskFace(HTREEITEM hItem, UINT parts) const;
    std::string AskText(HTREEITEM hItem) const { return AskFace(hItem, TVIF_TEXT).text; }

    // Each gives the answer: other than 0, it is refused or taken.
    LRESULT TellSelection(UINT code, HTREEITEM hOld, HTREEITEM hNew, UINT cause) const;
    LRESULT TellItem(UINT code, HTREEITEM hItem, UINT action) const;
    LRESULT TellDrag(UINT code, HTREEITEM hItem, CPoint at) const; // returns when the drag is over

    std::optional<std::string> AskLabel(HTREEITEM hItem) const; // the text to begin with; nothing: refused
    bool TellLabel(HTREEITEM hItem, std::string& text, bool taken) const;
    void TellText(HTREEITEM hItem, std::string& text) const; // which the owner keeps itself

private:
    TVITEM Describe(HTREEITEM hItem) const; // all 0 when the item is gone
    NMTVDISPINFO LabelInfo(HTREEITEM hItem, std::string& text) const;
    void AskOwner(HTREEITEM hItem, UINT parts, ItemFace& face) const;

    const NativeWindow& m_window;
    TreeItems& m_items;
};

} // namespace toolkit
