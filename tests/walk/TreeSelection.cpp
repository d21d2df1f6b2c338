// How a tree's selection moves, and what the user does to it.
#include "Toolkit/message/Messages.h"
#include "tests/walk/TreeModel.h"

#include <algorithm>
#include <cctype>

bool TreeModel::Select(Item* pItem)
{
    if (pItem == m_pCaret)
        return true;
    ++m_nSelecting;
    fromSelChange = !hasFocus;
    const bool bAllowed = m_view == kPassive || AskToSelect(pItem);
    if (bAllowed) {
        SetBold(m_pCaret, false);
        const Item* const pFormer = std::exchange(m_pCaret, pItem);
        for (Item* p = pItem ? pItem->pParent : nullptr; p; p = p->pParent)
            p->expanded = true;
        if (m_view != kPassive && pFormer)
            Tell(Op::Deselected, pFormer->pAtom, pFormer->pContainer);
        if (m_view != kPassive && pItem) {
            Tell(Op::Entered, pItem->pAtom, pItem->pContainer);
            Tell(Op::Selected, pItem->pAtom, pItem->pContainer);
        }
        SetBold(pItem, true);
    }
    fromSelChange = false; // also where the focus that came with it was refused
    --m_nSelecting;
    return bAllowed;
}

// The focus may end the editing of a label, and so the item that is left, or is to be selected.
bool TreeModel::AskToSelect(Item* pItem)
{
    const Item* const pLeft = m_pCaret;
    TakeFocus();
    if (IsItem(pLeft) && !Ask(Op::Deselecting, pLeft->pAtom, pLeft->pContainer))
        return false;
    TakeFocus();
    return !pItem || (IsItem(pItem) && Ask(Op::Selecting, pItem->pAtom, pItem->pContainer));
}

void TreeModel::SetBold(Item* pItem, bool bBold)
{
    for (; pItem; pItem = pItem->pParent)
        pItem->bold = bBold;
}

// A selection that would be hidden moves up.
void TreeModel::Expand(Item* pItem, bool bExpand)
{
    if (!pItem || pItem->expanded == bExpand || (bExpand && pItem->children.empty()))
        return;
    pItem->expanded = bExpand;
    Item* p = m_pCaret;
    while (p && p != pItem)
        p = p->pParent;
    if (!bExpand && p)
        Select(pItem);
}

void TreeModel::ExpandBranch(Item* pItem)
{
    Expand(pItem, true);
    for (const auto& pChild : pItem->children)
        ExpandBranch(pChild.get());
}

bool TreeModel::AnnounceSelection()
{
    const Item* const pItem = fromSelChange ? nullptr : m_pCaret;
    if (!pItem)
        return true;
    if (!Ask(Op::Selecting, pItem->pAtom, pItem->pContainer))
        return false;
    Tell(Op::Selected, pItem->pAtom, pItem->pContainer);
    return true;
}

std::vector<TreeModel::Item*> TreeModel::ShownItems() const
{
    std::vector<Item*> shown;
    const auto add = [&](const auto& self, const Item& item) -> void {
        for (const auto& pChild : item.children) {
            shown.push_back(pChild.get());
            if (pChild->expanded)
                self(self, *pChild);
        }
    };
    add(add, m_root);
    return shown;
}

// A tree that has the focus selects what the right button is pressed on; one that has not only takes it.
void TreeModel::Click(const Hit& hit, Keys, bool right)
{
    const bool bHadFocus = m_model.Focus() == m_view;
    labelDue.reset();
    if (!TakeFocus())
        return;
    Item* const pItem = ItemOf(hit.pAtom);
    const bool bOnItem = hit.part == Part::Picture || hit.part == Part::Label;
    if (!pItem)
        return;
    if (right) {
        if (bHadFocus && bOnItem)
            Select(pItem);
        return;
    }
    if (hit.part == Part::Button)
        return Expand(pItem, !pItem->expanded);
    if (!bOnItem)
        return;
    const bool bMeansLabel = hit.part == Part::Label && pItem == m_pCaret && m_model.Now() - focusedAt >= 500;
    Select(pItem);
    if (bMeansLabel) {
        m_pClicked = pItem;
        labelDue = m_model.Now();
    }
}

