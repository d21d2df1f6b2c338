// A field for a number that may stand for several: two bars, whose widths it shows and sets. Click a bar to choose it,
// with Ctrl to choose both; while their widths differ the field says so.
#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/SysColors.h"
#include "Views/controls/controls.h"
#include "examples/Screen.h"

#include <array>
#include <cstdio>
#include <utility>

namespace
{

constexpr UINT kField = 1;
constexpr int kLeast = 1, kMost = 260; // pixels
const CRect kFieldRect(20, 110, 120, 132);

class BarsWnd : public CWnd
{
public:
    BOOL Create()
    {
        return CreateEx(0, "", "Numbers", WS_OVERLAPPED | WS_CLIPCHILDREN, CRect(0, 0, 300, 150), nullptr, 0);
    }
    ~BarsWnd() override { DestroyWindow(); }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        if (CWnd::OnCreate(lpCreateStruct) == -1)
            return -1;
        m_field.SetRange(kLeast, kMost);
        if (!m_field.Create(WS_CHILD | WS_VISIBLE, kFieldRect, this, kField))
            return -1;
        Choose(0, false);
        return 0;
    }
    afx_msg void OnDestroy()
    {
        CWnd::OnDestroy();
        PostQuitMessage(0);
    }

    // The field tells of every change, also of those that it makes itself to keep to its range.
    afx_msg void OnFieldChange()
    {
        int nWidth = 0;
        if (m_bShowing || !m_field.GetValue(nWidth))
            return;
        bool bChanged = false;
        for (Bar& bar : m_bars)
            if (bar.bChosen)
                bChanged |= std::exchange(bar.nWidth, nWidth) != nWidth;
        if (!bChanged)
            return;
        std::printf("widths %d and %d\n", m_bars[0].nWidth, m_bars[1].nWidth);
        Invalidate();
    }

    afx_msg void OnLButtonDown(UINT nFlags, CPoint point)
    {
        CWnd::OnLButtonDown(nFlags, point);
        Choose(point.y < 60 ? 0 : 1, nFlags & MK_CONTROL);
        m_field.SetFocus();
    }

    afx_msg BOOL OnEraseBkgnd(HDC hdc)
    {
        CRect client;
        GetClientRect(&client);
        FillSolidRect(hdc, client, GetSysColor(COLOR_WINDOW));
        DrawEdge(hdc, CRect(kFieldRect.left - 2, kFieldRect.top - 2, kFieldRect.right + 2, kFieldRect.bottom + 2),
                 EDGE_SUNKEN, BF_RECT);
        for (int i = 0; i < 2; ++i) {
            const Bar& bar = m_bars[static_cast<std::size_t>(i)];
            const CRect rect(20, 20 + 40 * i, 20 + bar.nWidth, 50 + 40 * i);
            FillSolidRect(hdc, rect, bar.bChosen ? GetSysColor(COLOR_HIGHLIGHT) : RGB(170, 180, 190));
        }
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()

private:
    struct Bar
    {
        int nWidth;
        bool bChosen = false;
    };

    void Choose(std::size_t nBar, bool bBesides)
    {
        for (std::size_t i = 0; i < m_bars.size(); ++i)
            m_bars[i].bChosen = i == nBar || (bBesides && m_bars[i].bChosen);
        const bool bDiffer = m_bars[0].bChosen && m_bars[1].bChosen && m_bars[0].nWidth != m_bars[1].nWidth;
        m_bShowing = true; // what the program writes into the field is no wish of the user's
        if (bDiffer)
            m_field.SetDifferent();
        else
            m_field.SetValue(m_bars[nBar].nWidth);
        m_bShowing = false;
        std::printf("the field shows %s\n", m_field.GetWindowText().GetString());
        Invalidate();
    }

    std::array<Bar, 2> m_bars{Bar{120}, Bar{200}};
    CDigitalEdit m_field;
    bool m_bShowing = false;
};

BEGIN_MESSAGE_MAP(BarsWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_LBUTTONDOWN()
    ON_WM_ERASEBKGND()
    ON_CONTROL(EN_CHANGE, kField, OnFieldChange)
END_MESSAGE_MAP()

} // namespace

int main(int argc, char* argv[])
{
    examples::Screen screen(argc, argv);
    BarsWnd window;
    return window.Create() ? screen.Run(window) : 1;
}
