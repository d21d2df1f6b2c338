// Tasks wait here, whichever thread they come from, until the queue takes them in.
#pragma once

#include "Toolkit/base/Types.h"

#include <functional>

namespace toolkit
{

class Desktop;

using Task = std::function<void()>;

// Has a task run on the user-interface thread, in order with the posted messages. Any thread may call it, as
// long as a desktop is installed; tasks that have not run when the desktop goes are dropped.
TOOLKIT_API void PostTask(Task task);

void AcceptTasks(Desktop* pDesktop); // NULL accepts no more
bool HasTasks();
// In the order of their posting. A task that `take` fails on, with an exception, stays, and so do those after it.
void TakeTasks(const std::function<void(Task&)>& take);

} // namespace toolkit
