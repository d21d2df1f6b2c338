#include "QtDesktop/QtWindow.h"

#include "QtDesktop/InputMethod.h"
#include "QtDesktop/Keys.h"
#include "Toolkit/paint/WindowDC.h"
#include "Toolkit/window/WindowApi.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

namespace qtdesktop
{
namespace
{

// A touchpad turns in steps of a pixel; told one by one they would cost more than they move.
constexpr int kFinestTurn = WHEEL_DELTA / 8;

QRect ToQt(const CRect& rect)
{
    return {rect.left, rect.top, rect.Width(), rect.Height()};
}

// Every pixel that the rectangle has a part of.
QRect ToPixels(const QRect& rect, qreal factor)
{
    return QRectF(rect.x() * factor, rect.y() * factor, rect.width() * factor, rect.height() * factor).toAlignedRect();
}

CPoint ToPoint(QPointF point)
{
    return {static_cast<int>(std::floor(point.x())), static_cast<int>(std::floor(point.y()))};
}

constexpr std::pair<Qt::MouseButton, toolkit::MouseButton> kButtons[] = {
    {Qt::LeftButton, toolkit::MouseButton::Left},
    {Qt::RightButton, toolkit::MouseButton::Right},
    {Qt::MiddleButton, toolkit::MouseButton::Middle},
};

Qt::CursorShape ToQt(toolkit::Cursor cursor)
{
    switch (cursor) {
    case toolkit::Cursor::Wait:
        return Qt::WaitCursor;
    case toolkit::Cursor::Text:
        return Qt::IBeamCursor;
    case toolkit::Cursor::Hand:
        return Qt::PointingHandCursor;
    case toolkit::Cursor::SizeWE:
        return Qt::SplitHCursor;
    default:
        return Qt::ArrowCursor;
    }
}

Qt::WindowFlags FlagsOf(HWND hTop)
{
    return GetWindowStyle(hTop) & WS_POPUP ? Qt::Tool | Qt::FramelessWindowHint : Qt::Window;
}

} // namespace

QtWindow::QtWindow(HWND hTop) : QWidget(nullptr, FlagsOf(hTop)), m_hTop(hTop), m_dropArea(hTop)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAcceptDrops(true);
    FollowPlace();
    FollowState();
}

void QtWindow::FollowState()
{
    const QString title = QString::fromUtf8(GetWindowText(m_hTop).GetString());
    if (title != windowTitle())
        setWindowTitle(title);
    setVisible(IsWindowVisible(m_hTop));
}

void QtWindow::FollowPlace()
{
    CRect place;
    GetWindowRect(m_hTop, &place);
    // A new window in the screen's corner has no place in particular: the window manager knows a better one.
    const bool bAnywhere = !isVisible() && place.TopLeft() == CPoint();
    if (bAnywhere || place.TopLeft() == Corner())
        resize(place.Width(), place.Height());
    else
        setGeometry(ToQt(place));
}

CPoint QtWindow::Corner() const
{
    const QPoint corner = mapToGlobal(QPoint(0, 0));
    return {corner.x(), corner.y()};
}

void QtWindow::Present(const CRect& dirty)
{
    update(ToQt(dirty));
}

void QtWindow::ShowShape(toolkit::Cursor cursor)
{
    setCursor(ToQt(cursor));
}

void QtWindow::paintEvent(QPaintEvent* pEvent)
{
    QPainter painter(this);
    const toolkit::Surface* pSurface = toolkit::WindowSurface(m_hTop);
    const CSize painted = pSurface ? pSurface->Size() : CSize();
    for (const QRect& rect : pEvent->region() - QRect(0, 0, painted.cx, painted.cy)) // sized, and not painted yet
        painter.fillRect(rect, palette().window());
    if (!pSurface || pSurface->IsEmpty())
        return;
    const QImage image(reinterpret_cast<const uchar*>(pSurface->Row(0)), pSurface->Width(), pSurface->Height(),
                       pSurface->Width() * static_cast<int>(sizeof(toolkit::Pixel)), QImage::Format_RGB32);
    // On a screen of another scale than the finest the surface does not fit pixel by pixel.
    const qreal factor = pSurface->Scale().Factor();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, factor != devicePixelRatioF());
    painter.scale(1 / factor, 1 / factor);
    for (const QRect& rect : pEvent->region()) {
        const QRect pixels = ToPixels(rect, factor) & image.rect();
        painter.drawImage(pixels, image, pixels);
    }
}

bool QtWindow::event(QEvent* pEvent)
{
    switch (pEvent->type()) {
    case QEvent::WindowActivate:
        toolkit::InputActivate(m_hTop, true);
        TellPointer();
        break;
    case QEvent::WindowDeactivate:
        toolkit::InputActivate(m_hTop, false);
        break;
    case QEvent::ApplicationPaletteChange:
        toolkit::InputColors();
        break;
    case QEvent::ApplicationFontChange:
    case QEvent::ThemeChange:
        toolkit::InputFont();
        break;
    default:
        break;
    }
    return QWidget::event(pEvent);
}

