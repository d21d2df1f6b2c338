// A thread that does one thing at a time for another one.
#pragma once

#include <chrono>
#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

namespace editor
{

// Begins with the first task and ends with this object. One thread uses it.
class Worker
{
public:
    Worker() = default;
    ~Worker();
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    void Begin(const std::function<void()>& task);    // borrowed until it is done
    bool WaitFor(std::chrono::milliseconds patience); // true when the task is done
    void Finish();                                    // then: raises what the task has raised

private:
    void Run();

    std::mutex m_mutex; // of what follows
    std::condition_variable m_begun, m_done;
    const std::function<void()>* m_pTask = nullptr; // while it is to be done
    bool m_bEnds = false;
    std::exception_ptr m_pRaised;
    std::thread m_thread;
};

} // namespace editor
