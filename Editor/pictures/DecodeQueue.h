// Threads that read picture files.
#pragma once

#include "Editor/pictures/PictureReader.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

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
//
// Nobody waits for a reader: what it has begun when the queue goes is read to its end by then, for nobody, and the
// reader is used so long.
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
    bool IsIdle() const; // no job, and no result that was not taken
    // Until there is a result, or nothing is left to do, or the time is over.
    void WaitForResult(std::chrono::milliseconds most);
    void Stop(); // nothing is read any more, and nobody is told

private:
    // The threads' own, too, which may outlive the queue.
    struct Shared
    {
        const PictureReader& reader;
        const std::function<void()> ready;
        std::mutex mutex{}; // of all below
        std::condition_variable jobAdded{}, jobDone{};
        std::deque<DecodeJob> jobs{}; // the newest at the back
        std::vector<DecodeResult> results{};
        int nBusy = 0;
        bool bStop = false;
    };

    static void Work(Shared& shared);
    static DecodeResult Read(const PictureReader& reader, DecodeJob job);

    const std::shared_ptr<Shared> m_pShared;
};

} // namespace editor
