// What a desktop without a screen shows, and what its user answers: scripted before it is asked.
#pragma once

#include "Toolkit/desktop/Desktop.h"

#include <deque>
#include <string>
#include <utility>
#include <vector>

namespace toolkit
{

// Nothing when there is none left.
template <class Item>
std::optional<Item> TakeFirst(std::deque<Item>& items)
{
    if (items.empty())
        return std::nullopt;
    Item first = std::move(items.front());
    items.pop_front();
    return first;
}

class TOOLKIT_API HeadlessScreen : public Desktop
{
public:
    // Message boxes: answers in order (IDOK when there is none left), and what was shown: "caption: text".
    void Answer(int nButton) { m_answers.push_back(nButton); }
    std::vector<std::string> TakeMessageBoxes() { return std::exchange(m_boxes, {}); }

    // Menus: what the user chooses in the next ones, by its text without mark and shortcut (nothing when there is no
    // such enabled item, or no text is left); and what was shown, as DescribeMenu gives it, where the last one was.
    void Choose(std::string text) { m_choices.push_back({std::move(text), 0}); }
    std::vector<std::string> TakeMenus() { return std::exchange(m_menus, {}); }
    CPoint LastMenuPlace() const { return m_menuPlace; } // screen
    // Goes beyond the next menu instead of choosing, as WM_NEXTMENU tells it; chooses nothing unless that ends the
    // menu.
    void GoBeyondMenu(UINT vkey) { m_choices.push_back({"", vkey}); }

    void ShowColors(const ColorScheme& scheme); // the user chooses others
    void ShowScale(PixelScale scale);           // moves to a screen of another

    // The tool tip that is shown, "" for none; and what is outside: the folders the user will choose (none is chosen
    // when no answer is left), and what was asked for: "open PATH", "show PATH".
    const std::string& ToolTip() const { return m_toolTip; }
    void AnswerFolder(std::string path) { m_folders.push_back(std::move(path)); }
    void SetWorkArea(const CRect& area) { m_workArea = area; }
    std::vector<std::string> TakeOutside() { return std::exchange(m_outside, {}); }

    // The pixels of a window, border included, cut out of its top-level window after all painting is done.
    Surface Dump(HWND hWnd);
    Cursor CurrentCursor() const { return m_cursor; }

    ColorScheme GetColorScheme() override { return m_colors; }
    PixelScale GetScreenScale() override { return m_scale; }
    void WindowCreated(HWND) override {}
    void WindowChanged(HWND) override {}
    void WindowPlaced(HWND) override {}
    void WindowDestroyed(HWND) override {}
    void Present(HWND, const Surface&, const CRect&) override {}
    int ShowMessageBox(HWND hOwner, LPCSTR pszText, LPCSTR pszCaption, UINT nType) override;
    void ShowCursor(Cursor cursor) override { m_cursor = cursor; }
    void ShowToolTip(HWND, const std::string& text, const CRect&) override { m_toolTip = text; }
    CRect GetWorkArea(CPoint) override { return m_workArea; }
    std::optional<std::string> AskFolder(HWND, const std::string&, const std::string&) override;
    std::string OpenOutside(const std::string& path) override { return m_outside.push_back("open " + path), ""; }
    std::string ShowOutside(const std::string& path) override { return m_outside.push_back("show " + path), ""; }
    UINT TrackMenu(HWND hOwner, const std::vector<MenuItem>& items, CPoint screen) override;

private:
    struct MenuAnswer
    {
        std::string text;
        UINT vkey = 0; // unless 0, a way beyond the menu
    };

    ColorScheme m_colors;
    PixelScale m_scale;
    CRect m_workArea;
    Cursor m_cursor = Cursor::Arrow;
    std::string m_toolTip;
    std::deque<int> m_answers;
    std::vector<std::string> m_boxes;
    std::deque<MenuAnswer> m_choices;
    std::vector<std::string> m_menus;
    CPoint m_menuPlace;
    std::deque<std::string> m_folders;
    std::vector<std::string> m_outside;
};

} // namespace toolkit
