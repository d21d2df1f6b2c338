// One step of undo: the field as it was before the last thing done to it. Knows no window.
//
// What is typed in one go is one thing, and so is what is deleted in one go, a character at a time.
#pragma once

#include "Toolkit/controls/edit/EditText.h"

#include <optional>

namespace toolkit
{

enum class EditKind
{
    Typing,
    Deleting, // of a character
    Other     // always a thing of its own
};

class TOOLKIT_API EditHistory
{
public:
    bool CanUndo() const { return m_former.has_value(); }
    void Forget() { m_former.reset(); }

    // Around every change of the text by its user.
    void Before(const EditText& text, EditKind kind);
    void After(const EditText& text) { m_caret = text.Caret(); }

    // Puts the former text in the place of this one, and keeps this one as the former. False without one.
    bool Swap(EditText& text);

private:
    std::optional<EditText> m_former;
    EditKind m_kind = EditKind::Other;
    std::size_t m_caret = 0; // where the last change left it
};

} // namespace toolkit
