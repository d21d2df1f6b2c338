// Threads that read picture files.
#pragma once

#include "Editor/pictures/PictureReader.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace editor
{

// Tells whether a file has changed.
struct FileStamp
{
    long long modified = 0; // nanoseconds
    long long size = -1;
    unsigned long long inode = 0;
    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

struct DecodeJob
{
    std::string path;
    CSize size; // to fit into
    int frame = 0;
    FileStamp known; // when the file still is this one, it is not read

    bool WantsTheSameAs(const DecodeJob& other) const
    {
        return size == other.size && frame == other.frame && path == other.path;
    }
};

struct DecodeResult
{
    DecodeJob job;
    FileStamp stamp;
    bool unchanged = false; // still the one known: `decoded` is empty
    DecodedPicture decoded;
};

// The newest job comes first. Everything but the reader's work is done on the thread that made the queue.
class DecodeQueue
{
public:
    // `ready` is called on a worker thread when results lie there and had been collected before.
    DecodeQueue(const PictureReader& reader, int threads, std::function<void()> ready);
    ~DecodeQueue() { Stop(); }
    DecodeQueue(const DecodeQueue&) = delete;
    DecodeQueue& operator=(const DecodeQueue&) = delete;

    void Add(DecodeJob job);
    // The job that waits longest, when more than `limit` wait.
    std::optional<DecodeJob> DropOldest(std::size_t limit);
    void DropIf(const std::function<bool(const DecodeJob&)>& isUnwanted); // but for those begun
    std::vector<DecodeResult> TakeResults();
    bool IsIdle() const;  // no job, and no result that was not taken
    void WaitForResult(); // until there is one, or nothing is left to do
    void Stop();          // jobs that wait are dropped; those begun are finished

private:
    void Work();
    DecodeResult Read(DecodeJob job) const;

    const PictureReader& m_reader;
    const std::function<void()> m_ready;
    mutable std::mutex m_mutex; // of all below but the threads
    std::condition_variable m_jobAdded, m_jobDone;
    std::deque<DecodeJob> m_jobs; // the newest at the back
    std::vector<DecodeResult> m_results;
    int m_nBusy = 0;
    bool m_bStop = false;
    std::vector<std::thread> m_threads;
};

} // namespace editor
