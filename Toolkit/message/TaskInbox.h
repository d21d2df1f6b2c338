// Where tasks wait until the queue takes them in. Internal to the window layer.
#pragma once

#include <functional>

namespace toolkit
{

using Task = std::function<void()>;

bool HasTasks();
// In the order of their posting. A task that `take` fails on, with an exception, stays, and so do those after it.
void TakeTasks(const std::function<void(Task&)>& take);

} // namespace toolkit
