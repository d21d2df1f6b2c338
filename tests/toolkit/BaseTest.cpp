#include "Toolkit/base/Exception.h"
#include "Toolkit/base/String.h"
#include "Toolkit/base/Text.h"

#include <gtest/gtest.h>

namespace
{

TEST(StringTest, CopiesShareUntilOneIsWritten)
{
    CString a("walk");
    CString b(a);
    EXPECT_EQ(a.GetString(), b.GetString());

    b += " *";
    EXPECT_STREQ("walk", a);
    EXPECT_STREQ("walk *", b);

    b += b.View(); // a part of itself
    EXPECT_STREQ("walk *walk *", b);
}

TEST(StringTest, ABufferLentOutIsCutWhereItsTextEnds)
{
    CString text("before");
    const CString copy(text);
    LPSTR buffer = text.GetBufferSetLength(40);
    EXPECT_EQ(40, text.GetLength());
    buffer[0] = 'r';
    buffer[1] = 'u';
    buffer[2] = 'n';
    buffer[3] = '\0';
    text.ReleaseBuffer();

    EXPECT_EQ(CString("run"), text);
    EXPECT_STREQ("before", copy);
    text.Format("%s %d", "frame", 12);
    EXPECT_STREQ("frame 12", text);
    text.Empty();
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_STREQ("", text);
}

TEST(TextTest, ComparesWithoutRegardToCaseBeyondAscii)
{
    EXPECT_EQ(0, _mbsicmp("WALK", "walk"));
    EXPECT_EQ(0, _mbsicmp("ÄRGER Ω Ж ǅ", "ärger ω ж ǆ"));
    EXPECT_EQ(0, _mbsicmp("ΟΔΟΣ", "οδος")); // the final sigma is a sigma
    EXPECT_GT(0, _mbsicmp("walk", "walk2"));
    EXPECT_GT(0, _mbsicmp("Zebra", "ärger")); // by code point, not by language
    EXPECT_LT(0, _mbsicmp("b", "A"));
    EXPECT_GT(0, _mbsicmp("\U0010FFFF", "\x80")); // what is not UTF-8 comes last, byte by byte
    EXPECT_NE(0, _mbsicmp("\xC3", "\xC4"));
    EXPECT_EQ(0, _mbsicmp("a\xFF", "A\xFF"));
}

TEST(TextTest, WhatTwoNamesBeginWithDoesNotMatter)
{
    const std::string ends[] = {"", "a", "B", "Ä", "ä", "\xC3", "0001.png", "0002.PNG", "ſ", "s"};
    std::string start;
    for (const char* pszPart : {"", "x", "yz", "Ö", "abcde", "\xFF", "1234567890", "€"}) {
        start += pszPart;
        for (const std::string& a : ends)
            for (const std::string& b : ends)
                EXPECT_EQ(toolkit::CompareNoCase(a, b), toolkit::CompareNoCase(start + a, start + b))
                    << start << a << b;
    }
    EXPECT_EQ(0, toolkit::CompareNoCase("holiday PICTURE", "HOLIDAY picture"));
}

TEST(StringTest, ATextTooLongForItsLengthFindsNoMemory)
{
    CString text("before");
    const std::string_view huge(text.GetString(), std::size_t{1} << 30);
    EXPECT_THROW(CString{huge}, CMemoryException);
    EXPECT_THROW(text += huge, CMemoryException);
    EXPECT_STREQ("before", text);
}

} // namespace
