// Finding items by typing how their labels begin.
#pragma once

#include "Toolkit/base/Types.h"

#include <functional>
#include <string>
#include <string_view>

namespace toolkit
{

TOOLKIT_API bool BeginsWith(std::string_view text, std::string_view prefix); // without regard to case

// What is typed within a second of each other is one word. A longer word may be that of the item found so far; the same
// letter again and again goes from item to item.
class TypeAhead
{
public:
    // Goes to the next item whose label begins so, from the present one on or from the one behind it, and round to it
    // again. False where there is none.
    using GoTo = std::function<bool(const std::string& prefix, bool bBehind)>;

    void Type(char32_t c, const GoTo& goTo); // what types nothing, and a blank at the beginning, is passed over
    void Forget() { m_typed.clear(); }

private:
    std::string m_typed;
    DWORD m_typedAt = 0; // when the last letter came
};

} // namespace toolkit
