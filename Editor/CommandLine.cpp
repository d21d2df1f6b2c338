#include "Editor/CommandLine.h"

#include "Editor/script/Script.h"

#include <charconv>

namespace editor
{
namespace
{

constexpr int kMinExtent = 200;
constexpr int kMaxExtent = 8192;

bool ParseExtent(std::string_view text, LONG& extent)
{
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), extent);
    return failure == std::errc() && end == text.data() + text.size() && extent >= kMinExtent && extent <= kMaxExtent;
}

bool ParseSize(std::string_view text, CSize& size)
{
    const std::size_t x = text.find('x');
    return x != text.npos && ParseExtent(text.substr(0, x), size.cx) && ParseExtent(text.substr(x + 1), size.cy);
}

// Walks the arguments; stops at the first that is wrong.
class Parser
{
public:
    explicit Parser(const std::vector<std::string>& arguments) : m_arguments(arguments) {}

    CommandLine Parse()
    {
        while (m_line.error.empty() && m_next < m_arguments.size())
            TakeArgument(m_arguments[m_next++]);
        if (m_line.error.empty() && !m_line.script.empty() && !m_line.screenshot.empty())
            m_line.error = "--screenshot: within --script the command screenshot writes pictures";
        return m_line;
    }

private:
    void TakeArgument(const std::string& argument)
    {
        if (!m_bOnlyOperands && argument == "--")
            m_bOnlyOperands = true;
        else if (!m_bOnlyOperands && argument.size() > 1 && argument[0] == '-')
            TakeOption(argument);
        else
            TakeFolder(argument);
    }

    void TakeOption(const std::string& option)
    {
        if (option == "--help" || option == "-h")
            m_line.help = true;
        else if (option == "--screenshot")
            m_line.screenshot = TakeOperand(option, "the name of the picture to write");
        else if (option == "--script")
            m_line.script = TakeOperand(option, "the name of the file with the commands");
        else if (option == "--forget")
            m_line.isForgetful = true;
        else if (option == "--size")
            TakeSize(TakeOperand(option, "WIDTHxHEIGHT"));
        else
            m_line.error = option + ": unknown option; --help tells the known ones";
    }

    void TakeFolder(const std::string& folder)
    {
        if (folder.empty())
            m_line.error = "the folder's name is empty";
        else if (m_line.isFolderNamed)
            m_line.error = folder + ": only one folder can be opened";
        m_line.folder = folder;
        m_line.isFolderNamed = true;
    }

    std::string TakeOperand(const std::string& option, const char* pszWhat)
    {
        if (m_next < m_arguments.size() && !m_arguments[m_next].empty())
            return m_arguments[m_next++];
        m_line.error = option + ": " + pszWhat + " is missing";
        return {};
    }

    void TakeSize(const std::string& text)
    {
        m_line.isSizeNamed = true;
        if (m_line.error.empty() && !ParseSize(text, m_line.size))
            m_line.error = "--size " + text + ": not a size like 960x640, from " + std::to_string(kMinExtent) + " to " +
                           std::to_string(kMaxExtent) + " pixels each way";
    }

    const std::vector<std::string>& m_arguments;
    std::size_t m_next = 0;
    bool m_bOnlyOperands = false;
    CommandLine m_line;
};

} // namespace

CommandLine ParseCommandLine(const std::vector<std::string>& arguments)
{
    return Parser(arguments).Parse();
}

std::string CommandLineHelp()
{
    return "Shows a folder of pictures as a library of objects.\n"
           "\n"
           "  [FOLDER]                 open FOLDER; without one the last one, at first a copy of the samples. Of a "
           "file its\n"
           "                           folder is opened, and the file shown\n"
           "  --screenshot PNG         write a picture of the window to the file PNG and end\n"
           "  --script FILE            run the commands in FILE (- for the standard input), without a window, and end\n"
           "  --size WIDTHxHEIGHT      the window's size in pixels; without it the last one, at first 960x640\n"
           "  --forget                 neither read nor write what is remembered from one time to the next\n"
           "  --help                   show this text and end\n"
           "\n" +
           ScriptHelp();
}

} // namespace editor
