#include "QtDesktop/text/SimpleText.h"

#include "QtDesktop/text/TextParts.h"
#include "Toolkit/graphics/Pixels.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

namespace qtdesktop
{
namespace
{

constexpr std::size_t kMaxGlyphs = 8192; // a few megabytes at most; then they are drawn anew
constexpr int kLargestMask = 4096;       // pixels

struct CodePoints
{
    char32_t first, last;
};

// Each takes one place in a line and is not joined with its neighbours. No marks, no signs that have a picture
// in colour, nothing written from right to left.
constexpr CodePoints kSimple[] = {
    {0x0020, 0x007E}, {0x00A0, 0x00A8}, {0x00AA, 0x00AC}, {0x00AF, 0x02FF}, {0x0370, 0x0482}, {0x048A, 0x052F},
    {0x1E00, 0x1FFF}, {0x2010, 0x2027}, {0x2030, 0x203B}, {0x20A0, 0x20BF}, {0x3001, 0x3029}, {0x3041, 0x3096},
    {0x309B, 0x30FF}, {0x3400, 0x4DBF}, {0x4E00, 0x9FFF}, {0xAC00, 0xD7A3}, {0xFF01, 0xFF5E}, {0xFFFD, 0xFFFD},
};

bool IsSimple(char32_t c)
{
    const auto it = std::lower_bound(std::begin(kSimple), std::end(kSimple), c,
                                     [](const CodePoints& range, char32_t value) { return range.last < value; });
    return it != std::end(kSimple) && c >= it->first;
}

CRect CoveredPart(const QImage& picture)
{
    CRect covered;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(picture.pixel(x, y)) != 0)
                covered = covered | CRect(x, y, x + 1, y + 1);
        }
    }
    return covered;
}

bool IsPrintableAscii(char c)
{
    return c >= ' ' && c <= '~';
}

bool IsSimpleText(std::string_view text)
{
    if (std::ranges::all_of(text, IsPrintableAscii))
        return true;
    while (!text.empty()) {
        if (!IsSimple(NextShown(text)))
            return false;
    }
    return true;
}

} // namespace

SimpleText::SimpleText(const QFont& font) : m_font(font), m_metrics(font), m_nBaseline(BaselineOf(font)) {}

template <class Visit>
long long SimpleText::Walk(std::string_view text, Visit visit)
{
    if (m_glyphs.size() >= kMaxGlyphs)
        m_glyphs.clear();
    long long pen = 0;
    char32_t before = 0;
    for (std::string_view rest = text; !rest.empty();) {
        const char32_t c = NextShown(rest);
        pen += Kerning(before, c);
        Glyph& glyph = FindGlyph(c);
        if (!visit(glyph, c, pen, text.size() - rest.size()))
            break;
        pen += glyph.advance;
        before = c;
    }
    return pen;
}

template <class Visit>
void SimpleText::WalkLetters(std::string_view text, Visit visit)
{
    Walk(text, [&](Glyph& glyph, char32_t c, long long pen, std::size_t) {
        const long long quarters = std::max(0LL, pen + 1) / 16; // cut off where Qt does
        const TextMask& mask = FindMask(glyph, c, static_cast<int>(quarters % kQuarters));
        return visit(Letter{&mask, CPoint(static_cast<int>(quarters / kQuarters), 0)});
    });
}

std::optional<int> SimpleText::Measure(std::string_view text)
{
    if (const KnownLabel* pLabel = m_known.Find(text))
        return pLabel->width;
    if (!IsSimpleText(text))
        return std::nullopt;
    const int nWidth = ToWidth(Walk(text, [](const Glyph&, char32_t, long long, std::size_t) { return true; }));
    if (text.size() <= KnownLabels::kLongest)
        m_known.Add(text, nWidth);
    return nWidth;
}

std::optional<std::vector<toolkit::CharacterPlace>> SimpleText::Places(std::string_view text,
                                                                       std::span<const std::size_t> starts)
{
    if (!IsSimpleText(text))
        return std::nullopt;
    std::vector<toolkit::CharacterPlace> places;
    int from = 0;
    Walk(text, [&](const Glyph& glyph, char32_t, long long pen, std::size_t end) {
        const std::size_t next = places.size() + 1;
        if (end == (next < starts.size() ? starts[next] : text.size())) {
            const int to = ToWidth(pen + glyph.advance);
            places.push_back({std::exchange(from, to), to});
        }
        return true;
    });
    return places;
}

