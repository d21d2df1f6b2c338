// Where a field's text lies in its client area: one line, scrolled sideways. Knows no window.
//
// Client coordinates; positions count bytes. Texts are measured from their start to the position asked for.
#pragma once

#include "Toolkit/base/Geometry.h"

#include <string_view>

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
    int X(std::string_view text, std::size_t at) const;
    CRect CaretRect(std::string_view text, std::size_t at) const;
    CRect LineRect() const; // the text's height, the client area's width
    // The place for the caret nearest to x, between characters.
    std::size_t PositionAt(std::string_view text, int x) const;
    std::size_t CharacterAt(std::string_view text, int x) const; // the one that x lies on, else the first or last one

    // Scrolls as little as brings the caret into view, and never farther than the text goes.
    void ShowCaret(std::string_view text, std::size_t at);
    void ScrollToStart() { m_scroll = 0; }

private:
    int Room() const;                      // pixels for the text
    int Left(std::string_view text) const; // of its first character

    CSize m_client;
    Align m_align = Align::Left;
    int m_scroll = 0; // pixels of the text left of the room
};

} // namespace toolkit
