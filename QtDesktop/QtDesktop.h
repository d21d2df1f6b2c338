// Shows the toolkit's windows on the real desktop, with Qt.
//
// Made after the QApplication and before the first window of the toolkit, gone after the last window and before
// the QApplication. Installs itself when made. The toolkit's queue then runs whenever Qt's event loop does,
// also in the loops that Qt runs inside others.
#pragma once

#include "QtDesktop/Export.h"
#include "Toolkit/desktop/Desktop.h"

#include <functional>
#include <memory>

class QAccessibleEvent;
class QWidget;

namespace qtdesktop
{

class QTDESKTOP_API QtDesktop : public toolkit::Desktop
{
public:
    QtDesktop();
    ~QtDesktop() override;
    QtDesktop(const QtDesktop&) = delete;
    QtDesktop& operator=(const QtDesktop&) = delete;

    // The widget that shows a top-level window; NULL for every other handle. It goes with the window.
    QWidget* FindWidget(HWND hTop) const;

    // How long a drag that was dropped in another program waits to hear that the data was moved. Ten seconds at first.
    void SetDropPatience(int nMilliseconds);

    // Hears what screen readers are told of, whether or not there is one: for a program's tests. Empty: nobody.
    void HearAccessibility(std::function<void(QAccessibleEvent& event)> hear);

    DWORD Ticks() override;
    toolkit::TextEngine& GetTextEngine() override;
    toolkit::ColorScheme GetColorScheme() override;
    toolkit::PixelScale GetScreenScale() override;
    DWORD GetDoubleClickTime() override;
    void WindowCreated(HWND hTop) override;
    void WindowChanged(HWND hTop) override;
    void WindowPlaced(HWND hTop) override;
    void WindowDestroyed(HWND hTop) override;
    void Present(HWND hTop, const toolkit::Surface& surface, const CRect& dirty) override;
    void Wake(std::optional<DWORD> inMilliseconds) override;
    void WakeFromThread() override;
    void ProcessEvents() override;
    int ShowMessageBox(HWND hOwner, LPCSTR pszText, LPCSTR pszCaption, UINT nType) override;
    void Quit(int nStatus) override; // ends the application's exec()
    void ShowCursor(toolkit::Cursor cursor) override;
    void ShowToolTip(HWND hTop, const std::string& text, const CRect& part) override;
    CRect GetWorkArea(CPoint screen) override;
    std::optional<std::string> AskFolder(HWND hOwner, const std::string& title, const std::string& start) override;
    std::string OpenOutside(const std::string& path) override;
    std::string ShowOutside(const std::string& path) override;
    void TextInputChanged() override;
    void AccessibleChanged(DWORD event, HWND hWnd, LPARAM item) override;
    UINT TrackMenu(HWND hOwner, const std::vector<toolkit::MenuItem>& items, CPoint screen) override;
    BOOL PublishClipboard(std::shared_ptr<toolkit::OfferedData> data) override;
    std::shared_ptr<toolkit::OfferedData> FetchClipboard() override;
    DROPEFFECT RunDrag(std::shared_ptr<toolkit::OfferedData> data, DROPEFFECT allowed) override;

private:
    struct Parts;
    const std::unique_ptr<Parts> m_parts;
};

} // namespace qtdesktop
