#include "Views/tree/TreeLabel.h"

#include <string_view>

void views::EndLabel(char* pszLabel, std::size_t nLength, bool bModified)
{
    char* const pszEnd = pszLabel + strnlen(pszLabel, nLength);
    std::memcpy(pszEnd, bModified ? " *" : "", bModified ? 3 : 1);
}

void views::CutMark(char* pszLabel)
{
    if (const std::string_view label(pszLabel); label.ends_with(" *"))
        pszLabel[label.size() - 2] = '\0';
}
