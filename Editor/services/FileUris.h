// Files as file managers name them: a list of URIs (RFC 2483), with "file" URIs (RFC 8089).
#pragma once

#include "Toolkit/exchange/ClipboardFormat.h"

#include <string>
#include <string_view>
#include <vector>

namespace editor
{

CLIPFORMAT UriListFormat();
// File managers' own: "copy" or "cut", and behind it the URIs, each in a line.
CLIPFORMAT CopiedFilesFormat();
// A picture file's bytes, by its extension; 0 for what other programs know by no such name.
CLIPFORMAT PictureFormatOf(std::string_view path);
struct PictureFormat
{
    const char* pszExtension;
    const char* pszName;
};
inline constexpr PictureFormat kPictureFormats[] = { // the best first
    {"png", "image/png"},
    {"webp", "image/webp"},
    {"gif", "image/gif"},
    {"jpg", "image/jpeg"},
    {"bmp", "image/bmp"}};

std::string UriListOf(const std::vector<std::string>& paths); // absolute ones
std::string CopiedFilesOf(const std::vector<std::string>& paths);
bool IsCut(std::string_view copiedFiles);
// The paths of the files on this machine that the list names, in its order; what else it names is left out.
std::vector<std::string> PathsIn(std::string_view uriList);

} // namespace editor
