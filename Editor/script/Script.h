// The editor driven by a text, for people who automate.
#pragma once

#include "Editor/EditorApp.h"
#include "Editor/model/Member.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace editor
{

// One command a line; ScriptHelp tells which there are. A command sees all of what those before it have done, and acts
// like the user's own, but asks nothing. The first that fails ends the script.
class Script
{
public:
    struct Outside
    {
        std::function<void(const std::string& line)> print;                 // of what a command was asked to tell
        std::function<std::string(const std::string& path)> takeScreenshot; // empty when done, else the reason
        std::function<bool()> isToEnd = [] { return false; };               // asked before every command and in waits
    };

    // The editor is borrowed and shows a folder.
    Script(EditorApp& app, Outside outside) : m_app(app), m_outside(std::move(outside)) {}

    // Empty when all was done; else "NAME:LINE: reason", with lines counted from 1.
    std::string Run(const std::string& name, std::string_view text);

private:
    using Words = std::vector<std::string>; // the command is not among them
    struct Command
    {
        const char* pszName;
        std::size_t nLeast, nMost; // words
        std::string (Script::*run)(const Words& words);
    };
    static const Command kCommands[]; // besides those that the frame has, too (FindCommandOfWord)

    std::string RunLine(std::string_view line);
    std::string RunCommand(const std::string& command, const Words& words);
    CMainFrame& Frame() const { return *m_app.GetFrame(); }
    std::string Find(const std::string& name, CStubRef<CMember>& pFound) const; // in the container that is shown

    // Each empty when done, else the reason.
    std::string Open(const Words& words) { return m_app.OpenFolder(words[0]); }
    std::string Enter(const Words& words);
    std::string EnterOne(const std::string& part);
    std::string Select(const Words& words);
    std::string Delete(const Words& words);
    std::string Rename(const Words& words);
    std::string View(const Words& words);
    std::string List(const Words& words);
    std::string TakeScreenshot(const Words& words) { return m_outside.takeScreenshot(words[0]); }

    EditorApp& m_app;
    const Outside m_outside;
};

// The commands, with a line's end after every line.
std::string ScriptHelp();

} // namespace editor