bool SimpleText::Draw(toolkit::Surface& target, const CRect& clip, CPoint at, std::string_view text, COLORREF color)
{
    if (!m_known.Find(text) && !Measure(text))
        return false;
    KnownLabel* const pLabel = m_known.Find(text);
    if (!pLabel || !IsWorthAMask(*pLabel)) {
        DrawLetters(target, clip, at, text, color);
        return true;
    }
    if (!pLabel->hasMask)
        MakeMask(*pLabel);
    pLabel->mask.Blend(target, clip, at, toolkit::ToPixel(color));
    return true;
}

bool SimpleText::IsWorthAMask(const KnownLabel& label) const
{
    return label.width * m_nBaseline <= kLargestMask;
}

void SimpleText::MakeMask(KnownLabel& label)
{
    CRect place;
    m_letters.clear();
    WalkLetters(label.text, [&](const Letter& letter) {
        m_letters.push_back(letter);
        place = place | (letter.pMask->Place() + letter.at);
        return true;
    });
    label.mask.Reset(place);
    for (const Letter& letter : m_letters)
        label.mask.Add(*letter.pMask, letter.at);
    label.hasMask = true;
}

void SimpleText::DrawLetters(toolkit::Surface& target, const CRect& clip, CPoint at, std::string_view text,
                             COLORREF color)
{
    const int nOverhang = m_nBaseline; // a letter may reach to the left of its pen
    WalkLetters(text, [&](const Letter& letter) {
        if (std::int64_t{at.x} + letter.at.x >= clip.right + nOverhang)
            return false;
        letter.pMask->Blend(target, clip, at + letter.at, toolkit::ToPixel(color));
        return true;
    });
}

SimpleText::Glyph& SimpleText::FindGlyph(char32_t c)
{
    if (const auto it = m_glyphs.find(c); it != m_glyphs.end())
        return it->second;
    Glyph& glyph = m_glyphs[c];
    glyph.advance = static_cast<int>(std::lround(m_metrics.horizontalAdvance(QString::fromUcs4(&c, 1)) * 64));
    return glyph;
}

int SimpleText::Kerning(char32_t left, char32_t right)
{
    if (left <= U' ' || left > U'~' || right <= U' ' || right > U'~')
        return 0;
    const auto [it, bNew] = m_kernings.try_emplace(left << 8 | right);
    if (bNew) {
        const char32_t both[] = {left, right};
        const auto together = std::lround(m_metrics.horizontalAdvance(QString::fromUcs4(both, 2)) * 64);
        it->second = static_cast<int>(together) - FindGlyph(left).advance - FindGlyph(right).advance;
    }
    return it->second;
}

const TextMask& SimpleText::FindMask(Glyph& glyph, char32_t c, int quarter)
{
    std::optional<TextMask>& mask = glyph.masks[static_cast<std::size_t>(quarter)];
    if (!mask)
        mask = RenderMask(c, quarter);
    return *mask;
}

// Qt draws the letter with room on all sides; what it covers is cut out.
TextMask SimpleText::RenderMask(char32_t c, int quarter) const
{
    const QString letter = QString::fromUcs4(&c, 1);
    const int nRoom = static_cast<int>(std::ceil(m_metrics.height()));
    const int nWidth = static_cast<int>(std::ceil(m_metrics.horizontalAdvance(letter)));
    QImage picture(nWidth + 2 * nRoom, 3 * nRoom, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    {
        QPainter painter(&picture);
        painter.setFont(m_font);
        painter.setPen(Qt::white);
        painter.drawText(QPointF(nRoom + quarter / qreal(kQuarters), nRoom + m_nBaseline), letter);
    }
    const CRect covered = CoveredPart(picture);
    TextMask mask(covered - CPoint(nRoom, nRoom));
    for (int y = covered.top; y < covered.bottom; ++y) {
        for (int x = covered.left; x < covered.right; ++x)
            mask.Row(y - covered.top)[x - covered.left] = static_cast<BYTE>(qAlpha(picture.pixel(x, y)));
    }
    return mask;
}

} // namespace qtdesktop
