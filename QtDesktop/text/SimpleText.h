// Text whose letters stand side by side, one glyph to a code point: drawn from cached glyph pictures.
//
// So are Latin, Greek, Cyrillic, Chinese, Japanese and Korean texts without combining marks. A label never seen
// before costs little, for its letters have been seen; one seen already only its blending.
#pragma once

#include "QtDesktop/text/KnownLabels.h"
#include "Toolkit/graphics/TextEngine.h"

#include <QFont>
#include <QFontMetricsF>
#include <array>
#include <optional>
#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace qtdesktop
{

// The simple texts of one font. Positions are kept in 64ths of a pixel and drawn in quarters.
class SimpleText
{
public:
    explicit SimpleText(const QFont& font);

    // The width in pixels, rounded up; nothing for a text that cannot be drawn glyph by glyph. Invalid bytes can: each
    // is a replacement character.
    std::optional<int> Measure(std::string_view text);

    // The places of the characters that begin at these bytes, in pixels.
    std::optional<std::vector<toolkit::CharacterPlace>> Places(std::string_view text,
                                                               std::span<const std::size_t> starts);

    // With the line's top left corner at `at`, only inside `clip`, which lies inside the surface. False, and nothing
    // drawn, where Measure says nothing.
    bool Draw(toolkit::Surface& target, const CRect& clip, CPoint at, std::string_view text, COLORREF color);

private:
    static constexpr int kQuarters = 4;

    struct Glyph
    {
        int advance = 0; // 64ths
        std::array<std::optional<TextMask>, kQuarters> masks;
    };

    struct Letter
    {
        const TextMask* pMask;
        CPoint at; // from where the text is put
    };

    // visit(glyph, code point, pen, bytes up to its end) until FALSE; the pen at the end. Glyphs stay until the next
    // walk.
    template <class Visit>
    long long Walk(std::string_view text, Visit visit);
    template <class Visit>
    void WalkLetters(std::string_view text, Visit visit); // visit(letter) until FALSE

    bool IsWorthAMask(const KnownLabel& label) const;
    void MakeMask(KnownLabel& label);
    void DrawLetters(toolkit::Surface& target, const CRect& clip, CPoint at, std::string_view text, COLORREF color);
    Glyph& FindGlyph(char32_t c);
    int Kerning(char32_t left, char32_t right); // 64ths to add between the two
    const TextMask& FindMask(Glyph& glyph, char32_t c, int quarter);
    TextMask RenderMask(char32_t c, int quarter) const;

    const QFont m_font;
    const QFontMetricsF m_metrics;
    const int m_nBaseline; // pixels below the line's top
    std::unordered_map<char32_t, Glyph> m_glyphs;
    std::unordered_map<std::uint32_t, int> m_kernings; // of pairs of ASCII
    KnownLabels m_known;
    std::vector<Letter> m_letters; // of the label whose mask is being made
};

} // namespace qtdesktop
