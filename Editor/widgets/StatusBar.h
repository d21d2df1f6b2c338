// The line at the bottom.
#pragma once

#include "Editor/widgets/Look.h"
#include "HostKit/frame/Widget.h"
#include "Toolkit/access/Accessible.h"

#include <functional>
#include <string>

namespace editor
{

struct Status
{
    std::string text;     // at the left: what is shown
    std::string detail;   // at the right: what is selected
    bool isError = false; // is `detail` the reason of a failure?
    std::string news{};   // in place of `detail`, unless that is a reason: what was just done
};

// Asks for its text whenever it is drawn: telling it of a change costs nothing, however often it is done.
class CStatusBar : public hostkit::CWidget, public toolkit::Accessible
{
public:
    explicit CStatusBar(std::function<Status()> ask) : m_ask(std::move(ask)) {}

    const std::string& GetNews() const { return m_news; }
    void SetNews(std::string news);
    void Update(); // what it asks for is new

    UINT AccRole(LPARAM) override { return ROLE_SYSTEM_STATUSBAR; }
    std::string AccName(LPARAM) override;

protected:
    void Erase(HDC hdc) override { FillBottomBar(hdc, Client()); }
    void Draw(HDC hdc) override;

private:
    const std::function<Status()> m_ask;
    std::string m_news; // what the user has just done, until the next key or click
};

} // namespace editor