void TreeModel::PressAgain(const Hit& hit)
{
    Item* const pItem = ItemOf(hit.pAtom);
    if (pItem && hit.part != Part::Beside)
        Expand(pItem, !pItem->expanded);
}

// The selected item may be hidden; then it counts as the one shown above it. Without one only End leads to the end.
void TreeModel::SelectBy(int nRows)
{
    const std::vector<Item*> shown = ShownItems();
    auto at = shown.end();
    for (Item* p = m_pCaret; p && at == shown.end(); p = p->pParent)
        at = std::ranges::find(shown, p);
    const int last = static_cast<int>(shown.size()) - 1;
    if (last < 0)
        return;
    const int row = at != shown.end() ? static_cast<int>(at - shown.begin()) + nRows : nRows == kFar ? last : 0;
    Select(shown[static_cast<std::size_t>(std::clamp(row, 0, last))]);
}

void TreeModel::Key(UINT vkey, Keys keys)
{
    if (keys.control)
        return; // scrolls only
    const int nPage = std::max(page - 1, 1);
    const std::map<UINT, int> steps{{VK_UP, -1},      {VK_DOWN, 1},     {VK_PRIOR, -nPage},
                                    {VK_NEXT, nPage}, {VK_HOME, -kFar}, {VK_END, kFar}};
    if (const auto found = steps.find(vkey); found != steps.end())
        return SelectBy(found->second);
    if (!m_pCaret)
        return;
    const bool bOpen = m_pCaret->expanded && !m_pCaret->children.empty();
    if (vkey == VK_MULTIPLY)
        ExpandBranch(m_pCaret);
    else if (vkey == VK_ADD || (vkey == VK_RIGHT && !bOpen))
        Expand(m_pCaret, true);
    else if (vkey == VK_SUBTRACT || (vkey == VK_LEFT && bOpen))
        Expand(m_pCaret, false);
    else if (vkey == VK_RIGHT)
        Select(m_pCaret->children.front().get());
    else if ((vkey == VK_LEFT || vkey == VK_BACK) && m_pCaret->pParent)
        Select(m_pCaret->pParent);
}

TreeModel::Item* TreeModel::Search(const std::string& prefix, bool bAfter) const
{
    const std::vector<Item*> shown = ShownItems();
    const auto caret = std::ranges::find(shown, m_pCaret);
    const std::size_t from =
        (caret == shown.end() ? 0 : static_cast<std::size_t>(caret - shown.begin())) + (bAfter && m_pCaret);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        Item* const pItem = shown[(from + i) % shown.size()];
        if (CompareText(pItem->pAtom->TreeLabel().substr(0, prefix.size()), prefix) == 0)
            return pItem;
    }
    return nullptr;
}

// The same letter again goes on to the item after.
void TreeModel::Type(char c)
{
    if (m_model.Now() - m_searchedAt > 1000)
        m_search.clear();
    if (c == ' ' && m_search.empty())
        return;
    m_search += c;
    m_searchedAt = m_model.Now();
    const bool bBegins = m_search.size() == 1;
    Item* pFound = Search(m_search, bBegins);
    const bool bRepeats = std::ranges::all_of(m_search, [c](char x) { return std::tolower(x) == std::tolower(c); });
    if (!pFound && !bBegins && bRepeats)
        pFound = Search({c}, true);
    if (pFound)
        Select(pFound);
}

void TreeModel::LoseFocus()
{
    ViewModel::LoseFocus();
    m_search.clear();
}

// A tree without a selection selects its topmost item.
void TreeModel::GainFocus()
{
    ViewModel::GainFocus();
    if (Item* const pTop = m_pCaret || m_nSelecting > 0 ? nullptr : ItemOf(m_model.layout.TopItem(m_view)))
        Select(pTop);
}