void QtWindow::resizeEvent(QResizeEvent* pEvent)
{
    toolkit::InputResize(m_hTop, CSize(pEvent->size().width(), pEvent->size().height()));
}

void QtWindow::closeEvent(QCloseEvent* pEvent)
{
    pEvent->ignore(); // the program decides
    toolkit::InputClose(m_hTop);
}

// A press goes elsewhere than what is being composed, which is finished first.
void QtWindow::TellButton(const QMouseEvent& event, bool bDown)
{
    if (bDown && m_hComposing)
        QGuiApplication::inputMethod()->commit();
    const auto it = std::find_if(std::begin(kButtons), std::end(kButtons),
                                 [&event](const auto& pair) { return pair.first == event.button(); });
    if (it != std::end(kButtons))
        toolkit::InputMouseButton(m_hTop, ToPoint(event.position()), it->second, bDown, ToModifiers(event.modifiers()));
}

// The toolkit makes double clicks of presses itself.
void QtWindow::mouseDoubleClickEvent(QMouseEvent* pEvent)
{
    mousePressEvent(pEvent);
}

void QtWindow::mouseMoveEvent(QMouseEvent* pEvent)
{
    toolkit::InputMouseMove(m_hTop, ToPoint(pEvent->position()), ToModifiers(pEvent->modifiers()));
}

void QtWindow::wheelEvent(QWheelEvent* pEvent)
{
    const QPoint turn = pEvent->angleDelta();
    const bool bTurnedByAlt = turn.y() == 0 && pEvent->modifiers().testFlag(Qt::AltModifier);
    m_nWheelRest += bTurnedByAlt ? turn.x() : turn.y();
    const int nWhole = m_nWheelRest - m_nWheelRest % kFinestTurn;
    if (nWhole == 0)
        return;
    m_nWheelRest -= nWhole;
    toolkit::InputMouseWheel(m_hTop, ToPoint(pEvent->position()), nWhole, ToModifiers(pEvent->modifiers()));
}

void QtWindow::TellPointer()
{
    toolkit::InputMouseMove(m_hTop, ToPoint(mapFromGlobal(QPointF(QCursor::pos()))),
                            ToModifiers(QGuiApplication::keyboardModifiers()));
}

void QtWindow::keyPressEvent(QKeyEvent* pEvent)
{
    QToolTip::hideText(); // the keyboard is in use
    toolkit::InputKey(ToVirtualKey(*pEvent), true, ModifiersAfter(*pEvent));
    if (const std::string text = TypedText(*pEvent); !text.empty())
        toolkit::InputText(text);
}

void QtWindow::keyReleaseEvent(QKeyEvent* pEvent)
{
    if (pEvent->isAutoRepeat()) // the key is still down
        return;
    toolkit::InputKey(ToVirtualKey(*pEvent), false, ModifiersAfter(*pEvent));
}

void QtWindow::Discard(std::unique_ptr<QtWindow> window)
{
    if (window->m_nDragEvents == 0)
        return;
    window->hide();
    window.release()->deleteLater();
}

template <class Handle>
void QtWindow::HandleDrag(Handle handle)
{
    ++m_nDragEvents;
    handle();
    --m_nDragEvents;
}

void QtWindow::FollowTextInput()
{
    const std::optional<toolkit::TextInputState> state = FindTextInput(m_hTop);
    if (m_hComposing && (!state || state->hWnd != m_hComposing)) {
        m_hComposing = nullptr;
        QGuiApplication::inputMethod()->reset(); // it was meant for the field that has lost the focus
    }
    setAttribute(Qt::WA_InputMethodEnabled, state.has_value());
    if (state)
        updateMicroFocus();
}

void QtWindow::inputMethodEvent(QInputMethodEvent* pEvent)
{
    const bool bComposing = TakeInputMethod(m_hTop, *pEvent);
    const std::optional<toolkit::TextInputState> state = FindTextInput(m_hTop);
    m_hComposing = bComposing && state ? state->hWnd : nullptr;
}

QVariant QtWindow::inputMethodQuery(Qt::InputMethodQuery query) const
{
    const QVariant answer = AnswerInputMethod(m_hTop, query);
    return answer.isValid() ? answer : QWidget::inputMethodQuery(query);
}

void QtWindow::dragEnterEvent(QDragEnterEvent* pEvent)
{
    HandleDrag([&] { m_dropArea.Enter(*pEvent); });
}

void QtWindow::dragMoveEvent(QDragMoveEvent* pEvent)
{
    HandleDrag([&] { m_dropArea.Move(*pEvent); });
}

void QtWindow::dragLeaveEvent(QDragLeaveEvent*)
{
    HandleDrag([&] { m_dropArea.Leave(); });
}

void QtWindow::dropEvent(QDropEvent* pEvent)
{
    HandleDrag([&] { m_dropArea.Drop(*pEvent); });
}

} // namespace qtdesktop
