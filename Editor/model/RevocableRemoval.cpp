#include "Editor/model/RevocableRemoval.h"

#include "Editor/model/PhaseText.h"

#include <algorithm>

namespace editor
{

RevocableRemoval* RevocableRemoval::s_pCurrent = nullptr;

// A phase whose file is not what is shown of it is none whose lines have places.
RevocableRemoval::RevocableRemoval(const std::vector<CMember*>& members)
{
    for (CMember* const pMember : members) {
        auto* const pPhase = dynamic_cast<CPhase*>(pMember->Container());
        const int nLine = pPhase ? pPhase->GetPosition(dynamic_cast<IImageLink*>(pMember)) : -1;
        if (nLine < 0)
            continue;
        auto whole =
            std::find_if(m_wholes.begin(), m_wholes.end(), [&](const auto& w) { return w.pPhase.Get() == pPhase; });
        if (whole == m_wholes.end()) {
            whole = m_wholes.insert(whole, {CStubRef<CPhase>::Share(pPhase), {}, {}});
            ReadPhaseText(pPhase->Path(), whole->text);
        }
        if (PictureLines(whole->text).size() == pPhase->GetCount())
            whole->lines.emplace(pMember, static_cast<std::size_t>(nLine));
    }
    s_pCurrent = this;
}

void RevocableRemoval::Begin(CMember& member, MemberKind kind)
{
    std::size_t nLine = std::string::npos;
    for (const Whole& whole : m_wholes)
        if (const auto line = whole.lines.find(&member); line != whole.lines.end())
            nLine = line->second;
    m_removed.push_back({CStubRef<CMember>::Share(&member),
                         member.GetID(),
                         kind,
                         std::string(member.Name()),
                         member.Path(),
                         {},
                         nLine});
}

void RevocableRemoval::End(bool bRemoved, const TrashPlace& place)
{
    if (!bRemoved) {
        m_removed.pop_back();
        return;
    }
    m_removed.back().bGone = true;
    m_removed.back().place = place;
}

std::vector<std::string> RevocableRemoval::TrashedPaths() const
{
    std::vector<std::string> paths;
    for (const Removed& removed : m_removed)
        if (removed.bGone && !removed.place.name.empty())
            paths.push_back(removed.place.trash + "/files/" + removed.place.name);
    return paths;
}

std::optional<RevocableRemoval::Returned> RevocableRemoval::BringBack(CContainer& container, std::string_view name)
{
    const auto removed = std::find_if(m_removed.begin(), m_removed.end(), [&](const Removed& r) {
        return r.bGone && r.pMember->Container() == &container && r.name == name;
    });
    if (removed == m_removed.end())
        return std::nullopt;
    if (auto* const pPhase = dynamic_cast<CPhase*>(&container))
        return BringToPhase(*removed, *pPhase);
    if (!BringFromTrash(*removed))
        return std::nullopt;
    return Returned{CStubRef<CMember>::Share(removed->pMember.Get()), removed->dwID, removed->kind};
}

bool RevocableRemoval::BringFromTrash(Removed& removed)
{
    removed.bGone = false; // one way or the other
    return !removed.place.name.empty() && TakeFromTrash(removed.place, removed.path) == 0;
}

std::optional<RevocableRemoval::Returned> RevocableRemoval::BringToPhase(Removed& removed, CPhase& phase)
{
    const auto whole =
        std::find_if(m_wholes.begin(), m_wholes.end(), [&](const Whole& w) { return w.pPhase.Get() == &phase; });
    const bool bHasPlace = whole != m_wholes.end() && removed.nLine != std::string::npos;
    const std::string before = bHasPlace ? TextNow(*whole) : std::string();
    removed.bGone = false;
    if (!bHasPlace || !phase.ReplaceText(before, TextNow(*whole)))
        return std::nullopt;
    const auto nMissing = std::count_if(m_removed.begin(), m_removed.end(), [&](const Removed& r) {
        return r.bGone && r.pMember->Container() == &phase && r.nLine < removed.nLine;
    });
    return Returned{nullptr, 0, MemberKind::Link,
                    static_cast<UINT>(removed.nLine - static_cast<std::size_t>(nMissing))};
}

std::string RevocableRemoval::TextNow(const Whole& whole) const
{
    const std::vector<PictureLine> lines = PictureLines(whole.text);
    std::vector<bool> gone(lines.size());
    for (const Removed& removed : m_removed)
        if (removed.bGone && removed.nLine < lines.size() && removed.pMember->Container() == whole.pPhase.Get())
            gone[removed.nLine] = true;
    std::string text;
    std::size_t done = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!gone[i])
            continue;
        text.append(whole.text, done, lines[i].at - done);
        done = lines[i].at + lines[i].size;
    }
    return text.append(whole.text, done, whole.text.npos);
}

} // namespace editor
