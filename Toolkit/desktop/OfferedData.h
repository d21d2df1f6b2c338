// Data that one program offers and another takes: on the clipboard or in a drag.
#pragma once

#include "Toolkit/base/Types.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace toolkit
{

// Kinds are MIME types, the best one first. Rendering may take a while, as the other program may have to answer.
class TOOLKIT_API OfferedData
{
public:
    virtual ~OfferedData() = default;

    virtual std::vector<std::string> GetKinds() = 0;
    bool Has(std::string_view kind) { return std::ranges::count(GetKinds(), kind) > 0; }
    // The bytes, rendered anew each time; nothing when there is no such kind or its owner does not answer.
    virtual std::optional<std::string> Render(std::string_view kind) = 0;
    virtual bool IsGone() const { return false; } // whoever offered it has taken it back for good
    // Nobody will ask for it any more: another program has taken the clipboard, or the desktop goes. Called by the
    // desktop, once at most, after it has let go of the object.
    virtual void OnLost() {}
};

} // namespace toolkit
