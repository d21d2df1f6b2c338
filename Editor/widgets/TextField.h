// A field for a line of text that is typed for a while.
#pragma once

#include "Toolkit/controls/edit/Edit.h"

#include <functional>
#include <string>

namespace editor
{

// Where a field with a line around it stands in a bar, the text inside that has this margin.
inline constexpr CSize kFieldMargin(6, 5);

bool MayEdit(UINT message); // a field's text, on the user's behalf

class CTextField : public CEdit
{
public:
    struct Events // any may be empty
    {
        std::function<void(const std::string& text)> change; // by the user
        std::function<void(const std::string& text)> enter;  // Return
        std::function<void()> leave;                         // Escape
        std::function<bool(UINT vkey)> other;                // a key before the field has it; true: it is used
        std::function<void()> lost;                          // the focus has gone elsewhere
    };
    explicit CTextField(Events events) : m_events(std::move(events)) {}

    void SetText(const std::string& text); // all of it selected; nobody is told
    std::string GetText() const { return GetWindowText().GetString(); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    bool HandleKey(UINT vkey);

    const Events m_events;
    std::string m_known; // the text that was told or set last
};

} // namespace editor
