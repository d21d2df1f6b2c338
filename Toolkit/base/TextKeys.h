// Sorting texts, each made once into bytes that stand in order.
#pragma once

#include "Toolkit/base/Types.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace toolkit
{

enum class TextOrder
{
    NoCase, // as CompareNoCase has it
    Natural // the same, but for numbers, which count by their value: "frame 4" stands before "frame 14"
};

// Appends the text's key: bytes without a zero, which compare as the texts stand. The same bytes come of texts that
// differ in nothing but their case, and of no others.
TOOLKIT_API void AppendSortKey(std::string& key, std::string_view text, TextOrder order);

// Keys in order. Each carries the first eight
// bytes after what all texts have in common, in one number; only keys that agree there look at the texts.
class TOOLKIT_API TextKeys
{
public:
    struct Key
    {
        std::uint64_t head;
        std::uint32_t nText; // where the folded text begins
        std::uint32_t nIndex;
    };
    using Keys = std::vector<Key>;

    explicit TextKeys(std::size_t nExpected, TextOrder order = TextOrder::NoCase);

    void Add(const char* pszText, std::string_view before = {}); // `before` counts first; raises CMemoryException
    void AddKey(std::string_view key);                           // as AppendSortKey makes it
    std::size_t GetCount() const { return m_keys.size(); }
    // The keys in order, each with the number of the Add that made it; equal texts in the order of their Adds.
    const Keys& Sort();
    bool HasEqual() const; // once they are sorted

private:
    Key Begin();
    void End(const Key& key);
    void NoteCommonStart(const Key& key);
    std::uint64_t HeadOf(const Key& key) const;
    int CompareTails(const Key& a, const Key& b) const; // of keys with the same head

    const TextOrder m_order;
    std::string m_texts; // folded, each with a terminating zero
    Keys m_keys;
    std::size_t m_nCommon = 0; // bytes at the start that all folded texts share
};

} // namespace toolkit
