#include "Editor/history/History.h"

#include "Editor/disk/FileNames.h"
#include "Editor/disk/FileText.h"

#include <algorithm>
#include <new>

namespace editor
{
namespace
{

constexpr std::string_view kNew = "new ";
constexpr std::size_t kLongestShown = 40;        // bytes of a name
constexpr std::uint64_t kLargestText = 64 << 20; // bytes; a larger one is none of ours

std::string Objects(int count, const std::string& first)
{
    if (count != 1)
        return std::to_string(count) + " objects";
    const std::string name = ToShown(first);
    const std::string_view start = Shortened(name, kLongestShown);
    return '"' + std::string(start) + (start.size() < name.size() ? "..." : "") + '"';
}

std::string Texts(const std::set<std::string>& paths)
{
    return paths.size() == 1 ? '"' + ToShown(BaseName(*paths.begin())) + '"' : std::to_string(paths.size()) + " phases";
}

const char* UsualVerb(const StepSummary& summary)
{
    if (summary.nCame > 0)
        return "paste";
    return summary.nWent > 0 ? "deletion" : summary.nRenamed > 0 ? "rename" : "change";
}

std::string NameOf(const std::string& verb, const StepSummary& summary)
{
    const bool bMoved = summary.nCame > 0 && summary.nWent > 0;
    const std::string name = bMoved ? "move" : verb.empty() ? UsualVerb(summary) : verb;
    const int nObjects = std::max({summary.nCame, summary.nWent, summary.nRenamed});
    return nObjects > 0 ? name + (name.starts_with(kNew) ? " " : " of ") + Objects(nObjects, summary.object)
                        : name + " in " + Texts(summary.texts);
}

std::string NewsOf(const std::string& name, const StepSummary& summary)
{
    if (summary.nWent > 0 && summary.nCame == 0)
        return Objects(summary.nWent, summary.object) + (summary.nWent == 1
                                                             ? " is in the trash. Ctrl+Z brings it back"
                                                             : " are in the trash. Ctrl+Z brings them back");
    return "Done: " + name + ". Ctrl+Z takes it back";
}

} // namespace

History::Step::Step(History* pHistory, const char* pszVerb) : m_pHistory(pHistory)
{
    if (m_pHistory)
        m_pHistory->Begin(pszVerb);
}

History::Step::~Step()
{
    if (m_pHistory)
        m_pHistory->End();
}

// All of them in that order or, when one cannot be done, none.
template <class Iterator, class Way>
std::string History::DoAll(Iterator first, Iterator last, Way make, Way takeBack)
{
    m_work.GetMeter().SetTotal(static_cast<std::uint64_t>(std::distance(first, last)));
    for (Iterator at = first; at != last; ++at) {
        std::string reason = m_work.IsCancelled() ? kCancelled : Aside(m_work, [&] { return ((**at).*make)(); });
        m_work.GetMeter().Did(1);
        if (reason.empty())
            continue;
        while (at != first)
            Aside(m_work, [&] { ((**--at).*takeBack)(); });
        return reason;
    }
    return {};
}

void History::SetMarks(std::string folder, std::string place)
{
    m_markFolder = std::move(folder);
    m_place = std::move(place);
}

std::string History::MarkLine(const std::string& what) const
{
    return what + " in " + ToShown(m_place);
}

std::string History::Undo(Changes& changes)
{
    if (m_nDone == 0)
        return "there is nothing to undo";
    const Done& step = m_steps[m_nDone - 1];
    const UnderwayMark mark(m_markFolder, MarkLine("taking back the " + step.name));
    std::string reason = DoAll(step.edits.rbegin(), step.edits.rend(), &Edit::Undo, &Edit::Redo);
    for (const auto& pEdit : step.edits)
        pEdit->Tell(changes);
    if (!reason.empty())
        return reason;
    --m_nDone;
    Tell("Undone: " + step.name + ". Ctrl+Y does it again");
    return {};
}

std::string History::Redo(Changes& changes)
{
    if (m_nDone == m_steps.size())
        return "there is nothing to do again";
    const Done& step = m_steps[m_nDone];
    const UnderwayMark mark(m_markFolder, MarkLine("doing again the " + step.name));
    std::string reason = DoAll(step.edits.begin(), step.edits.end(), &Edit::Redo, &Edit::Undo);
    for (const auto& pEdit : step.edits)
        pEdit->Tell(changes);
    if (!reason.empty())
        return reason;
    ++m_nDone;
    Tell("Done again: " + step.name + ". Ctrl+Z takes it back");
    return {};
}

History::Removals History::FindRemovals() const
{
    Removals removals;
    for (std::size_t i = m_nDone; i-- > 0 && removals.empty();) {
        for (const auto& pEdit : m_steps[i].edits) {
            const auto pPlacing = std::dynamic_pointer_cast<PlacingEdit>(pEdit);
            if (pPlacing && pPlacing->IsInTrash())
                removals.push_back(pPlacing);
            if (pPlacing && pPlacing->IsComing()) { // it was moved
                removals.clear();
                break;
            }
        }
    }
    return removals;
}

std::string History::NameToRestore() const
{
    const Removals removals = FindRemovals();
    return removals.empty() ? std::string()
                            : Objects(static_cast<int>(removals.size()), std::string(BaseName(removals[0]->Path())));
}

std::string History::Restore(Changes& changes)
{
    const Removals removals = FindRemovals();
    if (removals.empty())
        return "nothing was removed that could be restored";
    const Step step(this, "restoring");
    std::string reason = DoAll(removals.begin(), removals.end(), &Edit::Undo, &Edit::Redo);
    for (const auto& pRemoval : removals) {
        pRemoval->Tell(changes);
        if (reason.empty())
            Note([&] { m_open.push_back(std::make_shared<RestoringEdit>(pRemoval)); });
    }
    return reason;
}

void History::ForgetNextUndo()
{
    if (m_nDone > 0)
        m_steps.erase(m_steps.begin() + static_cast<std::ptrdiff_t>(--m_nDone));
}

void History::ForgetNextRedo()
{
    if (m_nDone < m_steps.size())
        m_steps.erase(m_steps.begin() + static_cast<std::ptrdiff_t>(m_nDone));
}

void History::Came(const std::string& folder, const std::string& name) noexcept
{
    Note([&] { m_open.push_back(Aside(m_work, [&] { return std::make_unique<PlacingEdit>(folder + '/' + name); })); });
}

void History::Went(const std::string& path, const TrashPlace& place) noexcept
{
    Note([&] { m_open.push_back(std::make_unique<PlacingEdit>(path, place)); });
}

void History::CameBack(const std::string& path) noexcept
{
    const auto last = std::find_if(m_open.rbegin(), m_open.rend(), [&](const auto& pEdit) {
        const auto* const pPlacing = dynamic_cast<const PlacingEdit*>(pEdit.get());
        return pPlacing && !pPlacing->IsComing() && pPlacing->Path() == path;
    });
    if (last != m_open.rend())
        m_open.erase(std::next(last).base());
}

void History::Renamed(const std::string& folder, const std::string& former, const std::string& name) noexcept
{
    Note([&] { m_open.push_back(std::make_unique<RenamingEdit>(folder, former, name)); });
}

// However often a text changes in a step, it is one change.
void History::Rewrote(const std::string& path, const TextState& former) noexcept
{
    Note([&] {
        TextState now;
        if (ReadText(path, kLargestText, now) != 0)
            return;
        auto* const pLast = m_open.empty() ? nullptr : dynamic_cast<RewritingEdit*>(m_open.back().get());
        if (!pLast || pLast->Path() != path)
            m_open.push_back(std::make_unique<RewritingEdit>(path, former, now));
        else if (pLast->IsFrom(now))
            m_open.pop_back();
        else
            pLast->GoOnTo(now);
    });
}

void History::Unsaved(const std::string& path, const UnsavedEdit::Text& former, const UnsavedEdit::Text& now) noexcept
{
    if (former != now)
        Note([&] { m_open.push_back(std::make_unique<UnsavedEdit>(path, former, now)); });
}

template <class Change>
void History::Note(Change change) noexcept
{
    const Step alone(this);
    try {
        change();
    } catch (const std::bad_alloc&) {
        m_bLost = true;
    }
}

void History::Begin(const char* pszVerb) noexcept
{
    if (m_nOpen++ == 0)
        Mark(*pszVerb ? pszVerb : "change");
    if (m_verb.empty())
        m_verb = pszVerb;
}

void History::Mark(const char* pszVerb) noexcept
try {
    m_mark.emplace(m_markFolder, MarkLine(pszVerb));
} catch (const std::bad_alloc&) {
    return; // the step is done all the same
}

void History::End() noexcept
{
    if (m_nOpen > 1) {
        --m_nOpen;
        return;
    }
    try {
        const std::string remark = m_lastPart && !m_open.empty() ? m_lastPart() : std::string();
        if (!m_open.empty() && !m_bLost)
            Keep(std::exchange(m_open, {}), remark);
    } catch (const std::bad_alloc&) {
        m_nDone = std::min(m_nDone, m_steps.size());
    }
    m_open.clear();
    m_mark.reset();
    m_nOpen = 0;
    m_verb.clear();
    m_bLost = false;
}

bool History::IsNamingOfNewest(const Edits& edits) const
{
    if (m_nDone == 0 || !m_steps[m_nDone - 1].verb.starts_with(kNew) || m_steps[m_nDone - 1].edits.size() != 1)
        return false;
    const auto* const pRenaming = dynamic_cast<const RenamingEdit*>(edits.front().get());
    const auto* const pComing = dynamic_cast<const PlacingEdit*>(m_steps[m_nDone - 1].edits.front().get());
    return pRenaming && pComing && pRenaming->FormerPath() == pComing->Path();
}

void History::Keep(Edits edits, const std::string& remark)
{
    if (IsNamingOfNewest(edits)) {
        m_verb = m_steps[m_nDone - 1].verb;
        edits.insert(edits.begin(), m_steps[m_nDone - 1].edits.front());
        --m_nDone;
    }
    StepSummary summary;
    for (const auto& pEdit : edits)
        pEdit->CountIn(summary);
    std::string name = NameOf(m_verb, summary);
    m_steps.resize(m_nDone);
    if (m_steps.size() == kMostSteps) {
        m_steps.pop_front();
        --m_nDone;
    }
    m_steps.push_back({m_verb, std::move(name), std::move(edits)});
    ++m_nDone;
    Tell(NewsOf(m_steps.back().name + remark, summary));
}

void History::Tell(const std::string& line) const
{
    if (m_news)
        m_news(line);
}

} // namespace editor
