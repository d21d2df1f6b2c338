// Where tasks wait until the queue takes them in. Internal to the window layer.
#pragma once

#include <functional>

namespace toolkit
{

using Task = std::function<void()>;

bool HasTasks();
void TakeTasks(const std::function<void(Task)>& take); // in the order of their posting

} // namespace toolkit
