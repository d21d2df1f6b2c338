// Lists of URIs, as other programs drop them.
#include "Editor/services/FileUris.h"
#include "fuzz/Check.h"

#include <algorithm>
#include <cstring>

namespace
{

using Paths = std::vector<std::string>;

Paths Joined(Paths a, const Paths& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

bool IsPath(const std::string& text)
{
    return text.starts_with('/') && text.find('\0') == text.npos;
}

// Of printable ASCII, with nothing that would have to be escaped, as receivers expect it.
bool IsPlain(const std::string& list)
{
    return std::all_of(list.begin(), list.end(), [](char c) {
        return c == '\r' || c == '\n' || (c > ' ' && c < 0x7F && !std::strchr("\"<>\\^`{|}#?[]", c));
    });
}

std::string EveryByteEscaped(const std::string& path)
{
    std::string uri = "FILE://LocalHost/";
    for (const char c : path.substr(1)) {
        const auto byte = static_cast<unsigned char>(c);
        uri += {'%', "0123456789abcdef"[byte >> 4], "0123456789ABCDEF"[byte & 15]};
    }
    return uri;
}

std::string CheckList(std::string_view list)
{
    const Paths paths = editor::PathsIn(list);
    const auto lines = static_cast<std::size_t>(
        std::count_if(list.begin(), list.end(), [](char c) { return c == '\n' || c == '\r'; }));
    if (paths.size() > lines + 1)
        return "more paths than lines";
    if (!std::all_of(paths.begin(), paths.end(), IsPath))
        return "what is no path was taken for one";
    if (editor::PathsIn(editor::UriListOf(paths)) != paths)
        return "paths became others when they were offered on";

    const std::string alone(list.substr(0, list.find('\0')));
    if (editor::PathsIn(alone + "\r\n# file:///remark\r\nfile://elsewhere.invalid/x\r\n" + alone) !=
        Joined(paths, paths))
        return "a line changed what another names";
    return {};
}

std::string CheckPath(std::string_view bytes)
{
    const std::string path = "/" + std::string(bytes.substr(0, bytes.find('\0')));
    const std::string list = editor::UriListOf({path, "/next"});
    if (!IsPlain(list) || !list.ends_with("\r\nfile:///next\r\n"))
        return "a list that others may not understand";
    if (editor::PathsIn(list) != Paths{path, "/next"} || editor::PathsIn(EveryByteEscaped(path)) != Paths{path})
        return "a path became another on its way";
    return {};
}

} // namespace

std::string fuzz::Check(std::string_view bytes)
{
    std::string broken = CheckList(bytes);
    return broken.empty() ? CheckPath(bytes) : broken;
}
