#include "QtDesktop/QtAccessible.h"

#include "QtDesktop/QtWindow.h"
#include "Toolkit/access/Accessible.h"
#include "Toolkit/message/TaskInbox.h"
#include "Toolkit/window/WindowApi.h"

#include <QApplication>
#include <algorithm>
#include <deque>
#include <map>
#include <utility>

namespace qtdesktop
{
namespace
{

using toolkit::AccessibleOf;

constexpr std::size_t kMostItems = 4096; // kept of all that anybody asked about

using Key = std::pair<HWND, LPARAM>;
struct
{
    std::map<Key, QAccessible::Id> ids;
    std::deque<Key> items; // in the order in which they were asked about
} s_known;

constexpr std::pair<UINT, QAccessible::Role> kRoles[] = {
    {ROLE_SYSTEM_MENUBAR, QAccessible::MenuBar},
    {ROLE_SYSTEM_MENUITEM, QAccessible::MenuItem},
    {ROLE_SYSTEM_PANE, QAccessible::Pane},
    {ROLE_SYSTEM_TOOLBAR, QAccessible::ToolBar},
    {ROLE_SYSTEM_STATUSBAR, QAccessible::StatusBar},
    {ROLE_SYSTEM_LINK, QAccessible::Link},
    {ROLE_SYSTEM_LIST, QAccessible::List},
    {ROLE_SYSTEM_LISTITEM, QAccessible::ListItem},
    {ROLE_SYSTEM_OUTLINE, QAccessible::Tree},
    {ROLE_SYSTEM_OUTLINEITEM, QAccessible::TreeItem},
    {ROLE_SYSTEM_GRAPHIC, QAccessible::Graphic},
    {ROLE_SYSTEM_STATICTEXT, QAccessible::StaticText},
    {ROLE_SYSTEM_TEXT, QAccessible::EditableText},
    {ROLE_SYSTEM_PUSHBUTTON, QAccessible::Button},
    {ROLE_SYSTEM_PROGRESSBAR, QAccessible::ProgressBar},
    {ROLE_SYSTEM_SLIDER, QAccessible::Slider},
};

QtWindow* FindWidget(HWND hTop)
{
    for (QWidget* const pWidget : QApplication::topLevelWidgets())
        if (auto* const pWindow = dynamic_cast<QtWindow*>(pWidget); pWindow && pWindow->TopWindow() == hTop)
            return pWindow;
    return nullptr;
}

QAccessibleInterface* MakeForWidget(const QString&, QObject* pObject)
{
    const auto* const pWindow = dynamic_cast<QtWindow*>(pObject);
    return pWindow ? new QtAccessible(pWindow->TopWindow(), CHILDID_SELF) : nullptr; // Qt owns it
}

CPoint ToClient(HWND hWnd, int x, int y)
{
    CPoint point(x, y);
    ScreenToClient(hWnd, &point);
    return point;
}

bool HasPoint(HWND hWnd, CPoint screen)
{
    CRect rect;
    return GetWindowRect(hWnd, &rect) && rect.PtInRect(screen);
}

bool IsThere(HWND hWnd, LPARAM item)
{
    return IsWindow(hWnd) && (item == CHILDID_SELF || AccessibleOf(hWnd)->AccHas(item));
}

void Forget(const Key& key)
{
    const auto entry = s_known.ids.extract(key);
    if (entry)
        QAccessible::deleteAccessibleInterface(entry.mapped());
}

// A task of the user's: the window or the item may be gone when its turn comes.
template <class Act>
void DoLater(HWND hWnd, LPARAM item, Act act)
{
    toolkit::PostTask([hWnd, item, act] {
        if (IsThere(hWnd, item))
            act(AccessibleOf(hWnd));
    });
}

} // namespace

void InstallAccessibles()
{
    QAccessible::installFactory(MakeForWidget);
}

QAccessibleInterface* FindAccessible(HWND hWnd, LPARAM item)
{
    if (!IsThere(hWnd, item))
        return nullptr;
    if (item == CHILDID_SELF && GetTopLevel(hWnd) == hWnd)
        return QAccessible::queryAccessibleInterface(FindWidget(hWnd));
    const auto [it, bNew] = s_known.ids.try_emplace({hWnd, item});
    if (bNew) {
        it->second = QAccessible::registerAccessibleInterface(new QtAccessible(hWnd, item)); // Qt owns it
        if (item != CHILDID_SELF)
            s_known.items.push_back(it->first);
    }
    return QAccessible::accessibleInterface(it->second);
}

QAccessibleInterface* FindFocusedAccessible()
{
    const HWND hFocus = GetFocus();
    return hFocus ? FindAccessible(hFocus, AccessibleOf(hFocus)->AccFocus()) : nullptr;
}

void TrimAccessibles()
{
    for (; s_known.items.size() > kMostItems; s_known.items.pop_front())
        Forget(s_known.items.front());
    for (auto it = s_known.ids.begin(); it != s_known.ids.end();) {
        const Key key = (it++)->first;
        if (!IsWindow(key.first))
            Forget(key);
    }
    std::erase_if(s_known.items, [](const Key& key) { return !IsWindow(key.first); });
}

bool QtAccessible::isValid() const
{
    return IsThere(m_hWnd, m_item);
}

QObject* QtAccessible::object() const
{
    return IsWindowItself() ? FindWidget(m_hWnd) : nullptr;
}

QWindow* QtAccessible::window() const
{
    const QtWindow* const pWidget = FindWidget(GetTopLevel(m_hWnd));
    return pWidget ? pWidget->windowHandle() : nullptr;
}

bool QtAccessible::IsTextField() const
{
    return IsWindowItself() && AccessibleOf(m_hWnd)->AccRole(m_item) == ROLE_SYSTEM_TEXT;
}

void* QtAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface*>(this);
    if (type == QAccessible::TextInterface && IsTextField())
        return static_cast<QAccessibleTextInterface*>(&m_text);
    if (type == QAccessible::EditableTextInterface && IsTextField())
        return static_cast<QAccessibleEditableTextInterface*>(&m_text);
    if (type == QAccessible::ValueInterface && IsWindowItself() && AccessibleOf(m_hWnd)->AccValue())
        return static_cast<QAccessibleValueInterface*>(this);
    return nullptr;
}

