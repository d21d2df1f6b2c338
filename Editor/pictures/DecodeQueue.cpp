#include "Editor/pictures/DecodeQueue.h"

#include "Editor/disk/FileText.h"

#include <cerrno>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
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
    : m_pShared(new Shared{.reader = reader, .ready = std::move(ready)})
{
    for (int i = 0; i < threads; ++i)
        std::thread([pShared = m_pShared] { Work(*pShared); }).detach();
}

void DecodeQueue::Add(DecodeJob job)
{
    const std::lock_guard lock(m_pShared->mutex);
    m_pShared->jobs.push_back(std::move(job));
    m_pShared->jobAdded.notify_one();
}

std::optional<DecodeJob> DecodeQueue::DropOldest(std::size_t limit)
{
    const std::lock_guard lock(m_pShared->mutex);
    std::deque<DecodeJob>& jobs = m_pShared->jobs;
    if (jobs.size() <= limit)
        return {};
    std::optional<DecodeJob> oldest(std::move(jobs.front()));
    jobs.pop_front();
    return oldest;
}

void DecodeQueue::DropIf(const std::function<bool(const DecodeJob&)>& isUnwanted)
{
    const std::lock_guard lock(m_pShared->mutex);
    std::erase_if(m_pShared->jobs, isUnwanted);
}

std::vector<DecodeResult> DecodeQueue::TakeResults()
{
    const std::lock_guard lock(m_pShared->mutex);
    return std::exchange(m_pShared->results, {});
}

bool DecodeQueue::IsIdle() const
{
    const std::lock_guard lock(m_pShared->mutex);
    return m_pShared->jobs.empty() && m_pShared->nBusy == 0 && m_pShared->results.empty();
}

void DecodeQueue::WaitForResult(std::chrono::milliseconds most)
{
    Shared& shared = *m_pShared;
    std::unique_lock lock(shared.mutex);
    shared.jobDone.wait_for(lock, most, [&] {
        return !shared.results.empty() || (shared.jobs.empty() && shared.nBusy == 0) || shared.bStop;
    });
}

void DecodeQueue::Stop()
{
    const std::lock_guard lock(m_pShared->mutex);
    m_pShared->bStop = true;
    m_pShared->jobs.clear();
    m_pShared->jobAdded.notify_all();
    m_pShared->jobDone.notify_all();
}

void DecodeQueue::Work(Shared& shared)
{
    setpriority(PRIO_PROCESS, 0, kNiceness); // of this thread alone: the window answers first
    std::unique_lock lock(shared.mutex);
    for (;;) {
        shared.jobAdded.wait(lock, [&] { return shared.bStop || !shared.jobs.empty(); });
        if (shared.bStop)
            return;
        DecodeJob job = std::move(shared.jobs.back());
        shared.jobs.pop_back();
        ++shared.nBusy;
        lock.unlock();
        DecodeResult result = Read(shared.reader, std::move(job));
        lock.lock();
        --shared.nBusy;
        if (shared.bStop)
            return;
        shared.results.push_back(std::move(result));
        shared.jobDone.notify_all();
        if (shared.results.size() == 1)
            shared.ready();
    }
}

// Whatever goes wrong becomes a reason: nothing may leave the thread.
DecodeResult DecodeQueue::Read(const PictureReader& reader, DecodeJob job)
{
    DecodeResult result;
    result.job = std::move(job);
    try {
        result.decoded.error = LookAt(result.job.path, result.stamp);
        result.unchanged = result.decoded.error.empty() && result.stamp == result.job.known;
        if (result.decoded.error.empty() && !result.unchanged)
            result.decoded = reader.Read(result.job.path, result.job.size, result.job.frame);
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
