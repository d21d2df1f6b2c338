#include "QtDesktop/QtDesktop.h"

#include "QtDesktop/AccessNews.h"
#include "QtDesktop/AskedColors.h"
#include "QtDesktop/QtAccessible.h"
#include "QtDesktop/QtMenu.h"
#include "QtDesktop/QtMessageBox.h"
#include "QtDesktop/QtOutside.h"
#include "QtDesktop/QtWindow.h"
#include "QtDesktop/QueuePump.h"
#include "QtDesktop/exchange/ForeignTimes.h"
#include "QtDesktop/exchange/QtClipboard.h"
#include "QtDesktop/exchange/QtDrag.h"
#include "QtDesktop/text/QtTextEngine.h"
#include "Toolkit/base/Ticks.h"
#include "Toolkit/run/Run.h"
#include "Toolkit/window/WindowApi.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QPalette>
#include <QScreen>
#include <QStyleHints>
#include <QToolTip>
#include <map>
#include <utility>

namespace qtdesktop
{
namespace
{

std::unique_ptr<QtTextEngine> MakeTextEngine()
{
    return QFontDatabase::families().isEmpty() ? nullptr : std::make_unique<QtTextEngine>(QGuiApplication::font());
}

} // namespace

struct QtDesktop::Parts
{
    QueuePump pump;
    AccessNews accessNews;
    ForeignTimes foreignTimes;
    AskedColors colors;
    std::unique_ptr<QtClipboard> pClipboard = std::make_unique<QtClipboard>();
    std::unique_ptr<QtTextEngine> pTextEngine = MakeTextEngine(); // NULL on a machine without a font
    std::unique_ptr<QtTextEngine> pFormerEngine; // of the font before, which the toolkit may still have
    std::map<HWND, std::unique_ptr<QtWindow>> windows;
    toolkit::Cursor cursor = toolkit::Cursor::Arrow;
    int nDropPatience = 10'000; // milliseconds

    QtWindow* Find(HWND hTop) const
    {
        const auto it = windows.find(hTop);
        return it == windows.end() ? nullptr : it->second.get();
    }
};

QtDesktop::QtDesktop() : m_parts(std::make_unique<Parts>())
{
    InstallAccessibles();
    toolkit::InstallDesktop(this);
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &m_parts->pump, &toolkit::InputScale);
    QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, &m_parts->pump, &toolkit::InputScale);
}

QtDesktop::~QtDesktop()
{
    TrimAccessibles();
    m_parts->pClipboard.reset(); // its data may look at the desktop when it goes
    toolkit::InstallDesktop(nullptr);
}

QWidget* QtDesktop::FindWidget(HWND hTop) const
{
    return m_parts->Find(hTop);
}

void QtDesktop::SetDropPatience(int nMilliseconds)
{
    m_parts->nDropPatience = nMilliseconds;
}

void QtDesktop::HearAccessibility(std::function<void(QAccessibleEvent&)> hear)
{
    m_parts->accessNews.SetHearer(std::move(hear));
}

DWORD QtDesktop::Ticks()
{
    return toolkit::SystemTicks();
}

toolkit::TextEngine& QtDesktop::GetTextEngine()
{
    if (m_parts->pTextEngine && m_parts->pTextEngine->GetFont() != QGuiApplication::font())
        m_parts->pFormerEngine = std::exchange(m_parts->pTextEngine, MakeTextEngine());
    if (m_parts->pTextEngine)
        return *m_parts->pTextEngine;
    return toolkit::BuiltinTextEngine();
}

toolkit::ColorScheme QtDesktop::GetColorScheme()
{
    const QPalette palette = QGuiApplication::palette();
    const auto color = [&palette](QPalette::ColorRole role) {
        const QColor it = palette.color(QPalette::Active, role);
        return RGB(it.red(), it.green(), it.blue());
    };
    return {color(QPalette::Base), color(QPalette::Text), color(QPalette::Highlight), color(QPalette::HighlightedText)};
}

toolkit::PixelScale QtDesktop::GetScreenScale()
{
    return toolkit::PixelScale(qGuiApp->devicePixelRatio());
}

DWORD QtDesktop::GetDoubleClickTime()
{
    return static_cast<DWORD>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
}

void QtDesktop::WindowCreated(HWND hTop)
{
    const auto [it, bNew] = m_parts->windows.emplace(hTop, std::make_unique<QtWindow>(hTop));
    it->second->ShowShape(m_parts->cursor);
}

