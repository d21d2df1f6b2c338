#include "Editor/work/Questions.h"

#include "Toolkit/message/TaskInbox.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace editor
{
namespace
{

constexpr std::chrono::milliseconds kPatience(30); // with what else is to be done, below 50: nobody sees it

struct Asked
{
    int nQuestion;
    Questions::Question question;
};

} // namespace

struct Questions::Shared : std::enable_shared_from_this<Shared>
{
    void Work();
    void Answer(int nQuestion, bool bAnswer);

    std::mutex mutex; // of all below but the owner
    std::condition_variable asked, answered;
    std::deque<Asked> questions; // the first one is being asked
    std::optional<bool> inTime;  // the answer that is waited for
    bool bIsWaited = false, bWorks = false, bEnds = false;
    Questions* pOwner = nullptr; // the asking thread's
};

// With the lock.
void Questions::Shared::Answer(int nQuestion, bool bAnswer)
{
    if (bEnds)
        return;
    if (std::exchange(bIsWaited, false)) {
        inTime = bAnswer;
        answered.notify_one();
        return;
    }
    toolkit::PostTask([pThis = shared_from_this(), nQuestion, bAnswer] {
        if (pThis->pOwner)
            pThis->pOwner->Deliver(nQuestion, bAnswer);
    });
}

void Questions::Shared::Work()
{
    std::unique_lock lock(mutex);
    for (;;) {
        asked.wait(lock, [this] { return bEnds || !questions.empty(); });
        if (bEnds)
            return;
        const Asked now = questions.front();
        lock.unlock();
        const bool bAnswer = now.question();
        lock.lock();
        questions.pop_front();
        Answer(now.nQuestion, bAnswer);
    }
}

Questions::Questions() : m_pShared(std::make_shared<Shared>())
{
    m_pShared->pOwner = this;
}

Questions::~Questions()
{
    const std::lock_guard lock(m_pShared->mutex);
    m_pShared->pOwner = nullptr;
    m_pShared->bEnds = true;
    m_pShared->asked.notify_one();
}

std::optional<bool> Questions::Ask(Question question, Answered later)
{
    Shared& shared = *m_pShared;
    std::unique_lock lock(shared.mutex);
    try {
        if (!shared.bWorks)
            std::thread([pShared = m_pShared] { pShared->Work(); }).detach();
    } catch (const std::system_error&) {
        return question();
    }
    shared.bWorks = true;
    const bool bFree = shared.questions.empty();
    shared.questions.push_back({++m_nAsked, std::move(question)});
    shared.asked.notify_one();
    shared.bIsWaited = bFree;
    shared.inTime.reset();
    if (bFree && shared.answered.wait_for(lock, kPatience, [&] { return shared.inTime.has_value(); }))
        return shared.inTime;
    if (bFree)
        shared.bIsWaited = false;
    m_waiting.emplace(m_nAsked, std::move(later));
    return std::nullopt;
}

void Questions::Deliver(int nQuestion, bool bAnswer)
{
    const auto found = m_waiting.find(nQuestion);
    if (found == m_waiting.end())
        return;
    const Answered later = std::move(found->second);
    m_waiting.erase(found);
    later(bAnswer);
}

} // namespace editor
