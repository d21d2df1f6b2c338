#include "Toolkit/base/TextKeys.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/base/Text.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <utility>

namespace
{

// UTF-8 keeps the order of code points. An invalid byte sorts above all of them: behind a byte no UTF-8 begins with.
void AppendCodePoint(std::string& text, char32_t c)
{
    if (c < toolkit::kInvalidByte)
        return toolkit::AppendUtf8(text, c);
    text.push_back('\xF5');
    text.push_back(static_cast<char>(c - toolkit::kInvalidByte));
}

void AppendFoldedSlowly(std::string& key, std::string_view text)
{
    while (!text.empty()) {
        const auto [c, bytes] = toolkit::DecodeUtf8(text);
        AppendCodePoint(key, toolkit::FoldCase(c));
        text.remove_prefix(static_cast<std::size_t>(bytes));
    }
}

// ASCII, which is nearly everything, goes as it is.
void AppendFolded(std::string& key, std::string_view text)
{
    const std::size_t nStart = key.size();
    key.append(text);
    char all = 0;
    for (char* p = key.data() + nStart; *p; ++p) {
        all |= *p;
        *p = toolkit::FoldAscii(*p);
    }
    if (all & 0x80) {
        key.resize(nStart);
        AppendFoldedSlowly(key, text);
    }
}

constexpr char kTieBreak = 1;         // stands before what only differs in leading zeros
constexpr std::size_t kLongest = 255; // what a byte can tell of a number's length
constexpr char kNumber = '0';         // numbers stand where digits do

// The part of the text before the first that is a digit, or that is none.
std::size_t SpanOf(std::string_view text, bool bDigits)
{
    const auto ends = [=](char c) { return (c >= '0' && c <= '9') != bDigits; };
    return static_cast<std::size_t>(std::find_if(text.begin(), text.end(), ends) - text.begin());
}

// The value's length and then its digits: longer ones are greater. Its leading zeros.
std::size_t AppendNumber(std::string& key, std::string_view digits)
{
    const std::size_t zeros = std::min(digits.find_first_not_of('0'), digits.size() - 1);
    digits.remove_prefix(zeros);
    key.push_back(kNumber);
    key.push_back(static_cast<char>(std::min(digits.size(), kLongest)));
    key.append(digits);
    return zeros;
}

void AppendNatural(std::string& key, std::string_view text)
{
    std::string zeros;
    bool bZeros = false;
    while (!text.empty()) {
        const std::size_t number = SpanOf(text, false);
        AppendFolded(key, text.substr(0, number));
        text.remove_prefix(number);
        const std::size_t end = SpanOf(text, true);
        if (end == 0)
            break;
        const std::size_t nZeros = AppendNumber(key, text.substr(0, end));
        bZeros = bZeros || nZeros > 0;
        zeros.push_back(static_cast<char>(1 + std::min(nZeros, kLongest - 1)));
        text.remove_prefix(end);
    }
    if (bZeros)
        key.append(1, kTieBreak).append(zeros);
}

using Key = toolkit::TextKeys::Key;

// Puts keys in the order of their `head`, a number of 64 bits; keys with the same head keep their order. Moves every
// key once for each byte in which heads differ, whatever their number. Raises CMemoryException, and nothing has
// changed then.
void SortByHead(std::vector<Key>& keys)
{
    constexpr unsigned kBytes = 8, kValues = 256;
    if (keys.size() < kValues) { // less than counting would take
        std::ranges::stable_sort(keys, {}, &Key::head);
        return;
    }
    const auto byteOf = [](const Key& key, unsigned byte) { return key.head >> 8 * byte & 0xFF; };

    std::vector<Key> sorted(keys.size());
    std::array<std::array<std::size_t, kValues>, kBytes> counts{};
    for (const Key& key : keys)
        for (unsigned byte = 0; byte < kBytes; ++byte)
            ++counts[byte][byteOf(key, byte)];

    for (unsigned byte = 0; byte < kBytes; ++byte) {
        auto& places = counts[byte];
        if (std::ranges::find(places, keys.size()) != places.end())
            continue; // the same in all
        std::size_t place = 0;
        for (std::size_t& count : places)
            place += std::exchange(count, place);
        for (const Key& key : keys)
            sorted[places[byteOf(key, byte)]++] = key;
        keys.swap(sorted);
    }
}

// Sorts each run of keys with the same head by `before`, which compares what is behind it.
template <class Before>
void SortRuns(std::vector<Key>& keys, Before before)
{
    const auto differ = [](const Key& a, const Key& b) { return a.head != b.head; };
    for (auto first = keys.begin(); first != keys.end();) {
        const auto lastOfRun = std::adjacent_find(first, keys.end(), differ);
        const auto end = lastOfRun == keys.end() ? lastOfRun : lastOfRun + 1;
        if (end - first > 1)
            std::stable_sort(first, end, before);
        first = end;
    }
}

} // namespace

