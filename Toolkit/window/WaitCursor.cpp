#include "Toolkit/window/WaitCursor.h"

#include "Toolkit/window/Desktop.h"

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
