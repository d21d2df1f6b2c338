// The road of a message into its window. Internal to the window layer.
#pragma once

#include "Toolkit/handle/WindowRecord.h"

namespace toolkit
{
// What SendMessage does once it has found the window. A toolkit exception ends here: it fails a creation,
// leaves a paint as it is, and is reported for any other message.
LRESULT CallWindow(WindowRecord& window, UINT message, WPARAM wParam, LPARAM lParam);
} // namespace toolkit
