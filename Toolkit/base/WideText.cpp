#include "Toolkit/base/WideText.h"

#include "Toolkit/base/Text.h"

namespace
{
constexpr char32_t kStrayByte = 0xDC00;
constexpr char32_t kReplacement = 0xFFFD;

bool IsCodePoint(char32_t c)
{
    return c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF);
}
} // namespace

std::string toolkit::Narrow(std::wstring_view text)
{
    std::string narrow;
    narrow.reserve(text.size());
    for (const wchar_t wide : text) {
        const auto c = static_cast<char32_t>(wide);
        if (c >= kStrayByte + 0x80 && c <= kStrayByte + 0xFF)
            narrow += static_cast<char>(c - kStrayByte);
        else
            AppendUtf8(narrow, IsCodePoint(c) ? c : kReplacement);
    }
    return narrow;
}

std::wstring toolkit::Widen(std::string_view text)
{
    std::wstring wide;
    wide.reserve(text.size());
    while (!text.empty()) {
        const CodePoint c = DecodeUtf8(text);
        wide += static_cast<wchar_t>(c.value >= kInvalidByte ? c.value - kInvalidByte + kStrayByte : c.value);
        text.remove_prefix(static_cast<std::size_t>(c.bytes));
    }
    return wide;
}
