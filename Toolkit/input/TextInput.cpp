#include "Toolkit/input/TextInput.h"

#include "Toolkit/focus/Focus.h"
#include "Toolkit/window/NativeWindow.h"

toolkit::TextInput* toolkit::FocusedTextInput()
{
    return dynamic_cast<TextInput*>(FindNativeWindow(GetFocus()));
}
