#include "Toolkit/controls/items/TypeAhead.h"

#include "Toolkit/base/Text.h"
#include "Toolkit/base/Ticks.h"

namespace toolkit
{

namespace
{

constexpr DWORD kPatience = 1000; // milliseconds between two letters of one word

// Is the text one letter, again and again?
bool IsRepeated(std::string_view text, std::string_view letter)
{
    while (BeginsWith(text, letter))
        text.remove_prefix(static_cast<std::size_t>(DecodeUtf8(text).bytes));
    return text.empty();
}

} // namespace

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

void TypeAhead::Type(char32_t c, const GoTo& goTo)
{
    const bool begins = m_typed.empty() || GetTickCount() - m_typedAt > kPatience;
    const bool types = c > ' ' || (c == ' ' && !begins);
    if (!types || c == 0x7F)
        return;
    if (begins)
        m_typed.clear();
    const std::string letter = EncodeUtf8(c);
    const std::string typed = m_typed += letter;
    m_typedAt = GetTickCount();
    if (!goTo(typed, begins) && !begins && IsRepeated(typed, letter))
        goTo(letter, true);
}

} // namespace toolkit