QAccessibleInterface* QtAccessible::parent() const
{
    if (!isValid())
        return nullptr;
    if (!IsWindowItself())
        return FindAccessible(m_hWnd, AccessibleOf(m_hWnd)->AccParent(m_item));
    const HWND hParent = GetParent(m_hWnd);
    return hParent ? FindAccessible(hParent, CHILDID_SELF) : QAccessible::queryAccessibleInterface(qApp);
}

// Items first, so that a field that comes and goes moves none of them.
int QtAccessible::childCount() const
{
    if (!isValid())
        return 0;
    const int nItems = AccessibleOf(m_hWnd)->AccCount(m_item);
    return IsWindowItself() ? nItems + static_cast<int>(toolkit::AccessibleChildren(m_hWnd).size()) : nItems;
}

QAccessibleInterface* QtAccessible::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    const AccessibleOf tells(m_hWnd);
    const int nItems = tells->AccCount(m_item);
    if (index < nItems)
        return FindAccessible(m_hWnd, tells->AccChild(m_item, index));
    return FindAccessible(toolkit::AccessibleChildren(m_hWnd)[static_cast<std::size_t>(index - nItems)], CHILDID_SELF);
}

int QtAccessible::indexOfChild(const QAccessibleInterface* pChild) const
{
    const auto* const pOther = dynamic_cast<const QtAccessible*>(pChild);
    if (!pOther || !isValid() || !pOther->isValid())
        return -1;
    const AccessibleOf tells(m_hWnd);
    if (pOther->m_hWnd == m_hWnd) {
        const bool bMine = !pOther->IsWindowItself() && tells->AccParent(pOther->m_item) == m_item;
        return bMine ? tells->AccIndex(pOther->m_item) : -1;
    }
    const std::vector<HWND> windows = toolkit::AccessibleChildren(m_hWnd);
    const auto it = std::find(windows.begin(), windows.end(), pOther->m_hWnd);
    const bool bMine = IsWindowItself() && it != windows.end();
    return bMine ? tells->AccCount(m_item) + static_cast<int>(it - windows.begin()) : -1;
}

QAccessibleInterface* QtAccessible::childAt(int x, int y) const
{
    if (!isValid() || !IsWindowItself())
        return nullptr;
    const std::vector<HWND> windows = toolkit::AccessibleChildren(m_hWnd);
    const auto it = std::find_if(windows.rbegin(), windows.rend(), [=](HWND h) { return HasPoint(h, {x, y}); });
    if (it != windows.rend())
        return FindAccessible(*it, CHILDID_SELF);
    const LPARAM item = AccessibleOf(m_hWnd)->AccAt(ToClient(m_hWnd, x, y));
    return item == CHILDID_SELF ? nullptr : FindAccessible(m_hWnd, item);
}

QAccessibleInterface* QtAccessible::focusChild() const
{
    const HWND hFocus = GetFocus();
    const bool bWithin = IsWindowItself() && hFocus && (hFocus == m_hWnd || IsChild(m_hWnd, hFocus));
    return bWithin ? FindFocusedAccessible() : nullptr;
}

QString QtAccessible::text(QAccessible::Text which) const
{
    if (!isValid())
        return {};
    const AccessibleOf tells(m_hWnd);
    switch (which) {
    case QAccessible::Name:
        return QString::fromStdString(IsWindowItself() ? toolkit::AccessibleWindowName(m_hWnd)
                                                       : tells->AccName(m_item));
    case QAccessible::Description:
        return QString::fromStdString(tells->AccDescription(m_item));
    case QAccessible::Value:
        return IsTextField() ? ReadField(m_hWnd).text : currentValue().toString();
    default:
        return {};
    }
}

void QtAccessible::setText(QAccessible::Text which, const QString& text)
{
    if (which == QAccessible::Value && IsTextField())
        m_text.replaceText(0, m_text.characterCount(), text);
}

