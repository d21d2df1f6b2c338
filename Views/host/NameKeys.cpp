#include "Views/host/NameKeys.h"

#include "Toolkit/base/HeadSort.h"
#include "Toolkit/base/Text.h"
#include "Views/host/ReadName.h"

#include <algorithm>
#include <cstring>

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

std::size_t CountAscii(std::string_view text)
{
    const auto first = std::find_if(text.begin(), text.end(), [](char c) { return (c & 0x80) != 0; });
    return static_cast<std::size_t>(first - text.begin());
}

char FoldAscii(char c)
{
    return static_cast<char>(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c);
}

} // namespace

views::NameKeys::NameKeys(std::size_t nExpected) : m_buffer(256)
{
    m_keys.reserve(nExpected);
    m_texts.reserve(nExpected * 16);
}

bool views::NameKeys::Add(IAtom* pAtom)
{
    auto dwLength = static_cast<DWORD>(AskNameLength(pAtom, &IAtom::GetName));
    if (m_buffer.size() <= dwLength)
        m_buffer.resize(std::size_t{dwLength} + 1);
    m_buffer[0] = '\0';
    m_buffer[dwLength] = '\0';
    if (!pAtom->GetName(m_buffer.data(), &dwLength))
        return false;

    m_keys.push_back({0, m_texts.size(), static_cast<std::uint32_t>(m_keys.size())});
    AppendFolded(m_buffer.data());
    m_texts.push_back('\0');
    NoteCommonStart(m_keys.back());
    return true;
}

// ASCII, which is nearly everything, goes by whole runs.
void views::NameKeys::AppendFolded(std::string_view name)
{
    while (!name.empty()) {
        const std::size_t nAscii = CountAscii(name);
        const std::size_t nStart = m_texts.size();
        m_texts.append(name.substr(0, nAscii));
        std::transform(m_texts.begin() + static_cast<std::ptrdiff_t>(nStart), m_texts.end(),
                       m_texts.begin() + static_cast<std::ptrdiff_t>(nStart), FoldAscii);
        name.remove_prefix(nAscii);
        if (!name.empty()) {
            const auto [c, bytes] = toolkit::DecodeUtf8(name);
            AppendUtf8(m_texts, toolkit::FoldCase(c));
            name.remove_prefix(static_cast<std::size_t>(bytes));
        }
    }
}

void views::NameKeys::NoteCommonStart(const KEY& key)
{
    const char* pszFirst = m_texts.c_str();
    const char* pszText = pszFirst + key.nText;
    if (m_keys.size() == 1)
        m_nCommon = std::strlen(pszText);
    else
        m_nCommon = static_cast<std::size_t>(std::mismatch(pszFirst, pszFirst + m_nCommon, pszText).first - pszFirst);
}

// The eight bytes from the common start on, the first the most significant; zeros after the name's end.
std::uint64_t views::NameKeys::HeadOf(const KEY& key) const
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

const std::vector<views::NameKeys::KEY>& views::NameKeys::Sort()
{
    for (KEY& key : m_keys)
        key.head = HeadOf(key);

    const char* pTails = m_texts.c_str() + m_nCommon + sizeof(KEY::head);
    toolkit::SortByHead(m_keys);
    toolkit::SortRuns(m_keys, [pTails](const KEY& a, const KEY& b) {
        const bool bEnded = (a.head & 0xFF) == 0; // then both names end within the head
        return !bEnded && std::strcmp(pTails + a.nText, pTails + b.nText) < 0;
    });
    return m_keys;
}
