#include "Toolkit/message/TaskInbox.h"

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/message/Queue.h"

#include <atomic>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace
{
std::mutex s_mutex; // of all that follows
std::vector<toolkit::Task> s_tasks;
toolkit::Desktop* s_pDesktop = nullptr;
std::thread::id s_uiThread;

std::atomic<bool> s_bHasTasks{false}; // looked at before every message, without the lock
} // namespace

void toolkit::AcceptTasks(Desktop* pDesktop)
{
    const std::lock_guard lock(s_mutex);
    s_pDesktop = pDesktop;
    s_uiThread = std::this_thread::get_id();
}

void toolkit::PostTask(Task task)
{
    {
        const std::lock_guard lock(s_mutex);
        if (!s_pDesktop || !task)
            return;
        s_tasks.push_back(std::move(task));
        s_bHasTasks = true;
        if (std::this_thread::get_id() != s_uiThread) {
            s_pDesktop->WakeFromThread(); // under the lock, so that the desktop is still there
            return;
        }
    }
    RequestRun();
}

bool toolkit::HasTasks()
{
    return s_bHasTasks.load(std::memory_order_acquire);
}

void toolkit::TakeTasks(const std::function<void(Task&)>& take)
{
    const std::lock_guard lock(s_mutex);
    auto it = s_tasks.begin();
    try {
        for (; it != s_tasks.end(); ++it)
            take(*it);
    } catch (...) {
        s_tasks.erase(s_tasks.begin(), it);
        throw;
    }
    s_tasks.clear();
    s_bHasTasks = false;
}
