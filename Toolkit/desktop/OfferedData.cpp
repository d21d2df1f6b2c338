#include "Toolkit/desktop/OfferedData.h"

#include <algorithm>

bool toolkit::OfferedData::Has(std::string_view kind)
{
    const std::vector<std::string> kinds = GetKinds();
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}
