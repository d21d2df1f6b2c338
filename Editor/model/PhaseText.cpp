#include "Editor/model/PhaseText.h"

#include "Editor/disk/FileText.h"
#include "Editor/disk/TempEntry.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <unistd.h>

namespace editor
{
namespace
{

namespace fs = std::filesystem;

std::string_view Trimmed(std::string_view line)
{
    constexpr const char* kBlank = " \t\r";
    const std::size_t first = line.find_first_not_of(kBlank);
    return first == line.npos ? std::string_view() : line.substr(first, line.find_last_not_of(kBlank) - first + 1);
}

bool IsInside(const std::string& path, const std::string& root)
{
    return path.size() > root.size() && path.starts_with(root) && (root.ends_with('/') || path[root.size()] == '/');
}

// Empty when it leads out of the library.
std::string PlaceFrom(const std::string& folder, std::string_view picture, const std::string& root)
{
    std::string path = (fs::path(folder) / picture).lexically_normal();
    return IsInside(path, root) ? path : std::string();
}

// As a line that is read back as just this path; empty when there is none.
std::string Written(std::string line)
{
    if (line.empty() || line.find('\n') != line.npos)
        return {};
    if (line[0] == '#' || Trimmed(line).data() != line.data())
        line.insert(0, "./");
    return Trimmed(line) == line ? line : std::string();
}

std::string_view LineEndOf(std::string_view text)
{
    return text.find("\r\n") != text.npos ? "\r\n" : "\n";
}

std::string Ended(std::string text)
{
    if (!text.empty() && !text.ends_with('\n'))
        text += LineEndOf(text);
    return text;
}

} // namespace

bool LeadsNowhere(int error)
{
    return error == ENOENT || error == ENOTDIR || error == ELOOP || error == ENAMETOOLONG;
}

std::vector<PictureLine> PictureLines(std::string_view text)
{
    std::vector<PictureLine> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        const std::string_view picture = Trimmed(text.substr(at, end - at));
        const std::size_t next = std::min(end + 1, text.size());
        if (!picture.empty() && picture[0] != '#')
            lines.push_back({at, next - at, picture});
        at = end + 1;
    }
    return lines;
}

std::string ReadPhaseText(const std::string& path, std::string& text)
{
    TextState state;
    const int error = ReadText(path, kLargestPhase, state);
    if (error != 0)
        return error == EFBIG ? "too large for a phase" : error == EINVAL ? "not a file" : SystemErrorText(error);
    text = std::move(state.text);
    return IsPhaseText(text) ? std::string() : "not a text";
}

bool IsPhaseText(std::string_view text)
{
    return text.size() <= kLargestPhase && text.find('\0') == text.npos;
}

// A library from elsewhere may hold links to anything of the user's: a line among the commands that a shell runs is
// one.
std::string WritePhaseText(const std::string& path, const TextState& former, const std::string& text)
{
    std::error_code unreadable;
    const std::string real = fs::canonical(path, unreadable).string();
    if (!unreadable && ExtensionOf(real) != "phase")
        return "a link to a file that is no phase";
    TextState now;
    int error = ReadText(path, kLargestPhase, now);
    if (error == EFBIG || (error == 0 && now.text != former.text))
        return "was changed by another program meanwhile";
    if (error == 0)
        error = ReplaceFile(path, text);
    return error == 0 ? std::string() : SystemErrorText(error);
}

std::vector<std::string> PlacesOf(std::string_view picture, const std::string& folder, const std::string& root)
{
    std::vector<std::string> places;
    for (const std::string& from : {folder, root})
        if (std::string path = PlaceFrom(from, picture, root); !path.empty())
            places.push_back(std::move(path));
    return places;
}

