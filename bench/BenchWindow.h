// A window of 1024 by 768 with a view in it, on the best desktop that was built: Qt's, with its fonts and its
// painting on an offscreen screen, else the headless one with the built-in font.
#pragma once

#include "Toolkit/window/Wnd.h"
#include "Views/list/list.h"
#include "Views/tree/tree.h"

#include <memory>

namespace bench
{

// The desktop and the host's resources, for as long as the pointer lives. main() has the one there is: what Qt itself
// needs is gone by the time that a static object ends.
std::shared_ptr<void> MakeDesktop();

class ViewWindow
{
public:
    void Paint();  // until everything is painted into the window's picture
    void Settle(); // and until that is presented

protected:
    ViewWindow();
    ~ViewWindow(); // the view has gone by then
    void Show(CWnd& view);

    CWnd m_frame;
};

template <class View>
class WindowWith : public ViewWindow
{
public:
    WindowWith()
    {
        view.Create(&m_frame);
        Show(view);
    }

    View view;
};
using ListWindow = WindowWith<CIconList>;
using ThumbWindow = WindowWith<CThumbList>;
using TreeWindow = WindowWith<CObjectsTree>;

void SetAllSelected(CObjectsList& list, bool bSelected);
void ExpandContainers(CObjectsTree& tree); // the root, and the first kExpanded below it

} // namespace bench
