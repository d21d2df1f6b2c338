#include "QtDesktop/QtDesktop.h"
#include "Toolkit/graphics/Gdi.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>

using toolkit::FontStyle;
using toolkit::Surface;

namespace
{

constexpr CPoint kAt(20, 20);
constexpr toolkit::Pixel kWhite = 0xFFFFFFFF;

constexpr const char* kLabels[] = {
    "IMG_2024-07-13.png", "AVATAR To Ty, Wałbrzych",     "Grüße – Ελλάδα – Москва", "صورة من القاهرة.png",
    "שלום.gif",           "e\u0301te\u0301 (combining)",
};

class TextEngineTest : public testing::Test
{
protected:
    Surface Draw(std::string_view text, FontStyle style, std::optional<CRect> clip = {})
    {
        Surface surface(CSize(600, 60), kWhite);
        m_engine.Draw(surface, clip.value_or(surface.Bounds()), kAt, text, RGB(0, 0, 0), style);
        return surface;
    }

    static CRect Ink(const Surface& surface)
    {
        CRect ink;
        for (int y = 0; y < surface.Height(); ++y)
            for (int x = 0; x < surface.Width(); ++x)
                if (surface.At(x, y) != kWhite)
                    ink = ink | CRect(x, y, x + 1, y + 1);
        return ink;
    }

    qtdesktop::QtDesktop m_desktop;
    toolkit::TextEngine& m_engine = toolkit::CurrentTextEngine();
};

} // namespace

TEST_F(TextEngineTest, TheDrawnTextFillsTheMeasuredWidthAndStandsInItsLine)
{
    const CRect clip(30, 22, 70, 29);
    for (const FontStyle style : {FontStyle::Regular, FontStyle::Bold}) {
        for (const char* pszLabel : kLabels) {
            SCOPED_TRACE(pszLabel);
            const CRect ink = Ink(Draw(pszLabel, style));
            EXPECT_NEAR(kAt.x, ink.left, 3);
            EXPECT_NEAR(kAt.x + m_engine.Measure(pszLabel, style), ink.right, 3);
            EXPECT_GE(ink.top, kAt.y - 1);
            EXPECT_LE(ink.bottom, kAt.y + m_engine.LineHeight() + 1);
            const CRect clipped = Ink(Draw(pszLabel, style, clip));
            EXPECT_FALSE(clipped.IsRectEmpty());
            EXPECT_EQ(clipped, clipped & clip);
        }
    }
    EXPECT_GT(m_engine.Measure("Bold", FontStyle::Bold), m_engine.Measure("Bold", FontStyle::Regular));
    Surface small(CSize(10, 10), kWhite);
    m_engine.Draw(small, CRect(-50, -50, 50, 50), CPoint(-5, -3), "clipped by the surface", RGB(0, 0, 0),
                  FontStyle::Bold);
    EXPECT_FALSE(Ink(small).IsRectEmpty());
}

TEST_F(TextEngineTest, TextLooksAsQtItselfDrawsIt)
{
    QFont font = QGuiApplication::font();
    font.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    for (const char* pszLabel : kLabels) {
        SCOPED_TRACE(pszLabel);
        QImage expected(600, 60, QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::white);
        QPainter painter(&expected);
        painter.setFont(font);
        painter.drawText(QPointF(kAt.x, kAt.y + qRound(QFontMetricsF(font).ascent())), QString::fromUtf8(pszLabel));
        painter.end();
        const Surface drawn = Draw(pszLabel, FontStyle::Regular);
        EXPECT_GT(Ink(drawn).Height(), 5);
        const auto isAlike = [](toolkit::Pixel a, toolkit::Pixel b) { return std::abs(qGray(a) - qGray(b)) <= 8; };
        EXPECT_TRUE(std::equal(drawn.Row(0), drawn.Row(0) + 600 * 60,
                               reinterpret_cast<const QRgb*>(expected.constBits()), isAlike));
    }
}

