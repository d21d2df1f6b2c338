// Work on the disk that may take long, while the window answers.
#pragma once

#include "Editor/disk/Meter.h"
#include "Editor/work/Worker.h"
#include "Toolkit/handle/WindowTypes.h"

#include <optional>
#include <string>
#include <type_traits>
#include <utility>

namespace editor
{

// How far a command is, for the user.
struct Progress
{
    enum class Unit
    {
        Bytes,
        Objects,
        Found // objects, of which nobody knows how many there are: this cannot be cancelled
    };

    std::string what; // "Copying"
    Unit unit = Unit::Bytes;
    std::uint64_t done = 0;
    std::uint64_t total = 0; // 0: not known
};

// Whoever shows it.
class ProgressView
{
public:
    virtual HWND GetModalWindow() const = 0;     // has keys and presses for itself meanwhile; may be NULL
    virtual void Show(const Progress& done) = 0; // again and again
    virtual void Hide() = 0;
    virtual void OnCancelled() = 0; // the command has ended

protected:
    ~ProgressView() = default;
};

// The library, the views and the model belong to the window's thread. What only the disk is needed for is done aside,
// piece by piece, on a thread of its own; the window's thread waits for each piece and lets the window answer: it is
// painted, may be scrolled, sized and asked for an end, and nothing else (toolkit::AnswerMeanwhile). So the order of
// things is the same as if all were done at once, and whoever is told of a piece finds everything as it should be.
//
// Outside a command everything is done at once and in place.
class LongWork
{
public:
    static constexpr DWORD kUnseen = 300; // milliseconds before anything is shown

    LongWork() = default;
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;

    void SetView(ProgressView* pView) { m_pView = pView; } // borrowed; NULL: nobody

    // What the user has asked for, from its beginning to its end. Inside another one it is a part of that.
    class Command
    {
    public:
        Command(LongWork& work, const char* pszWhat, Progress::Unit unit); // borrowed
        ~Command() { m_work.End(); }
        Command(const Command&) = delete;
        Command& operator=(const Command&) = delete;

    private:
        LongWork& m_work;
    };

    bool IsUnderWay() const { return m_nCommands > 0; }
    bool IsCancelled() const { return m_nCommands > 0 && m_meter.IsCancelled(); } // for whoever then ends
    // Did the last one end early, because the user asked for it? Asked until the answer is taken, or another one
    // begins.
    bool WasCancelled() const { return m_bWasCancelled; }
    bool TakeCancelled() { return std::exchange(m_bWasCancelled, false); }
    void Cancel() // what can be
    {
        if (m_progress.unit != Progress::Unit::Found)
            m_meter.Cancel();
    }
    Meter& GetMeter() { return m_meter; }

    void Run(const std::function<void()>& task); // returns when it is done, and raises what it raises

private:
    void Begin(const char* pszWhat, Progress::Unit unit);
    void End();
    void Answer();

    ProgressView* m_pView = nullptr;
    Meter m_meter;
    Worker m_worker;
    int m_nCommands = 0; // inside each other
    bool m_bAnswering = false, m_bShown = false, m_bWasCancelled = false;
    Progress m_progress;
    DWORD m_begun = 0; // the desktop's ticks
    std::chrono::steady_clock::time_point m_answered;
};

// Has the work done aside.
template <class Work>
auto Aside(LongWork& aside, Work work) -> std::invoke_result_t<Work>
{
    if constexpr (std::is_void_v<std::invoke_result_t<Work>>) {
        aside.Run(work);
    } else {
        std::optional<std::invoke_result_t<Work>> result;
        aside.Run([&] { result.emplace(work()); });
        return std::move(*result);
    }
}

inline constexpr const char* kCancelled = "was cancelled"; // why something was not done

} // namespace editor
