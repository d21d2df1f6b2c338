#include "Toolkit/exchange/ClipboardFormat.h"

#include "Toolkit/base/Text.h"

#include <algorithm>
#include <deque>

namespace
{
constexpr unsigned kFirst = 0xC000;
constexpr std::size_t kMost = 0x4000;
constexpr std::string_view kText = "text/plain;charset=utf-8";
constexpr std::string_view kTextOfAnyCharset = "text/plain";

struct Format
{
    std::string name, mimeType;
};

std::deque<Format>& Formats() // never moves what it holds
{
    static std::deque<Format> formats;
    return formats;
}

// A name that is no MIME type becomes part of one, byte for byte.
std::string MimeType(std::string_view name)
{
    if (name.find('/') != std::string_view::npos)
        return std::string(name);
    std::string type = "application/x-toolkit-format;name=";
    for (const char c : name) {
        const auto byte = static_cast<unsigned char>(c);
        type += "0123456789abcdef"[byte >> 4];
        type += "0123456789abcdef"[byte & 15];
    }
    return type;
}
} // namespace

CLIPFORMAT RegisterClipboardFormat(LPCSTR pszName)
{
    if (!pszName || !*pszName)
        return 0;
    if (toolkit::CompareNoCase(pszName, kText) == 0 || toolkit::CompareNoCase(pszName, kTextOfAnyCharset) == 0)
        return CF_TEXT;
    std::deque<Format>& formats = Formats();
    const auto found = std::find_if(formats.begin(), formats.end(), [pszName](const Format& format) {
        return toolkit::CompareNoCase(format.name, pszName) == 0;
    });
    if (found == formats.end() && formats.size() == kMost)
        return 0;
    const auto index = found - formats.begin();
    if (found == formats.end())
        formats.push_back({pszName, MimeType(pszName)});
    return static_cast<CLIPFORMAT>(kFirst + static_cast<unsigned>(index));
}

std::vector<std::string> toolkit::KindsOfFormat(CLIPFORMAT format)
{
    if (format == CF_TEXT)
        return {std::string(kText), std::string(kTextOfAnyCharset)};
    if (format < kFirst || format - kFirst >= Formats().size())
        return {};
    return {Formats()[format - kFirst].mimeType};
}
