#include "Toolkit/base/Exception.h"

#include <utility>

namespace
{
toolkit::ReportErrorProc s_report = nullptr;

// Libraries are loaded before anything of theirs runs, so no allocation of a view can come earlier.
[[maybe_unused]] const std::new_handler s_formerHandler = std::set_new_handler(AfxThrowMemoryException);
} // namespace

void toolkit::SetReportErrorProc(ReportErrorProc proc) noexcept
{
    s_report = proc;
}

int CException::ReportError() noexcept
{
    if (std::exchange(m_bReported, true) || !s_report)
        return 0;
    return s_report(GetErrorMessage());
}

void AfxThrowMemoryException()
{
    throw CMemoryException();
}
