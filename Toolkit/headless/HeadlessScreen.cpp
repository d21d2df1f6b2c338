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
    if (m_answers.empty())
        return IDOK;
    const int nAnswer = m_answers.front();
    m_answers.pop_front();
    return nAnswer;
}

UINT toolkit::HeadlessScreen::TrackMenu(HWND hOwner, const std::vector<MenuItem>& items, CPoint screen)
{
    m_menus.push_back(DescribeMenu(items));
    m_menuPlace = screen;
    if (m_choices.empty())
        return 0;
    const MenuAnswer choice = std::move(m_choices.front());
    m_choices.pop_front();
    if (choice.vkey == 0)
        return FindMenuCommand(items, choice.text);
    SendMessage(hOwner, WM_NEXTMENU, choice.vkey, 0);
    return 0;
}

std::optional<std::string> toolkit::HeadlessScreen::AskFolder(HWND, const std::string&, const std::string&)
{
    if (m_folders.empty())
        return std::nullopt;
    std::string path = std::move(m_folders.front());
    m_folders.pop_front();
    return path;
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