TEST_F(TextEngineTest, WhateverBytesComeSomethingIsDrawnForEach)
{
    const int nOne = m_engine.Measure("\xFF", FontStyle::Regular);
    EXPECT_GT(nOne, 0);
    for (const char* pszText : {"\x80", "\n", "\t", "\x7F", "\x01"}) {
        EXPECT_EQ(nOne, m_engine.Measure(pszText, FontStyle::Regular));
        EXPECT_FALSE(Ink(Draw(pszText, FontStyle::Regular)).IsRectEmpty());
    }
    EXPECT_NEAR(3 * nOne, m_engine.Measure("\xE2\x82\xFF", FontStyle::Regular), 2);
    EXPECT_EQ(0, m_engine.Measure("", FontStyle::Regular));
    EXPECT_GT(m_engine.Measure(std::string(100'000, '\xC3'), FontStyle::Regular), 10'000);
}

TEST_F(TextEngineTest, TheCharactersOfATextFillItsLineWhicheverWayTheyAreRead)
{
    const auto seenAs = [this](std::initializer_list<std::string> characters) {
        std::string text, seen;
        std::vector<std::size_t> starts;
        for (const std::string& character : characters)
            starts.push_back(std::exchange(text, text + character).size());
        const auto places = m_engine.Places(text, starts, FontStyle::Regular);
        std::map<int, std::pair<std::string, int>> byLeft;
        for (const std::string& character : characters) {
            const toolkit::CharacterPlace& place = places.at(byLeft.size());
            byLeft[place.Left()] = {character + (place.leading < place.trailing ? ">" : "<"), place.Right()};
        }
        int right = 0;
        for (const auto& [left, character] : byLeft) {
            EXPECT_NEAR(right, left, 1) << character.first;
            right = character.second;
            seen += character.first;
        }
        EXPECT_NEAR(m_engine.Measure(text, FontStyle::Regular), right, 1);
        return seen;
    };
    EXPECT_EQ("a>b>1>", seenAs({"a", "b", "1"}));
    EXPECT_EQ("ם<ו<ל<ש<", seenAs({"ש", "ל", "ו", "ם"}));
    EXPECT_EQ("a> >ב<א< >b>", seenAs({"a", " ", "א", "ב", " ", "b"}));
    EXPECT_EQ("g>i>f>.<ב<שׁ<", seenAs({"שׁ", "ב", ".", "g", "i", "f"})) << "a letter with its mark is one";
    EXPECT_EQ("a>1>2>א< >c>", seenAs({"a", "א", "1", "2", " ", "c"})) << "numbers are read from left to right";
    EXPECT_EQ("م<ا<ل<س<", seenAs({"س", "ل", "ا", "م"})) << "two letters in one sign";
    EXPECT_EQ("e\u0301>f>f>i> >ا<ل<", seenAs({"e\u0301", "f", "f", "i", " ", "ل", "ا"}));
    EXPECT_EQ("", seenAs({}));
}

// A longer text is not remembered, but drawn letter by letter: here with nothing but spaces behind the label.
TEST_F(TextEngineTest, ALabelLooksTheSameNewOrKnownOrForgottenAsLetterByLetter)
{
    const Surface ground(CSize(300, 40), 0xFF3070C0);
    const auto draw = [&](const std::string& text, CPoint at, const CRect& clip, COLORREF color) {
        Surface drawn = ground;
        m_engine.Draw(drawn, clip, at, text, color, FontStyle::Regular);
        return std::vector(drawn.Row(0), drawn.Row(0) + 300 * 40);
    };
    const auto nothing = draw("", {}, ground.Bounds(), 0);
    const auto expectSame = [&](const std::string& label, CPoint at, const CRect& clip, COLORREF color) {
        const auto letters = draw(label + std::string(80, ' '), at, clip, color);
        EXPECT_NE(nothing, letters);
        EXPECT_TRUE(letters == draw(label, at, clip, color)) << label;
    };
    for (int nRound = 0; nRound < 2; ++nRound) {
        for (const char* pszLabel : {"|||WAVE fjord Tof7 ffi||", "Grüße – ŁÅ/AVA"}) {
            expectSame(pszLabel, CPoint(20, 10), ground.Bounds(), RGB(255, 255, 255));
            expectSame(pszLabel, CPoint(17, 9), CRect(20, 12, 90, 19), RGB(10, 200, 30));
        }
        for (int i = 0; i < 10'000; ++i)
            m_engine.Measure("another label " + std::to_string(i), FontStyle::Regular);
    }
}
