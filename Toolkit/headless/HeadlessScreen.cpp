#include "Toolkit/headless/HeadlessScreen.h"

#include "Toolkit/menu/MessageBox.h"
#include "Toolkit/message/Input.h"
#include "Toolkit/paint/WindowDC.h"
#include "Toolkit/run/Run.h"
#include "Toolkit/window/WindowApi.h"

void toolkit::HeadlessScreen::ShowColors(const ColorScheme& scheme)
{
    m_colors = scheme;
    InputColors();
    RunPendingMessages();
}

void toolkit::HeadlessScreen::ShowScale(PixelScale scale)
{
    m_scale = scale;
    InputScale();
    RunPendingMessages();
}

int toolkit::HeadlessScreen::ShowMessageBox(HWND, LPCSTR pszText, LPCSTR pszCaption, UINT)
{
    m_boxes.push_back(std::string(pszCaption) + ": " + pszText);
    return TakeFirst(m_answers).value_or(IDOK);
}

UINT toolkit::HeadlessScreen::TrackMenu(HWND hOwner, const std::vector<MenuItem>& items, CPoint screen)
{
    m_menus.push_back(DescribeMenu(items));
    m_menuPlace = screen;
    const std::optional<MenuAnswer> choice = TakeFirst(m_choices);
    if (choice && choice->vkey == 0)
        return FindMenuCommand(items, choice->text);
    if (choice)
        SendMessage(hOwner, WM_NEXTMENU, choice->vkey, 0);
    return 0;
}

std::optional<std::string> toolkit::HeadlessScreen::AskFolder(HWND, const std::string&, const std::string&)
{
    return TakeFirst(m_folders);
}

toolkit::Surface toolkit::HeadlessScreen::Dump(HWND hWnd)
{
    RunPendingMessages();
    const Surface* pSurface = WindowSurface(GetTopLevel(hWnd));
    if (!pSurface)
        return {};
    RECT top{}, own{};
    GetWindowRect(GetTopLevel(hWnd), &top);
    GetWindowRect(hWnd, &own);
    return Crop(*pSurface, pSurface->Scale().ToPixels(CRect(own) - CRect(top).TopLeft()));
}
