#include "Toolkit/controls/items/LabelEditing.h"

#include "Toolkit/base/Ticks.h"
#include "Toolkit/controls/edit/EditControl.h"
#include "Toolkit/controls/items/ItemControl.h"
#include "Toolkit/graphics/TextEngine.h"

#include <utility>

namespace toolkit
{

namespace
{

constexpr LPCSTR kFieldClass = "LabelField", kClockClass = "LabelClock";
constexpr UINT_PTR kClockTimer = 1;
constexpr int kBorder = 1;

// Does something with the parent, which may be destroyed meanwhile.
template <class Call>
bool CallOwner(HWND hWnd, const Call& call)
{
    const WindowHold hold(GetParent(hWnd));
    auto* const pOwner = dynamic_cast<ItemControl*>(hold.Native());
    if (pOwner)
        call(pOwner->Labels());
    return pOwner;
}

// A child of the control; lives until that destroys it.
class LabelField : public EditControl
{
public:
    using EditControl::EditControl;

    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        switch (message) {
        case WM_KEYDOWN:
            if (wParam == VK_RETURN || wParam == VK_ESCAPE)
                return Done(wParam == VK_RETURN), 0;
            break;
        case WM_KILLFOCUS:
            return OnLeft(reinterpret_cast<HWND>(wParam)), 0;
        case WM_GETDLGCODE:
            return EditControl::HandleMessage(message, wParam, lParam) | DLGC_WANTALLKEYS;
        default:
            break;
        }
        return EditControl::HandleMessage(message, wParam, lParam);
    }

protected:
    void TextIsNew() override
    {
        CallOwner(m_hWnd, [](LabelEditing& labels) { labels.Place(); });
    }

private:
    void Done(bool bTaken)
    {
        CallOwner(m_hWnd, [bTaken](LabelEditing& labels) { labels.Finish(bTaken); }); // destroys this window
    }

    // Another window, or a message box, ends nothing: the editing goes on when the user comes back.
    void OnLeft(HWND hGainer)
    {
        EditControl::HandleMessage(WM_KILLFOCUS, reinterpret_cast<WPARAM>(hGainer), 0);
        if (hGainer && GetTopLevel(hGainer) == GetTopLevel(m_hWnd))
            Done(true);
    }
};

// Tells its owner once. A timer of the owner's own would be in the way of a derived class that keeps timers to itself.
class LabelClock : public NativeWindow
{
public:
    using NativeWindow::NativeWindow;

    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const auto tell = [](LabelEditing& labels) { labels.WaitIsOver(); }; // destroys this window
        return message == WM_TIMER && CallOwner(m_hWnd, tell) ? 0 : ::DefWindowProc(m_hWnd, message, wParam, lParam);
    }
};

const bool s_registered = [] {
    RegisterWindowClass(kFieldClass, [](HWND hWnd) { return std::make_unique<LabelField>(hWnd); });
    RegisterWindowClass(kClockClass, [](HWND hWnd) { return std::make_unique<LabelClock>(hWnd); });
    return true;
}();

// Its text and room for a letter more, with a border; the height of one line.
CSize WantedSize(HWND hField)
{
    TextEngine& engine = CurrentTextEngine();
    const int around = 2 * (EditLayout::kMargin + kBorder) + EditLayout::kCaretWidth;
    const CString text = GetWindowText(hField);
    return {engine.Measure(text.View(), FontStyle::Regular) + engine.Measure("m", FontStyle::Regular) + around,
            engine.LineHeight() + 2 * LabelEditing::kFieldTop};
}

} // namespace

void LabelEditing::Begin(LPARAM item)
{
    StopWaiting();
    if (!m_window.Is(m_style) || !m_host.HasItem(item))
        return;
    m_host.CancelPress();
    m_window.TakeFocus();
    if (!m_window.IsFocused() || !m_host.HasItem(item))
        return; // refused
    m_host.ShowItem(item);
    const std::optional<std::string> text = m_host.AskLabel(item);
    if (!text || m_hField || !m_host.HasItem(item))
        return;
    m_item = item;
    m_host.RedrawItem(item);
    const HWND hWnd = m_window.m_hWnd;
    ModifyStyle(hWnd, 0, WS_CLIPCHILDREN); // what it draws must not cover the field
    const DWORD style = WS_CHILD | WS_BORDER | m_align;
    m_hField = CreateWindowEx(0, kFieldClass, text->c_str(), style, 0, 0, 0, 0, hWnd, 1, nullptr);
    if (!m_hField)
        return;
    SetAccessibleName(m_hField, text->c_str());
    SendMessage(m_hField, EM_SETSEL, 0, -1);
    Place();
    ShowWindow(m_hField, SW_SHOW);
    SetFocus(m_hField);
}

void LabelEditing::Finish(bool taken)
{
    if (!m_hField)
        return;
    m_host.RedrawItem(m_item);
    const LPARAM item = m_item;
    const HWND hField = std::exchange(m_hField, nullptr);
    std::string text(GetWindowText(hField).View());
    DestroyWindow(hField); // the focus comes back, unless it is elsewhere already
    m_host.TellLabel(item, text, taken);
}

void LabelEditing::MoveTo(LPARAM item)
{
    m_host.RedrawItem(std::exchange(m_item, item));
    m_host.RedrawItem(item);
    Place();
}

void LabelEditing::Place()
{
    if (!m_hField)
        return;
    const CRect box = m_host.FieldBox(m_item, WantedSize(m_hField));
    MoveWindow(m_hField, box.left, box.top, box.Width(), box.Height());
}

// A field that lost the focus while its window was left ends when the user comes back to something else.
void LabelEditing::GotFocus()
{
    m_focusedAt = GetTickCount();
    Finish(true);
}

// A click into a window that was not the active one comes right behind the focus that it brings.
bool LabelEditing::IsMeant(LPARAM item) const
{
    return m_window.Is(m_style) && m_host.IsSelected(item) && GetTickCount() - m_focusedAt >= GetDoubleClickTime();
}

void LabelEditing::BeginLater(LPARAM item)
{
    StopWaiting();
    m_clicked = item;
    m_hClock = CreateWindowEx(0, kClockClass, "", WS_CHILD, 0, 0, 0, 0, m_window.m_hWnd, 0, nullptr);
    SetTimer(m_hClock, kClockTimer, GetDoubleClickTime());
}

void LabelEditing::StopWaiting()
{
    if (const HWND hClock = std::exchange(m_hClock, nullptr))
        DestroyWindow(hClock);
}

void LabelEditing::WaitIsOver()
{
    StopWaiting();
    if (m_host.IsSelected(m_clicked) && m_window.IsFocused() && !m_host.IsPressed())
        Begin(m_clicked);
}

} // namespace toolkit
