// Tests with programs on an X server.
#pragma once

#include "tests/desktop/XServer.h"

#include <gtest/gtest.h>

class XServerTest : public testing::Test, protected XServer
{
protected:
    void SetUp() override // skips the test when Xvfb or xdotool is missing
    {
        if (const std::string missing = MissingOf({"Xvfb", "xdotool"}); !missing.empty())
            GTEST_SKIP() << missing << " is missing";
        ASSERT_TRUE(Start());
    }

    using XServer::Start;
};
