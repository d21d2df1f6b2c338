#include "Toolkit/base/Text.h"

#include "Toolkit/base/CaseFolding.h"

#include <algorithm>
#include <cstring>

namespace
{

bool IsContinuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// How many bytes the lead byte announces; 0 when it can lead nothing.
int SequenceLength(unsigned char lead)
{
    if (lead >= 0xC2 && lead <= 0xDF)
        return 2;
    if (lead >= 0xE0 && lead <= 0xEF)
        return 3;
    if (lead >= 0xF0 && lead <= 0xF4)
        return 4;
    return 0;
}

bool IsScalar(char32_t c, int bytes)
{
    constexpr char32_t kLowest[] = {0, 0, 0x80, 0x800, 0x10000};
    return c >= kLowest[bytes] && c < toolkit::kInvalidByte && (c < 0xD800 || c > 0xDFFF);
}

std::uint64_t LoadEight(const char* p)
{
    std::uint64_t bytes;
    std::memcpy(&bytes, p, sizeof(bytes));
    return bytes;
}

// How many bytes, all of them ASCII, the texts begin with that are the same but for case. This is the sort key of
// long lists of names, most of which share a prefix: eight at a time, then one by one.
std::size_t SameAsciiStart(std::string_view a, std::string_view b)
{
    constexpr std::uint64_t kBeyondAscii = 0x8080808080808080u;
    const std::size_t nCommon = std::min(a.size(), b.size());
    std::size_t n = 0;
    while (n + 8 <= nCommon) {
        const std::uint64_t bytes = LoadEight(a.data() + n);
        if (bytes != LoadEight(b.data() + n) || (bytes & kBeyondAscii) != 0)
            break;
        n += 8;
    }
    while (n < nCommon && ((a[n] | b[n]) & 0x80) == 0 && toolkit::FoldAscii(a[n]) == toolkit::FoldAscii(b[n]))
        ++n;
    return n;
}

} // namespace

toolkit::CodePoint toolkit::DecodeUtf8(std::string_view text)
{
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80)
        return {lead, 1};

    const int bytes = SequenceLength(lead);
    const CodePoint invalid{kInvalidByte + lead, 1};
    if (bytes == 0 || text.size() < static_cast<std::size_t>(bytes))
        return invalid;

    char32_t c = lead & (0xFFu >> (bytes + 1));
    for (int i = 1; i < bytes; ++i) {
        if (!IsContinuation(text[static_cast<std::size_t>(i)]))
            return invalid;
        c = c << 6 | (static_cast<unsigned char>(text[static_cast<std::size_t>(i)]) & 0x3F);
    }
    return IsScalar(c, bytes) ? CodePoint{c, bytes} : invalid;
}

std::string toolkit::EncodeUtf8(char32_t c)
{
    std::string text;
    AppendUtf8(text, c);
    return text;
}

void toolkit::AppendUtf8(std::string& text, char32_t c)
{
    constexpr char32_t kLeads[] = {0, 0xC0, 0xE0, 0xF0};
    int trails = c < 0x80 ? 0 : c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    text += static_cast<char>(kLeads[trails] | c >> 6 * trails);
    while (--trails >= 0)
        text += static_cast<char>(0x80 | (c >> 6 * trails & 0x3F));
}

char32_t toolkit::FoldCase(char32_t c)
{
    if (c < 0x80)
        return c >= 'A' && c <= 'Z' ? c + 0x20 : c;

    const auto* range = std::upper_bound(std::begin(kCaseFolding), std::end(kCaseFolding), c,
                                         [](char32_t code, const CaseFoldingRange& r) { return code < r.first; });
    if (range == std::begin(kCaseFolding))
        return c;
    --range;
    if (c > range->last || (c - range->first) % range->step != 0)
        return c;
    return static_cast<char32_t>(static_cast<std::int32_t>(c) + range->delta);
}

int toolkit::CompareNoCase(std::string_view a, std::string_view b)
{
    for (;;) {
        const std::size_t nSame = SameAsciiStart(a, b);
        a.remove_prefix(nSame);
        b.remove_prefix(nSame);
        if (a.empty() || b.empty())
            return static_cast<int>(!a.empty()) - static_cast<int>(!b.empty());

        const CodePoint ca = DecodeUtf8(a), cb = DecodeUtf8(b);
        if (ca.value != cb.value) {
            const char32_t fa = FoldCase(ca.value), fb = FoldCase(cb.value);
            if (fa != fb)
                return fa < fb ? -1 : 1;
        }
        a.remove_prefix(static_cast<std::size_t>(ca.bytes));
        b.remove_prefix(static_cast<std::size_t>(cb.bytes));
    }
}

int _mbsicmp(const char* a, const char* b)
{
    return toolkit::CompareNoCase(a, b);
}
