#include "Editor/work/NameSearch.h"

#include "Editor/disk/Directory.h"
#include "Toolkit/base/TextKeys.h"
#include "Toolkit/message/TaskInbox.h"

#include <algorithm>
#include <chrono>
#include <deque>
#include <mutex>
#include <set>
#include <sys/resource.h>
#include <thread>
#include <utility>

namespace editor
{
namespace
{

constexpr int kNiceness = 10;
constexpr std::chrono::milliseconds kPatience(50); // what has been found by then is told

std::string NaturalKey(const std::string& name)
{
    std::string key;
    toolkit::AppendSortKey(key, name, toolkit::TextOrder::Natural);
    return key;
}

// Those that are still to be looked through, the outer ones first.
class Folders
{
public:
    explicit Folders(std::string top) : m_top(std::move(top)) {}

    bool AreLeft() const { return !m_left.empty(); }

    void ReadNext(const std::function<bool(std::string_view)>& matches, std::size_t nMost,
                  std::vector<NameSearch::Found>& found)
    {
        const std::string folder = std::move(m_left.front());
        m_left.pop_front();
        Directory directory(folder.empty() ? m_top : m_top + '/' + folder);
        if (directory.GetError() != 0 || !m_seen.insert(directory.GetIdentity()).second)
            return;
        std::vector<std::string> names, below;
        directory.ForEach([&](const char* pszName, bool isDirectory) {
            if (matches(pszName))
                names.emplace_back(pszName);
            if (isDirectory)
                below.emplace_back(pszName);
            return true;
        });
        std::ranges::sort(names, {}, NaturalKey);
        std::ranges::sort(below, {}, NaturalKey);
        names.resize(std::min(names.size(), nMost));
        for (std::string& name : names)
            found.push_back({folder, std::move(name)});
        for (const std::string& name : below)
            m_left.push_back(folder.empty() ? name : folder + '/' + name);
    }

private:
    const std::string m_top;
    std::deque<std::string> m_left{""};
    std::set<FileIdentity> m_seen;
};

} // namespace

struct NameSearch::State
{
    NameSearch& owner; // until it is cancelled
    const std::function<bool(std::string_view)> matches;
    const Tell tell;
    std::mutex mutex{}; // of what follows
    bool bCancelled = false;
};

void NameSearch::Begin(const std::string& top, std::function<bool(std::string_view name)> matches, Tell tell)
{
    Cancel();
    m_pState.reset(new State{.owner = *this, .matches = std::move(matches), .tell = std::move(tell)});
    std::thread([pState = m_pState, top] {
        setpriority(PRIO_PROCESS, 0, kNiceness); // of this thread alone
        Walk(pState, top);
    }).detach();
}

void NameSearch::Cancel()
{
    const std::shared_ptr<State> pState = std::move(m_pState);
    if (!pState)
        return;
    const std::lock_guard lock(pState->mutex);
    pState->bCancelled = true;
}

// False when nobody wants any more. While the lock is held the window's thread, and its desktop, are there.
bool NameSearch::Post(const std::shared_ptr<State>& pState, std::vector<Found> found, bool isOver)
{
    const std::lock_guard lock(pState->mutex);
    if (pState->bCancelled)
        return false;
    if (found.empty() && !isOver)
        return true;
    toolkit::PostTask([pState, found = std::move(found), isOver] {
        if (pState->bCancelled)
            return;
        if (isOver)
            pState->owner.m_pState.reset();
        pState->tell(found, isOver);
    });
    return true;
}

void NameSearch::Walk(const std::shared_ptr<State>& pState, const std::string& top)
{
    using Clock = std::chrono::steady_clock;
    Folders folders(top);
    std::vector<Found> found;
    std::size_t nFound = 0;
    Clock::time_point told = Clock::now();
    while (folders.AreLeft() && nFound < kMost) {
        const std::size_t nBefore = found.size();
        folders.ReadNext(pState->matches, kMost - nFound, found);
        nFound += found.size() - nBefore;
        if (Clock::now() - told < kPatience)
            continue;
        if (!Post(pState, std::exchange(found, {}), false))
            return;
        told = Clock::now();
    }
    Post(pState, std::move(found), true);
}

} // namespace editor
