#include "Toolkit/controls/edit/EditText.h"

#include <algorithm>

namespace toolkit
{

TextSpan EditText::Selection() const
{
    return {std::min(m_anchor, m_caret), std::max(m_anchor, m_caret)};
}

std::string_view EditText::Selected() const
{
    return std::string_view(m_text).substr(Selection().first, Selection().Length());
}

void EditText::Set(std::string_view text)
{
    m_text = text;
    m_anchor = m_caret = 0;
}

void EditText::Select(std::size_t anchor, std::size_t caret)
{
    m_anchor = StopAtOrBefore(m_text, anchor);
    m_caret = StopAtOrBefore(m_text, caret);
}

void EditText::Replace(std::string_view text)
{
    const TextSpan span = Selection();
    m_text.replace(span.first, span.Length(), text);
    m_caret = span.first + text.size();
    if (!IsStop(m_text, m_caret)) // what follows has joined it
        m_caret = NextStop(m_text, m_caret);
    m_anchor = m_caret;
}

std::string_view EditText::FitTo(std::string_view text, std::size_t limit) const
{
    const std::size_t kept = m_text.size() - Selection().Length();
    const std::size_t room = limit > kept ? limit - kept : 0;
    return text.size() <= room ? text : text.substr(0, StopAtOrBefore(text, room));
}

} // namespace toolkit
