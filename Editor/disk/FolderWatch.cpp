#include "Editor/disk/FolderWatch.h"

#include "Editor/disk/DiskFile.h"
#include "Toolkit/message/TaskInbox.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <mutex>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <thread>

namespace editor
{
namespace
{

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kQuiet(100), kLongest(250);
constexpr std::size_t kMostNames = 2000; // of one folder; with more of them it is read as a whole
constexpr std::uint32_t kEvents =
    IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_CLOSE_WRITE | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;

} // namespace

struct FolderWatch::Shared
{
    FileDescriptor events{inotify_init1(IN_NONBLOCK | IN_CLOEXEC)}, stop{eventfd(0, EFD_CLOEXEC)};
    Tell tell; // on the window's thread
    std::thread thread;

    std::mutex mutex; // guards all that follows
    struct Watched
    {
        std::string path;
        unsigned nUse;
    };
    std::map<int, Watched> watched; // a folder has one watch: under another name it is another's
    unsigned nUses = 0;
    std::map<std::string, FolderNews> news;
    struct
    {
        std::uint32_t cookie = 0;
        int watch = -1;
        std::string name;
    } moved; // what has gone last, and may come again

    std::pair<int, unsigned> Begin(const std::string& path); // the watch, below 0: none; and its use
    void End(int watch, unsigned nUse);
    void ReadEvents();
    void Note(const inotify_event& event);
    void Post(const std::shared_ptr<Shared>& pSelf);
};

FolderWatch::FolderWatch(Tell tell) : m_pShared(std::make_shared<Shared>())
{
    m_pShared->tell = std::move(tell);
    if (m_pShared->events && m_pShared->stop)
        m_pShared->thread = std::thread([pShared = m_pShared] { Work(pShared); });
    else
        m_pShared.reset();
}

FolderWatch::~FolderWatch()
{
    if (!m_pShared)
        return;
    const std::uint64_t one = 1;
    WriteAll(m_pShared->stop.Get(), {reinterpret_cast<const char*>(&one), sizeof one});
    m_pShared->thread.join();
}

// Of a place only its end counts, not what it points at.
FolderWatch::Place FolderWatch::Watch(const std::string& path)
{
    if (!m_pShared)
        return {};
    const auto [watch, nUse] = m_pShared->Begin(path);
    if (watch < 0)
        return {};
    return {this, [pWatched = std::weak_ptr(m_pShared), watch = watch, nUse = nUse](void*) {
                if (const auto pShared = pWatched.lock())
                    pShared->End(watch, nUse);
            }};
}

std::pair<int, unsigned> FolderWatch::Shared::Begin(const std::string& path)
{
    const std::lock_guard lock(mutex);
    const int watch = inotify_add_watch(events.Get(), path.c_str(), kEvents);
    if (watch >= 0)
        watched[watch] = {path, ++nUses};
    return {watch, nUses};
}

void FolderWatch::Shared::End(int watch, unsigned nUse)
{
    const std::lock_guard lock(mutex);
    const auto at = watched.find(watch);
    if (at == watched.end() || at->second.nUse != nUse)
        return;
    inotify_rm_watch(events.Get(), watch);
    watched.erase(at);
}

void FolderWatch::Work(const std::shared_ptr<Shared>& pShared)
{
    Clock::time_point first, last; // of the news that wait
    bool bWaiting = false;
    for (;;) {
        pollfd files[] = {{pShared->stop.Get(), POLLIN, 0}, {pShared->events.Get(), POLLIN, 0}};
        const auto due = std::min(last + kQuiet, first + kLongest) - Clock::now();
        const auto pause = std::chrono::ceil<std::chrono::milliseconds>(due).count();
        poll(files, 2, bWaiting ? static_cast<int>(std::max<long>(0, pause)) : -1);
        if (files[0].revents)
            return;
        if (files[1].revents) {
            pShared->ReadEvents();
            last = Clock::now();
            first = std::exchange(bWaiting, true) ? first : last;
        }
        if (bWaiting && Clock::now() >= std::min(last + kQuiet, first + kLongest)) {
            pShared->Post(pShared);
            bWaiting = false;
        }
    }
}

void FolderWatch::Shared::ReadEvents()
{
    alignas(inotify_event) char buffer[16384];
    const std::lock_guard lock(mutex);
    for (ssize_t length; (length = read(events.Get(), buffer, sizeof buffer)) > 0;)
        for (const char* at = buffer; at < buffer + length;) {
            const auto& event = *reinterpret_cast<const inotify_event*>(at);
            Note(event);
            at += sizeof event + event.len;
        }
}

void FolderWatch::Shared::Note(const inotify_event& event)
{
    if (event.mask & IN_Q_OVERFLOW)
        for (const auto& [nWatch, one] : watched)
            news[one.path].isUnknown = true;
    const auto folder = watched.find(event.wd);
    if (folder == watched.end() || (event.len > 0 && event.name[0] == '.'))
        return;
    FolderNews& one = news[folder->second.path];
    if (event.len == 0) { // the folder itself has gone
        one.isUnknown = true;
        return;
    }
    const std::string name = event.name;
    if ((event.mask & IN_MOVED_TO) && event.cookie == moved.cookie && event.wd == moved.watch)
        one.renamed.emplace_back(moved.name, name);
    if (event.mask & IN_MOVED_FROM)
        moved = {event.cookie, event.wd, name};
    if (!one.isUnknown)
        one.names.insert(name);
    one.isUnknown |= one.names.size() > kMostNames;
}

void FolderWatch::Shared::Post(const std::shared_ptr<Shared>& pSelf)
{
    toolkit::PostTask([pWatched = std::weak_ptr(pSelf)] {
        const auto pShared = pWatched.lock();
        if (!pShared)
            return;
        std::vector<FolderNews> told;
        {
            const std::lock_guard lock(pShared->mutex);
            for (auto& [path, one] : std::exchange(pShared->news, {})) {
                one.folder = path;
                told.push_back(std::move(one));
            }
        }
        pShared->tell(std::move(told));
    });
}

} // namespace editor