PicturePlace FindPicture(std::string_view picture, const std::string& folder, const std::string& root)
{
    PicturePlace missed;
    for (const std::string& from : {folder, root}) {
        const std::string path = PlaceFrom(from, picture, root);
        if (path.empty())
            continue;
        if (access(path.c_str(), F_OK) == 0)
            return {path, true};
        if (!LeadsNowhere(errno))
            return {path, false, errno};
        if (missed.path.empty())
            missed.path = path;
    }
    return missed;
}

std::string LineFor(const std::string& path, const std::string& folder, const std::string& root, int& error)
{
    error = 0;
    if (!IsInside(path, root))
        return {};
    if (!IsInside(path, folder)) {
        const std::string fromRoot = Written(fs::path(path).lexically_relative(root));
        const PicturePlace found = FindPicture(fromRoot, folder, root);
        error = found.error;
        if (found.path == path || error != 0)
            return error == 0 ? fromRoot : std::string();
    }
    return Written(fs::path(path).lexically_relative(folder));
}

std::string Relocate(std::string& text, const std::string& formerFolder, const std::string& folder,
                     const std::string& root)
{
    std::string moved;
    std::size_t done = 0;
    for (const PictureLine& line : PictureLines(text)) {
        const PicturePlace there = FindPicture(line.picture, folder, root);
        if (there.isThere)
            continue;
        const PicturePlace former = there.error ? there : FindPicture(line.picture, formerFolder, root);
        int error = former.error;
        const std::string now = former.isThere ? LineFor(former.path, folder, root, error) : std::string();
        if (error != 0)
            return Because(line.picture, SystemErrorText(error));
        if (now.empty())
            continue;
        const auto at = static_cast<std::size_t>(line.picture.data() - text.data());
        moved.append(text, done, at - done).append(now);
        done = at + line.picture.size();
    }
    text = moved.append(text, done, text.npos);
    return {};
}

std::string WithLine(std::string text, std::string_view line)
{
    const std::string_view end = LineEndOf(text);
    return Ended(std::move(text)).append(line).append(end);
}

std::string WithLines(std::string text, const std::vector<std::string>& lines, std::size_t nBefore)
{
    const std::string_view end = LineEndOf(text);
    text = Ended(std::move(text));
    const std::vector<PictureLine> present = PictureLines(text);
    std::string added;
    for (const std::string& line : lines)
        added.append(line).append(end);
    return text.insert(nBefore < present.size() ? present[nBefore].at : text.size(), added);
}

std::string WithLinesMoved(std::string text, const std::vector<std::size_t>& moved, std::size_t nBefore)
{
    text = Ended(std::move(text));
    const std::vector<PictureLine> present = PictureLines(text);
    const std::size_t place = nBefore < present.size() ? present[nBefore].at : text.size();
    std::string before, block, behind; // what comes before the lines that are moved, these, and what comes after
    std::size_t done = 0;
    const auto copyTo = [&](std::size_t end) {
        const std::size_t middle = std::clamp(place, done, end);
        before.append(text, done, middle - done);
        behind.append(text, middle, end - middle);
        done = end;
    };
    for (const std::size_t nLine : moved) {
        copyTo(present[nLine].at);
        block.append(text, present[nLine].at, present[nLine].size);
        done += present[nLine].size;
    }
    copyTo(text.size());
    return before + block + behind;
}

// Those that stand together move together.
std::string WithLinesShifted(std::string text, std::vector<std::size_t>& places, bool bLater)
{
    const std::size_t nCount = PictureLines(text).size();
    for (auto first = places.begin(); first != places.end();) {
        const auto isLast = [](std::size_t a, std::size_t b) { return b != a + 1; };
        auto end = std::adjacent_find(first, places.end(), isLast);
        end = end == places.end() ? end : end + 1;
        if (bLater ? *std::prev(end) + 1 < nCount : *first > 0) {
            text = WithLinesMoved(std::move(text), {first, end}, bLater ? *std::prev(end) + 2 : *first - 1);
            std::for_each(first, end, [=](std::size_t& place) { place += bLater ? 1 : -1; });
        }
        first = end;
    }
    return text;
}

} // namespace editor
