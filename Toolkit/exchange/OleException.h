#pragma once

#include "Toolkit/base/Exception.h"
#include "Toolkit/exchange/Unknown.h"

using SCODE = HRESULT;
inline constexpr SCODE CLIPBRD_E_CANT_SET = static_cast<SCODE>(0x800401D2);

// The desktop has refused data that was to be exchanged.
class TOOLKIT_API COleException : public CException
{
public:
    explicit COleException(SCODE sc) : m_sc(sc) {}

    LPCSTR GetErrorMessage() const noexcept override { return "The clipboard cannot be had."; }

    const SCODE m_sc;
};
