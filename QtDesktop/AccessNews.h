// Gathers what is new for assistive technology and tells Qt of it when the toolkit is done: whoever listens asks back.
#pragma once

#include "QtDesktop/AccessibleText.h"

#include <QObject>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <tuple>
#include <utility>
#include <vector>

namespace qtdesktop
{

// The same news is told once, many changes of a selection as one, and of the focus where it has got to. Nothing is
// gathered while nobody listens.
class AccessNews : public QObject
{
public:
    using Hear = std::function<void(QAccessibleEvent& event)>;
    void SetHearer(Hear hear) { m_hear = std::move(hear); } // beside those that Qt knows of

    void Tell(DWORD event, HWND hWnd, LPARAM item);

private:
    using News = std::tuple<DWORD, HWND, LPARAM>;

    void Gather(const News& news);
    void DeliverLater();
    void Deliver();
    void Deliver(const News& news);
    void Send(QAccessibleEvent&& event) const;
    void SendTextChange(QAccessibleInterface* pField, const QString& former, const QString& text) const;
    void DeliverText(HWND hWnd);
    void DeliverFocus(HWND hWnd, LPARAM item);

    std::vector<News> m_news; // in its order
    std::set<News> m_told;    // the same
    std::map<HWND, int> m_selections;
    std::map<HWND, FieldText> m_fields; // as told last
    Hear m_hear;
    std::optional<std::pair<HWND, LPARAM>> m_focus; // as told of last
    bool m_bPosted = false;
};

} // namespace qtdesktop
