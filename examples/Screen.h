// Where an example shows itself: in a window, where there is Qt and a display, or played by a file and without a
// screen, as the tests do it.
//
//     album                    a window
//     album --play FILE        what the user does, and what can be seen: see Screen.cpp
//     album --picture OUT.bmp  what it looks like at first
#pragma once

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/window/Wnd.h"

#include <memory>

namespace examples
{

class Screen
{
public:
    Screen(int argc, char* argv[]); // before everything else that an example makes
    ~Screen();
    int Run(CWnd& frame); // shows the frame until the user closes it; the program's exit status

private:
    struct Window;
    const std::unique_ptr<Window> m_pWindow; // NULL: no screen
    const char* const m_pszMode;
    const char* const m_pszFile;
    const std::unique_ptr<toolkit::Desktop> m_pHeadless;
};

} // namespace examples
