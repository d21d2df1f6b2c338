// The objects of what is shown whose names hold what is typed.
#pragma once

#include "Editor/content/Content.h"
#include "Editor/widgets/TextField.h"

namespace editor
{

// Its field stands in the list's caption while it is on. It ends with Escape, and with what is shown. Objects that come
// meanwhile are shown whatever they are called.
class Filter
{
public:
    Filter(Content& content, std::function<void()> changed); // borrowed

    bool Create();
    void Begin();  // the field has the focus; what stands there is selected
    void End();    // everything is shown again, and the list has the focus
    void Forget(); // what is shown next is shown whole
    bool IsOn() const { return m_field.IsWindowVisible(); }
    bool Hides() const { return !m_key.empty(); }
    std::string GetText() const { return m_field.GetText(); }
    CTextField& GetField() { return m_field; }

private:
    void Apply(const std::string& text);
    void GoToList();
    bool Shows(IAtom* pAtom) const;

    Content& m_content;
    const std::function<void()> m_changed;
    CTextField m_field;
    std::string m_key; // what names are to hold, without regard to case; empty: anything
};

} // namespace editor