QRect QtAccessible::rect() const
{
    CRect place;
    if (!isValid())
        return {};
    if (IsWindowItself()) {
        GetWindowRect(m_hWnd, &place);
    } else {
        CPoint corner;
        ClientToScreen(m_hWnd, &corner);
        place = AccessibleOf(m_hWnd)->AccPlace(m_item) + corner;
    }
    return {place.left, place.top, place.Width(), place.Height()};
}

QAccessible::Role QtAccessible::role() const
{
    const UINT role = AccessibleOf(m_hWnd)->AccRole(m_item);
    if (role == ROLE_SYSTEM_PANE && IsWindowItself() && !GetParent(m_hWnd))
        return QAccessible::Window;
    const auto it = std::find_if(std::begin(kRoles), std::end(kRoles), [=](auto& pair) { return pair.first == role; });
    return it == std::end(kRoles) ? QAccessible::Client : it->second;
}

QAccessible::State QtAccessible::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid)
        return state;
    const AccessibleOf tells(m_hWnd);
    const UINT own = tells->AccState(m_item);
    const auto has = [own](UINT states) { return (own & states) != 0; };
    const bool bFocused = IsWindowItself() && GetFocus() == m_hWnd && tells->AccFocus() == CHILDID_SELF;
    state.focused = bFocused || has(STATE_SYSTEM_FOCUSED);
    state.focusable = state.focused || has(STATE_SYSTEM_FOCUSABLE);
    state.selectable = has(STATE_SYSTEM_SELECTABLE);
    state.selected = has(STATE_SYSTEM_SELECTED);
    state.multiSelectable = state.extSelectable = has(STATE_SYSTEM_MULTISELECTABLE);
    state.expandable = has(STATE_SYSTEM_EXPANDED | STATE_SYSTEM_COLLAPSED);
    state.expanded = has(STATE_SYSTEM_EXPANDED);
    state.collapsed = has(STATE_SYSTEM_COLLAPSED);
    state.checkable = state.checked = has(STATE_SYSTEM_CHECKED);
    state.disabled = has(STATE_SYSTEM_UNAVAILABLE);
    state.offscreen = has(STATE_SYSTEM_OFFSCREEN);
    state.invisible = !IsWindowVisible(m_hWnd);
    state.readOnly = has(STATE_SYSTEM_READONLY);
    state.editable = IsTextField() && !state.readOnly;
    state.active = IsWindowItself() && !GetParent(m_hWnd) && GetTopLevel(GetFocus()) == m_hWnd;
    return state;
}

QStringList QtAccessible::actionNames() const
{
    QStringList names;
    if (!isValid())
        return names;
    const AccessibleOf tells(m_hWnd);
    if (!tells->AccAction(m_item).empty())
        names << pressAction();
    if (state().focusable)
        names << setFocusAction();
    if (!IsWindowItself() && tells->AccCanSelect())
        names << toggleAction();
    return names;
}

QString QtAccessible::localizedActionName(const QString& name) const
{
    if (name == toggleAction())
        return state().selected ? QStringLiteral("Take out of the selection") : QStringLiteral("Select");
    const bool bOwn = name == pressAction() && isValid();
    return bOwn ? QString::fromStdString(AccessibleOf(m_hWnd)->AccAction(m_item))
                : QAccessibleActionInterface::localizedActionName(name);
}

void QtAccessible::doAction(const QString& name)
{
    const LPARAM item = m_item;
    if (name == pressAction())
        DoLater(m_hWnd, item, [item](const AccessibleOf& tells) { tells->AccDo(item); });
    else if (name == toggleAction())
        DoLater(m_hWnd, item, [item](const AccessibleOf& tells) {
            const bool bSelected = tells->AccState(item) & STATE_SYSTEM_SELECTED;
            tells->AccSelect(item, bSelected ? SELFLAG_REMOVESELECTION : SELFLAG_ADDSELECTION);
        });
    else if (name == setFocusAction() && IsWindowItself())
        toolkit::PostTask([hWnd = m_hWnd] { SetFocus(hWnd); });
    else if (name == setFocusAction())
        DoLater(m_hWnd, item, [item](const AccessibleOf& tells) { tells->AccSelect(item, SELFLAG_TAKEFOCUS); });
}

QVariant QtAccessible::currentValue() const
{
    const auto range = AccessibleOf(m_hWnd)->AccValue();
    return IsWindowItself() && range ? range->now : QVariant();
}

void QtAccessible::setCurrentValue(const QVariant& value)
{
    DoLater(m_hWnd, m_item, [to = value.toDouble()](const AccessibleOf& tells) { tells->AccSetValue(to); });
}

QVariant QtAccessible::maximumValue() const
{
    const auto range = AccessibleOf(m_hWnd)->AccValue();
    return range ? range->most : QVariant();
}

QVariant QtAccessible::minimumValue() const
{
    const auto range = AccessibleOf(m_hWnd)->AccValue();
    return range ? range->least : QVariant();
}

} // namespace qtdesktop
