#include "tests/desktop/DesktopTest.h"

#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QWindow>

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

    QImage SurfacePicture()
    {
        const toolkit::Surface& surface = *toolkit::WindowSurface(m_probe->GetSafeHwnd());
        QImage picture(surface.Width(), surface.Height(), QImage::Format_RGB32);
        for (int y = 0; y < surface.Height(); ++y)
            std::copy_n(surface.Row(y), surface.Width(), reinterpret_cast<toolkit::Pixel*>(picture.scanLine(y)));
        return picture;
    }
};

} // namespace

TEST_F(WindowTest, WhatTheToolkitPaintsIsWhatTheScreenShows)
{
    EXPECT_EQ(QSize(200, 120), Widget().size());
    EXPECT_TRUE(Widget().isVisible());
    EXPECT_EQ(QColor(255, 255, 255), Screen().pixelColor(100, 60));

    m_probe->m_color = RGB(10, 20, 200);
    const CRect corner(0, 0, 50, 30);
    m_probe->InvalidateRect(&corner);
    Settle();
    const QImage screen = Screen();
    EXPECT_EQ(QColor(10, 20, 200), screen.pixelColor(49, 29));
    EXPECT_EQ(QColor(255, 255, 255), screen.pixelColor(50, 30)); // not asked for, not painted
    EXPECT_EQ(SurfacePicture(), screen);
}

TEST_F(WindowTest, TheUsersSizeAndTheProgramsSizeMeet)
{
    Widget().resize(320, 90);
    EXPECT_EQ("size 320,90", Heard());
    EXPECT_EQ(SurfacePicture(), Screen());
    EXPECT_EQ(QSize(320, 90), Screen().size());

    ::MoveWindow(m_probe->GetSafeHwnd(), 40, 50, 260, 70);
    EXPECT_EQ("size 260,70", Heard());
    EXPECT_EQ(QRect(40, 50, 260, 70), Widget().geometry());
}

TEST_F(WindowTest, AWindowBearsItsTitleAndHidesAndShows)
{
    m_probe->SetWindowText("Pictures – Überlingen");
    EXPECT_EQ("Pictures – Überlingen", Widget().windowTitle().toStdString());
    m_probe->ShowWindow(SW_HIDE);
    EXPECT_FALSE(Widget().isVisible());
    m_probe->ShowWindow(SW_SHOW);
    EXPECT_TRUE(Widget().isVisible());
}

TEST_F(WindowTest, ClosingAsksTheProgramWhichMayStay)
{
    EXPECT_FALSE(Widget().close());
    EXPECT_EQ("close", Heard());
    EXPECT_TRUE(Widget().isVisible());

    const HWND hProbe = m_probe->GetSafeHwnd();
    m_probe->DestroyWindow();
    EXPECT_EQ(nullptr, m_desktop->FindWidget(hProbe));
}
