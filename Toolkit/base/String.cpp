#include "Toolkit/base/String.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/base/Text.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <limits>
#include <new>
#include <utility>

// What lies before the text. The empty string's one is shared by all and never counted.
struct CString::Header
{
    std::atomic<int> nOwners{1};
    int nLength = 0;
    int nCapacity = 0; // bytes of text, the terminating zero not counted
};

namespace
{
struct EmptyText
{
    alignas(8) unsigned char header[16] = {};
    char text[8] = {};
};
EmptyText s_empty;

// A text's length as this class counts it; what is longer than that finds no memory.
int CheckedLength(std::size_t size)
{
    if (size > static_cast<std::size_t>(std::numeric_limits<int>::max() / 2))
        AfxThrowMemoryException();
    return static_cast<int>(size);
}
} // namespace

CString::Header* CString::GetHeader() const noexcept
{
    static_assert(sizeof(Header) <= sizeof(EmptyText::header));
    return reinterpret_cast<Header*>(m_pszData - sizeof(Header));
}

CString::CString() noexcept : m_pszData(s_empty.text) {}

CString::CString(LPCSTR pszText) : CString()
{
    if (pszText)
        Assign(pszText);
}

CString::CString(std::string_view text) : CString()
{
    Assign(text);
}

CString::CString(const CString& other) noexcept : m_pszData(other.m_pszData)
{
    if (m_pszData != s_empty.text)
        GetHeader()->nOwners.fetch_add(1, std::memory_order_relaxed);
}

CString::CString(CString&& other) noexcept : m_pszData(std::exchange(other.m_pszData, s_empty.text)) {}

CString::~CString()
{
    Release();
}

CString& CString::operator=(const CString& other) noexcept
{
    CString copy(other);
    std::swap(m_pszData, copy.m_pszData);
    return *this;
}

CString& CString::operator=(CString&& other) noexcept
{
    std::swap(m_pszData, other.m_pszData);
    return *this;
}

CString& CString::operator=(LPCSTR pszText)
{
    return *this = CString(pszText);
}

int CString::GetLength() const noexcept
{
    return GetHeader()->nLength;
}

int CString::CompareNoCase(LPCSTR pszOther) const noexcept
{
    return toolkit::CompareNoCase(View(), pszOther);
}

void CString::Empty() noexcept
{
    Release();
    m_pszData = s_empty.text;
}

CString& CString::operator+=(std::string_view text)
{
    if (text.empty())
        return *this;
    const int nOld = GetLength();
    const bool bOwnText = text.data() >= m_pszData && text.data() <= m_pszData + nOld;
    const CString keep = bOwnText ? *this : CString(); // a part of this string must outlive the buffer's move
    const int nNew = CheckedLength(static_cast<std::size_t>(nOld) + text.size());
    Reserve(nNew);
    std::memcpy(m_pszData + nOld, text.data(), text.size());
    ReleaseBuffer(nNew);
    return *this;
}

LPSTR CString::GetBuffer(int nMinLength)
{
    Reserve(nMinLength);
    return m_pszData;
}

LPSTR CString::GetBufferSetLength(int nLength)
{
    Reserve(nLength);
    ReleaseBuffer(nLength);
    return m_pszData;
}

void CString::ReleaseBuffer(int nNewLength)
{
    if (m_pszData == s_empty.text)
        return;
    const int nLength = nNewLength < 0 ? static_cast<int>(std::strlen(m_pszData)) : nNewLength;
    GetHeader()->nLength = nLength;
    m_pszData[nLength] = '\0';
}

LPSTR CString::Allocate(int nCapacity)
{
    void* pBlock = ::operator new(sizeof(Header) + static_cast<std::size_t>(nCapacity) + 1);
    auto* pHeader = new (pBlock) Header;
    pHeader->nCapacity = nCapacity;
    LPSTR pszData = static_cast<LPSTR>(pBlock) + sizeof(Header);
    pszData[0] = '\0';
    return pszData;
}

void CString::Assign(std::string_view text)
{
    if (text.empty())
        return Empty();
    const int nLength = CheckedLength(text.size());
    LPSTR pszData = Allocate(nLength);
    std::memcpy(pszData, text.data(), text.size());
    Release();
    m_pszData = pszData;
    ReleaseBuffer(nLength);
}

void CString::Release() noexcept
{
    if (m_pszData == s_empty.text || GetHeader()->nOwners.fetch_sub(1, std::memory_order_acq_rel) > 1)
        return;
    GetHeader()->~Header();
    ::operator delete(GetHeader());
}

void CString::Reserve(int nCapacity)
{
    const bool bOwn = m_pszData != s_empty.text && GetHeader()->nOwners.load(std::memory_order_acquire) == 1;
    if (bOwn && GetHeader()->nCapacity >= nCapacity)
        return;

    // Grows by half of what it has, so that appending bit by bit costs its length once.
    const int nLength = GetLength();
    const int nWanted = bOwn ? std::max(nCapacity, nLength + nLength / 2) : std::max(nCapacity, nLength);
    LPSTR pszData = Allocate(nWanted);
    std::memcpy(pszData, m_pszData, static_cast<std::size_t>(nLength) + 1);
    Release();
    m_pszData = pszData;
    GetHeader()->nLength = nLength;
}
