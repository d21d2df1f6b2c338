#include "Editor/widgets/MenuBar.h"

#include "Toolkit/graphics/SysColors.h"

#include <utility>

namespace editor
{
namespace
{

// Without its mark, and where the letter behind that begins.
std::pair<std::string, std::size_t> Unmarked(std::string title)
{
    const std::size_t mark = title.find('&');
    if (mark != title.npos)
        title.erase(mark, 1);
    return {std::move(title), mark};
}

} // namespace

BEGIN_MESSAGE_MAP(CMenuBar, hostkit::CWidget)
    ON_WM_MOUSEMOVE()
    ON_MESSAGE(WM_MOUSELEAVE, OnMouseLeave)
    ON_WM_LBUTTONDOWN()
    ON_MESSAGE(WM_NEXTMENU, OnNextMenu)
END_MESSAGE_MAP()

bool CMenuBar::HandleKey(const MSG& msg)
{
    const auto vkey = static_cast<UINT>(msg.wParam);
    const bool bAltOnly = std::exchange(m_bAltOnly, msg.message == WM_SYSKEYDOWN && vkey == VK_MENU);
    if (m_nOpen != kNone) // the rest of what opened it
        return true;
    if (vkey == VK_MENU && msg.message == WM_SYSKEYUP && bAltOnly) {
        m_bWalked ? Leave() : Walk();
        return true;
    }
    if (msg.message == WM_SYSKEYDOWN && vkey == VK_F10 && ::GetKeyState(VK_SHIFT) >= 0) {
        m_bWalked ? Leave() : Walk();
        return true;
    }
    if (m_bWalked && (msg.message == WM_KEYDOWN || msg.message == WM_SYSKEYDOWN))
        return HandleWalkKey(vkey);
    const int nMenu = msg.message == WM_SYSKEYDOWN ? TitleOfLetter(vkey) : kNone;
    if (nMenu != kNone)
        Open(nMenu);
    return nMenu != kNone || (m_bWalked && msg.message == WM_CHAR);
}

void CMenuBar::Walk()
{
    m_bWalked = true;
    SetHot(0);
    Invalidate();
}

void CMenuBar::Leave()
{
    if (!std::exchange(m_bWalked, false))
        return;
    m_nHot = kNone;
    Invalidate();
    NotifyWinEvent(EVENT_OBJECT_FOCUS, ::GetFocus(), OBJID_CLIENT, CHILDID_SELF);
}

bool CMenuBar::HandleWalkKey(UINT vkey)
{
    if (vkey == VK_LEFT || vkey == VK_RIGHT)
        SetHot(Beside(m_nHot, vkey == VK_LEFT ? -1 : 1));
    else if (vkey == VK_RETURN || vkey == VK_DOWN || vkey == VK_UP || vkey == VK_SPACE)
        Open(m_nHot);
    else if (const int nMenu = TitleOfLetter(vkey); nMenu != kNone)
        Open(nMenu);
    else if (vkey != VK_MENU && vkey != VK_SHIFT && vkey != VK_CONTROL)
        Leave();
    return true;
}

// Shows the menu and then those that the user goes on to. The window may be gone after each.
void CMenuBar::Open(int nMenu)
{
    const HWND hWnd = m_hWnd;
    UINT nCommand = 0;
    Leave();
    for (m_nNext = nMenu; nCommand == 0 && m_nNext != kNone;) {
        nCommand = Track(std::exchange(m_nNext, kNone));
        if (!IsWindow(hWnd))
            return;
    }
    m_nOpen = m_nHot = kNone;
    Invalidate();
    if (nCommand != 0)
        m_events.use(nCommand);
}

UINT CMenuBar::Track(int nMenu)
{
    m_nOpen = m_nHot = nMenu;
    Invalidate();
    UpdateWindow();
    const std::unique_ptr<CMenu> pMenu = m_events.make(nMenu);
    CPoint at(TitleRect(nMenu).left, TitleRect(nMenu).bottom);
    ClientToScreen(&at);
    return pMenu ? static_cast<UINT>(pMenu->TrackPopupMenu(TPM_RETURNCMD, at.x, at.y, this)) : 0;
}

LRESULT CMenuBar::OnNextMenu(WPARAM wParam, LPARAM lParam)
{
    if (m_nOpen == kNone)
        return FALSE;
    if (wParam == VK_LEFT || wParam == VK_RIGHT) {
        m_nNext = Beside(m_nOpen, wParam == VK_LEFT ? -1 : 1);
        return TRUE;
    }
    CPoint client(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    ScreenToClient(&client);
    const int nTitle = TitleAt(client);
    if (wParam == VK_LBUTTON)
        return nTitle != kNone; // closes it
    if (nTitle == kNone || nTitle == m_nOpen)
        return FALSE;
    m_nNext = nTitle;
    return TRUE;
}

CRect CMenuBar::TitleRect(int nMenu) const
{
    int left = kSpace;
    for (int i = 0;; ++i) {
        const int width = TextWidth(Unmarked(m_titles[static_cast<std::size_t>(i)]).first) + 2 * kSpace;
        if (i == nMenu)
            return {left, 2, left + width, kMenuBarHeight - 2};
        left += width;
    }
}

int CMenuBar::TitleAt(CPoint point) const
{
    for (int i = 0; i < static_cast<int>(m_titles.size()); ++i)
        if (TitleRect(i).PtInRect(point))
            return i;
    return kNone;
}

int CMenuBar::TitleOfLetter(UINT vkey) const
{
    for (std::size_t i = 0; i < m_titles.size(); ++i) {
        const auto [title, mark] = Unmarked(m_titles[i]);
        if (mark < title.size() && static_cast<UINT>(title[mark]) == vkey)
            return static_cast<int>(i);
    }
    return kNone;
}

int CMenuBar::Beside(int nMenu, int nStep) const
{
    const int nCount = static_cast<int>(m_titles.size());
    return (nMenu + nStep + nCount) % nCount;
}

void CMenuBar::SetHot(int nMenu)
{
    if (std::exchange(m_nHot, nMenu) != nMenu)
        Invalidate();
    if (m_bWalked)
        NotifyWinEvent(EVENT_OBJECT_FOCUS, m_hWnd, OBJID_CLIENT, nMenu + 1);
}

std::vector<CMenuBar::Part> CMenuBar::AccParts()
{
    std::vector<Part> parts;
    for (int i = 0; i < static_cast<int>(m_titles.size()); ++i) {
        const UINT state = m_bWalked && i == m_nHot ? STATE_SYSTEM_FOCUSED : 0;
        parts.push_back(
            {ROLE_SYSTEM_MENUITEM, state, Unmarked(m_titles[static_cast<std::size_t>(i)]).first, TitleRect(i), "Open"});
    }
    return parts;
}

void CMenuBar::Draw(HDC hdc)
{
    for (int i = 0; i < static_cast<int>(m_titles.size()); ++i)
        DrawTitle(hdc, i);
}

void CMenuBar::DrawTitle(HDC hdc, int nMenu) const
{
    CRect rect = TitleRect(nMenu);
    const COLORREF ground = nMenu != m_nHot ? BarColor() : nMenu == m_nOpen ? PressedColor() : HoverColor();
    if (nMenu == m_nHot)
        FillSolidRect(hdc, rect, ground);
    rect.left += kSpace;
    const auto [title, mark] = Unmarked(m_titles[static_cast<std::size_t>(nMenu)]);
    const COLORREF ink = TextColor(COLOR_WINDOWTEXT, ground);
    DrawTextLine(hdc, rect, title, ink);
    if (!m_bWalked || mark >= title.size())
        return;
    const int left = rect.left + TextWidth(title.substr(0, mark));
    const int bottom = rect.top + (rect.Height() + toolkit::CurrentTextEngine().LineHeight()) / 2 - 2;
    FillSolidRect(hdc, {left, bottom, left + TextWidth(title.substr(mark, 1)), bottom + 1}, ink);
}

void CMenuBar::OnMouseMove(UINT nFlags, CPoint point)
{
    CWnd::OnMouseMove(nFlags, point);
    if (const int nTitle = TitleAt(point); !m_bWalked || nTitle != kNone)
        SetHot(nTitle);
}

LRESULT CMenuBar::OnMouseLeave(WPARAM, LPARAM)
{
    if (!m_bWalked)
        SetHot(m_nOpen);
    return 0;
}

void CMenuBar::OnLButtonDown(UINT nFlags, CPoint point)
{
    CWnd::OnLButtonDown(nFlags, point);
    if (const int nTitle = TitleAt(point); nTitle != kNone && m_nOpen == kNone)
        Open(nTitle);
}

} // namespace editor
