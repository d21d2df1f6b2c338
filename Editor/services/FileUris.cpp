#include "Editor/services/FileUris.h"

#include "Editor/disk/FileText.h"
#include "Toolkit/base/Text.h"

#include <charconv>
#include <optional>
#include <unistd.h>

namespace editor
{
namespace
{

constexpr std::string_view kScheme = "file:";

// Nothing where an escape is none, or a zero, which no path holds.
std::optional<std::string> Unescaped(std::string_view text)
{
    std::string path;
    for (; !text.empty(); text.remove_prefix(1)) {
        unsigned byte = static_cast<unsigned char>(text.front());
        if (text.front() == '%') {
            const char* const pEnd = text.data() + 3;
            if (text.size() < 3 || std::from_chars(text.data() + 1, pEnd, byte, 16).ptr != pEnd)
                return std::nullopt;
            text.remove_prefix(2);
        }
        if (byte == 0)
            return std::nullopt;
        path += static_cast<char>(byte);
    }
    return path;
}

bool IsThisMachine(std::string_view host)
{
    char name[256] = "";
    gethostname(name, sizeof name - 1);
    return host.empty() || toolkit::CompareNoCase(host, "localhost") == 0 || host == name;
}

// "file:///path", "file://host/path" or "file:/path".
std::optional<std::string> PathOf(std::string_view uri)
{
    if (toolkit::CompareNoCase(uri.substr(0, kScheme.size()), kScheme) != 0)
        return std::nullopt;
    uri.remove_prefix(kScheme.size());
    if (uri.starts_with("//")) {
        uri.remove_prefix(2);
        const std::size_t host = std::min(uri.find('/'), uri.size());
        if (!IsThisMachine(uri.substr(0, host)))
            return std::nullopt;
        uri.remove_prefix(host);
    }
    auto path = uri.starts_with('/') ? Unescaped(uri) : std::nullopt;
    while (path && path->size() > 1 && path->ends_with('/')) // of a folder, as some programs name it
        path->pop_back();
    return path;
}

} // namespace

CLIPFORMAT UriListFormat()
{
    return RegisterClipboardFormat("text/uri-list");
}

CLIPFORMAT CopiedFilesFormat()
{
    static const CLIPFORMAT format = RegisterClipboardFormat("x-special/gnome-copied-files");
    return format;
}

CLIPFORMAT PictureFormatOf(std::string_view path)
{
    const std::string extension = ExtensionOf(path);
    for (const PictureFormat& one : kPictureFormats)
        if (extension == one.pszExtension)
            return RegisterClipboardFormat(one.pszName);
    return 0;
}

std::string CopiedFilesOf(const std::vector<std::string>& paths)
{
    std::string text = "copy";
    for (const std::string& path : paths)
        text += "\nfile://" + PercentEncoded(path);
    return text;
}

bool IsCut(std::string_view copiedFiles)
{
    return copiedFiles.starts_with("cut\n");
}

std::string UriListOf(const std::vector<std::string>& paths)
{
    std::string list;
    for (const std::string& path : paths)
        list += "file://" + PercentEncoded(path) + "\r\n";
    return list;
}

// Lines that begin with "#" are comments; a zero at the end, as some programs send it, is none of it.
std::vector<std::string> PathsIn(std::string_view uriList)
{
    std::vector<std::string> paths;
    uriList = uriList.substr(0, uriList.find('\0'));
    while (!uriList.empty()) {
        const std::size_t end = std::min(uriList.find_first_of("\r\n"), uriList.size());
        if (auto path = PathOf(uriList.substr(0, end)))
            paths.push_back(*std::move(path));
        uriList.remove_prefix(std::min(end + 1, uriList.size()));
    }
    return paths;
}

} // namespace editor
