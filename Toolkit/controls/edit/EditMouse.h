// The edit control under the mouse: placing the caret, selecting by dragging and by words.
#pragma once

#include "Toolkit/controls/edit/EditView.h"

#include <optional>

namespace toolkit
{

class EditMouse
{
public:
    EditMouse(NativeWindow& window, EditText& text, EditView& view) : m_window(window), m_text(text), m_view(view) {}

    void OnLButtonDown(WPARAM keys, CPoint at);
    void OnLButtonDblClk(WPARAM, CPoint at);
    void OnLButtonUp(); // whatever was under way
    void OnMouseMove(WPARAM keys, CPoint at);
    void OnCaptureChanged();
    BOOL OnSetCursor() const;
    void Scroll();
    static constexpr UINT_PTR kScrollTimer = 0xED02; // such as no derived class takes for its own

private:
    // The left button is down: the selection reaches from where it went down to where it is.
    struct Drag
    {
        TextSpan from; // empty, or the word that a double click has taken
        bool byWords;
        CPoint at;
        bool scrolls;
    };

    void Begin(const Drag& drag);
    void DragTo(CPoint at);

    NativeWindow& m_window;
    EditText& m_text;
    EditView& m_view;
    std::optional<Drag> m_drag;
};

} // namespace toolkit
