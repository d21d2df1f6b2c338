// A window as the rest of the desktop sees it, and what it leaves on the clipboard.
#include "Toolkit/base/GlobalMemory.h"
#include "Toolkit/controls/tree/TreeCtrl.h"
#include "Toolkit/exchange/ClipboardFormat.h"
#include "Toolkit/exchange/DataSource.h"
#include "Toolkit/graphics/SysColors.h"
#include "tests/desktop/DesktopTest.h"

#include <QClipboard>
#include <QImage>
#include <QMimeData>
#include <QPixmap>
#include <QScreen>
#include <QWindow>
#include <cstring>

namespace
{

class WindowTest : public DesktopTest
{
protected:
    // What the window system was given, and nothing newer.
    QImage Screen()
    {
        const QPixmap shown = Window()->screen()->grabWindow(Widget().winId());
        return shown.toImage().convertToFormat(QImage::Format_RGB32);
    }

    static void Offer(COleDataSource& source, const char* pszFormat, std::string_view bytes)
    {
        const HGLOBAL hBytes = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
        std::memcpy(toolkit::GlobalLocker<char>(hBytes).Get(), bytes.data(), bytes.size());
        source.CacheGlobalData(RegisterClipboardFormat(pszFormat), hBytes);
    }

    static std::string OnClipboard()
    {
        std::string all;
        const QMimeData* const pMime = QGuiApplication::clipboard()->mimeData();
        for (const QString& kind : pMime->formats())
            all += kind.toStdString() + ": " + pMime->data(kind).toStdString() + "; ";
        return all;
    }
};

} // namespace

TEST_F(WindowTest, WhatTheToolkitPaintsIsWhatTheScreenShows)
{
    EXPECT_EQ(QSize(200, 120), Widget().size());
    EXPECT_EQ(QColor(255, 255, 255), Screen().pixelColor(100, 60));
    m_probe->m_color = RGB(10, 20, 200);
    const CRect corner(0, 0, 50, 30);
    m_probe->InvalidateRect(&corner);
    Settle();
    EXPECT_EQ(QColor(10, 20, 200), Screen().pixelColor(49, 29));
    EXPECT_EQ(QColor(255, 255, 255), Screen().pixelColor(50, 30)); // not asked for, not painted
}

TEST_F(WindowTest, ItsWidgetHasItsTitleAndGoesWithIt)
{
    m_probe->SetWindowText("Pictures – Überlingen");
    EXPECT_EQ("Pictures – Überlingen", Widget().windowTitle().toStdString());
    const HWND hProbe = m_probe->GetSafeHwnd();
    m_probe->DestroyWindow();
    EXPECT_EQ(nullptr, m_desktop->FindWidget(hProbe));
}

TEST_F(WindowTest, TheDesktopsColoursAreTheWindowsAlsoWhenTheyChange)
{
    m_probe->m_after[WM_SYSCOLORCHANGE] = [this] { m_probe->m_color = GetSysColor(COLOR_WINDOW); };
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 31, 32));
    dark.setColor(QPalette::Text, QColor(240, 240, 240));
    QApplication::setPalette(dark);
    Settle();
    EXPECT_TRUE(toolkit::IsDark());
    EXPECT_EQ(QColor(30, 31, 32), Screen().pixelColor(100, 60));
    QApplication::setPalette(QPalette());
    Settle();
    EXPECT_EQ(QColor(255, 255, 255), Screen().pixelColor(100, 60));
}

TEST_F(WindowTest, TheDesktopsFontIsTheViewsAlsoWhenItChanges)
{
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 60), &*m_probe, 1));
    const LRESULT nFormer = tree.SendMessage(TVM_GETITEMHEIGHT, 0, 0);
    const QFont former = QApplication::font();
    QApplication::setFont(QFont(former.family(), 40));
    Settle();
    EXPECT_LE(nFormer + 20, tree.SendMessage(TVM_GETITEMHEIGHT, 0, 0));
    QApplication::setFont(former);
    Settle();
    EXPECT_EQ(nFormer, tree.SendMessage(TVM_GETITEMHEIGHT, 0, 0));
}

TEST_F(WindowTest, WhatEverybodyCanReadStaysWhenTheProgramEnds)
{
    auto source = std::make_unique<COleDataSource>();
    Offer(*source, "application/x-atoms", "/tmp/a-transfer-file");
    Offer(*source, "text/uri-list", "file:///a");
    Offer(*source, "Objects of our own", "1");
    source.release()->SetClipboard(); // the clipboard's now
    m_probe.reset();
    m_desktop.reset();
    EXPECT_EQ("text/uri-list: file:///a\r\n; ", OnClipboard());
    EXPECT_EQ(nullptr, COleDataSource::GetClipboardOwner());
}
