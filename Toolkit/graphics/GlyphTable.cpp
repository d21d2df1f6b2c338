#include "Toolkit/graphics/GlyphTable.h"

#include "Toolkit/graphics/BuiltinGlyphs.h"

#include <algorithm>
#include <bit>

namespace
{

using toolkit::Glyph;
using toolkit::MarkDrawing;
using toolkit::MarkPlace;

constexpr int kBaseline = toolkit::kCapTop + 8; // the first row below it
constexpr char32_t kDotlessI = 0x0131, kDotlessJ = 0x0237;

WORD BitsOf(std::string_view row)
{
    WORD bits = 0;
    for (std::size_t x = 0; x < row.size(); ++x)
        if (row[x] == '#')
            bits = static_cast<WORD>(bits | 1u << x);
    return bits;
}

// The i-th drawing of a band: what lies between two separators.
Glyph CutFromBand(const toolkit::GlyphBand& band, std::size_t begin, std::size_t end)
{
    Glyph glyph{static_cast<int>(end - begin), {}};
    for (std::size_t y = 0; y < band.rows.size(); ++y)
        glyph.rows[toolkit::kCapTop + y] = BitsOf(band.rows[y].substr(begin, end - begin));
    return glyph;
}

const MarkDrawing* FindMark(char32_t mark)
{
    const auto marks = toolkit::MarkDrawings();
    const auto found =
        std::find_if(marks.begin(), marks.end(), [mark](const MarkDrawing& m) { return m.mark == mark; });
    return found == marks.end() ? nullptr : &*found;
}

int TopOf(const Glyph& glyph)
{
    const auto ink = std::find_if(glyph.rows.begin(), glyph.rows.end(), [](WORD row) { return row != 0; });
    return static_cast<int>(ink - glyph.rows.begin());
}

// Above, a free row stays between mark and letter where the line has room for it.
int FirstRow(const MarkDrawing& mark, const Glyph& base)
{
    if (mark.place != MarkPlace::Above)
        return kBaseline;
    const auto height = std::count_if(mark.rows.begin(), mark.rows.end(), [](auto row) { return !row.empty(); });
    return std::max(0, TopOf(base) - 1 - static_cast<int>(height));
}

// The base with the mark, cut to where there is ink.
Glyph Merge(const Glyph& base, const toolkit::PlacedMark& mark)
{
    const int left = std::min(0, mark.x);
    Glyph merged{std::max(base.width, mark.x + mark.glyph.width) - left, {}};
    std::uint32_t ink = 0;
    for (std::size_t y = 0; y < merged.rows.size(); ++y) {
        merged.rows[y] = static_cast<WORD>(base.rows[y] << -left | mark.glyph.rows[y] << (mark.x - left));
        ink |= merged.rows[y];
    }
    const int blank = std::countr_zero(ink);
    for (WORD& row : merged.rows)
        row = static_cast<WORD>(row >> blank);
    merged.width = std::bit_width(ink) - blank;
    return merged;
}

Glyph MakeBox()
{
    Glyph box{5, {}};
    for (std::size_t y = toolkit::kCapTop; y < kBaseline; ++y)
        box.rows[y] = y == toolkit::kCapTop || y + 1 == kBaseline ? 0b11111 : 0b10001;
    return box;
}

} // namespace

toolkit::GlyphTable::GlyphTable() : m_box(MakeBox())
{
    AddBands();
    AddMarkedLetters();
    Add(U' ', {3, {}});
    Add(0x00A0, {3, {}}); // the space that does not break
    Add(0x00AD, Find(U'-'));
}

const toolkit::Glyph& toolkit::GlyphTable::Find(char32_t c) const
{
    if (c < m_latin.size())
        return m_latin[c].width ? m_latin[c] : m_box;
    const auto found = m_others.find(c);
    return found == m_others.end() ? m_box : found->second;
}

toolkit::PlacedMark toolkit::GlyphTable::Place(char32_t mark, const Glyph& base) const
{
    const MarkDrawing* pMark = FindMark(mark);
    if (!pMark)
        return {};
    const int width = static_cast<int>(pMark->rows[0].size());
    const int room = base.width - width;
    PlacedMark placed{pMark->place == MarkPlace::BelowRight ? room : (room - (room < 0)) / 2, {width, {}}};
    const auto first = static_cast<std::size_t>(FirstRow(*pMark, base));
    for (std::size_t y = 0; y < pMark->rows.size(); ++y)
        placed.glyph.rows[first + y] = BitsOf(pMark->rows[y]);
    return placed;
}

char32_t toolkit::GlyphTable::WithoutDot(char32_t letter, char32_t mark)
{
    if (letter != U'i' && letter != U'j')
        return letter;
    const MarkDrawing* pMark = FindMark(mark);
    if (!pMark || pMark->place != MarkPlace::Above)
        return letter;
    return letter == U'i' ? kDotlessI : kDotlessJ;
}

void toolkit::GlyphTable::AddBands()
{
    for (const GlyphBand& band : GlyphBands()) {
        std::size_t begin = 0;
        for (const char32_t c : band.characters) {
            const std::size_t end = std::min(band.rows[0].find('|', begin), band.rows[0].size());
            Add(c, CutFromBand(band, begin, end));
            begin = end + 1;
        }
    }
}

void toolkit::GlyphTable::AddMarkedLetters()
{
    for (const MarkedLetters& marked : AllMarkedLetters())
        for (std::size_t i = 0; i < marked.letters.size(); i += 2) {
            const Glyph& base = Find(marked.letters[i + 1]);
            Add(marked.letters[i], Merge(base, Place(marked.mark, base)));
        }
}

void toolkit::GlyphTable::Add(char32_t c, const Glyph& glyph)
{
    (c < m_latin.size() ? m_latin[c] : m_others[c]) = glyph;
}
