// CString: a text in UTF-8 ("ANSI" here), one pointer in size.
#pragma once

#include "Toolkit/base/Types.h"

#include <string_view>

// Copies share one buffer until one of them is written to. Lengths and positions count bytes. Every
// operation that needs memory raises CMemoryException when there is none, and leaves the string as it was.
class TOOLKIT_API CString
{
public:
    CString() noexcept;
    CString(LPCSTR pszText); // NULL gives the empty string
    explicit CString(std::string_view text);
    CString(const CString& other) noexcept;
    CString(CString&& other) noexcept;
    ~CString();

    CString& operator=(const CString& other) noexcept;
    CString& operator=(CString&& other) noexcept;
    CString& operator=(LPCSTR pszText);

    operator LPCSTR() const noexcept { return m_pszData; }
    LPCSTR GetString() const noexcept { return m_pszData; }
    std::string_view View() const noexcept { return {m_pszData, static_cast<std::size_t>(GetLength())}; }
    int GetLength() const noexcept;
    bool IsEmpty() const noexcept { return GetLength() == 0; }
    int CompareNoCase(LPCSTR pszOther) const noexcept; // as _mbsicmp does

    void Empty() noexcept;
    CString& operator+=(std::string_view text);

    // The first string resource of that number along the resource chain; FALSE, and no change, without one.
    BOOL LoadString(UINT nID);

    // A buffer of the string's own for at least nMinLength bytes and a terminating zero, holding the present
    // text. Valid, and the string otherwise untouched, until ReleaseBuffer says how long the text is now
    // (-1: up to its terminating zero).
    LPSTR GetBuffer(int nMinLength);
    // The same, with the length set to nLength at once; text beyond the former length is undetermined.
    LPSTR GetBufferSetLength(int nLength);
    void ReleaseBuffer(int nNewLength = -1);

    friend bool operator==(const CString& a, const CString& b) noexcept { return a.View() == b.View(); }
    friend bool operator==(const CString& a, LPCSTR b) noexcept { return a.View() == b; }

private:
    struct Header;

    static LPSTR Allocate(int nCapacity);
    Header* GetHeader() const noexcept;
    void Assign(std::string_view text);
    void Release() noexcept;
    void Reserve(int nCapacity); // makes the buffer this string's own and large enough, keeping the text

    LPSTR m_pszData; // the text; its header lies before it
};
