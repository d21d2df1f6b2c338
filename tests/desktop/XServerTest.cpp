#include "tests/desktop/XServerTest.h"

void XServerTest::SetUp()
{
    if (const std::string missing = MissingOf({"Xvfb", "xdotool"}); !missing.empty())
        GTEST_SKIP() << missing << " is missing";
    ASSERT_TRUE(Start());
}
