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

TEST(CommandLineTest, TheFolderAndTheOptionsComeInAnyOrderAndWhatIsWrongGivesOneLine)
{
    const std::pair<std::vector<std::string>, const char*> lines[] = {
        {{}, "[] 960x640"},
        {{"--screenshot", "out.png", "pictures", "--size", "800x600"}, "[pictures] 800x600 into out.png"},
        {{"--script", "-", "pictures"}, "[pictures] 960x640 by -"},
        {{"--", "--size"}, "[--size] 960x640"},
        {{"pictures", "--help"}, "help"},
        {{"--script"}, "error --script: the name of the file with the commands is missing"},
        {{"--script", "-", "--screenshot", "out.png"},
         "error --screenshot: within --script the command screenshot writes pictures"},
        {{"--size", ""}, "error --size: WIDTHxHEIGHT is missing"},
        {{"a", "b"}, "error b: only one folder can be opened"},
        {{""}, "error the folder's name is empty"},
    };
    for (const auto& [arguments, pszMeaning] : lines)
        EXPECT_EQ(pszMeaning, Describe(arguments));
    for (const char* size : {"800", "x600", "800x", "800x600x", "-800x600", "800x99999", "8e2x600", "99999999999x600"})
        EXPECT_EQ(std::string("error --size ") + size + ": not a size like 960x640, from 200 to 8192 pixels each way",
                  Describe({"--size", size}));
}

} // namespace
