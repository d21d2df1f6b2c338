// Inside the library.
#pragma once

#include <optional>

class IAtom;

namespace views
{

// Compares two image links by their positions in the phase of the second: negative, 0 or positive. Nothing when not
// both are image links or the second is in no phase: their names decide then.
std::optional<int> CompareLinks(IAtom* a, IAtom* b);

} // namespace views
