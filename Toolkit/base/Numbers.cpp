#include "Toolkit/base/Numbers.h"

#include <charconv>

namespace
{

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

} // namespace

BOOL StrToIntExA(LPCSTR pszString, DWORD dwFlags, int* pnValue)
{
    if (!pszString || dwFlags != STIF_DEFAULT)
        return FALSE;
    while (*pszString == ' ' || *pszString == '\t' || *pszString == '\n')
        ++pszString;
    const bool bNegative = *pszString == '-';
    if (bNegative || *pszString == '+')
        ++pszString;
    if (!IsDigit(*pszString))
        return FALSE;
    DWORD nValue = 0;
    for (; IsDigit(*pszString); ++pszString)
        nValue = nValue * 10 + static_cast<DWORD>(*pszString - '0');
    *pnValue = static_cast<int>(bNegative ? 0 - nValue : nValue);
    return TRUE;
}

LPSTR _itoa(int nValue, LPSTR pszBuffer, int nRadix)
{
    constexpr int kLongest = 32;
    char* const pEnd = pszBuffer + kLongest;
    const auto written = nRadix == 10 ? std::to_chars(pszBuffer, pEnd, nValue)
                                      : std::to_chars(pszBuffer, pEnd, static_cast<DWORD>(nValue), nRadix);
    *written.ptr = '\0';
    return pszBuffer;
}
