#include "Toolkit/controls/items/LabelEditing.h"

#include "Toolkit/base/Ticks.h"
#include "Toolkit/controls/items/LabelField.h"

#include <utility>

namespace toolkit
{

void LabelEditing::Begin(LPARAM item)
{
    StopWaiting();
    if (!m_window.Is(m_style) || !m_host.HasItem(item))
        return;
    m_host.CancelPress();
    m_window.TakeFocus();
    if (!m_window.IsFocused() || !m_host.HasItem(item))
        return; // refused
    m_host.ShowItem(item);
    const std::optional<std::string> text = m_host.AskLabel(item);
    if (!text || m_hField || !m_host.HasItem(item))
        return;
    m_item = item;
    m_host.RedrawItem(item);
    m_hField = CreateLabelField(m_window.m_hWnd, *text, m_align);
    if (!m_hField)
        return;
    Place();
    ShowWindow(m_hField, SW_SHOW);
    SetFocus(m_hField);
}

void LabelEditing::Finish(bool taken)
{
    if (!m_hField)
        return;
    m_host.RedrawItem(m_item);
    const LPARAM item = m_item;
    const HWND hField = std::exchange(m_hField, nullptr);
    std::string text(GetWindowText(hField).View());
    DestroyWindow(hField); // the focus comes back, unless it is elsewhere already
    m_host.TellLabel(item, text, taken);
}

void LabelEditing::MoveTo(LPARAM item)
{
    m_host.RedrawItem(std::exchange(m_item, item));
    m_host.RedrawItem(item);
    Place();
}

void LabelEditing::Place()
{
    if (!m_hField)
        return;
    const CRect box = m_host.FieldBox(m_item, LabelFieldSize(m_hField));
    MoveWindow(m_hField, box.left, box.top, box.Width(), box.Height());
}

// A field that lost the focus while its window was left ends when the user comes back to something else.
void LabelEditing::GotFocus()
{
    m_focusedAt = GetTickCount();
    Finish(true);
}

// A click into a window that was not the active one comes right behind the focus that it brings.
bool LabelEditing::IsMeant(LPARAM item) const
{
    return m_window.Is(m_style) && m_host.IsSelected(item) && GetTickCount() - m_focusedAt >= GetDoubleClickTime();
}

void LabelEditing::BeginLater(LPARAM item)
{
    StopWaiting();
    m_clicked = item;
    m_hClock = StartLabelClock(m_window.m_hWnd);
}

void LabelEditing::StopWaiting()
{
    if (const HWND hClock = std::exchange(m_hClock, nullptr))
        DestroyWindow(hClock);
}

void LabelEditing::WaitIsOver()
{
    StopWaiting();
    if (m_host.IsSelected(m_clicked) && m_window.IsFocused() && !m_host.IsPressed())
        Begin(m_clicked);
}

} // namespace toolkit
