// The menus at the top of the window.
#pragma once

#include "Editor/widgets/Look.h"
#include "HostKit/frame/Widget.h"
#include "Toolkit/access/Accessible.h"
#include "Toolkit/menu/Menu.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace editor
{

// A press opens a menu, and so does Alt with the letter that is marked. F10, or Alt pressed and let go, lets the arrows
// walk along the titles. While a menu is shown, Left, Right and the mouse go on to its neighbours. The focus stays
// where it is.
class CMenuBar : public hostkit::CWidget, public toolkit::AccessibleParts
{
public:
    struct Events
    {
        std::function<std::unique_ptr<CMenu>(int nMenu)> make; // as it is now; NULL without memory
        std::function<void(UINT nCommand)> use;                // the bar may be gone afterwards
    };
    CMenuBar(std::vector<std::string> titles, Events events) // "&File"
        : m_titles(std::move(titles)), m_events(std::move(events))
    {}

    bool HandleKey(const MSG& msg);   // asked before all other windows of the frame: false where it means nothing here
    void Leave();                     // the keys are everyone's again
    CRect TitleRect(int nMenu) const; // client

    std::vector<Part> AccParts() override;
    void AccUse(int nMenu) override { Open(nMenu); }

protected:
    Part AccWindow() override { return {ROLE_SYSTEM_MENUBAR, 0, {}, {}, {}}; }
    void Erase(HDC hdc) override { FillSolidRect(hdc, Client(), BarColor()); }
    void Draw(HDC hdc) override;
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg LRESULT OnMouseLeave(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg LRESULT OnNextMenu(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    static constexpr int kNone = -1;

    int TitleAt(CPoint point) const;
    int TitleOfLetter(UINT vkey) const;
    int Beside(int nMenu, int nStep) const; // round and round
    void SetHot(int nMenu);
    void Walk();
    bool HandleWalkKey(UINT vkey);
    void Open(int nMenu);
    UINT Track(int nMenu);
    void DrawTitle(HDC hdc, int nMenu) const;

    const std::vector<std::string> m_titles;
    const Events m_events;
    int m_nHot = kNone;      // under the mouse or, while the bar is walked, where the arrows are
    int m_nOpen = kNone;     // whose menu is shown
    int m_nNext = kNone;     // to be shown in its place
    bool m_bWalked = false;  // has the keys
    bool m_bAltOnly = false; // Alt went down, and nothing else since
};

} // namespace editor
