// A list: rows in the order of names, a selection that everyone hears of.
#pragma once

#include "tests/walk/Model.h"

class ListModel final : public ViewModel
{
public:
    using ViewModel::ViewModel;

    void WindowGoes() override { Clear(); }
    void Take(Atom* pContainer, const Rows& rows, bool bPaneShown) override;
    void Hear(Op op, Atom* pAtom, Atom* pContainer) override;
    bool AnnounceSelection() override;
    void Click(const Hit& hit, Keys keys, bool right) override;
    void PressAgain(const Hit& hit) override;
    void Key(UINT vkey, Keys keys) override;
    void Type(char c) override;
    void BeginRename() override;
    void BeginDueLabel() override;
    std::pair<Atom*, Atom*> Edited() const override { return {AtomAt(m_edited), m_pContainer}; }
    Rows Shows() const override;

private:
    static constexpr unsigned kSelected = 1, kFocused = 2;

    // Rows.
    void Load(Atom* pAtom);
    void Clear();
    void Append(Atom* pAtom);
    void RemoveRow(Atom* pAtom);
    void SetRowCount(std::size_t nCount);
    int CountRows() const { return static_cast<int>(m_selected.size()); }
    Atom* AtomAt(int row) const; // NULL where a member is missing
    int FindRow(const Atom* pAtom) const;
    void BeginLabel(int row);

    // Selection.
    void Mirror(Atom* pAtom, Atom* pContainer, bool bSelected);
    void Change(int row, unsigned state, unsigned mask);
    void ChangeAll(bool bSelected);
    void ClearSelection();
    void DeselectBut(const std::vector<bool>& kept);
    void DeselectAll() { DeselectBut(std::vector<bool>(m_selected.size())); }
    void SelectOnly(int row);
    void Toggle(int row);
    void ExtendTo(int row, bool bAdd, bool bAllBetween);
    std::vector<bool> Between(int row, bool bAllBetween) const;
    int RowOfKey(UINT vkey) const; // -1 when the key leads nowhere
    bool IsSelected(int row) const { return m_selected[static_cast<std::size_t>(row)]; }
    int CountSelected() const;

    bool m_bSync = true, m_bPaneShown = false;
    Atom* m_pContainer = nullptr;
    std::vector<Atom*> m_atoms;
    std::vector<bool> m_selected; // as many as the control has rows: as the container has members
    int m_focused = -1, m_anchor = -1, m_clicked = -1, m_edited = -1;
};
