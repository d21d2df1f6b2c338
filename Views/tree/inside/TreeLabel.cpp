#include "Views/tree/inside/TreeLabel.h"

void views::EndLabel(char* pszLabel, std::size_t nLength, bool bModified)
{
    char* const pszEnd = pszLabel + strnlen(pszLabel, nLength);
    std::memcpy(pszEnd, bModified ? " *" : "", bModified ? 3 : 1);
}
