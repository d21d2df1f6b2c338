// Where a field's text lies in its client area: one line, scrolled sideways. Knows no window.
//
// Client coordinates; positions count bytes. Each answer about a place in a text lays the text out.
#pragma once

#include "Toolkit/base/Geometry.h"
#include "Toolkit/controls/edit/TextStops.h"

#include <vector>

namespace toolkit
{

class TOOLKIT_API EditLayout
{
public:
    static constexpr int kMargin = 3;     // left and right of the text
    static constexpr int kCaretWidth = 1; // behind the text there is always room for it

    enum class Align
    {
        Left,
        Center,
        Right
    };

    void SetClient(CSize size) { m_client = size; }
    void SetAlign(Align align) { m_align = align; } // of a text that fits

    CSize Client() const { return m_client; }
    int Left(std::string_view text) const; // where it is drawn
    CRect CaretRect(std::string_view text, std::size_t at) const;
    CRect LineRect() const; // the text's height, the client area's width
    std::vector<CRect> SpanRects(std::string_view text, TextSpan span) const; // from left to right
    // The place for the caret nearest to x, between characters.
    std::size_t PositionAt(std::string_view text, int x) const;
    std::size_t CharacterAt(std::string_view text, int x) const; // the one that x lies on, else the nearest

    // Scrolls as little as brings the caret into view, and never farther than the text goes.
    void ShowCaret(std::string_view text, std::size_t at);
    void ScrollToStart() { m_scroll = 0; }

private:
    int Room() const; // for the text

    CSize m_client;
    Align m_align = Align::Left;
    int m_scroll = 0; // of the text, left of the room
};

} // namespace toolkit
