// The toolkit's exceptions: thrown by value, caught by reference.
#pragma once

#include "Toolkit/base/Types.h"

#include <new>

class TOOLKIT_API CException
{
public:
    virtual ~CException() = default;

    // The text that ReportError shows.
    virtual LPCSTR GetErrorMessage() const noexcept = 0;

    // Shows the error in a message box, once: a second call on the same exception shows nothing.
    // Returns what the box returned, 0 when nothing was shown.
    int ReportError() noexcept;

private:
    bool m_bReported = false;
};

// Memory ran out. Every operator new of a process that has loaded the toolkit throws it where the standard
// one would throw std::bad_alloc, which it is, too.
class TOOLKIT_API CMemoryException : public CException, public std::bad_alloc
{
public:
    LPCSTR GetErrorMessage() const noexcept override { return "Out of memory."; }
    const char* what() const noexcept override { return GetErrorMessage(); }
};

[[noreturn]] TOOLKIT_API void AfxThrowMemoryException();

namespace toolkit
{
// How ReportError shows its text; the window layer installs its message box here at load.
using ReportErrorProc = int (*)(LPCSTR pszText);
TOOLKIT_API void SetReportErrorProc(ReportErrorProc proc) noexcept;
} // namespace toolkit
