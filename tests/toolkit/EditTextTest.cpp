// Where the caret may stand, and what words are.
#include "Toolkit/controls/edit/TextStops.h"

#include <gtest/gtest.h>

using namespace toolkit;

namespace
{

// The text with a bar at each place for the caret.
std::string Stops(std::string_view text)
{
    std::string result = "|";
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t next = NextStop(text, at);
        EXPECT_EQ(at, PreviousStop(text, next)) << text;
        result += std::string(text.substr(at, next - at)) + "|";
        at = next;
    }
    return result;
}

std::string Words(std::string_view text)
{
    std::string there = "|", back = "|";
    for (std::size_t at = 0; at < text.size(); there += "|") {
        const std::size_t next = NextWord(text, at);
        there += text.substr(at, next - at);
        at = next;
    }
    for (std::size_t at = text.size(); at > 0;) {
        const std::size_t next = PreviousWord(text, at);
        back = "|" + std::string(text.substr(next, at - next)) + back;
        at = next;
    }
    EXPECT_EQ(there, back);
    return there;
}

std::string WordIn(std::string_view text, std::size_t at)
{
    const TextSpan word = WordAt(text, at);
    return std::string(text.substr(word.first, word.Length()));
}

} // namespace

TEST(TextStopsTest, TheCaretStandsBetweenWhatAReaderTakesForCharacters)
{
    EXPECT_EQ("|", Stops(""));
    EXPECT_EQ("|a|ä|€|𝄞|", Stops("aä€𝄞"));
    EXPECT_EQ("|e\u0301|e\u0301\u0323|x|", Stops("e\u0301e\u0301\u0323x")) << "marks stay with their letter";
    EXPECT_EQ("|\u0301|a|", Stops("\u0301a")) << "a mark with nothing to stand on";
    EXPECT_EQ("|\u1112\u1161\u11AB|\u1100\u116E|", Stops("\u1112\u1161\u11AB\u1100\u116E")) << "Hangul in its parts";
    EXPECT_EQ("|ที่|นี่|", Stops("ที่นี่"));
    EXPECT_EQ("|👩‍👧|👍🏽|❤️|", Stops("👩‍👧👍🏽❤️"));
    EXPECT_EQ("|🇦🇹|🇨🇭|x|", Stops("🇦🇹🇨🇭x"));
    EXPECT_EQ("|a|\xFF|\x80|\xC3|b|", Stops("a\xFF\x80\xC3"
                                            "b"))
        << "bytes that are no UTF-8";
    EXPECT_EQ(1u, StopAtOrBefore("a€b", 3));
}

TEST(TextStopsTest, WordsAreRunsOfLettersOrOfSignsWithTheBlanksBehindThem)
{
    EXPECT_EQ("|walk |left_2|.|png|", Words("walk left_2.png"));
    EXPECT_EQ("|größe |-- |x|", Words("größe -- x"));
    EXPECT_EQ("left_2", WordIn("walk left_2.png", 8));
    EXPECT_EQ("  ", WordIn("walk  left", 5));
    EXPECT_EQ("", WordIn("", 0));
}
