// The editor's command line.
#pragma once

#include "Toolkit/base/Geometry.h"

#include <string>
#include <vector>

namespace editor
{

struct CommandLine
{
    std::string folder; // empty: none was named
    bool isFolderNamed = false;
    std::string script;     // the file with the commands to run instead, "-" for the standard input; empty: none
    std::string screenshot; // the PNG file to write instead of staying open; empty: none
    CSize size{960, 640};   // of the frame's client area
    bool isSizeNamed = false;
    bool isForgetful = false; // the user's settings are neither read nor written
    bool help = false;
    std::string error; // one line; empty when the command line was understood
};

// The arguments without the program's name. What is wrong exits with status 2 after its line has been shown.
CommandLine ParseCommandLine(const std::vector<std::string>& arguments);

// What --help prints, with a line's end after every line.
std::string CommandLineHelp();

} // namespace editor
