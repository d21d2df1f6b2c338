#include "bench/BenchWindow.h"

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/graphics/Resources.h"
#include "Toolkit/run/Run.h"
#include "bench/Samples.h"

#ifdef VIEWS_BENCH_QT
#include "QtDesktop/QtDesktop.h"

#include <QApplication>
#include <QFont>
#else
#include "Toolkit/headless/HeadlessDesktop.h"
#endif

namespace bench
{
namespace
{

constexpr CRect kFrame(0, 0, kWindowWidth, kWindowHeight);

#ifdef VIEWS_BENCH_QT
struct TheDesktop
{
    TheDesktop()
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static int s_argc = 1;
        static char s_name[] = "views_bench";
        static char* s_argv[] = {s_name, nullptr};
        application = std::make_unique<QApplication>(s_argc, s_argv);
        application->setFont(QFont(kFontName, kFontPoints));
        desktop = std::make_unique<qtdesktop::QtDesktop>();
    }
    static void Present() { QApplication::processEvents(); }

    std::unique_ptr<QApplication> application;
    std::unique_ptr<qtdesktop::QtDesktop> desktop;
};
#else
struct TheDesktop
{
    static void Present() {}

    toolkit::HeadlessDesktop desktop;
};
#endif

struct Process
{
    Process()
    {
        resources.AddBitmap(1006, toolkit::Surface({48, 48}, 0xFF336699));
        resources.AddBitmap(1011, toolkit::Surface({16, 16}, 0xFF336699));
        resources.AddBitmap(1013, toolkit::Surface({32, 16}, 0xFF336699));
        resources.AddString(1008, "Icons");
        resources.Join();
    }

    TheDesktop desktop;
    CResourceModule resources;
};

} // namespace

std::shared_ptr<void> MakeDesktop()
{
    return std::make_shared<Process>();
}

ViewWindow::ViewWindow()
{
    m_frame.CreateEx(0, "", "bench", WS_OVERLAPPED | WS_CLIPCHILDREN, kFrame, nullptr, 0);
}

ViewWindow::~ViewWindow()
{
    m_frame.DestroyWindow();
}

void ViewWindow::Show(CWnd& view)
{
    view.MoveWindow(kFrame);
    view.ShowWindow(SW_SHOW);
    m_frame.ShowWindow(SW_SHOW);
    Settle();
}

void ViewWindow::Paint()
{
    toolkit::RunPendingMessages();
}

void ViewWindow::Settle()
{
    Paint();
    TheDesktop::Present();
}

void SetAllSelected(CObjectsList& list, bool bSelected)
{
    LVITEM select{};
    select.stateMask = LVIS_SELECTED;
    select.state = bSelected ? LVIS_SELECTED : 0;
    list.SendMessage(LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&select));
}

void ExpandContainers(CObjectsTree& tree)
{
    tree.Expand(tree.GetRootItem(), TVE_EXPAND);
    HTREEITEM hItem = tree.GetChildItem(tree.GetRootItem());
    for (unsigned i = 0; i < kExpanded; ++i, hItem = tree.GetNextSiblingItem(hItem))
        tree.Expand(hItem, TVE_EXPAND);
}

} // namespace bench
