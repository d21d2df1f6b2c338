// A window of 1024 by 768 with an icon list in it, on the best desktop that was built: Qt's, with its fonts and its
// painting on an offscreen screen, else the headless one with the built-in font.
#pragma once

#include "Toolkit/window/Wnd.h"
#include "Views/list/list.h"

#include <memory>

namespace bench
{

// The desktop and the host's resources, for as long as the object lives. main() has the one there is: what Qt itself
// needs is gone by the time that a static object ends.
class DesktopScope
{
public:
    DesktopScope();
    ~DesktopScope();
    DesktopScope(const DesktopScope&) = delete;
    DesktopScope& operator=(const DesktopScope&) = delete;
};

class ListWindow
{
public:
    explicit ListWindow(int nPassive = 0);
    ~ListWindow();
    ListWindow(const ListWindow&) = delete;
    ListWindow& operator=(const ListWindow&) = delete;

    CIconList& List() { return m_list; }
    void Settle(); // until everything is painted and presented

private:
    CWnd m_frame;
    CIconList m_list;
};

} // namespace bench
