#include "Editor/disk/FileText.h"

#include "Toolkit/base/LastError.h"
#include "Toolkit/base/Text.h"
#include "Toolkit/base/TextKeys.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace editor
{
namespace
{

constexpr std::string_view kUnreserved = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
constexpr char32_t kInvalid = 0x110000; // from here on DecodeUtf8 tells of bytes that are no code points

bool CanBeShown(char32_t c)
{
    return c >= 0x20 && c != 0x7F && c < kInvalid;
}

char ToLower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

bool IsShownAsItIs(std::string_view text)
{
    const auto isPlain = [](char c) { return c >= 0x20 && c < 0x7F; };
    text.remove_prefix(static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isPlain) - text.begin()));
    while (!text.empty()) {
        const toolkit::CodePoint next = toolkit::DecodeUtf8(text);
        if (!CanBeShown(next.value))
            return false;
        text.remove_prefix(static_cast<std::size_t>(next.bytes));
    }
    return true;
}

std::string ToShown(std::string_view text)
{
    std::string shown;
    while (!text.empty()) {
        const toolkit::CodePoint next = toolkit::DecodeUtf8(text);
        const auto bytes = static_cast<std::size_t>(next.bytes);
        shown += CanBeShown(next.value) ? text.substr(0, bytes) : std::string_view("\xEF\xBF\xBD");
        text.remove_prefix(bytes);
    }
    return shown;
}

std::string SystemErrorText(int error)
{
    std::string text = std::generic_category().message(error);
    if (!text.empty())
        text[0] = ToLower(text[0]);
    return text;
}

std::string LastErrorText()
{
    constexpr std::pair<DWORD, int> kKnown[] = {
        {ERROR_SUCCESS, 0},
        {ERROR_FILE_NOT_FOUND, ENOENT},
        {ERROR_PATH_NOT_FOUND, ENOENT},
        {ERROR_ACCESS_DENIED, EACCES},
        {ERROR_TOO_MANY_OPEN_FILES, EMFILE},
        {ERROR_NOT_ENOUGH_MEMORY, ENOMEM},
        {ERROR_DISK_FULL, ENOSPC},
        {ERROR_FILE_TOO_LARGE, EFBIG},
        {ERROR_SHARING_VIOLATION, EBUSY},
        {ERROR_FILE_EXISTS, EEXIST},
    };
    const auto known = std::find_if(std::begin(kKnown), std::end(kKnown),
                                    [error = GetLastError()](const auto& one) { return one.first == error; });
    const int error = known == std::end(kKnown) ? EIO : known->second;
    return error == 0 ? std::string() : SystemErrorText(error);
}

std::string Because(std::string_view name, const std::string& reason)
{
    return ToShown(name) + ": " + reason;
}

std::string PercentEncoded(std::string_view path)
{
    std::string text;
    for (const char c : path) {
        if (kUnreserved.find(c) != std::string_view::npos) {
            text += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        text += {'%', "0123456789ABCDEF"[byte >> 4], "0123456789ABCDEF"[byte & 15]};
    }
    return text;
}

std::string KeyOf(std::string_view text)
{
    std::string key;
    toolkit::AppendSortKey(key, text, toolkit::TextOrder::NoCase);
    return key;
}

std::string ExtensionOf(std::string_view name)
{
    const std::size_t dot = name.rfind('.');
    if (dot == name.npos)
        return {};
    std::string extension(name.substr(dot + 1));
    std::transform(extension.begin(), extension.end(), extension.begin(), ToLower);
    return extension;
}

std::string FolderOf(const std::string& path)
{
    return path.substr(0, path.rfind('/'));
}

bool IsOrIsBelow(std::string_view path, std::string_view top)
{
    return path.starts_with(top) && (path.size() == top.size() || path[top.size()] == '/');
}

std::string_view BaseName(std::string_view path)
{
    return path.substr(path.rfind('/') + 1);
}

} // namespace editor
