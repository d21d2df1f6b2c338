#include "Toolkit/base/GlobalMemory.h"

#include "Toolkit/base/WideText.h"
#include "tests/support/AllocationFailures.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>

namespace
{

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
