#include "Toolkit/graphics/BuiltinFont.h"

namespace
{

// What stands for a character that the font does not have.
toolkit::Glyph MakeBox()
{
    toolkit::Glyph box{5, {}};
    box.rows[3] = box.rows[10] = 0b11111;
    for (std::size_t y = 4; y < 10; ++y)
        box.rows[y] = 0b10001;
    return box;
}

} // namespace

const toolkit::Glyph& toolkit::FindGlyph(char32_t c)
{
    static const Glyph box = MakeBox();
    static const Glyph space{3, {}};
    return c == U' ' ? space : box;
}

bool toolkit::IsCombiningMark(char32_t c)
{
    struct Range
    {
        char32_t first, last;
    };
    static constexpr Range kMarks[] = {
        {0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD},   {0x064B, 0x065F},   {0x1AB0, 0x1AFF},
        {0x1DC0, 0x1DFF}, {0x200B, 0x200F}, {0x20D0, 0x20FF},   {0x302A, 0x302F},   {0x3099, 0x309A},
        {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0x1F3FB, 0x1F3FF}, {0xE0100, 0xE01EF},
    };
    return std::any_of(std::begin(kMarks), std::end(kMarks),
                       [c](const Range& range) { return c >= range.first && c <= range.last; });
}
