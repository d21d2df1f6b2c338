// What nobody waits for.
#pragma once

#include "Toolkit/base/Types.h"

#include <functional>

namespace toolkit
{

// Does it on a thread of its own, which ends by itself, or with the process; here and now where there can be none. For
// giving back to the system what takes long to be given back. The task raises nothing and knows nobody.
TOOLKIT_API void RunApart(std::function<void()> task);

// Closes a file; where giving back its space may take long, apart.
TOOLKIT_API void CloseApart(int fd);

} // namespace toolkit
