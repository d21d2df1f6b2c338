// Which display the editor's window can be shown on.
#pragma once

#include <string>

namespace editor
{

// Asked before the QApplication is made, for Qt ends the program when its display does not answer.
struct Display
{
    bool usable = false;
    std::string platform; // Qt's name of it; empty: let Qt choose
    std::string trouble;  // why there is none, as a sentence's beginning: "the display ':7' does not answer"
};

// As the environment says, and whether it really answers.
Display FindDisplay();

} // namespace editor
