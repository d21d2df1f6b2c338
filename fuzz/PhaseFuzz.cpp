// The text of a phase: reading it, its pictures, its timing, a line more, and its way into another folder.
#include "Editor/model/PhaseText.h"
#include "Editor/model/PhaseTiming.h"
#include "fuzz/Check.h"
#include "tests/support/TempFolder.h"

#include <utility>

namespace
{

using namespace editor;
using Names = std::vector<std::string>;

const TempFolder& Disk()
{
    static const TempFolder folder;
    static const bool isFilled = [] {
        for (const char* pszPath :
             {"a", "b", "in/a", "in/c", "in/deep/d", "in/ lead", "in/#e", "in/trail ", "in/x\ty", "#in/a"})
            folder.Write(std::string("library/") + pszPath, "");
        folder.Write("outside", "");
        return true;
    }();
    return isFilled ? folder : (std::abort(), folder);
}

// Cut apart in the plainest way.
Names NamesIn(std::string_view text)
{
    Names names(1);
    for (const char c : text)
        if (c == '\n')
            names.emplace_back();
        else
            names.back() += c;
    for (std::string& name : names) {
        name.erase(0, name.find_first_not_of(" \t\r"));
        name.erase(name.find_last_not_of(" \t\r") + 1);
    }
    std::erase_if(names, [](const std::string& name) { return name.empty() || name[0] == '#'; });
    return names;
}

Names Read(std::string_view text)
{
    Names names;
    for (const PictureLine& line : PictureLines(text))
        names.emplace_back(line.picture);
    return names;
}

Names With(Names names, const std::string& name)
{
    names.push_back(name);
    return names;
}

std::string CheckFile(std::string_view text)
{
    Disk().Write("library/x.phase", text);
    std::string got;
    const bool isRead = ReadPhaseText(Disk().At("library/x.phase"), got).empty();
    if (isRead != IsPhaseText(text) || (isRead && got != text))
        return "the file is not what was written";
    return {};
}

std::string CheckLines(std::string_view text)
{
    const Names names = NamesIn(text);
    if (Read(text) != names)
        return "the lines are not those that stand there";
    for (const std::string& name : {std::string("z"), names.empty() ? std::string("y") : names.front()})
        if (Read(WithLine(std::string(text), name)) != With(names, name))
            return "a new line is not the last one, alone";
    std::size_t at = 0;
    for (const PictureLine& line : PictureLines(text)) {
        Names rest = names;
        rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(at++));
        if (Read(std::string(text).erase(line.at, line.size)) != rest)
            return "a line could not be taken out by itself";
    }
    return {};
}

std::string CheckTiming(std::string_view text)
{
    const PhaseTiming former = TimingOf(text);
    if (former.delay < 0 || former.delay > PhaseTiming::kMostDelay || former.repeat < 0 ||
        former.repeat > PhaseTiming::kMostRepeats)
        return "a timing out of range";
    if (WithTiming(std::string(text), former) != text)
        return "an unchanged timing changed the text";
    const PhaseTiming timing{former.delay / 2 + 1, static_cast<int>(text.size() % (PhaseTiming::kMostRepeats + 1))};
    const std::string timed = WithTiming(std::string(text), timing);
    if (TimingOf(timed) != timing || WithTiming(timed, timing) != timed)
        return "a timing is not what was written";
    if (Read(timed) != Read(text))
        return "a timing changed the pictures";
    if (TimingOf(WithTiming(timed, former)) != former)
        return "a timing could not be taken back";
    return {};
}

// Nothing is wrong with the disk, so there is no error, whatever a name looks like.
std::string LineTo(const std::string& path, const std::string& folder, const std::string& root)
{
    int error = 0;
    const std::string line = LineFor(path, folder, root, error);
    return error == 0 ? line : "an error of the disk";
}

// What a line leads to lies inside, and the line written for it anywhere leads there again.
std::string CheckPlaces(std::string_view text, const std::string& root)
{
    const std::string folders[] = {root, root + "/in", root + "/in/deep", root + "/#in"};
    const std::string& another = folders[text.size() % 4];
    for (const std::string& name : Read(text))
        for (const std::string& folder : folders) {
            const auto [path, isThere, error] = FindPicture(name, folder, root);
            if (error != 0)
                return "a name is taken for an error of the disk";
            if (!path.empty() && (!path.starts_with(root + '/') || (path + '/').find("/../") != path.npos))
                return "a line leads out of the library";
            const std::string line = isThere ? LineTo(path, another, root) : std::string();
            if (line.empty())
                continue;
            if (Read("x\n" + line) != Names{"x", line} || Read(WithLine("", line)) != Names{line})
                return "the line for a picture is read as something else";
            if (FindPicture(line, another, root).path != path)
                return "the line for a picture leads to another";
        }
    return {};
}

std::string CheckMove(std::string_view text, const std::string& root)
{
    const std::string from = root + "/in", into = text.size() % 2 ? root : root + "/in/deep";
    std::string moved(text);
    if (!Relocate(moved, from, into, root).empty())
        return "a move was refused";
    const Names before = Read(text), after = Read(moved);
    if (before.size() != after.size())
        return "a move changed the number of pictures";
    for (std::size_t i = 0; i < before.size(); ++i) {
        const PicturePlace former = FindPicture(before[i], from, root), now = FindPicture(after[i], into, root);
        if (before[i] == after[i] ? former.isThere && !now.isThere && !LineTo(former.path, into, root).empty()
                                  : now.path != former.path || FindPicture(before[i], into, root).isThere)
            return "a line leads elsewhere after a move";
    }
    return TimingOf(text) == TimingOf(moved) ? std::string() : "a move changed the timing";
}

} // namespace

std::string fuzz::Check(std::string_view bytes)
{
    std::string broken = CheckFile(bytes);
    if (broken.empty())
        broken = CheckLines(bytes);
    if (broken.empty())
        broken = CheckTiming(bytes);
    if (broken.empty() && IsPhaseText(bytes))
        broken = CheckPlaces(bytes, Disk().At("library"));
    return broken.empty() && IsPhaseText(bytes) ? CheckMove(bytes, Disk().At("library")) : broken;
}
