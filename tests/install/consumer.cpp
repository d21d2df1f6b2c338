// What somebody may write who knows the public headers only: a list, a tree and a numeric field, and no host at all.
#include "AtomLib/AtomLib.h"
#include "Kernel/Kernel.h"
#include "Toolkit/base/Version.h"
#include "Toolkit/headless/HeadlessDesktop.h"
#include "Views/clipboard/clipboard.h"
#include "Views/controls/controls.h"
#include "Views/host/host.h"
#include "Views/list/list.h"
#include "Views/tree/tree.h"

#include <cstdio>

namespace
{

struct Frame : CWnd
{
    ~Frame() override { DestroyWindow(); }
};

struct List : CIconList
{
    ~List() override { DestroyWindow(); }
};

struct Tree : CObjectsTree
{
    ~Tree() override { DestroyWindow(); }
};

} // namespace

int main()
{
    toolkit::HeadlessDesktop desktop;
    Frame frame;
    List list;
    Tree tree;
    const bool bMade = frame.CreateEx(0, "", "album", WS_OVERLAPPED | WS_VISIBLE, CRect(0, 0, 300, 200), nullptr, 0) &&
                       list.Create(&frame) && tree.Create(&frame);
    list.MoveWindow(CRect(0, 0, 150, 200));
    list.ShowWindow(SW_SHOW);
    desktop.Run();
    std::printf("%s: %d rows, %d items\n", toolkit::GetVersion(), list.GetItemCount(),
                static_cast<int>(tree.GetCount()));
    return bMade && list.GetItemCount() == 0 && tree.GetCount() == 0 ? 0 : 1;
}
