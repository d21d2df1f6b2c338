#include "Editor/content/PropertiesPane.h"

#include "Toolkit/graphics/SysColors.h"

#include <algorithm>
#include <utility>

namespace editor
{
namespace
{

constexpr UINT kUpdate = WM_USER;
constexpr CRect kDelayField(104, 11, 192, 29), kRepeatField(288, 11, 376, 29);

void DrawField(HDC hdc, CRect rect, const char* pszBefore, const char* pszBehind)
{
    rect.InflateRect(4, 3);
    FillField(hdc, rect);
    const COLORREF ink = TextColor(COLOR_WINDOWTEXT, BarColor());
    DrawTextLine(hdc, {rect.left - 120, rect.top, rect.left - kSpace, rect.bottom}, pszBefore, ink, Align::Right);
    DrawTextLine(hdc, {rect.right + kSpace, rect.top, rect.right + 48, rect.bottom}, pszBehind, ink);
}

} // namespace

BEGIN_MESSAGE_MAP(CPropertiesPane, hostkit::CWidget)
    ON_MESSAGE(kUpdate, OnUpdate)
END_MESSAGE_MAP()

CPropertiesPane::CPropertiesPane(Events events)
    : CWidget(WS_VISIBLE | WS_CLIPCHILDREN),
      m_events(std::move(events)),
      m_delay(FieldEvents(&PhaseTiming::delay, [this] { m_repeat.SetFocus(); })),
      m_repeat(FieldEvents(&PhaseTiming::repeat, [this] { m_events.leave(); }))
{}

BOOL CPropertiesPane::Create(CWnd* pParent)
{
    constexpr UINT kDelayID = 1, kRepeatID = 2;
    if (!CWidget::Create(pParent) || !m_delay.Create(WS_CHILD, kDelayField, this, kDelayID) ||
        !m_repeat.Create(WS_CHILD, kRepeatField, this, kRepeatID))
        return FALSE;
    SetAccessibleName(m_delay.m_hWnd, "Delay");
    SetAccessibleName(m_repeat.m_hWnd, "Repeat");
    m_delay.SetRange(0, PhaseTiming::kMostDelay);
    m_repeat.SetRange(0, PhaseTiming::kMostRepeats);
    return TRUE;
}

void CPropertiesPane::Update()
{
    if (!std::exchange(m_bUpdatePosted, true))
        PostMessage(kUpdate);
}

// What is being typed goes to the phases it was begun for.
LRESULT CPropertiesPane::OnUpdate(WPARAM, LPARAM)
{
    m_bUpdatePosted = false;
    if (m_delay.IsTouched() || m_repeat.IsTouched())
        return 0;
    m_phases = m_events.ask();
    ShowNumbers();
    return 0;
}

void CPropertiesPane::FocusFields()
{
    if (m_delay.IsWindowVisible())
        m_delay.SetFocus();
}

std::string CPropertiesPane::GetText() const
{
    if (m_phases.empty())
        return "Select a phase to set its timing.";
    const bool bModified = std::any_of(m_phases.begin(), m_phases.end(), [](const auto& p) { return p->IsModified(); });
    std::string text =
        m_phases.size() == 1 ? m_phases.front()->ShownName() : std::to_string(m_phases.size()) + " phases";
    return bModified ? text + ": not saved yet (Ctrl+S)" : text;
}

void CPropertiesPane::Draw(HDC hdc)
{
    CRect text = Client();
    text.DeflateRect(2 * kSpace, 0);
    if (!m_phases.empty()) {
        DrawField(hdc, kDelayField, "Frame delay", "ms");
        const bool bOnce = std::ranges::all_of(m_phases, [](const auto& p) { return p->GetTiming().repeat == 1; });
        DrawField(hdc, kRepeatField, "Repeat", bOnce ? "time" : "times");
        text.left = kRepeatField.right + 64;
    }
    DrawTextLine(hdc, text, GetText(), TextColor(COLOR_GRAYTEXT, BarColor()),
                 m_phases.empty() ? Align::Left : Align::Right);
}

CNumberField::Events CPropertiesPane::FieldEvents(int PhaseTiming::*number, std::function<void()> next)
{
    return {[this, number](int nValue) { EnterNumber(number, nValue); }, [this] { ShowNumbers(); },
            [this] { m_events.leave(); }, std::move(next)};
}

void CPropertiesPane::EnterNumber(int PhaseTiming::*number, int nValue)
{
    Phases phases; // those told may select others
    for (const auto& pPhase : m_phases)
        phases.push_back(CStubRef<CPhase>::Share(pPhase.Get()));
    m_events.enter(phases, number, nValue);
    ShowNumbers();
    Update();
}

void CPropertiesPane::ShowNumbers()
{
    const int nShow = m_phases.empty() ? SW_HIDE : SW_SHOW;
    if (m_phases.empty() && HasFocus())
        m_events.leave();
    m_delay.ShowWindow(nShow);
    m_repeat.ShowWindow(nShow);
    if (!m_phases.empty()) {
        ShowNumber(m_delay, &PhaseTiming::delay);
        ShowNumber(m_repeat, &PhaseTiming::repeat);
    }
    Invalidate();
}

void CPropertiesPane::ShowNumber(CNumberField& field, int PhaseTiming::*number)
{
    const int nFirst = m_phases.front()->GetTiming().*number;
    const bool bSame = std::all_of(m_phases.begin(), m_phases.end(),
                                   [&](const auto& pPhase) { return pPhase->GetTiming().*number == nFirst; });
    if (bSame)
        field.SetValue(nFirst);
    else
        field.SetDifferent();
    if (::GetFocus() == field.m_hWnd)
        field.SetSel(0, -1);
}

} // namespace editor
