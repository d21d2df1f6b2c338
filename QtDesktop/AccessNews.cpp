#include "QtDesktop/AccessNews.h"

#include "QtDesktop/QtAccessible.h"
#include "Toolkit/access/Accessible.h"
#include "Toolkit/window/WindowApi.h"

#include <QTimer>
#include <algorithm>
#include <utility>

namespace qtdesktop
{
namespace
{

constexpr int kOneByOne = 16; // rows of a list whose selection is told of each

constexpr std::pair<DWORD, QAccessible::Event> kEvents[] = {
    {EVENT_SYSTEM_ALERT, QAccessible::Alert},
    {EVENT_OBJECT_SHOW, QAccessible::ObjectShow},
    {EVENT_OBJECT_HIDE, QAccessible::ObjectHide},
    {EVENT_OBJECT_REORDER, QAccessible::ObjectReorder},
    {EVENT_OBJECT_SELECTIONADD, QAccessible::SelectionAdd},
    {EVENT_OBJECT_SELECTIONREMOVE, QAccessible::SelectionRemove},
    {EVENT_OBJECT_SELECTIONWITHIN, QAccessible::SelectionWithin},
    {EVENT_OBJECT_NAMECHANGE, QAccessible::NameChanged},
};

bool IsSelection(DWORD event)
{
    return event == EVENT_OBJECT_SELECTIONADD || event == EVENT_OBJECT_SELECTIONREMOVE;
}

QAccessible::State Opened()
{
    QAccessible::State changed;
    changed.expanded = changed.collapsed = true;
    return changed;
}

} // namespace

void AccessNews::Tell(DWORD event, HWND hWnd, LPARAM item)
{
    if (!QAccessible::isActive() && !m_hear)
        return;
    if (event == EVENT_OBJECT_DESTROY)
        return DeliverLater(); // what stands for it goes
    if (event == EVENT_OBJECT_FOCUS)
        m_focus = {hWnd, item};
    else if (!IsSelection(event))
        Gather({event, hWnd, item});
    else if (Gather({EVENT_OBJECT_SELECTIONWITHIN, hWnd, CHILDID_SELF}); ++m_selections[hWnd] <= kOneByOne)
        Gather({event, hWnd, item});
    DeliverLater();
}

void AccessNews::Gather(const News& news)
{
    if (m_told.insert(news).second)
        m_news.push_back(news);
}

void AccessNews::DeliverLater()
{
    if (!std::exchange(m_bPosted, true))
        QTimer::singleShot(0, this, [this] { Deliver(); });
}

void AccessNews::Deliver()
{
    m_bPosted = false;
    TrimAccessibles();
    std::erase_if(m_fields, [](const auto& field) { return !IsWindow(field.first); });
    m_told.clear();
    m_selections.clear();
    for (const News& news : std::exchange(m_news, {}))
        Deliver(news);
    if (const auto focus = std::exchange(m_focus, std::nullopt))
        DeliverFocus(focus->first, focus->second);
}

void AccessNews::Deliver(const News& news)
{
    const auto [event, hWnd, item] = news;
    QAccessibleInterface* const pAbout = FindAccessible(hWnd, item);
    if (!pAbout)
        return;
    const bool bField = pAbout->textInterface() != nullptr;
    const auto it = std::find_if(std::begin(kEvents), std::end(kEvents), [&](auto& e) { return e.first == event; });
    if (it != std::end(kEvents))
        Send(QAccessibleEvent(pAbout, it->second));
    else if (event == EVENT_OBJECT_STATECHANGE)
        Send(QAccessibleStateChangeEvent(pAbout, Opened()));
    else if (bField)
        DeliverText(hWnd);
    else if (event == EVENT_OBJECT_VALUECHANGE && pAbout->valueInterface())
        Send(QAccessibleValueChangeEvent(pAbout, pAbout->valueInterface()->currentValue()));
}

void AccessNews::Send(QAccessibleEvent&& event) const
{
    if (m_hear)
        m_hear(event);
    QAccessible::updateAccessibility(&event);
}

void AccessNews::SendTextChange(QAccessibleInterface* pField, const QString& former, const QString& text) const
{
    const auto shorter = std::min(former.size(), text.size());
    const auto same = std::mismatch(former.begin(), former.begin() + shorter, text.begin()).first - former.begin();
    const auto end = std::mismatch(former.rbegin(), former.rbegin() + (shorter - same), text.rbegin()).first;
    const auto behind = end - former.rbegin();
    const QString gone = former.mid(same, former.size() - same - behind);
    const QString come = text.mid(same, text.size() - same - behind);
    const int at = static_cast<int>(same);
    if (gone.isEmpty())
        Send(QAccessibleTextInsertEvent(pField, at, come));
    else if (come.isEmpty())
        Send(QAccessibleTextRemoveEvent(pField, at, gone));
    else
        Send(QAccessibleTextUpdateEvent(pField, at, gone, come));
}

// A field that nobody has been told of is told as it is when it gets the focus.
void AccessNews::DeliverText(HWND hWnd)
{
    if (!IsWindowVisible(hWnd))
        return;
    QAccessibleInterface* const pField = FindAccessible(hWnd, CHILDID_SELF);
    const FieldText now = ReadField(hWnd);
    const auto [it, bNew] = m_fields.try_emplace(hWnd, now);
    const FieldText former = std::exchange(it->second, now);
    if (former.text != now.text)
        SendTextChange(pField, former.text, now.text);
    const auto [first, end] = std::minmax(now.cursor, now.anchor);
    if (first != end || former.cursor != former.anchor)
        Send(QAccessibleTextSelectionEvent(pField, first, end));
    if (bNew || former.cursor != now.cursor)
        Send(QAccessibleTextCursorEvent(pField, now.cursor));
}

// A part that says so has it, such as a menu's title while the arrows walk; else what has it by now.
void AccessNews::DeliverFocus(HWND hWnd, LPARAM item)
{
    QAccessibleInterface* pFocus = FindAccessible(hWnd, item);
    if (item == CHILDID_SELF || !pFocus || !pFocus->state().focused)
        pFocus = FindFocusedAccessible();
    if (!pFocus)
        return;
    if (pFocus->textInterface())
        m_fields.insert_or_assign(GetFocus(), ReadField(GetFocus()));
    Send(QAccessibleEvent(pFocus, QAccessible::Focus));
}

} // namespace qtdesktop
