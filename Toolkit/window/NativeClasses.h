// The known window classes. Internal to the window layer.
#pragma once

#include "Toolkit/window/NativeWindow.h"

namespace toolkit
{
// False for an unknown class. NULL or "" is the plain one, which has no factory.
bool FindWindowClass(LPCSTR pszClass, const NativeWindowFactory** ppFactory);
} // namespace toolkit
