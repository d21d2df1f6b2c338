// IUnknown: the base of objects that are shared by counting.
#pragma once

#include "Toolkit/base/Types.h"

using HRESULT = std::int32_t;
using ULONG = DWORD;

inline constexpr HRESULT S_OK = 0;
inline constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002);

struct GUID
{
    DWORD Data1;
    WORD Data2, Data3;
    BYTE Data4[8];

    friend bool operator==(const GUID&, const GUID&) = default;
};
using IID = GUID;
using REFIID = const IID&;

inline constexpr IID IID_IUnknown = {0x00000000, 0x0000, 0x0000, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

// The order of the operations is a contract.
class TOOLKIT_API IUnknown
{
public:
    // The object's interface of that identifier, with a reference; E_NOINTERFACE, and NULL, when it has none.
    virtual HRESULT QueryInterface(REFIID riid, void** ppvObject) = 0;
    // Both return the new count, for information only. At 0 the object is gone.
    virtual ULONG AddRef() = 0;
    virtual ULONG Release() = 0;

protected:
    IUnknown() = default;
    ~IUnknown() = default;
    IUnknown(const IUnknown&) = default;
    IUnknown& operator=(const IUnknown&) = default;
};
