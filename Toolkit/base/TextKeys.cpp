#include "Toolkit/base/TextKeys.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/base/HeadSort.h"
#include "Toolkit/base/Text.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace
{

constexpr char32_t kInvalid = 0x110000; // what DecodeUtf8 adds to a byte that is no part of UTF-8

// UTF-8 keeps the order of code points. An invalid byte sorts above all of them: behind a byte no UTF-8 begins with.
void AppendUtf8(std::string& text, char32_t c)
{
    const auto append = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    const auto appendTail = [&](int shift) { append(0x80 | (c >> shift & 0x3F)); };
    if (c >= kInvalid) {
        append(0xF5);
        append(c - kInvalid);
    } else if (c >= 0x10000) {
        append(0xF0 | c >> 18);
        appendTail(12);
        appendTail(6);
        appendTail(0);
    } else if (c >= 0x800) {
        append(0xE0 | c >> 12);
        appendTail(6);
        appendTail(0);
    } else if (c >= 0x80) {
        append(0xC0 | c >> 6);
        appendTail(0);
    } else {
        append(c);
    }
}

char FoldAscii(char c)
{
    const auto letter = static_cast<unsigned char>(c - 'A');
    return static_cast<char>(letter < 26 ? c + ('a' - 'A') : c);
}

} // namespace

toolkit::TextKeys::TextKeys(std::size_t nExpected)
{
    m_keys.reserve(nExpected);
    m_texts.reserve(nExpected * 16);
}

void toolkit::TextKeys::Add(const char* pszText)
{
    if (m_texts.size() > std::numeric_limits<std::uint32_t>::max())
        AfxThrowMemoryException();
    const Key key{0, static_cast<std::uint32_t>(m_texts.size()), static_cast<std::uint32_t>(m_keys.size())};
    AppendFolded(pszText);
    m_keys.push_back(key);
    NoteCommonStart(key);
}

// With its zero. ASCII, which is nearly everything, goes as it is.
void toolkit::TextKeys::AppendFolded(std::string_view text)
{
    const std::size_t nStart = m_texts.size();
    m_texts.append(text.data(), text.size() + 1);
    char* const pText = m_texts.data() + nStart;
    char all = 0;
    for (char* p = pText; *p; ++p) {
        all |= *p;
        *p = FoldAscii(*p);
    }
    if (all & 0x80) {
        m_texts.resize(nStart);
        AppendFoldedSlowly(text);
        m_texts.push_back('\0');
    }
}

void toolkit::TextKeys::AppendFoldedSlowly(std::string_view text)
{
    while (!text.empty()) {
        const auto [c, bytes] = DecodeUtf8(text);
        AppendUtf8(m_texts, FoldCase(c));
        text.remove_prefix(static_cast<std::size_t>(bytes));
    }
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
