// Questions to the disk that are asked while the window is painted.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace editor
{

// Each is asked on a thread of its own kind, one after the other. Whoever asks waits a moment for the answer, unless
// one that was asked before still waits for its own: so a fast disk answers at once, and a slow one does not hold up
// the window. What is being asked when this object goes is asked to its end, for nobody.
class Questions
{
public:
    using Question = std::function<bool()>; // called on another thread; raises nothing
    using Answered = std::function<void(bool bAnswer)>;

    Questions();
    ~Questions();
    Questions(const Questions&) = delete;
    Questions& operator=(const Questions&) = delete;

    // The answer, when it comes at once; else `later` is called with it, on this thread, and goes on this thread.
    std::optional<bool> Ask(Question question, Answered later);

private:
    struct Shared; // the thread's own, too, which may outlive this object

    void Deliver(int nQuestion, bool bAnswer);

    const std::shared_ptr<Shared> m_pShared;
    std::map<int, Answered> m_waiting;
    int m_nAsked = 0;
};

} // namespace editor
