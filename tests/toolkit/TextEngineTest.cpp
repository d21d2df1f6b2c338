#include "tests/toolkit/Picture.h"
#include "tests/toolkit/Ruler.h"

#include <gtest/gtest.h>
#include <set>

namespace
{

using toolkit::Ellipsize;
using toolkit::FontStyle;

constexpr auto kRegular = FontStyle::Regular, kBold = FontStyle::Bold;

toolkit::TextEngine& Font()
{
    return toolkit::BuiltinTextEngine();
}

// The text as the built-in font draws it, cut to its line.
Rows Written(std::string_view text, FontStyle style = kRegular)
{
    toolkit::Surface line({Font().Measure(text, style), Font().LineHeight()}, 0xFFFFFFFF);
    Font().Draw(line, line.Bounds(), {0, 0}, text, RGB(0, 0, 0), style);
    return ShowPicture(line);
}

std::string Utf8(char32_t c)
{
    if (c < 0x80)
        return {static_cast<char>(c)};
    return {static_cast<char>(0xC0 | c >> 6), static_cast<char>(0x80 | (c & 0x3F))};
}

TEST(TextEngineTest, LettersLookAsTheyWereDrawn)
{
    Rows shown = Written("Éa");
    const Rows bold = Written("p", kBold);
    for (std::size_t y = 0; y < shown.size(); ++y)
        shown[y] += " " + bold[y];
    EXPECT_EQ((Rows{
                  "...#........ .......",
                  "..#......... .......",
                  "............ .......",
                  "#####....... .......",
                  "#........... .......",
                  "#......###.. #####..",
                  "####......#. ##..##.",
                  "#......####. ##..##.",
                  "#.....#...#. ##..##.",
                  "#.....#...#. ##..##.",
                  "#####..####. #####..",
                  "............ ##.....",
                  "............ ##.....",
                  "............ .......",
              }),
              shown);
}

TEST(TextEngineTest, EveryLetterOfLatin1HasAShapeOfItsOwn)
{
    const Rows box = Written("\x01");
    std::set<Rows> shapes{box};
    for (char32_t c = 0x21; c <= 0xFF; ++c) {
        if (c >= 0x7F && c <= 0xA0)
            continue;
        const bool bNew = shapes.insert(Written(Utf8(c))).second;
        EXPECT_EQ(c != 0xAD, bNew) << "code " << static_cast<unsigned>(c); // the soft hyphen is a hyphen
    }
    EXPECT_EQ(box, Written("\u4E2D"));
    EXPECT_EQ(Written("\x01\x01\x01"), Written("\xFF\xC3\x7F"));
}

TEST(TextEngineTest, CombiningMarksStandOnTheirLetterWithoutWidth)
{
    for (const auto& [whole, parts] : {std::pair("é", "e\u0301"), std::pair("Ä", "A\u0308"), std::pair("ç", "c\u0327"),
                                       std::pair("Å", "A\u030A"), std::pair("ñ", "n\u0303")}) {
        EXPECT_EQ(Written(whole), Written(parts)) << whole;
        EXPECT_EQ(Written(whole, kBold), Written(parts, kBold)) << whole;
    }
    EXPECT_EQ(Font().Measure("i", kRegular), Font().Measure("i\u0308\u20E3", kRegular));
    EXPECT_EQ(0, Font().Measure("\u0301", kRegular));
}

TEST(TextEngineTest, TooLongATextIsCutBetweenCodePointsWithFewLooks)
{
    Ruler ruler;
    EXPECT_EQ("walking", Ellipsize("walking", 70, kRegular));
    EXPECT_EQ("wal...", Ellipsize("walking", 69, kRegular));
    EXPECT_EQ("...", Ellipsize("walking", 0, kRegular));
    EXPECT_EQ("äö...", Ellipsize("äöüß€€", 50, kRegular));
    EXPECT_EQ("e\u0301...", Ellipsize("e\u0301e\u0301e\u0301e\u0301e\u0301", 51, kRegular)); // no e without its mark

    ruler.asked = 0;
    EXPECT_EQ(std::string(997, 'x') + "...", Ellipsize(std::string(5000, 'x'), 10009, kRegular));
    EXPECT_GE(15, ruler.asked);
}

} // namespace