void QtDesktop::WindowChanged(HWND hTop)
{
    if (QtWindow* pWindow = m_parts->Find(hTop))
        pWindow->FollowState();
}

void QtDesktop::WindowPlaced(HWND hTop)
{
    if (QtWindow* pWindow = m_parts->Find(hTop))
        pWindow->FollowPlace();
}

void QtDesktop::WindowDestroyed(HWND hTop)
{
    auto entry = m_parts->windows.extract(hTop);
    if (entry)
        QtWindow::Discard(std::move(entry.mapped()));
}

void QtDesktop::Present(HWND hTop, const toolkit::Surface&, const CRect& dirty)
{
    if (QtWindow* pWindow = m_parts->Find(hTop))
        pWindow->Present(dirty);
}

void QtDesktop::Wake(std::optional<DWORD> inMilliseconds)
{
    m_parts->pump.Wake(inMilliseconds);
}

void QtDesktop::WakeFromThread()
{
    m_parts->pump.WakeFromThread();
}

void QtDesktop::ProcessEvents()
{
    QCoreApplication::processEvents();
}

int QtDesktop::ShowMessageBox(HWND hOwner, LPCSTR pszText, LPCSTR pszCaption, UINT nType)
{
    return AskMessageBox(m_parts->Find(GetTopLevel(hOwner)), pszText, pszCaption, nType);
}

void QtDesktop::Quit(int nStatus)
{
    QCoreApplication::exit(nStatus);
}

void QtDesktop::ShowCursor(toolkit::Cursor cursor)
{
    if (std::exchange(m_parts->cursor, cursor) == cursor)
        return;
    for (const auto& [hTop, pWindow] : m_parts->windows)
        pWindow->ShowShape(cursor);
}

void QtDesktop::ShowToolTip(HWND hTop, const std::string& text, const CRect& part)
{
    QtWindow* const pWindow = m_parts->Find(hTop);
    if (!pWindow || text.empty())
        return QToolTip::hideText();
    const QPoint at = pWindow->mapFromGlobal(QPoint(part.left, part.top));
    QToolTip::showText({part.left, part.bottom}, QString::fromStdString(text).toHtmlEscaped(), pWindow,
                       {at.x(), at.y(), part.Width(), part.Height()});
}

CRect QtDesktop::GetWorkArea(CPoint screen)
{
    const QScreen* const pThere = QGuiApplication::screenAt({screen.x, screen.y});
    const QScreen* const pScreen = pThere ? pThere : QGuiApplication::primaryScreen();
    const QRect area = pScreen ? pScreen->availableGeometry() : QRect();
    return {CPoint(area.x(), area.y()), CSize(area.width(), area.height())};
}

std::optional<std::string> QtDesktop::AskFolder(HWND hOwner, const std::string& title, const std::string& start)
{
    return AskForFolder(m_parts->Find(GetTopLevel(hOwner)), title, start);
}

std::string QtDesktop::OpenOutside(const std::string& path)
{
    return OpenWithItsProgram(path);
}

std::string QtDesktop::ShowOutside(const std::string& path)
{
    return ShowInFileManager(path);
}

void QtDesktop::TextInputChanged()
{
    for (const auto& [hTop, pWindow] : m_parts->windows)
        pWindow->FollowTextInput();
}

void QtDesktop::AccessibleChanged(DWORD event, HWND hWnd, LPARAM item)
{
    m_parts->accessNews.Tell(event, hWnd, item);
}

BOOL QtDesktop::PublishClipboard(std::shared_ptr<toolkit::OfferedData> data)
{
    return m_parts->pClipboard && m_parts->pClipboard->Publish(std::move(data));
}

std::shared_ptr<toolkit::OfferedData> QtDesktop::FetchClipboard()
{
    return m_parts->pClipboard ? m_parts->pClipboard->Fetch() : nullptr;
}

DROPEFFECT QtDesktop::RunDrag(std::shared_ptr<toolkit::OfferedData> data, DROPEFFECT allowed)
{
    return RunQtDrag(std::move(data), allowed, m_parts->nDropPatience);
}

UINT QtDesktop::TrackMenu(HWND hOwner, const std::vector<toolkit::MenuItem>& items, CPoint screen)
{
    return TrackPopup(m_parts->Find(GetTopLevel(hOwner)), hOwner, items, screen);
}

} // namespace qtdesktop
