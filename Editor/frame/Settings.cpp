#include "Editor/frame/Settings.h"

#include "Editor/disk/TempEntry.h"
#include "Editor/disk/TextFile.h"
#include "Editor/disk/UserPlaces.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string_view>

namespace editor
{
namespace
{

constexpr std::uint64_t kMostBytes = 1 << 20;
constexpr int kLargest = 1 << 15; // a number beyond is none of ours

std::vector<int> Numbers(std::string_view text)
{
    std::vector<int> numbers;
    while (!text.empty()) {
        int number = 0;
        const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (failure != std::errc() || number > kLargest || number < -kLargest)
            return {};
        numbers.push_back(number);
        text.remove_prefix(std::min<std::size_t>(static_cast<std::size_t>(end - text.data()) + 1, text.size()));
    }
    return numbers;
}

int Number(std::string_view text)
{
    const std::vector<int> numbers = Numbers(text);
    return numbers.size() == 1 ? std::max(0, numbers.front()) : 0;
}

void Take(Settings& settings, std::string_view name, std::string_view value)
{
    const std::vector<int> numbers = name == "window" ? Numbers(value) : std::vector<int>();
    if (numbers.size() == 4)
        settings.window = {CPoint(numbers[0], numbers[1]), CSize(std::max(0, numbers[2]), std::max(0, numbers[3]))};
    else if (name == "tree")
        settings.treeWidth = Number(value);
    else if (name == "thumbnails")
        settings.thumbnails = Number(value) != 0;
    else if (name == "foldersFirst")
        settings.foldersFirst = Number(value) != 0;
    else if (name == "thumbnailExtent")
        settings.thumbnailExtent = Number(value);
    else if (name == "pixels")
        settings.pixels = Number(value) != 0;
    else if (name == "folder" && value.starts_with('/') && settings.recent.size() < Settings::kMostRecent)
        settings.recent.emplace_back(value);
    else if (name == "shown")
        settings.shown = value;
    else if (name == "expanded" && settings.expanded.size() < Settings::kMostExpanded)
        settings.expanded.emplace_back(value);
}

std::string Text(const Settings& settings)
{
    std::ostringstream text;
    text << "window=" << settings.window.left << ' ' << settings.window.top << ' ' << settings.window.Width() << ' '
         << settings.window.Height() << "\ntree=" << settings.treeWidth << "\nthumbnails=" << settings.thumbnails
         << "\nfoldersFirst=" << settings.foldersFirst << "\nthumbnailExtent=" << settings.thumbnailExtent
         << "\npixels=" << settings.pixels << '\n';
    const auto put = [&](const char* pszName, const std::string& path) {
        if (path.find('\n') == path.npos)
            text << pszName << '=' << path << '\n';
    };
    for (const std::string& folder : settings.recent)
        put("folder", folder);
    put("shown", settings.shown);
    for (const std::string& folder : settings.expanded)
        put("expanded", folder);
    return text.str();
}

} // namespace

void Settings::NoteFolder(const std::string& path)
{
    std::erase(recent, path);
    recent.insert(recent.begin(), path);
    recent.resize(std::min(recent.size(), kMostRecent));
}

std::string SettingsPath()
{
    const std::string home = ConfigHome();
    return home.empty() ? home : home + "/views/settings";
}

Settings ReadSettings(const std::string& path)
{
    Settings settings;
    TextState state;
    if (path.empty() || ReadText(path, kMostBytes, state) != 0)
        return settings;
    std::string_view text = state.text;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        if (const std::size_t sign = line.find('='); sign != line.npos)
            Take(settings, line.substr(0, sign), line.substr(sign + 1));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    return settings;
}

bool WriteSettings(const std::string& path, Settings settings)
{
    for (const std::string& folder : ReadSettings(path).recent)
        if (settings.recent.size() < Settings::kMostRecent &&
            std::ranges::find(settings.recent, folder) == settings.recent.end())
            settings.recent.push_back(folder);
    std::error_code failure;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), failure);
    if (!std::filesystem::exists(path, failure))
        std::ofstream(path).flush(); // what is replaced keeps its permissions
    return ReplaceFile(path, Text(settings)) == 0;
}

} // namespace editor
