#include "Editor/work/Worker.h"

#include <utility>

namespace editor
{

Worker::~Worker()
{
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_bEnds = true;
    }
    m_begun.notify_one();
    m_thread.join();
}

void Worker::Begin(const std::function<void()>& task)
{
    if (!m_thread.joinable())
        m_thread = std::thread(&Worker::Run, this);
    {
        const std::lock_guard lock(m_mutex);
        m_pTask = &task;
    }
    m_begun.notify_one();
}

bool Worker::WaitFor(std::chrono::milliseconds patience)
{
    std::unique_lock lock(m_mutex);
    return m_done.wait_for(lock, patience, [this] { return m_pTask == nullptr; });
}

void Worker::Finish()
{
    if (const std::exception_ptr pRaised = std::exchange(m_pRaised, nullptr))
        std::rethrow_exception(pRaised);
}

void Worker::Run()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_begun.wait(lock, [this] { return m_pTask || m_bEnds; });
        if (m_bEnds)
            return;
        lock.unlock();
        std::exception_ptr pRaised;
        try {
            (*m_pTask)();
        } catch (...) {
            pRaised = std::current_exception();
        }
        lock.lock();
        m_pRaised = pRaised;
        m_pTask = nullptr;
        m_done.notify_one();
    }
}

} // namespace editor
