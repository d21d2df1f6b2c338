// What can be set of the selected phases, and saving it.
#include "Editor/frame/MainFrame.h"
#include "Editor/resources/EditorResources.h"
#include "Toolkit/window/MessageBox.h"

#include <algorithm>

namespace editor
{

void CMainFrame::UpdateStatus()
{
    m_statusBar.Invalidate();
    m_properties.Update();
}

// Without a selection, the phase that is shown.
CPropertiesPane::Phases CMainFrame::SelectedPhases() const
{
    CPropertiesPane::Phases phases;
    const auto add = [](IAtom* pAtom, IAtomContainer*, void* context) -> BOOL {
        if (auto* const pPhase = dynamic_cast<CPhase*>(CMember::Of(pAtom)))
            static_cast<CPropertiesPane::Phases*>(context)->push_back(CStubRef<CPhase>::Share(pPhase));
        return TRUE;
    };
    m_editor.EnumActivePairs(add, &phases);
    auto* const pShown = dynamic_cast<CPhase*>(Shown());
    if (phases.empty() && pShown)
        phases.push_back(CStubRef<CPhase>::Share(pShown));
    return phases;
}

void CMainFrame::NoteModified(const CPropertiesPane::Phases& phases)
{
    for (const auto& pPhase : phases) {
        const bool bKnown =
            std::any_of(m_modified.begin(), m_modified.end(), [&](const auto& p) { return p.Get() == pPhase.Get(); });
        if (!bKnown)
            m_modified.push_back(CStubRef<CPhase>::Share(pPhase.Get()));
        m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnChangeAtom, pPhase.Get(), pPhase->Container(), 0);
    }
}

void CMainFrame::ForgetModified(IAtom* pGone, CMember* pRenamed)
{
    const auto at = std::find_if(m_modified.begin(), m_modified.end(),
                                 [&](const auto& pPhase) { return static_cast<IAtom*>(pPhase.Get()) == pGone; });
    if (at == m_modified.end())
        return;
    auto* const pNow = dynamic_cast<CPhase*>(pRenamed);
    if (!pNow) {
        m_modified.erase(at);
        return;
    }
    if ((*at)->IsModified())
        pNow->SetTiming((*at)->GetTiming());
    *at = CStubRef<CPhase>::Share(pNow);
}

std::string CMainFrame::Save()
{
    std::string failure;
    CPropertiesPane::Phases left;
    for (auto& pPhase : std::exchange(m_modified, {})) {
        const std::string reason = pPhase->SaveTiming();
        if (failure.empty())
            failure = reason;
        m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnChangeAtom, pPhase.Get(), pPhase->Container(), 0);
        if (!reason.empty())
            left.push_back(std::move(pPhase));
    }
    m_modified = std::move(left);
    UpdateStatus();
    return failure;
}

void CMainFrame::SaveByKey()
{
    if (m_properties.HasFocus())
        FocusContent(); // which enters what was typed
    ShowFailure(IDS_SAVE_FAILED, Save());
}

bool CMainFrame::MayClose()
{
    if (m_properties.HasFocus())
        FocusContent();
    const auto nModified =
        std::count_if(m_modified.begin(), m_modified.end(), [](const auto& pPhase) { return pPhase->IsModified(); });
    if (nModified == 0)
        return true;
    const std::string question =
        nModified == 1 ? "Save the timing of the phase that was changed?"
                       : "Save the timing of the " + std::to_string(nModified) + " phases that were changed?";
    const int nAnswer = AfxMessageBox(question.c_str(), MB_YESNOCANCEL | MB_ICONQUESTION);
    if (nAnswer != IDYES)
        return nAnswer == IDNO;
    const std::string failure = Save();
    ShowFailure(IDS_SAVE_FAILED, failure);
    return failure.empty();
}

} // namespace editor
