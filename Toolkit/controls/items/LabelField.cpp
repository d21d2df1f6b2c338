#include "Toolkit/controls/items/LabelField.h"

#include "Toolkit/controls/edit/EditControl.h"
#include "Toolkit/controls/items/ItemControl.h"
#include "Toolkit/graphics/TextEngine.h"

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

    void OnLeft(HWND hGainer)
    {
        const HWND hWnd = m_hWnd;
        EditControl::HandleMessage(WM_KILLFOCUS, reinterpret_cast<WPARAM>(hGainer), 0);
        if (IsWindow(hWnd) && hGainer && GetTopLevel(hGainer) == GetTopLevel(hWnd))
            Done(true);
    }
};

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

} // namespace

HWND CreateLabelField(HWND hOwner, const std::string& text, DWORD align)
{
    ModifyStyle(hOwner, 0, WS_CLIPCHILDREN); // what it draws must not cover the field
    const HWND hField =
        CreateWindowEx(0, kFieldClass, text.c_str(), WS_CHILD | WS_BORDER | align, 0, 0, 0, 0, hOwner, 1, nullptr);
    SendMessage(hField, EM_SETSEL, 0, -1);
    return hField;
}

CSize LabelFieldSize(HWND hField)
{
    TextEngine& engine = CurrentTextEngine();
    const int around = 2 * (EditLayout::kMargin + kBorder) + EditLayout::kCaretWidth;
    const CString text = GetWindowText(hField);
    return {engine.Measure(text.View(), FontStyle::Regular) + engine.Measure("m", FontStyle::Regular) + around,
            engine.LineHeight() + 2 * kLabelFieldTop};
}

HWND StartLabelClock(HWND hOwner)
{
    const HWND hClock = CreateWindowEx(0, kClockClass, "", WS_CHILD, 0, 0, 0, 0, hOwner, 0, nullptr);
    SetTimer(hClock, kClockTimer, GetDoubleClickTime());
    return hClock;
}

} // namespace toolkit
