// How typing finds the next shown item whose label begins with what was typed.
#include "Toolkit/base/Text.h"
#include "Toolkit/base/Ticks.h"
#include "Toolkit/controls/tree/TreeKeys.h"

namespace toolkit
{

namespace
{

constexpr DWORD kPatience = 1000; // milliseconds between two letters of one word

bool BeginsWith(std::string_view text, std::string_view prefix)
{
    while (!prefix.empty()) {
        if (text.empty())
            return false;
        const CodePoint one = DecodeUtf8(text), other = DecodeUtf8(prefix);
        if (FoldCase(one.value) != FoldCase(other.value))
            return false;
        text.remove_prefix(static_cast<std::size_t>(one.bytes));
        prefix.remove_prefix(static_cast<std::size_t>(other.bytes));
    }
    return true;
}

// Is the text one letter, again and again?
bool IsRepeated(std::string_view text, std::string_view letter)
{
    while (BeginsWith(text, letter))
        text.remove_prefix(static_cast<std::size_t>(DecodeUtf8(text).bytes));
    return text.empty();
}

} // namespace

void TreeKeys::OnChar(char32_t c)
{
    const bool begins = m_typed.empty() || GetTickCount() - m_typedAt > kPatience;
    const bool types = c > ' ' || (c == ' ' && !begins);
    if (m_bCharIsTaken || !types || c == 0x7F)
        return;
    if (begins)
        m_typed.clear();
    m_typed += EncodeUtf8(c);
    m_typedAt = GetTickCount();
    SearchFor(EncodeUtf8(c));
}

// A longer word may be that of the item found so far. The same letter again goes on to the next item.
void TreeKeys::SearchFor(const std::string& letter)
{
    const std::string typed = m_typed;
    const bool begins = typed == letter;
    HTREEITEM hFound = FindLabel(typed, begins);
    if (!hFound && !begins && IsRepeated(typed, letter))
        hFound = FindLabel(letter, true);
    MoveTo(m_items.Find(hFound));
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
