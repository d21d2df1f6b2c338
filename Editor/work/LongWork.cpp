#include "Editor/work/LongWork.h"

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/run/Run.h"

namespace editor
{
namespace
{

constexpr std::chrono::milliseconds kBeat(8); // half a frame: nobody waits longer for an answer

// Also where answering raises something: the task works on what its caller holds.
class Waiting
{
public:
    explicit Waiting(Worker& worker) : m_worker(worker) {}
    ~Waiting()
    {
        while (!m_worker.WaitFor(kBeat)) {
        }
    }
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;

private:
    Worker& m_worker;
};

class Flag
{
public:
    explicit Flag(bool& bOn) : m_bOn(bOn) { m_bOn = true; }
    ~Flag() { m_bOn = false; }
    Flag(const Flag&) = delete;
    Flag& operator=(const Flag&) = delete;

private:
    bool& m_bOn;
};

} // namespace

LongWork::Command::Command(LongWork& work, const char* pszWhat, Progress::Unit unit) : m_work(work)
{
    m_work.Begin(pszWhat, unit);
}

void LongWork::Begin(const char* pszWhat, Progress::Unit unit)
{
    if (m_nCommands++ > 0)
        return;
    m_bWasCancelled = false;
    m_meter.Begin(0);
    m_progress = {pszWhat, unit};
    m_begun = toolkit::CurrentDesktop().Ticks();
    m_answered = std::chrono::steady_clock::now();
}

void LongWork::End()
{
    if (--m_nCommands > 0)
        return;
    if (std::exchange(m_bShown, false))
        m_pView->Hide();
    m_bWasCancelled = m_meter.HasEndedEarly();
    if (m_bWasCancelled && m_pView)
        m_pView->OnCancelled();
}

// What is done quickly is waited for: going to sleep and waking up costs less than many small things do.
void LongWork::Run(const std::function<void()>& task)
{
    if (m_nCommands == 0 || m_bAnswering)
        return task();
    if (std::chrono::steady_clock::now() - m_answered >= kBeat)
        Answer();
    m_worker.Begin(task);
    {
        const Waiting untilDone(m_worker);
        while (!m_worker.WaitFor(kBeat))
            Answer();
    }
    m_worker.Finish();
}

void LongWork::Answer()
{
    const Flag answering(m_bAnswering); // nothing that is done now is done aside
    if (m_pView && toolkit::CurrentDesktop().Ticks() - m_begun >= kUnseen) {
        m_progress.done = m_meter.Done();
        m_progress.total = m_meter.Total();
        m_bShown = true;
        m_pView->Show(m_progress);
    }
    toolkit::AnswerMeanwhile(m_pView ? m_pView->GetModalWindow() : nullptr);
    m_answered = std::chrono::steady_clock::now();
}

} // namespace editor
