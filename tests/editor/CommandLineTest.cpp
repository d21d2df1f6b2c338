#include "Editor/CommandLine.h"

#include <gtest/gtest.h>

namespace
{

using editor::CommandLine;
using editor::ParseCommandLine;

std::string Describe(const std::vector<std::string>& arguments)
{
    const CommandLine line = ParseCommandLine(arguments);
    if (!line.error.empty())
        return "error " + line.error;
    if (line.help)
        return "help";
    std::string text = "[" + line.folder + "] " + std::to_string(line.size.cx) + "x" + std::to_string(line.size.cy);
    if (!line.script.empty())
        text += " by " + line.script;
    return line.screenshot.empty() ? text : text + " into " + line.screenshot;
}

TEST(CommandLineTest, TheFolderAndTheOptionsComeInAnyOrder)
{
    EXPECT_EQ("[] 960x640", Describe({}));
    EXPECT_EQ("[pictures] 960x640", Describe({"pictures"}));
    EXPECT_EQ("[pictures] 800x600 into out.png",
              Describe({"--screenshot", "out.png", "pictures", "--size", "800x600"}));
    EXPECT_EQ("[pictures] 960x640 by -", Describe({"--script", "-", "pictures"}));
    EXPECT_EQ("[--size] 960x640", Describe({"--", "--size"}));
    EXPECT_EQ("help", Describe({"pictures", "--help"}));
}

TEST(CommandLineTest, WhatIsWrongGivesOneLineThatNamesIt)
{
    EXPECT_EQ("error --colour: unknown option; --help tells the known ones", Describe({"--colour", "red"}));
    EXPECT_EQ("error --screenshot: the name of the picture to write is missing", Describe({"--screenshot"}));
    EXPECT_EQ("error --script: the name of the file with the commands is missing", Describe({"--script"}));
    EXPECT_EQ("error --screenshot: within --script the command screenshot writes pictures",
              Describe({"--script", "-", "--screenshot", "out.png"}));
    EXPECT_EQ("error --size: WIDTHxHEIGHT is missing", Describe({"--size", ""}));
    EXPECT_EQ("error b: only one folder can be opened", Describe({"a", "b"}));
    EXPECT_EQ("error the folder's name is empty", Describe({""}));
    for (const char* size : {"800", "x600", "800x", "800x600x", "-800x600", "800x99999", "8e2x600", "99999999999x600"})
        EXPECT_EQ(std::string("error --size ") + size + ": not a size like 960x640, from 200 to 8192 pixels each way",
                  Describe({"--size", size}));
}

} // namespace
