// A window that takes text, as the desktop's input method sees it.
//
// What an input method has finished comes as any other text, by InputText. What it is still working on, such as the
// accent of a dead key, it shows by Compose.
#pragma once

#include "Toolkit/base/Geometry.h"

#include <string>
#include <string_view>

namespace toolkit
{

struct TextInputState
{
    HWND hWnd = nullptr;
    CRect caret;                        // client
    std::string text;                   // without what is being composed
    std::size_t cursor = 0, anchor = 0; // bytes of the text; the selection lies between them
};

class TOOLKIT_API TextInput
{
public:
    virtual ~TextInput() = default;

    virtual TextInputState GetTextInput() const = 0;
    // Shows a text at the caret that is no part of the field's own; nobody is notified. `caret` is the caret's place
    // in it. The empty text ends it; so does the loss of the focus.
    virtual void Compose(std::string_view text, std::size_t caret) = 0;
};

// That of the window with the focus; NULL when it takes no text. Valid until the queue runs again.
TOOLKIT_API TextInput* FocusedTextInput();

} // namespace toolkit
