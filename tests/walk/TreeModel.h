// A tree: an item for every atom announced, one of them selected, its path bold.
#pragma once

#include "tests/walk/Model.h"

class TreeModel final : public ViewModel
{
public:
    using ViewModel::ViewModel;

    void WindowGoes() override;
    void Take(Atom* pContainer, const Rows& rows, bool bPaneShown) override;
    void Hear(Op op, Atom* pAtom, Atom* pContainer) override;
    bool AnnounceSelection() override;
    void LoseFocus() override;
    void GainFocus() override;
    void Click(const Hit& hit, Keys keys, bool right) override;
    void PressAgain(const Hit& hit) override;
    void Key(UINT vkey, Keys keys) override;
    void Type(char c) override; // goes to the next shown item whose label begins with what is typed
    void BeginRename() override;
    void BeginDueLabel() override;
    std::pair<Atom*, Atom*> Edited() const override;
    Rows Shows() const override;

private:
    struct Item
    {
        Atom *pAtom = nullptr, *pContainer = nullptr;
        Item* pParent = nullptr;
        std::vector<std::unique_ptr<Item>> children;
        bool expanded = false, bold = false;
    };
    using Siblings = std::vector<std::unique_ptr<Item>>;

    // Items.
    Item* ItemOf(const Atom* pAtom) const;
    bool IsItem(const Item* pItem) const; // false for one that is gone
    Siblings& Below(Item* pItem) { return pItem ? pItem->children : m_root.children; }
    Item* Insert(Siblings::const_iterator place, Item* pParent, Atom* pAtom, Atom* pContainer);
    void AddItem(Atom* pAtom, Atom* pContainer);
    void RemoveItem(Item* pItem);
    void RemoveAtom(Atom* pAtom, Atom* pContainer);
    void Sync(Atom* pContainer);
    void BeginLabel(Item* pItem);

    // Selection.
    bool Select(Item* pItem);
    bool AskToSelect(Item* pItem);
    static void SetBold(Item* pItem, bool bBold);
    void Expand(Item* pItem, bool bExpand);
    void ExpandBranch(Item* pItem);
    std::vector<Item*> ShownItems() const;
    static constexpr int kFar = 1'000'000;
    void SelectBy(int nRows); // so many rows further, as far as there are
    Item* Search(const std::string& prefix, bool bAfter) const;

    Item m_root;
    std::map<const Atom*, Item*> m_items;
    Item *m_pCaret = nullptr, *m_pClicked = nullptr, *m_pEdited = nullptr;
    int m_nSelecting = 0;
    std::string m_search;
    DWORD m_searchedAt = 0;
};
