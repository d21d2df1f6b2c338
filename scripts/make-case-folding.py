#!/usr/bin/env python3
"""Writes Toolkit/base/CaseFolding.h: Unicode's simple case folding as ranges.

A code point folds to the lower case of its upper case where both are single code points, which is what the
simple folding amounts to; the few exceptions (final sigma and the like) come out the same way.
"""
import sys
import unicodedata


def fold(code):
    char = chr(code)
    upper = char.upper() if len(char.upper()) == 1 else char
    lower = upper.lower()
    return ord(lower) if len(lower) == 1 else code


def ranges():
    found = []
    for code in range(0x80, 0x110000):
        if 0xD800 <= code <= 0xDFFF:
            continue
        delta = fold(code) - code
        if not delta:
            continue
        last = found[-1] if found else None
        if last and last[3] == delta and code - last[1] in (1, 2) and last[2] in (0, code - last[1]):
            last[1], last[2] = code, code - last[1]
        else:
            found.append([code, code, 0, delta])
    return found


def main():
    out = [
        "// Unicode's simple case folding beyond ASCII, as ranges in ascending order.",
        f"// Written by scripts/make-case-folding.py from Unicode {unicodedata.unidata_version}; do not edit.",
        "#pragma once",
        "",
        "#include <cstdint>",
        "",
        "namespace toolkit",
        "{",
        "",
        "struct CaseFoldingRange",
        "{",
        "    char32_t first, last;",
        "    char32_t step; // every step-th code point of the range folds; the others are themselves",
        "    std::int32_t delta;",
        "};",
        "",
        "// clang-format off",
        "inline constexpr CaseFoldingRange kCaseFolding[] = {",
    ]
    out += [f"    {{0x{a:04X}, 0x{b:04X}, {s or 1}, {d}}}," for a, b, s, d in ranges()]
    out += ["};", "// clang-format on", "", "} // namespace toolkit", ""]
    sys.stdout.write("\n".join(out))


main()
