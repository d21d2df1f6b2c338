#include "Editor/pictures/DecodeQueue.h"

#include "Editor/model/FileText.h"

#include <cerrno>
#include <sys/resource.h>
#include <sys/stat.h>
#include <utility>

namespace editor
{
namespace
{

constexpr int kNiceness = 10;

// Empty when there is a regular file to read.
std::string LookAt(const std::string& path, FileStamp& stamp)
{
    struct stat status;
    if (stat(path.c_str(), &status) != 0)
        return SystemErrorText(errno);
    if (!S_ISREG(status.st_mode))
        return "not a file"; // reading a pipe might never end
    stamp = {status.st_mtim.tv_sec * 1'000'000'000LL + status.st_mtim.tv_nsec, status.st_size, status.st_ino};
    return {};
}

} // namespace

DecodeQueue::DecodeQueue(const PictureReader& reader, int threads, std::function<void()> ready)
    : m_reader(reader), m_ready(std::move(ready))
{
    for (int i = 0; i < threads; ++i)
        m_threads.emplace_back([this] { Work(); });
}

void DecodeQueue::Add(DecodeJob job)
{
    const std::lock_guard lock(m_mutex);
    m_jobs.push_back(std::move(job));
    m_jobAdded.notify_one();
}

std::optional<DecodeJob> DecodeQueue::DropOldest(std::size_t limit)
{
    const std::lock_guard lock(m_mutex);
    if (m_jobs.size() <= limit)
        return {};
    std::optional<DecodeJob> oldest(std::move(m_jobs.front()));
    m_jobs.pop_front();
    return oldest;
}

void DecodeQueue::DropIf(const std::function<bool(const DecodeJob&)>& isUnwanted)
{
    const std::lock_guard lock(m_mutex);
    std::erase_if(m_jobs, isUnwanted);
}

std::vector<DecodeResult> DecodeQueue::TakeResults()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_results, {});
}

bool DecodeQueue::IsIdle() const
{
    const std::lock_guard lock(m_mutex);
    return m_jobs.empty() && m_nBusy == 0 && m_results.empty();
}

void DecodeQueue::WaitForResult()
{
    std::unique_lock lock(m_mutex);
    m_jobDone.wait(lock, [this] { return !m_results.empty() || (m_jobs.empty() && m_nBusy == 0) || m_bStop; });
}

void DecodeQueue::Stop()
{
    {
        const std::lock_guard lock(m_mutex);
        m_bStop = true;
        m_jobs.clear();
    }
    m_jobAdded.notify_all();
    m_jobDone.notify_all();
    for (std::thread& thread : m_threads)
        thread.join();
    m_threads.clear();
}

void DecodeQueue::Work()
{
    setpriority(PRIO_PROCESS, 0, kNiceness); // of this thread alone: the window answers first
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_jobAdded.wait(lock, [this] { return m_bStop || !m_jobs.empty(); });
        if (m_bStop)
            return;
        DecodeJob job = std::move(m_jobs.back());
        m_jobs.pop_back();
        ++m_nBusy;
        lock.unlock();
        DecodeResult result = Read(std::move(job));
        lock.lock();
        --m_nBusy;
        m_results.push_back(std::move(result));
        m_jobDone.notify_all();
        if (m_results.size() == 1 && !m_bStop)
            m_ready();
    }
}

// Whatever goes wrong becomes a reason: nothing may leave the thread.
DecodeResult DecodeQueue::Read(DecodeJob job) const
{
    DecodeResult result;
    result.job = std::move(job);
    try {
        result.decoded.error = LookAt(result.job.path, result.stamp);
        result.unchanged = result.decoded.error.empty() && result.stamp == result.job.known;
        if (result.decoded.error.empty() && !result.unchanged)
            result.decoded = m_reader.Read(result.job.path, result.job.size, result.job.frame);
        if (result.decoded.picture.IsEmpty() && result.decoded.error.empty() && !result.unchanged)
            result.decoded.error = "an empty picture";
    } catch (const std::bad_alloc&) {
        result.decoded = {{}, {}, "too large for the memory"};
    } catch (const std::exception&) {
        result.decoded = {{}, {}, "cannot be read"};
    }
    return result;
}

} // namespace editor
