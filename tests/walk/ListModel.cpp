#include "tests/walk/ListModel.h"

#include <algorithm>

namespace
{

int Index(std::size_t n)
{
    return static_cast<int>(n);
}

} // namespace

std::unique_ptr<ViewModel> NewModelOfList(Model& model, int view)
{
    return std::make_unique<ListModel>(model, view);
}

void ListModel::Take(Atom* pContainer, const Rows& rows, bool bPaneShown)
{
    isAlive = isVisible = true;
    m_bPaneShown = bPaneShown;
    m_pContainer = pContainer;
    for (const Row& row : rows) {
        if (row.isFocused)
            m_focused = Index(m_atoms.size());
        m_atoms.push_back(row.pAtom);
        m_selected.push_back(row.isSelected);
    }
}

Rows ListModel::Shows() const
{
    Rows rows;
    for (int i = 0; i < CountRows(); ++i)
        rows.push_back({.pAtom = AtomAt(i),
                        .pContainer = m_atoms.empty() ? nullptr : m_pContainer,
                        .isSelected = IsSelected(i),
                        .isFocused = i == m_focused});
    return rows;
}

void ListModel::Hear(Op op, Atom* pAtom, Atom* pContainer)
{
    if (!m_bSync)
        return;
    const bool bShown = pContainer && pContainer == m_pContainer;
    switch (op) {
    case Op::Entered:
        return Load(pAtom);
    case Op::Create:
        if (pAtom && bShown)
            Append(pAtom);
        break;
    case Op::Delete:
        if (bShown && pAtom)
            RemoveRow(pAtom);
        else if (bShown) {
            Load(pContainer);
            Tell(Op::Deselected, nullptr, pContainer);
        }
        break;
    case Op::Selected:
    case Op::Deselected:
        return Mirror(pAtom, pContainer, op == Op::Selected);
    default:
        break;
    }
}

void ListModel::Load(Atom* pAtom)
{
    if (!m_bSync)
        return;
    Clear();
    if (!pAtom || !pAtom->isContainer) {
        if (std::exchange(m_bPaneShown, false))
            m_model.Say(m_view, Op::RemovePane, nullptr, nullptr);
        return;
    }
    m_pContainer = pAtom;
    for (const AtomRef& pMember : pAtom->members)
        m_atoms.push_back(pMember.Get());
    std::ranges::stable_sort(m_atoms, [](const Atom* a, const Atom* b) { return CompareAtoms(a, b) < 0; });
    SetRowCount(m_atoms.size());
    if (!std::exchange(m_bPaneShown, true))
        m_model.Say(m_view, Op::AddPane, nullptr, nullptr);
}

void ListModel::Clear()
{
    if (IsEdited())
        m_model.EndEdit(false);
    m_atoms.clear();
    SetRowCount(0);
    m_pContainer = nullptr;
}

// As many rows as the container has members, which are fewer than the atoms while one of them is being renamed.
void ListModel::Append(Atom* pAtom)
{
    m_atoms.push_back(pAtom);
    SetRowCount(m_pContainer->members.size());
    ClearSelection();
    Change(CountRows() - 1, kSelected | kFocused, kSelected | kFocused);
}

// The states stay with the row numbers until the selection is cleared.
void ListModel::RemoveRow(Atom* pAtom)
{
    const int row = FindRow(pAtom);
    if (row < 0)
        return;
    m_atoms.erase(m_atoms.begin() + row);
    if (IsEdited() && m_edited == row)
        m_model.EndEdit(false);
    else if (IsEdited() && m_edited > row)
        --m_edited;
    SetRowCount(m_pContainer->members.size());
    ClearSelection();
    Change(std::min(row, CountRows() - 1), kSelected | kFocused, kSelected | kFocused);
}

void ListModel::SetRowCount(std::size_t nCount)
{
    m_selected.resize(nCount);
    if (m_focused >= Index(nCount))
        m_focused = -1;
    if (m_anchor >= Index(nCount))
        m_anchor = -1;
    if (IsEdited() && m_edited >= Index(nCount))
        m_model.EndEdit(false);
}

Atom* ListModel::AtomAt(int row) const
{
    return row >= 0 && row < Index(m_atoms.size()) ? m_atoms[static_cast<std::size_t>(row)] : nullptr;
}

// The first row that compares equal is the atom's.
int ListModel::FindRow(const Atom* pAtom) const
{
    const auto found = std::ranges::find_if(m_atoms, [&](const Atom* p) { return CompareAtoms(p, pAtom) == 0; });
    return found == m_atoms.end() ? -1 : Index(static_cast<std::size_t>(found - m_atoms.begin()));
}

void ListModel::BeginLabel(int row)
{
    labelDue.reset();
    if (row >= CountRows() || !TakeFocus())
        return;
    const Atom* const pAtom = AtomAt(row);
    if (!pAtom || !(m_pContainer->permissions & APF_RENAME) || !Ask(Op::PreRename, pAtom, m_pContainer))
        return;
    m_edited = row;
    m_model.OpenEdit(m_view, pAtom);
}

void ListModel::BeginRename()
{
    const int row = m_focused;
    if (row < 0 || !m_bSync)
        return;
    if (IsEdited())
        m_model.EndEdit(true);
    BeginLabel(row);
}

void ListModel::BeginDueLabel()
{
    if (m_focused == m_clicked && CountSelected() == 1 && IsSelected(m_clicked))
        BeginLabel(m_clicked);
}
