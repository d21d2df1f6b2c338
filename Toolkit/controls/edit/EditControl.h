// The control behind WC_EDIT: a single line of text.
//
// Whatever notifies gives false when the window is gone: nothing of the object may be touched then. The object is
// whole before it notifies, since handlers set the text anew or ask for the selection.
#pragma once

#include "Toolkit/controls/edit/EditHistory.h"
#include "Toolkit/controls/edit/EditLayout.h"
#include "Toolkit/controls/edit/EditMessages.h"
#include "Toolkit/input/TextInput.h"
#include "Toolkit/window/NativeWindow.h"

#include <optional>

namespace toolkit
{

class EditControl : public NativeWindow, public TextInput
{
public:
    explicit EditControl(HWND hWnd) : NativeWindow(hWnd) {}

    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    TextInputState GetTextInput() const override;
    void Compose(std::string_view text, std::size_t caret) override;

protected:
    virtual void TextIsNew() {} // before anybody is told; must not notify

private:
    // The left button is down: the selection reaches from where it went down to where it is.
    struct Drag
    {
        TextSpan from; // empty, or the word that a double click has taken
        bool byWords;
        CPoint at;
        bool scrolls;
    };
    struct Composition
    {
        std::string text;
        std::size_t caret = 0; // in it
    };

    // Life and looks of the whole.
    LRESULT OnCreate(WPARAM, LPARAM lParam);
    LRESULT OnSize(WPARAM, LPARAM);
    LRESULT OnLooksChanged(WPARAM, LPARAM);
    LRESULT OnSetFocus(WPARAM, LPARAM);
    LRESULT OnKillFocus(WPARAM, LPARAM);
    LRESULT OnGetDlgCode(WPARAM, LPARAM) { return DLGC_WANTARROWS | DLGC_WANTCHARS | DLGC_HASSETSEL; }

    // The text, its selection and its history, by message.
    LRESULT OnSetText(WPARAM, LPARAM lParam);
    LRESULT OnGetText(WPARAM wParam, LPARAM lParam);
    LRESULT OnGetTextLength(WPARAM, LPARAM) { return static_cast<LRESULT>(m_text.Text().size()); }
    LRESULT OnGetSel(WPARAM wParam, LPARAM lParam);
    LRESULT OnSetSel(WPARAM wParam, LPARAM lParam);
    LRESULT OnScrollCaret(WPARAM, LPARAM);
    LRESULT OnReplaceSel(WPARAM wParam, LPARAM lParam);
    LRESULT OnLimitText(WPARAM wParam, LPARAM);
    LRESULT OnUndo(WPARAM, LPARAM);
    LRESULT OnPosFromChar(WPARAM wParam, LPARAM);
    LRESULT OnCut(WPARAM, LPARAM);
    LRESULT OnCopy(WPARAM, LPARAM);
    LRESULT OnPaste(WPARAM, LPARAM);
    LRESULT OnClear(WPARAM, LPARAM);

    // Changes by the user. All give false when the window is gone.
    [[nodiscard]] bool Insert(std::string_view text, EditKind kind); // in place of the selection
    [[nodiscard]] bool Erase(TextSpan span, EditKind kind);
    [[nodiscard]] bool EraseOr(TextSpan other, EditKind kind); // the selection, the other without one
    [[nodiscard]] bool TellChange();                           // and shows it, the caret in view
    [[nodiscard]] bool Tell(UINT code) const;
    void Select(std::size_t anchor, std::size_t caret); // and shows it, the caret in view
    void MoveCaret(std::size_t at, bool extend) { Select(extend ? Anchor() : at, at); }
    std::size_t Anchor() const;
    void SelectAll() { Select(0, m_text.Text().size()); }
    // What a key or the menu asks for comes as the message that says so: a derived class hears of it, and may keep it.
    // The window may be gone afterwards.
    LRESULT Ask(UINT message) { return SendMessage(m_hWnd, message, 0, 0); }

    // Keys.
    LRESULT OnKeyDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnSysKeyDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnChar(WPARAM wParam, LPARAM);
    std::optional<std::size_t> TargetOf(UINT vkey, bool control, bool shift) const; // where the key moves the caret
    [[nodiscard]] bool Command(UINT character);                                     // a control character

    // Mouse.
    LRESULT OnLButtonDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnLButtonDblClk(WPARAM, LPARAM lParam);
    LRESULT OnLButtonUp(WPARAM, LPARAM);
    LRESULT OnMouseMove(WPARAM wParam, LPARAM lParam);
    LRESULT OnCaptureChanged(WPARAM, LPARAM);
    LRESULT OnSetCursor(WPARAM, LPARAM);
    [[nodiscard]] bool BeginDrag(TextSpan from, bool byWords, CPoint at);
    void DragTo(CPoint at);
    void EndDrag();

    // The context menu.
    LRESULT OnRButtonDown(WPARAM, LPARAM);
    LRESULT OnContextMenu(WPARAM, LPARAM lParam);
    UINT AskMenu(CPoint screen); // the command chosen, 0 for none; the window may be gone
    LRESULT DoMenuCommand(UINT command);

    // Painting and the caret's blinking.
    LRESULT OnPaint(WPARAM, LPARAM);
    LRESULT OnEraseBackground(WPARAM wParam, LPARAM);
    LRESULT OnTimer(WPARAM wParam, LPARAM lParam);
    void Draw(HDC hdc) const;
    void DrawSelection(HDC hdc, const std::string& shown) const;
    std::string Shown() const; // with what is being composed
    std::size_t ShownCaret() const { return m_text.Caret() + m_composition.caret; }
    CRect CaretRect() const { return m_layout.CaretRect(Shown(), ShownCaret()); }
    void Show();      // all anew, the caret at once
    void ShowCaret(); // scrolls to it, too
    void RestartBlinking();

    EditText m_text;
    EditHistory m_history;
    EditLayout m_layout;
    Composition m_composition;
    std::optional<Drag> m_drag;
    std::size_t m_limit = 0x7FFE;
    bool m_bCaretOn = false; // as it blinks
};

} // namespace toolkit
