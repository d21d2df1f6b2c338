#include "Editor/frame/ModifiedPhases.h"

#include "Editor/frame/Navigation.h"

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
        TellOfChange(pPhase.Get());
    }
}

void ModifiedPhases::TellOfChange(CPhase* pPhase)
{
    m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnChangeAtom, pPhase, pPhase->Container(), 0);
}

void ModifiedPhases::Forget(IAtom* pGone, CMember* pRenamed)
{
    const auto at = std::find_if(m_phases.begin(), m_phases.end(),
                                 [&](const auto& pPhase) { return static_cast<IAtom*>(pPhase.Get()) == pGone; });
    if (at == m_phases.end())
        return;
    auto* const pNow = dynamic_cast<CPhase*>(pRenamed);
    if (!pNow) {
        m_phases.erase(at);
        return;
    }
    if ((*at)->IsModified())
        pNow->SetTiming((*at)->GetTiming());
    *at = CStubRef<CPhase>::Share(pNow);
}

void ModifiedPhases::Follow(const std::string& from, CMember* pRenamed)
{
    const auto at =
        std::find_if(m_phases.begin(), m_phases.end(), [&](const auto& pPhase) { return pPhase->Path() == from; });
    if (at != m_phases.end())
        Forget(CStubRef<CPhase>::Share(at->Get()).Get(), pRenamed);
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
        TellOfChange(pPhase.Get());
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
