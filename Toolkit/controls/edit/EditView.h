// What the edit control shows: its text, with what is being composed, the selection and the blinking caret, scrolled.
#pragma once

#include "Toolkit/controls/edit/EditLayout.h"
#include "Toolkit/controls/edit/EditText.h"
#include "Toolkit/window/NativeWindow.h"

namespace toolkit
{

class EditView
{
public:
    EditView(NativeWindow& window, EditText& text) : m_window(window), m_text(text) {}

    EditLayout& Layout() { return m_layout; }
    CRect CaretRect() const { return m_layout.CaretRect(Shown(), ShownCaret()); }

    void Show();      // all anew, the caret at once
    void ShowCaret(); // scrolls to it, too
    void Select(std::size_t anchor, std::size_t caret);
    void Compose(std::string_view text, std::size_t caret);
    void RestartBlinking();

    void OnSize();
    void OnPaint() const;
    BOOL OnEraseBackground(HDC hdc) const;
    void Blink();
    static constexpr UINT_PTR kBlinkTimer = 0xED01; // such as no derived class takes for its own

private:
    struct Composition
    {
        std::string text;
        std::size_t caret = 0; // in it
    };

    void DrawSelected(HDC hdc, const std::string& shown, const CRect& part) const;
    std::string Shown() const; // with what is being composed
    std::size_t ShownCaret() const { return m_text.Caret() + m_composition.caret; }

    NativeWindow& m_window;
    EditText& m_text;
    EditLayout m_layout;
    Composition m_composition;
    bool m_bCaretOn = false; // as it blinks
};

} // namespace toolkit
