#include "Editor/content/ModifiedPhases.h"

#include "Editor/content/Navigation.h"
#include "Editor/disk/FileText.h"

#include <algorithm>
#include <utility>

namespace editor
{

void ModifiedPhases::Enter(const Phases& phases, int PhaseTiming::*number, int nValue)
{
    const History::Step step(&m_editor.GetHistory(), "timing");
    for (const auto& pPhase : phases) {
        PhaseTiming timing = pPhase->GetTiming();
        timing.*number = nValue;
        pPhase->ChangeTiming(timing);
    }
    Add(phases);
}

void ModifiedPhases::Add(const Phases& phases)
{
    for (const auto& pPhase : phases) {
        const bool bKnown =
            std::any_of(m_phases.begin(), m_phases.end(), [&](const auto& p) { return p.Get() == pPhase.Get(); });
        if (!bKnown)
            m_phases.push_back(CStubRef<CPhase>::Share(pPhase.Get()));
        m_editor.Tell(&IAEStateHandler::OnChangeAtom, pPhase.Get());
    }
}

void ModifiedPhases::Forget(IAtom* pGone)
{
    std::erase_if(m_phases, [&](const auto& pPhase) { return static_cast<IAtom*>(pPhase.Get()) == pGone; });
}

void ModifiedPhases::Follow(const std::string& from, const std::string& to, CLibrary& library)
{
    for (auto& pPhase : m_phases) {
        const std::string path = pPhase->Path();
        if (!IsOrIsBelow(path, from))
            continue;
        const CStubRef<CMember> pMember = library.Find(to + path.substr(from.size()));
        auto* const pNow = dynamic_cast<CPhase*>(pMember.Get());
        if (!pNow || pNow == pPhase.Get())
            continue;
        if (pPhase->IsModified())
            pNow->SetTiming(pPhase->GetTiming());
        pPhase = CStubRef<CPhase>::Share(pNow);
    }
}

void ModifiedPhases::ForgetGone()
{
    std::erase_if(m_phases, [](const auto& pPhase) { return WhatIsLeftOf(pPhase.Get()) != pPhase.Get(); });
}

std::string ModifiedPhases::Save()
{
    const History::Step step(&m_editor.GetHistory(), "saving");
    std::string failure;
    Phases left;
    for (auto& pPhase : std::exchange(m_phases, {})) {
        const std::string reason = pPhase->SaveTiming();
        if (failure.empty())
            failure = reason;
        m_editor.Tell(&IAEStateHandler::OnChangeAtom, pPhase.Get());
        if (!reason.empty())
            left.push_back(std::move(pPhase));
    }
    m_phases = std::move(left);
    return failure;
}

std::string ModifiedPhases::SaveQuestion() const
{
    const auto nModified =
        std::count_if(m_phases.begin(), m_phases.end(), [](const auto& pPhase) { return pPhase->IsModified(); });
    if (nModified == 0)
        return {};
    return nModified == 1 ? "Save the timing of the phase that was changed?"
                          : "Save the timing of the " + std::to_string(nModified) + " phases that were changed?";
}

} // namespace editor
