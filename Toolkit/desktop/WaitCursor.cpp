#include "Toolkit/desktop/WaitCursor.h"

#include "Toolkit/desktop/Desktop.h"

namespace
{
int s_nWaiting = 0;
} // namespace

CWaitCursor::CWaitCursor()
{
    if (++s_nWaiting == 1)
        Restore();
}

CWaitCursor::~CWaitCursor()
{
    if (--s_nWaiting == 0)
        toolkit::CurrentDesktop().ShowCursor(toolkit::Cursor::Arrow);
}

void CWaitCursor::Restore()
{
    toolkit::CurrentDesktop().ShowCursor(toolkit::Cursor::Wait);
}
