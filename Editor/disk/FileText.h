// File names and system errors as texts that can be shown.
#pragma once

#include <string>
#include <string_view>

namespace editor
{

// The text with every byte that is no part of valid UTF-8, and every control character, as U+FFFD.
std::string ToShown(std::string_view text);
bool IsShownAsItIs(std::string_view text); // is there nothing of that kind in it?

// What an error number of the system means, beginning in lower case: "permission denied".
std::string SystemErrorText(int error);
// The same for the error of the last call to the toolkit that failed; empty without one.
std::string LastErrorText();

// One line about what went wrong with a file: its name and the reason.
std::string Because(std::string_view name, const std::string& reason);

// A path as URIs and the trash have it (RFC 3986): bytes that are neither unreserved nor slashes as "%20".
std::string PercentEncoded(std::string_view path);

// What holds the key of another text holds that text, in whatever case.
std::string KeyOf(std::string_view text);

// The part behind the last dot, in lower case as far as ASCII goes; empty without one.
std::string ExtensionOf(std::string_view name);

// The part behind the last slash.
std::string_view BaseName(std::string_view path);
// The part before it; the whole path without one.
std::string FolderOf(const std::string& path);
bool IsOrIsBelow(std::string_view path, std::string_view top);

} // namespace editor
