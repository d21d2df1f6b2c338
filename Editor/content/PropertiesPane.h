// The strip with what can be set of the selected phases.
#pragma once

#include "Editor/model/Phase.h"
#include "Editor/widgets/Look.h"
#include "Editor/widgets/NumberField.h"
#include "HostKit/frame/Widget.h"
#include "Toolkit/access/Accessible.h"

#include <functional>
#include <string>
#include <vector>

namespace editor
{

// Where several phases differ in a number, its field says so, and a number that is entered goes to all of them. What
// was entered is kept in the phases, which are modified until they are saved.
class CPropertiesPane : public hostkit::CWidget, public toolkit::Accessible
{
public:
    using Phases = std::vector<CStubRef<CPhase>>;
    struct Events
    {
        std::function<Phases()> ask; // which phases the fields stand for
        std::function<void(const Phases& phases, int PhaseTiming::*number, int nValue)> enter; // for all of these
        std::function<void()> leave; // the focus goes back to the views
    };

    explicit CPropertiesPane(Events events);
    ~CPropertiesPane() override { DestroyWindow(); }

    BOOL Create(CWnd* pParent);
    void Update(); // soon, and once however often it is called: the selection or its numbers have changed
    void FocusFields();
    bool HasPhases() const { return !m_phases.empty(); }
    bool HasFocus() const { return ::IsChild(m_hWnd, ::GetFocus()); }
    CNumberField& GetDelay() { return m_delay; }
    CNumberField& GetRepeat() { return m_repeat; }
    std::string GetText() const; // beside the fields

    std::string AccName(LPARAM) override { return GetText(); }

protected:
    void Erase(HDC hdc) override { FillBottomBar(hdc, Client()); }
    void Draw(HDC hdc) override;
    afx_msg LRESULT OnUpdate(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    CNumberField::Events FieldEvents(int PhaseTiming::*number, std::function<void()> next);
    void EnterNumber(int PhaseTiming::*number, int nValue);
    void ShowNumbers();
    void ShowNumber(CNumberField& field, int PhaseTiming::*number);

    const Events m_events;
    CNumberField m_delay, m_repeat;
    Phases m_phases;
    bool m_bUpdatePosted = false;
};

} // namespace editor
