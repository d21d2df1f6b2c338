// Sorting texts without regard to case, each folded once.
#pragma once

#include "Toolkit/base/Types.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace toolkit
{

// Keys that order like CompareNoCase orders the texts they were made of.
//
// A text is folded and written so that comparing bytes compares its code points. Each key carries the first eight
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

    explicit TextKeys(std::size_t nExpected);

    void Add(const char* pszText); // raises CMemoryException
    std::size_t GetCount() const { return m_keys.size(); }
    // The keys in order, each with the number of the Add that made it; equal texts in the order of their Adds.
    const Keys& Sort();
    bool HasEqual() const; // once they are sorted

private:
    void AppendFolded(std::string_view text);
    void AppendFoldedSlowly(std::string_view text);
    void NoteCommonStart(const Key& key);
    std::uint64_t HeadOf(const Key& key) const;
    int CompareTails(const Key& a, const Key& b) const; // of keys with the same head

    std::string m_texts; // folded, each with a terminating zero
    Keys m_keys;
    std::size_t m_nCommon = 0; // bytes at the start that all folded texts share
};

} // namespace toolkit
