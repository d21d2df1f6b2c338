// A field for a number that counts once it has been entered.
#pragma once

#include "Views/controls/DigitalEdit.h"

#include <functional>

namespace editor
{

// What was typed or pasted is entered by Return, by Tab, or by leaving the field; Escape takes it back. A field that
// was only looked at, also one that stands for several numbers, changes nothing.
class CNumberField : public CDigitalEdit
{
public:
    struct Events
    {
        std::function<void(int nValue)> enter;
        std::function<void()> showAgain; // the value that counts
        std::function<void()> leave;     // where the focus goes by Return and Escape
        std::function<void()> next;      // and by Tab
    };

    explicit CNumberField(Events events) : m_events(std::move(events)) {}

    bool IsTouched() const { return m_bTouched; } // something was typed that is not entered yet

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void Enter();
    void TakeBack();
    bool HandleKey(UINT vkey);

    const Events m_events;
    bool m_bTouched = false;
};

} // namespace editor
