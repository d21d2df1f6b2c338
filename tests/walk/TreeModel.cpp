#include "tests/walk/TreeModel.h"

#include <algorithm>

std::unique_ptr<ViewModel> NewModelOfTree(Model& model, int view)
{
    return std::make_unique<TreeModel>(model, view);
}

void TreeModel::WindowGoes()
{
    m_items.clear();
    m_root.children.clear();
    m_pCaret = nullptr;
}

void TreeModel::Take(Atom*, const Rows& rows, bool)
{
    isAlive = isVisible = true;
    std::vector<Item*> path{nullptr}; // from the root to the last row
    for (const Row& row : rows) {
        path.resize(static_cast<std::size_t>(row.depth) + 1);
        Item* const pItem = Insert(Below(path.back()).end(), path.back(), row.pAtom, row.pContainer);
        pItem->expanded = row.isExpanded;
        pItem->bold = row.isBold;
        if (row.isSelected)
            m_pCaret = pItem;
        path.push_back(pItem);
    }
}

Rows TreeModel::Shows() const
{
    Rows rows;
    const auto add = [&](const auto& self, const Item& above, int depth) -> void {
        for (const auto& p : above.children) {
            rows.push_back({p->pAtom, p->pContainer, depth, p.get() == m_pCaret, false, p->expanded, p->bold});
            self(self, *p, depth + 1);
        }
    };
    add(add, m_root, 0);
    return rows;
}

void TreeModel::Hear(Op op, Atom* pAtom, Atom* pContainer)
{
    switch (op) {
    case Op::Create:
        return AddItem(pAtom, pContainer);
    case Op::Delete:
        return pAtom ? RemoveAtom(pAtom, pContainer) : Sync(pContainer);
    case Op::Entered:
        if (Item* const pItem = ItemOf(pAtom))
            Select(pItem);
        break;
    default:
        break;
    }
}

TreeModel::Item* TreeModel::ItemOf(const Atom* pAtom) const
{
    const auto found = m_items.find(pAtom);
    return found == m_items.end() ? nullptr : found->second;
}

bool TreeModel::IsItem(const Item* pItem) const
{
    return std::ranges::any_of(m_items, [pItem](const auto& entry) { return entry.second == pItem; });
}

TreeModel::Item* TreeModel::Insert(Siblings::const_iterator place, Item* pParent, Atom* pAtom, Atom* pContainer)
{
    auto pNew = std::make_unique<Item>();
    pNew->pAtom = pAtom;
    pNew->pContainer = pContainer;
    pNew->pParent = pParent;
    m_items[pAtom] = pNew.get();
    return Below(pParent).insert(place, std::move(pNew))->get();
}

// A new item stands before the first one whose label is greater; members that come with their container are ordered
// by their names as well.
void TreeModel::AddItem(Atom* pAtom, Atom* pContainer)
{
    Item* const pParent = pContainer ? ItemOf(pContainer) : nullptr;
    if (!pAtom || (pContainer && !pParent))
        return;
    Siblings& siblings = Below(pParent);
    const auto place = std::ranges::find_if(
        siblings, [&](const auto& p) { return CompareText(p->pAtom->TreeLabel(), pAtom->TreeLabel()) > 0; });
    Item* const pItem = Insert(place, pParent, pAtom, pContainer);
    if (!pAtom->isContainer)
        return;
    for (const AtomRef& pMember : pAtom->members)
        AddItem(pMember.Get(), pAtom);
    std::ranges::stable_sort(pItem->children,
                             [](const auto& a, const auto& b) { return CompareAtoms(a->pAtom, b->pAtom) < 0; });
}

void TreeModel::RemoveAtom(Atom* pAtom, Atom* pContainer)
{
    Item* const pItem = ItemOf(pAtom);
    if (!pItem || (pContainer && !ItemOf(pContainer)))
        return;
    if (pAtom->isContainer)
        for (const AtomRef& pMember : pAtom->members)
            RemoveAtom(pMember.Get(), pAtom);
    RemoveItem(pItem);
}

// The selection moves on before its item goes: to the next sibling, the parent or the previous sibling. Where it may
// not, it goes with the item.
void TreeModel::RemoveItem(Item* pItem)
{
    while (!pItem->children.empty())
        RemoveItem(pItem->children.front().get());
    Item* const pParent = pItem->pParent;
    Siblings& siblings = Below(pParent);
    const auto isItem = [pItem](const auto& p) { return p.get() == pItem; };
    if (IsEdited() && m_pEdited == pItem)
        m_model.EndEdit(false);
    if (m_pCaret == pItem) {
        const auto at = std::ranges::find_if(siblings, isItem);
        Item* const pHeir = at + 1 != siblings.end() ? at[1].get()
                            : pParent                ? pParent
                            : at != siblings.begin() ? at[-1].get()
                                                     : nullptr;
        Select(pHeir);
    }
    if (m_pCaret == pItem)
        m_pCaret = nullptr;
    if (m_pClicked == pItem)
        m_pClicked = nullptr;
    m_items.erase(pItem->pAtom);
    siblings.erase(std::ranges::find_if(siblings, isItem));
    if (!m_pCaret)
        SetBold(pParent, false);
}

void TreeModel::Sync(Atom* pContainer)
{
    Item* const pItem = pContainer ? ItemOf(pContainer) : nullptr;
    std::vector<Atom*> gone;
    for (std::size_t i = 0; pItem && i < pItem->children.size(); ++i)
        if (pItem->children[i]->pAtom->parent != pContainer)
            gone.push_back(pItem->children[i]->pAtom);
    for (Atom* const pAtom : gone)
        RemoveAtom(pAtom, pContainer);
}

void TreeModel::BeginLabel(Item* pItem)
{
    labelDue.reset();
    if (!IsItem(pItem) || !TakeFocus() || !IsItem(pItem))
        return;
    const Atom* const pAtom = pItem->pAtom;
    for (Item* p = pItem->pParent; p; p = p->pParent)
        p->expanded = true;
    const Atom* const pHolder = pItem->pContainer;
    if (m_view == kPassive || !pHolder || !(pHolder->permissions & APF_RENAME) || !Ask(Op::PreRename, pAtom, pHolder))
        return;
    m_pEdited = pItem;
    m_model.OpenEdit(m_view, pAtom);
}

void TreeModel::BeginRename()
{
    Item* const pItem = m_pCaret;
    if (!pItem)
        return;
    if (IsEdited())
        m_model.EndEdit(true);
    BeginLabel(pItem);
}

void TreeModel::BeginDueLabel()
{
    if (m_pClicked && m_pClicked == m_pCaret)
        BeginLabel(m_pClicked);
}

std::pair<Atom*, Atom*> TreeModel::Edited() const
{
    return IsItem(m_pEdited) ? std::pair(m_pEdited->pAtom, m_pEdited->pContainer) : std::pair<Atom*, Atom*>();
}
