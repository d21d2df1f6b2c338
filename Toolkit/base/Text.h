// UTF-8 text: code points, and comparison without regard to case.
#pragma once

#include "Toolkit/base/Types.h"

#include <string>
#include <string_view>

// Compares two zero-terminated texts by their code points after case folding: negative, 0 or positive.
// Simple folding (one code point to one) as Unicode's tables give it, the same in every locale. A byte that
// is no part of valid UTF-8 counts as a code point of its own above all valid ones.
TOOLKIT_API int _mbsicmp(const char* a, const char* b);

namespace toolkit
{
inline constexpr char32_t kInvalidByte = 0x110000; // above all code points

// The code point at the start of a text that is not empty, and how many bytes it takes. Invalid bytes come
// one at a time, as kInvalidByte plus the byte.
struct CodePoint
{
    char32_t value;
    int bytes;
};
TOOLKIT_API CodePoint DecodeUtf8(std::string_view text);
TOOLKIT_API std::string EncodeUtf8(char32_t c);
TOOLKIT_API void AppendUtf8(std::string& text, char32_t c);

constexpr char FoldAscii(char c)
{
    const auto letter = static_cast<unsigned char>(c - 'A');
    return static_cast<char>(letter < 26 ? c + ('a' - 'A') : c);
}

// The code point's simple case folding; itself when it has none.
TOOLKIT_API char32_t FoldCase(char32_t c);

// As _mbsicmp, for texts that may hold zeros.
TOOLKIT_API int CompareNoCase(std::string_view a, std::string_view b);
} // namespace toolkit
