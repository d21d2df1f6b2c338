#include "Editor/content/Filter.h"

#include "Editor/disk/FileText.h"
#include "Editor/model/Member.h"
#include "Toolkit/access/Accessible.h"

namespace editor
{

Filter::Filter(Content& content, std::function<void()> changed)
    : m_content(content),
      m_changed(std::move(changed)),
      m_field({.change = [this](const std::string& text) { Apply(text); },
               .enter = [this](const std::string&) { GoToList(); },
               .leave = [this] { End(); },
               .other = [this](UINT vkey) { return vkey == VK_DOWN && (GoToList(), true); },
               .lost = {}})
{}

bool Filter::Create()
{
    m_content.SetFilter([this](IAtom* pAtom) { return Shows(pAtom); });
    if (!m_field.Create(WS_CHILD, CRect(), &m_content.GetListPane(), 1))
        return false;
    SetAccessibleName(m_field.m_hWnd, "Show names with");
    m_content.GetListPane().SetField(&m_field, kFieldMargin);
    return true;
}

void Filter::Begin()
{
    m_content.GetListPane().ShowField(true);
    m_field.SetText(m_field.GetText());
    m_field.SetFocus();
    m_changed();
}

void Filter::End()
{
    const bool bReload = Hides();
    Forget();
    if (bReload)
        m_content.ReloadList();
    m_content.TakeFocus();
    m_changed();
}

void Filter::Forget()
{
    m_key.clear();
    m_field.SetText({});
    m_content.GetListPane().ShowField(false);
}

void Filter::Apply(const std::string& text)
{
    m_key = KeyOf(text);
    m_content.ReloadList();
    m_changed();
}

// The first row is at hand where none was selected.
void Filter::GoToList()
{
    CEditorList& list = m_content.GetList();
    m_content.TakeFocus();
    if (list.GetSelectedCount() == 0 && list.GetItemCount() > 0)
        list.SetItemState(0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
}

bool Filter::Shows(IAtom* pAtom) const
{
    const CMember* const pMember = m_key.empty() ? nullptr : CMember::Of(pAtom);
    return !pMember || KeyOf(pMember->ShownName()).find(m_key) != std::string::npos;
}

} // namespace editor
