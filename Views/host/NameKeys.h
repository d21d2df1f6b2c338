// Inside the library: sorting names without regard to case, each read once.
#pragma once

#include "Views/host/IAtom.h"

#include <cstdint>
#include <string>
#include <vector>

namespace views
{

// Keys that order like _mbsicmp orders the names they were made of.
//
// A name is folded and written so that comparing bytes compares its code points. Each key carries the first eight
// bytes after what all names have in common, in one number; only keys that agree there look at the texts.
class NameKeys
{
public:
    struct KEY
    {
        std::uint64_t head;
        std::size_t nText; // where the folded name begins
        std::uint32_t nIndex;
    };

    explicit NameKeys(std::size_t nExpected);

    bool Add(IAtom* pAtom); // false when its name cannot be read; raises CMemoryException
    // The keys in order, each with the number of the Add that made it; equal names in the order of their Adds.
    const std::vector<KEY>& Sort();

private:
    void AppendFolded(std::string_view name);
    void NoteCommonStart(const KEY& key);
    std::uint64_t HeadOf(const KEY& key) const;

    std::vector<char> m_buffer; // for the name being read
    std::string m_texts;        // the folded names, each with a terminating zero
    std::vector<KEY> m_keys;
    std::size_t m_nCommon = 0; // bytes at the start that all folded names share
};

} // namespace views
