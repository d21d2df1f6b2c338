// How typing finds the next shown item.
#include "Toolkit/controls/tree/TreeKeys.h"

namespace toolkit
{

void TreeKeys::OnChar(char32_t c)
{
    if (m_bCharIsTaken)
        return;
    m_typeAhead.Type(c, [this](const std::string& prefix, bool bBehind) {
        const HTREEITEM hFound = FindLabel(prefix, bBehind);
        MoveTo(m_items.Find(hFound));
        return hFound != nullptr;
    });
}

HTREEITEM TreeKeys::FindLabel(const std::string& prefix, bool afterCaret) const
{
    const ItemIndex caret = m_items.Find(m_selection.Caret());
    const int from = std::max(m_items.RowOf(caret), 0) + (afterCaret && caret != kNoItem ? 1 : 0);
    for (int i = 0; i < m_items.RowCount(); ++i) {
        const HTREEITEM hItem = m_items.HandleOf(m_items.AtRow((from + i) % m_items.RowCount()));
        const std::string text = m_owner.AskText(hItem);
        if (m_items.Find(hItem) != kNoItem && BeginsWith(text, prefix))
            return hItem;
    }
    return nullptr;
}

} // namespace toolkit