void toolkit::AppendSortKey(std::string& key, std::string_view text, TextOrder order)
{
    if (order == TextOrder::Natural)
        AppendNatural(key, text);
    else
        AppendFolded(key, text);
}

toolkit::TextKeys::TextKeys(std::size_t nExpected, TextOrder order) : m_order(order)
{
    m_keys.reserve(nExpected);
    m_texts.reserve(nExpected * 16);
}

toolkit::TextKeys::Key toolkit::TextKeys::Begin()
{
    if (m_texts.size() > std::numeric_limits<std::uint32_t>::max())
        AfxThrowMemoryException();
    return {0, static_cast<std::uint32_t>(m_texts.size()), static_cast<std::uint32_t>(m_keys.size())};
}

void toolkit::TextKeys::End(const Key& key)
{
    m_texts.push_back('\0');
    m_keys.push_back(key);
    NoteCommonStart(key);
}

void toolkit::TextKeys::Add(const char* pszText, std::string_view before)
{
    const Key key = Begin();
    m_texts.append(before);
    AppendSortKey(m_texts, pszText, m_order);
    End(key);
}

void toolkit::TextKeys::AddKey(std::string_view bytes)
{
    const Key key = Begin();
    m_texts.append(bytes);
    End(key);
}

void toolkit::TextKeys::NoteCommonStart(const Key& key)
{
    const char* pszFirst = m_texts.c_str();
    const char* pszText = pszFirst + key.nText;
    if (m_keys.size() == 1)
        m_nCommon = std::strlen(pszText);
    else if (std::strncmp(pszFirst, pszText, m_nCommon) != 0)
        m_nCommon = static_cast<std::size_t>(std::mismatch(pszFirst, pszFirst + m_nCommon, pszText).first - pszFirst);
}

// The eight bytes from the common start on, the first the most significant; zeros after the text's end.
std::uint64_t toolkit::TextKeys::HeadOf(const Key& key) const
{
    const char* pszText = m_texts.c_str() + key.nText + m_nCommon;
    std::uint64_t head = 0;
    for (int i = 0; i < 8; ++i) {
        head = head << 8 | static_cast<unsigned char>(*pszText);
        if (*pszText)
            ++pszText;
    }
    return head;
}

int toolkit::TextKeys::CompareTails(const Key& a, const Key& b) const
{
    if ((a.head & 0xFF) == 0) // then both texts end within the head
        return 0;
    const char* const pTails = m_texts.c_str() + m_nCommon + sizeof(Key::head);
    return std::strcmp(pTails + a.nText, pTails + b.nText);
}

const toolkit::TextKeys::Keys& toolkit::TextKeys::Sort()
{
    for (Key& key : m_keys)
        key.head = HeadOf(key);
    SortByHead(m_keys);
    SortRuns(m_keys, [this](const Key& a, const Key& b) { return CompareTails(a, b) < 0; });
    return m_keys;
}

bool toolkit::TextKeys::HasEqual() const
{
    const auto equal = [this](const Key& a, const Key& b) { return a.head == b.head && CompareTails(a, b) == 0; };
    return std::adjacent_find(m_keys.begin(), m_keys.end(), equal) != m_keys.end();
}
