// The widget that shows one top-level window of the toolkit.
//
// Draws the window's surface, a coordinate of it to a logical pixel of the screen, and hands the user's input to the
// toolkit's queue. Nothing here calls into the toolkit's windows but to ask for their state, and to show what an input
// method is composing.
#pragma once

#include "QtDesktop/exchange/DropArea.h"
#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/message/Input.h"

#include <QWidget>
#include <memory>

namespace qtdesktop
{

class QtWindow : public QWidget
{
public:
    explicit QtWindow(HWND hTop); // hidden at first

    HWND TopWindow() const { return m_hTop; }

    void FollowState();               // the window was shown, hidden or renamed
    void FollowPlace();               // the program moved or sized it
    void Present(const CRect& dirty); // the window's surface has new pixels
    void ShowShape(toolkit::Cursor cursor);
    void FollowTextInput(); // another field has the focus, or its text or caret is new

    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

    // The toolkit's window is gone. The widget goes at once, or after the drag event that it is handling.
    static void Discard(std::unique_ptr<QtWindow> window);

protected:
    bool event(QEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;
    void moveEvent(QMoveEvent*) override { toolkit::InputMoved(m_hTop, Corner()); }
    void closeEvent(QCloseEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override { TellButton(*pEvent, true); }
    void mouseReleaseEvent(QMouseEvent* pEvent) override { TellButton(*pEvent, false); }
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void wheelEvent(QWheelEvent* pEvent) override;
    void enterEvent(QEnterEvent*) override { TellPointer(); }
    void leaveEvent(QEvent*) override { toolkit::InputMouseLeave(m_hTop); }
    void keyPressEvent(QKeyEvent* pEvent) override;
    void keyReleaseEvent(QKeyEvent* pEvent) override;
    void inputMethodEvent(QInputMethodEvent* pEvent) override;
    void dragEnterEvent(QDragEnterEvent* pEvent) override;
    void dragMoveEvent(QDragMoveEvent* pEvent) override;
    void dragLeaveEvent(QDragLeaveEvent* pEvent) override;
    void dropEvent(QDropEvent* pEvent) override;

private:
    CPoint Corner() const; // on the screen
    template <class Handle>
    void HandleDrag(Handle handle);
    void TellPointer(); // where it is without having moved
    void TellButton(const QMouseEvent& event, bool bDown);

    const HWND m_hTop;
    DropArea m_dropArea;
    int m_nDragEvents = 0;       // being handled
    HWND m_hComposing = nullptr; // the field in which an input method is composing text
    int m_nWheelRest = 0;        // turned, but too little yet to be told
};

} // namespace qtdesktop
