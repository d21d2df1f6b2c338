// A text that Qt has laid out as one line.
#pragma once

#include "Toolkit/graphics/TextEngine.h"

#include <QFont>
#include <QTextLayout>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

class QPainter;

namespace qtdesktop
{

class TextLine
{
public:
    TextLine(std::string_view text, const QFont& font);

    int Width() const; // pixels, rounded up
    // Of the characters that begin at these bytes of the text, in pixels.
    std::vector<toolkit::CharacterPlace> Places(std::string_view text, std::span<const std::size_t> starts) const;
    void Draw(QPainter& painter, CPoint baseline, COLORREF color) const;

private:
    // UTF-16 units.
    struct Range
    {
        int first = 0, end = 0;
    };
    // What the glyphs of a range take of the line.
    struct Extent
    {
        qreal left = 0, right = 0;
        bool leftwards = false;
        qsizetype nRuns = 0;
    };

    Extent ExtentOf(Range range) const;
    void AddPlacesOfRun(std::span<const Range> characters, std::vector<toolkit::CharacterPlace>& places) const;

    QTextLayout m_layout;
    QTextLine m_line;
};

} // namespace qtdesktop
