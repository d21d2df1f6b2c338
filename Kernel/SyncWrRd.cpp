#include "Kernel/SyncWrRd.h"

namespace
{

constexpr DWORD kWritten = 0xFFFFFFFF;

// A number for each thread, never 0.
DWORD CurrentThread()
{
    static std::atomic<DWORD> s_nLast = 0;
    thread_local const DWORD nThread = ++s_nLast;
    return nThread;
}

} // namespace

// Relaxed is enough: the answer is only ever true for a value that this thread stored itself.
bool CSyncWrRd::IsWriter() const
{
    return m_writer.load(std::memory_order_relaxed) == CurrentThread();
}

void CSyncWrRd::WaitForRead()
{
    if (IsWriter()) {
        ++m_nDepth;
        return;
    }
    DWORD state = m_state.load(std::memory_order_relaxed);
    while (true) {
        if (state == kWritten) {
            m_state.wait(state, std::memory_order_relaxed);
            state = m_state.load(std::memory_order_relaxed);
        } else if (m_state.compare_exchange_weak(state, state + 1, std::memory_order_acquire,
                                                 std::memory_order_relaxed)) {
            return;
        }
    }
}

void CSyncWrRd::DoneReading()
{
    if (IsWriter()) {
        LeaveWriter();
        return;
    }
    if (m_state.fetch_sub(1, std::memory_order_release) == 1)
        m_state.notify_all();
}

void CSyncWrRd::WaitForWrite()
{
    if (IsWriter()) {
        ++m_nDepth;
        return;
    }
    DWORD state = 0;
    while (!m_state.compare_exchange_weak(state, kWritten, std::memory_order_acquire, std::memory_order_relaxed)) {
        if (state != 0)
            m_state.wait(state, std::memory_order_relaxed);
        state = 0;
    }
    m_writer.store(CurrentThread(), std::memory_order_relaxed);
    m_nDepth = 1;
}

void CSyncWrRd::DoneWriting()
{
    LeaveWriter();
}

void CSyncWrRd::LeaveWriter()
{
    if (--m_nDepth > 0)
        return;
    m_writer.store(0, std::memory_order_relaxed);
    m_state.store(0, std::memory_order_release);
    m_state.notify_all();
}
