// Making windows. Internal to the window layer.
#pragma once

#include "Toolkit/message/Messages.h"

class CWnd;

namespace toolkit
{
// Makes the window and sends it what a new window is sent. NULL when refused. pOwner, when there is one, gets
// its messages from the first on; a failed creation ends with its PostNcDestroy, after which it may be gone.
HWND MakeWindow(const CREATESTRUCT& cs, CWnd* pOwner);
} // namespace toolkit
