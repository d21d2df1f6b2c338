// Where the caret may stand, what words are, and the one step of undo.
#include "Toolkit/controls/EditHistory.h"

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
    EXPECT_EQ(5u, StopAtOrBefore("a€b", 99));
}

TEST(TextStopsTest, WordsAreRunsOfLettersOrOfSignsWithTheBlanksBehindThem)
{
    EXPECT_EQ("|walk |left_2|.|png|", Words("walk left_2.png"));
    EXPECT_EQ("|größe |-- |x|", Words("größe -- x"));
    EXPECT_EQ("left_2", WordIn("walk left_2.png", 8));
    EXPECT_EQ("  ", WordIn("walk  left", 5));
    EXPECT_EQ("left", WordIn("walk left", 9)) << "behind the last letter";
    EXPECT_EQ("", WordIn("", 0));
}

TEST(EditTextTest, ReplacingLeavesTheCaretBehindAWholeCharacter)
{
    EditText text;
    text.Set("\u0301a");
    text.Replace("e");
    EXPECT_EQ("e\u0301a", text.Text());
    EXPECT_EQ(3u, text.Caret()) << "the mark has joined what was typed";

    text.Set("walk");
    text.Select(1, 3);
    EXPECT_EQ("al", text.Selected());
    EXPECT_EQ("ä", text.FitTo("äö", 5)) << "room for three bytes, but no half character";
    EXPECT_EQ("", text.FitTo("ä", 2)) << "too long already";
    text.Select(99, 1);
    EXPECT_EQ((TextSpan{1, 4}), text.Selection());
    EXPECT_EQ(1u, text.Caret());
}

TEST(EditHistoryTest, WhatIsTypedInOneGoIsUndoneAtOnceAndComesBack)
{
    EditText text;
    EditHistory history;
    const auto change = [&](std::string_view by, EditKind kind) {
        history.Before(text, kind);
        text.Replace(by);
        history.After(text);
    };
    EXPECT_FALSE(history.Swap(text));

    change("a", EditKind::Typing);
    change("b", EditKind::Typing);
    EXPECT_TRUE(history.Swap(text));
    EXPECT_EQ("", text.Text());
    EXPECT_TRUE(history.Swap(text));
    EXPECT_EQ("ab", text.Text());

    change("c", EditKind::Typing); // after undoing a new thing begins
    text.MoveTo(0, false);
    change("x", EditKind::Typing); // and elsewhere another one
    EXPECT_TRUE(history.Swap(text));
    EXPECT_EQ("abc", text.Text());

    change("1", EditKind::Other);
    change("2", EditKind::Other);
    EXPECT_TRUE(history.Swap(text));
    EXPECT_EQ("1abc", text.Text());
    history.Forget();
    EXPECT_FALSE(history.Swap(text));
}
