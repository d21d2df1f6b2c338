// Texts, and blocks of memory.
#include "Toolkit/base/Exception.h"
#include "Toolkit/base/GlobalMemory.h"
#include "Toolkit/base/String.h"
#include "Toolkit/base/Text.h"
#include "Toolkit/base/TextKeys.h"
#include "Toolkit/base/WideText.h"
#include "tests/support/AllocationFailures.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>

namespace
{

TEST(StringTest, CopiesShareUntilOneIsWrittenAndABufferLentOutIsCutWhereItsTextEnds)
{
    CString text("before");
    const CString copy(text);
    EXPECT_EQ(copy.GetString(), text.GetString());
    std::strcpy(text.GetBufferSetLength(40), "run");
    EXPECT_EQ(40, text.GetLength());
    text.ReleaseBuffer();
    text += text.View(); // a part of itself
    EXPECT_STREQ("runrun", text);
    EXPECT_THROW(text += std::string_view(text.GetString(), std::size_t{1} << 30), CMemoryException);
    EXPECT_STREQ("before", copy);
}

TEST(TextTest, ComparesWithoutRegardToCaseBeyondAscii)
{
    EXPECT_EQ(0, _mbsicmp("WALK", "walk"));
    EXPECT_EQ(0, _mbsicmp("ÄRGER Ω Ж ǅ", "ärger ω ж ǆ"));
    EXPECT_EQ(0, _mbsicmp("ΟΔΟΣ", "οδος"));   // the final sigma is a sigma
    EXPECT_GT(0, _mbsicmp("Zebra", "ärger")); // by code point, not by language
    EXPECT_LT(0, _mbsicmp("b", "A"));
    EXPECT_GT(0, _mbsicmp("\U0010FFFF", "\x80")); // what is not UTF-8 comes last, byte by byte
    EXPECT_NE(0, _mbsicmp("\xC3", "\xC4"));
    EXPECT_EQ(0, _mbsicmp("a\xFF", "A\xFF"));
}

TEST(TextTest, NumbersCountByTheirValueInTheNaturalOrder)
{
    const std::vector<const char*> names = {
        "",       "0",           "00",           "1",          "02",          "10",           "1000000000000000000000",
        "a",      "Frame 4.png", "frame 04.png", "frame 14 b", "Frame 14 C2", "frame 14 c10", "frame x",
        "frames", "ä2",          "Ä10"};
    toolkit::TextKeys keys(names.size(), toolkit::TextOrder::Natural);
    for (std::size_t i = 0; i < names.size(); ++i)
        keys.Add(names[(i * 5 + 3) % names.size()]);
    std::vector<std::string> sorted;
    for (const auto& key : keys.Sort())
        sorted.emplace_back(names[(key.nIndex * 5 + 3) % names.size()]);
    EXPECT_EQ(std::vector<std::string>(names.begin(), names.end()), sorted);
}

TEST(GlobalMemoryTest, ABlockHasExactlyTheSizeThatWasAskedFor)
{
    const HGLOBAL hMem = GlobalAlloc(GHND, 17);
    EXPECT_EQ(17u, GlobalSize(hMem));
    const char* p = static_cast<char*>(GlobalLock(hMem));
    EXPECT_TRUE(std::all_of(p, p + 17, [](char c) { return c == 0; }));
    EXPECT_FALSE(GlobalUnlock(hMem));
    EXPECT_EQ(nullptr, GlobalFree(hMem));

    const HGLOBAL hEmpty = GlobalAlloc(GMEM_MOVEABLE, 0);
    EXPECT_NE(nullptr, hEmpty);
    EXPECT_EQ(nullptr, GlobalLock(hEmpty));
    EXPECT_EQ(nullptr, GlobalFree(hEmpty));
}

TEST(GlobalMemoryTest, ALockedBlockIsNotFreedAndAFreedOneRefused)
{
    const HGLOBAL hMem = GlobalAlloc(GMEM_MOVEABLE, 4);
    void* p = GlobalLock(hMem);
    EXPECT_EQ(p, GlobalLock(hMem));
    EXPECT_TRUE(GlobalUnlock(hMem)); // one lock is left
    EXPECT_EQ(hMem, GlobalFree(hMem));
    EXPECT_FALSE(GlobalUnlock(hMem));
    EXPECT_EQ(ERROR_SUCCESS, GetLastError());
    EXPECT_FALSE(GlobalUnlock(hMem));
    EXPECT_EQ(ERROR_NOT_LOCKED, GetLastError());
    EXPECT_EQ(nullptr, GlobalFree(hMem));

    const HGLOBAL hOther = GlobalAlloc(GMEM_MOVEABLE, 4);
    EXPECT_EQ(nullptr, GlobalLock(hMem));
    EXPECT_EQ(ERROR_INVALID_HANDLE, GetLastError());
    EXPECT_EQ(0u, GlobalSize(hMem));
    EXPECT_EQ(hMem, GlobalFree(hMem));
    GlobalFree(hOther);
}

TEST(GlobalMemoryTest, WithoutMemoryThereIsNoHandleAndNoException)
{
    const int nBefore = toolkit::CountGlobalBlocks();
    EXPECT_EQ(nullptr, GlobalAlloc(GMEM_MOVEABLE, std::numeric_limits<std::size_t>::max()));
    EXPECT_EQ(ERROR_NOT_ENOUGH_MEMORY, GetLastError());
    EXPECT_LT(1, FailEveryAllocation([] { GlobalFree(GlobalAlloc(GMEM_MOVEABLE, 100)); }));
    EXPECT_EQ(nBefore, toolkit::CountGlobalBlocks());
}

TEST(WideTextTest, EveryNameComesBackAsItWas)
{
    const std::string_view name("a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\xFF\x80z");
    EXPECT_EQ(L"aä€😀\xDCFF\xDC80z", toolkit::Widen(name));
    EXPECT_EQ(name, toolkit::Narrow(toolkit::Widen(name)));
    EXPECT_EQ("\xEF\xBF\xBD", toolkit::Narrow(L"\xD800"));
}

} // namespace
