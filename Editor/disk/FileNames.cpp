#include "Editor/disk/FileNames.h"

#include "Toolkit/base/Text.h"

#include <algorithm>
#include <charconv>

namespace editor
{
namespace
{

constexpr int kMostCopies = 1'000'000;

bool IsDevice(std::string_view name)
{
    std::string_view stem = name.substr(0, name.find('.'));
    while (stem.ends_with(' '))
        stem.remove_suffix(1);
    if (stem.size() == 4 && stem[3] >= '1' && stem[3] <= '9')
        return toolkit::CompareNoCase(stem.substr(0, 3), "com") == 0 ||
               toolkit::CompareNoCase(stem.substr(0, 3), "lpt") == 0;
    constexpr std::string_view kDevices[] = {"con", "prn", "aux", "nul"};
    return std::any_of(std::begin(kDevices), std::end(kDevices),
                       [&](std::string_view device) { return toolkit::CompareNoCase(stem, device) == 0; });
}

// Takes a number as in " (2)" off the end of the stem; 1 when there is none, or one so large that it is no count.
int TakeNumber(std::string_view& stem)
{
    const std::size_t open = stem.rfind(" (");
    if (open == stem.npos || open == 0 || !stem.ends_with(')'))
        return 1;
    const char* const pFirst = stem.data() + open + 2;
    const char* const pLast = stem.data() + stem.size() - 1;
    int number = 0;
    const auto [pEnd, error] = std::from_chars(pFirst, pLast, number);
    if (error != std::errc() || pEnd != pLast || number < 2 || number > kMostCopies / 2 || *pFirst == '0')
        return 1;
    stem = stem.substr(0, open);
    return number;
}

std::string Numbered(std::string_view stem, int number, std::string_view extension)
{
    const std::string end = " (" + std::to_string(number) + ')' + std::string(extension);
    return std::string(Shortened(stem, kLongestName - std::min(kLongestName, end.size()))) + end;
}

} // namespace

std::string_view Shortened(std::string_view text, std::size_t most)
{
    std::size_t end = 0;
    while (end < text.size()) {
        const auto bytes = static_cast<std::size_t>(toolkit::DecodeUtf8(text.substr(end)).bytes);
        if (end + bytes > most)
            break;
        end += bytes;
    }
    return text.substr(0, end);
}

std::string FileNameTrouble(std::string_view name)
{
    if (name.empty())
        return "a name must not be empty";
    if (name.size() > kLongestName)
        return "the name is too long (" + std::to_string(name.size()) + " of at most 255 bytes)";
    if (name == "." || name == "..")
        return "the name stands for a folder";
    if (name.find('\0') != name.npos)
        return "a name must not hold a zero";
    return name.find('/') == name.npos ? std::string() : "a name must not hold \"/\"";
}

std::string NameTrouble(std::string_view name)
{
    if (std::string trouble = FileNameTrouble(name); !trouble.empty())
        return trouble;
    if (name.find('\\') != name.npos)
        return "a name must not hold \"\\\"";
    return IsDevice(name) ? "the name stands for a device on other systems" : std::string();
}

std::string MakeValid(std::string_view name)
{
    while (name.starts_with('.') || name.starts_with(' '))
        name.remove_prefix(1);
    std::string valid(Shortened(name, kLongestName));
    for (char& c : valid)
        if (c == '/' || c == '\\' || c == '\0')
            c = '-';
    if (IsDevice(valid))
        valid.insert(0, 1, '_');
    return std::string(Shortened(valid, kLongestName));
}

std::string NameForCopy(std::string_view name, std::string_view extension,
                        const std::function<bool(std::string_view)>& isTaken, int& nTaken)
{
    if (!isTaken(name))
        return std::string(name);
    std::string_view stem = name.substr(0, name.size() - extension.size());
    for (nTaken = std::max(nTaken, TakeNumber(stem)); nTaken < kMostCopies; ++nTaken) {
        std::string numbered = Numbered(stem, nTaken + 1, extension);
        if (!isTaken(numbered))
            return numbered;
    }
    return {};
}

std::string AnyNameForCopy(std::string_view name, std::string_view extension,
                           const std::function<bool(std::string_view)>& isTaken)
{
    if (!isTaken(name))
        return std::string(name);
    std::string_view stem = name.substr(0, name.size() - extension.size());
    int nTaken = TakeNumber(stem);
    int nStep = 1;
    for (; nTaken + nStep < kMostCopies && isTaken(Numbered(stem, nTaken + nStep, extension)); nStep *= 2)
        nTaken += nStep;
    for (; nStep > 1; nStep /= 2) // what is half a step further may be taken, what is a step further is not
        if (isTaken(Numbered(stem, nTaken + nStep / 2, extension)))
            nTaken += nStep / 2;
    return nTaken + 1 < kMostCopies ? Numbered(stem, nTaken + 1, extension) : std::string();
}

} // namespace editor
