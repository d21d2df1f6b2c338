#include "QtDesktop/text/TextLine.h"

#include "QtDesktop/text/TextParts.h"

#include <QGlyphRun>
#include <QPainter>
#include <cmath>

namespace qtdesktop
{
namespace
{

int ToPixels(qreal x)
{
    return ToWidth(std::llround(x * 64));
}

constexpr qreal kSamePlace = 1.0 / 32; // pixels, twice the unit that Qt counts in

} // namespace

TextLine::TextLine(std::string_view text, const QFont& font) : m_layout(ShownText(text), font)
{
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setWrapMode(QTextOption::NoWrap);
    m_layout.setTextOption(option);
    m_layout.beginLayout();
    m_line = m_layout.createLine();
    m_layout.endLayout();
}

int TextLine::Width() const
{
    return ToPixels(m_line.naturalTextWidth());
}

TextLine::Extent TextLine::ExtentOf(Range range) const
{
    const QList<QGlyphRun> runs = m_line.glyphRuns(range.first, range.end - range.first);
    QRectF covered;
    for (const QGlyphRun& run : runs)
        covered |= run.boundingRect();
    return {covered.left(), covered.right(), !runs.empty() && runs.front().isRightToLeft(), runs.size()};
}

// Neither where Qt puts a cursor is the character's own place, where texts of both directions meet, nor what it tells
// of the glyphs of a letter that begins inside a ligature. What it tells of a whole run is right, and of what begins
// with a ligature.
std::vector<toolkit::CharacterPlace> TextLine::Places(std::string_view text, std::span<const std::size_t> starts) const
{
    std::vector<toolkit::CharacterPlace> places;
    std::vector<Range> run;
    int at = 0;
    for (std::size_t i = 0; i < starts.size(); ++i) {
        const std::size_t end = i + 1 < starts.size() ? starts[i + 1] : text.size();
        const Range one{at, at + static_cast<int>(ShownText(text.substr(starts[i], end - starts[i])).size())};
        if (!run.empty() && ExtentOf({run.back().first, one.end}).nRuns > 1) {
            AddPlacesOfRun(run, places);
            run.clear();
        }
        run.push_back(one);
        at = one.end;
    }
    AddPlacesOfRun(run, places);
    return places;
}

void TextLine::AddPlacesOfRun(std::span<const Range> characters, std::vector<toolkit::CharacterPlace>& places) const
{
    if (characters.empty())
        return;
    const Extent whole = ExtentOf({characters.front().first, characters.back().end});
    const auto distance = [&whole](const Extent& extent) { // from where the run begins to the extent's own beginning
        return whole.leftwards ? whole.right - extent.right : extent.left - whole.left;
    };
    const auto placeAt = [&whole](qreal way) {
        return ToPixels(whole.leftwards ? whole.right - way : whole.left + way);
    };
    qreal way = 0, wayToStart = 0;        // on which the run is read
    int start = characters.front().first; // of the ligature, or of the character
    for (const Range& one : characters) {
        Extent sinceStart = ExtentOf(one);
        if (std::abs(distance(sinceStart) - way) < kSamePlace) {
            start = one.first;
            wayToStart = way;
        } else {
            sinceStart = ExtentOf({start, one.end});
        }
        const int leading = placeAt(way);
        way = wayToStart + sinceStart.right - sinceStart.left;
        places.push_back({leading, placeAt(way)});
    }
}

void TextLine::Draw(QPainter& painter, CPoint baseline, COLORREF color) const
{
    painter.setPen(QColor(GetRValue(color), GetGValue(color), GetBValue(color)));
    m_line.draw(&painter, QPointF(baseline.x, baseline.y - m_line.ascent()));
}

} // namespace qtdesktop
