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
struct
{
    std::atomic<bool> bHasTasks{false}; // looked at before every message, without the lock
    std::mutex mutex;                   // of all that follows
    std::vector<toolkit::Task> tasks;
    toolkit::Desktop* pDesktop = nullptr;
    std::thread::id uiThread;
} s_inbox;
} // namespace

void toolkit::AcceptTasks(Desktop* pDesktop)
{
    const std::lock_guard lock(s_inbox.mutex);
    s_inbox.pDesktop = pDesktop;
    s_inbox.uiThread = std::this_thread::get_id();
}

void toolkit::PostTask(Task task)
{
    {
        const std::lock_guard lock(s_inbox.mutex);
        if (!s_inbox.pDesktop || !task)
            return;
        s_inbox.tasks.push_back(std::move(task));
        s_inbox.bHasTasks = true;
        if (std::this_thread::get_id() != s_inbox.uiThread) {
            s_inbox.pDesktop->WakeFromThread(); // under the lock, so that the desktop is still there
            return;
        }
    }
    RequestRun();
}

bool toolkit::HasTasks()
{
    return s_inbox.bHasTasks.load(std::memory_order_acquire);
}

void toolkit::TakeTasks(const std::function<void(Task&)>& take)
{
    const std::lock_guard lock(s_inbox.mutex);
    auto it = s_inbox.tasks.begin();
    try {
        for (; it != s_inbox.tasks.end(); ++it)
            take(*it);
    } catch (...) {
        s_inbox.tasks.erase(s_inbox.tasks.begin(), it);
        throw;
    }
    s_inbox.tasks.clear();
    s_inbox.bHasTasks = false;
}
