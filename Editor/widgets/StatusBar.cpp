#include "Editor/widgets/StatusBar.h"

#include "Toolkit/graphics/SysColors.h"

#include <utility>

namespace editor
{

void CStatusBar::SetNews(std::string news)
{
    if (std::exchange(m_news, std::move(news)) == m_news)
        return;
    Update();
    if (!m_news.empty())
        NotifyWinEvent(EVENT_SYSTEM_ALERT, m_hWnd, OBJID_CLIENT, CHILDID_SELF);
}

void CStatusBar::Update()
{
    Invalidate();
    NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, m_hWnd, OBJID_CLIENT, CHILDID_SELF);
}

// What is read first is what was said last.
std::string CStatusBar::AccName(LPARAM)
{
    const Status status = m_ask();
    const std::string& detail = status.isError || status.news.empty() ? status.detail : status.news;
    return detail.empty() ? status.text : detail + ". " + status.text;
}

void CStatusBar::Draw(HDC hdc)
{
    const Status status = m_ask();
    CRect left = Client();
    left.DeflateRect(2 * kSpace, 0);
    CRect right = left;
    left.right = std::min<int>(left.right, left.left + TextWidth(status.text));
    right.left = left.right + 2 * kSpace;
    DrawTextLine(hdc, left, status.text, TextColor(COLOR_GRAYTEXT, BarColor()));
    const std::string& detail = status.isError || status.news.empty() ? status.detail : status.news;
    DrawTextLine(hdc, right, detail, status.isError ? ErrorColor() : TextColor(COLOR_WINDOWTEXT, BarColor()),
                 Align::Right);
}

} // namespace editor
