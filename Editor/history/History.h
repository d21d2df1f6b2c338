// What the user has done to the disk, step by step, to be taken back and done again.
#pragma once

#include "Editor/disk/Underway.h"
#include "Editor/history/Edit.h"
#include "Editor/work/LongWork.h"

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace editor
{

// Whoever changes the disk tells it here, once it is done. What belongs together is one step: all that is told while a
// Step lives, else each change by itself.
//
// Nothing is copied for it: what a step has removed waits in the user's trash, and so does what was pasted and taken
// back. Emptying the trash is the user's business. Paths are absolute: a step can be taken back whatever folder is
// shown by then. The last kMostSteps are remembered, and those taken back until something else is done. A step that
// there was no memory for is not remembered at all.
class History
{
public:
    static constexpr std::size_t kMostSteps = 200;

    explicit History(LongWork& work) : m_work(work) {} // does what takes long; borrowed

    // `news` is called with one line whenever a step was done, taken back or done again; it may be empty.
    void SetNews(std::function<void(const std::string& line)> news) { m_news = std::move(news); }

    // Each step, while it is done, leaves a mark in that folder (UnderwayMark), which says what is done at `place`.
    void SetMarks(std::string folder, std::string place);
    // Called at the end of each step for what is still to be done in it. The answer stands behind the step's name in
    // the news; it may be empty.
    void SetLastPart(std::function<std::string()> lastPart) { m_lastPart = std::move(lastPart); }

    std::size_t CountDone() const { return m_nDone; } // so many can be taken back
    // What the next one is called: 'rename of "walk.png"', "paste of 3 objects". Empty: there is none.
    std::string NameToUndo() const { return m_nDone > 0 ? m_steps[m_nDone - 1].name : std::string(); }
    std::string NameToRedo() const { return m_nDone < m_steps.size() ? m_steps[m_nDone].name : std::string(); }

    // All of the next step, the last change first, or nothing of it. Empty when it is done; else one line, and the step
    // stays the next one: also where the user cancels it. What could be neither done nor put right again, because
    // others are at work there, is gone on with at the next attempt.
    std::string Undo(Changes& changes);
    std::string Redo(Changes& changes);

    // What the last step that has only removed has put into the trash, and nobody has fetched back since, comes back,
    // as a step of its own. The name of what it is: '"walk.png"', "3 objects"; empty: there is none.
    std::string NameToRestore() const;
    std::string Restore(Changes& changes);

    // That step is given up: those before it, or behind it, can then be taken back, or done again.
    void ForgetNextUndo();
    void ForgetNextRedo();

    // Steps may stand in each other: the outermost counts. Its verb names it ("paste"); where it has none, that of the
    // first inside it. What removes here and adds there is a move. A step that gives the newest object, of a verb "new
    // ...", its first name goes on with the step in which it came.
    class Step
    {
    public:
        explicit Step(History* pHistory, const char* pszVerb = ""); // borrowed; NULL: nothing is remembered
        ~Step();
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;

    private:
        History* const m_pHistory;
    };

    // A file or folder with all that is in it has come; has gone to the trash; has come back from there, where it had
    // gone in this very step; has another name in its folder; a file has another text, or will have when it is saved.
    void Came(const std::string& folder, const std::string& name) noexcept;
    void Went(const std::string& path, const TrashPlace& place) noexcept;
    void CameBack(const std::string& path) noexcept;
    void Renamed(const std::string& folder, const std::string& former, const std::string& name) noexcept;
    void Rewrote(const std::string& path, const TextState& former) noexcept;
    void Unsaved(const std::string& path, const UnsavedEdit::Text& former, const UnsavedEdit::Text& now) noexcept;

private:
    using Edits = std::vector<std::shared_ptr<Edit>>;
    using Removals = std::vector<std::shared_ptr<PlacingEdit>>;
    struct Done
    {
        std::string verb, name;
        Edits edits;
    };

    void Begin(const char* pszVerb) noexcept;
    void End() noexcept;
    void Mark(const char* pszVerb) noexcept;
    Removals FindRemovals() const;
    bool IsNamingOfNewest(const Edits& edits) const;
    void Keep(Edits edits, const std::string& remark);
    template <class Change>
    void Note(Change change) noexcept;
    void Tell(const std::string& line) const;
    std::string MarkLine(const std::string& what) const;

    template <class Iterator, class Way>
    std::string DoAll(Iterator first, Iterator last, Way make, Way takeBack);

    LongWork& m_work;
    std::string m_markFolder, m_place;
    std::optional<UnderwayMark> m_mark; // of the open step
    std::deque<Done> m_steps;
    std::size_t m_nDone = 0; // so many of the first; the others have been taken back
    Edits m_open;
    std::string m_verb;   // of the open step
    int m_nOpen = 0;      // steps in each other
    bool m_bLost = false; // there was no memory for a part of the open step
    std::function<void(const std::string& line)> m_news;
    std::function<std::string()> m_lastPart;
};

} // namespace editor
