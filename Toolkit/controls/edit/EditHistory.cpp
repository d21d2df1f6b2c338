#include "Toolkit/controls/edit/EditHistory.h"

#include <utility>

namespace toolkit
{

void EditHistory::Before(const EditText& text, EditKind kind)
{
    const bool goesOn =
        m_former && kind == m_kind && kind != EditKind::Other && text.Selection().IsEmpty() && text.Caret() == m_caret;
    if (goesOn)
        return;
    m_former = text;
    m_kind = kind;
}

bool EditHistory::Swap(EditText& text)
{
    if (!m_former)
        return false;
    std::swap(*m_former, text);
    m_kind = EditKind::Other;
    return true;
}

} // namespace toolkit
