#include "Editor/player/AnimationFrames.h"

#include "Toolkit/message/TaskInbox.h"

#include <condition_variable>
#include <map>
#include <mutex>
#include <new>
#include <thread>
#include <vector>

namespace editor
{
namespace
{

constexpr int kAhead = 4, kUsualDelay = 100; // frames, milliseconds

std::size_t BytesOf(const toolkit::Surface& picture)
{
    return static_cast<std::size_t>(picture.Width()) * static_cast<std::size_t>(picture.Height()) *
           sizeof(toolkit::Pixel);
}

} // namespace

// The thread's own, too, which may outlive the object.
struct AnimationFrames::Shared
{
    const PictureReader& reader;
    const std::string path;
    std::function<void()> arrived; // the window's thread's alone

    std::mutex mutex{}; // of all below
    std::condition_variable changed{};
    int nCount;
    CSize size{};
    int nWanted = 0;
    bool bStop = false, bFailed = false, bPosted = false;
    std::map<int, std::shared_ptr<const toolkit::Surface>> pictures{}; // at that size
    std::size_t nBytes = 0;
    std::vector<int> delays{};
    std::unique_ptr<PictureStream> pStream{};
    int nNext = 0; // in the stream

    // The next one to be read; -1: all are there that are needed soon.
    int Missing() const
    {
        for (int i = 0; size.cx > 0 && !bFailed && i < kAhead && i < nCount; ++i)
            if (const int nFrame = (nWanted + i) % nCount; !pictures.contains(nFrame))
                return nFrame;
        return -1;
    }

    void Forget()
    {
        pictures.clear();
        nBytes = 0;
        pStream.reset();
    }

    void Keep(PictureStream::Frame frame)
    {
        if (delays.size() == static_cast<std::size_t>(nNext))
            delays.push_back(frame.delay);
        nBytes += BytesOf(frame.picture);
        pictures[nNext++] = std::make_shared<const toolkit::Surface>(std::move(frame.picture));
        while (nBytes > kMostBytes && pictures.size() > kAhead + 1)
            DropFarthest();
    }

    // The one that was shown the longest ago is needed last.
    void DropFarthest()
    {
        auto behind = pictures.lower_bound(nWanted);
        behind = behind == pictures.begin() ? std::prev(pictures.end()) : pictures.begin();
        nBytes -= BytesOf(*behind->second);
        pictures.erase(behind);
    }

    void End() // of the stream
    {
        bFailed = nNext == 0;
        nCount = std::max(nNext, 1);
        nWanted %= nCount;
        pStream.reset();
    }
};

AnimationFrames::AnimationFrames(const PictureReader& reader, std::string path, int nCount, CSize fullSize,
                                 std::function<void()> arrived)
    : m_fullSize(fullSize),
      m_pShared(new Shared{.reader = reader, .path = std::move(path), .arrived = std::move(arrived), .nCount = nCount})
{
    std::thread([pShared = m_pShared] { Work(pShared); }).detach();
}

AnimationFrames::~AnimationFrames()
{
    m_pShared->arrived = nullptr;
    const std::lock_guard lock(m_pShared->mutex);
    m_pShared->bStop = true;
    m_pShared->changed.notify_all();
}

int AnimationFrames::GetCount()
{
    const std::lock_guard lock(m_pShared->mutex);
    return m_pShared->nCount;
}

int AnimationFrames::DelayOf(int nFrame)
{
    const std::lock_guard lock(m_pShared->mutex);
    const std::vector<int>& delays = m_pShared->delays;
    return nFrame >= 0 && static_cast<std::size_t>(nFrame) < delays.size() ? delays[static_cast<std::size_t>(nFrame)]
                                                                           : kUsualDelay;
}

// Only what is asked for first of a size counts as wanted: looking ahead is done here.
PictureStore::Answer AnimationFrames::Find(int nFrame, CSize size)
{
    Shared& shared = *m_pShared;
    const std::lock_guard lock(shared.mutex);
    if (size != shared.size) {
        shared.size = size;
        shared.Forget();
    }
    shared.nWanted = nFrame;
    shared.changed.notify_all();
    const auto at = shared.pictures.find(nFrame);
    m_pFound = at == shared.pictures.end() ? nullptr : at->second;
    return {m_pFound.get(), shared.bFailed};
}

void AnimationFrames::Work(const std::shared_ptr<Shared>& pShared)
try {
    Shared& shared = *pShared;
    std::unique_lock lock(shared.mutex);
    while (true) {
        shared.changed.wait(lock, [&] { return shared.bStop || shared.Missing() >= 0; });
        if (shared.bStop)
            return;
        const CSize size = shared.size;
        std::unique_ptr<PictureStream> pStream = std::move(shared.pStream);
        if (shared.Missing() < shared.nNext)
            pStream.reset();
        const bool bAnew = !pStream;
        lock.unlock();
        if (bAnew)
            pStream = shared.reader.Open(shared.path, size);
        std::optional<PictureStream::Frame> frame = pStream ? pStream->Next() : std::nullopt;
        lock.lock();
        if (shared.bStop)
            return;
        if (size != shared.size)
            continue; // it is wanted otherwise by now
        shared.nNext = bAnew ? 0 : shared.nNext;
        shared.pStream = std::move(pStream);
        if (frame)
            shared.Keep(std::move(*frame));
        else
            shared.End();
        if (!std::exchange(shared.bPosted, true))
            toolkit::PostTask([pShared] {
                {
                    const std::lock_guard posted(pShared->mutex);
                    pShared->bPosted = false;
                }
                if (const auto arrived = pShared->arrived)
                    arrived();
            });
    }
} catch (const std::bad_alloc&) {
    const std::lock_guard lock(pShared->mutex);
    pShared->bFailed = true; // without memory there is nothing more to see
}

} // namespace editor
