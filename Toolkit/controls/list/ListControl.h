// The control behind WC_LISTVIEW: an owner-data list. Takes each message to the part that it concerns.
#pragma once

#include "Toolkit/controls/edit/EditMessages.h"
#include "Toolkit/controls/items/TypeAhead.h"
#include "Toolkit/controls/list/ListAccess.h"
#include "Toolkit/controls/list/ListPainter.h"

namespace toolkit
{

class ListControl : public ItemControl, public ListAccess, private SelectionWatcher
{
public:
    explicit ListControl(HWND hWnd)
        : ItemControl(hWnd, LVS_EDITLABELS, ES_CENTER), ListAccess(*this, m_layout, m_owner, m_selection, m_viewport)
    {}

    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    ListMouse& Mouse() { return m_mouse; }

private:
    const RowStates& Rows() const { return m_selection.Rows(); }

    // Rows and their measures.
    BOOL OnSetItemCount(int count);
    LRESULT OnSetIconSpacing(WPARAM, CPoint cell);
    BOOL OnArrange();
    BOOL OnUpdate(int row);
    void Measure() override;
    void Relayout() override { m_viewport.Relayout(); }

    // States.
    int OnGetNextItem(int after, UINT flags) const;
    int OnGetSelectedCount() const { return Rows().CountWith(LVIS_SELECTED); }
    UINT OnGetItemState(int row, UINT mask) const { return Rows().State(row) & mask; }
    BOOL OnSetItemState(int row, const LVITEM* pItem);
    void OnSetFocus();
    void OnKillFocus();
    void RedrawChosen() const; // what looks otherwise with the focus
    bool MayChange(int row, UINT oldState, UINT newState) override
    {
        return m_owner.MayChange(row, oldState, newState);
    }
    void HasChanged(int row, UINT oldState, UINT newState) override;

    // Keys.
    LRESULT OnKeyDown(UINT vkey, LPARAM lParam);
    void OnChar(char32_t c);
    LRESULT OnSetTypeAhead(BOOL bOn);
    void MoveFocus(int row, bool allBetween);
    void PressSpace();

    // Editing a label in place. The control knows rows by number only. An owner that moves rows meanwhile says where
    // the edited one is now, so that no row is ever given a name that was meant for another. What the row shows may
    // change: what was typed is taken all the same.
    HWND OnEditLabel(int row) { return EditLabel(row, row >= 0); }
    BOOL OnMoveEditLabel(int row);
    bool HasItem(LPARAM row) const override { return Rows().Has(static_cast<int>(row)); }
    bool IsSelected(LPARAM row) const override;
    bool IsPressed() const override { return m_mouse.IsPressed(); }
    void CancelPress() override { m_mouse.Cancel(); }
    void ShowItem(LPARAM row) override { m_viewport.Show(static_cast<int>(row)); }
    void RedrawItem(LPARAM row) override { m_viewport.Redraw(static_cast<int>(row)); }
    CRect FieldBox(LPARAM row, CSize wanted) const override { return m_layout.FieldBox(static_cast<int>(row), wanted); }
    std::optional<std::string> AskLabel(LPARAM row) override { return m_owner.AskLabel(static_cast<int>(row)); }
    void TellLabel(LPARAM row, std::string& text, bool taken) override
    {
        m_owner.TellLabel(static_cast<int>(row), text, taken && HasItem(row));
    }

    IconLayout m_layout; // the parts know it as one layout among possible ones
    ListOwner m_owner{*this};
    ListSelection m_selection{m_layout, *this};
    ListViewport m_viewport{*this, m_layout, m_owner, m_mouse};
    ListMouse m_mouse{*this, m_selection, m_layout, m_owner, m_viewport};
    InsertMark m_insertMark{*this, m_layout};
    ListPainter m_painter{*this, Rows(), m_layout, m_owner, m_mouse, m_insertMark};
    bool m_bTypeAhead = false;
    TypeAhead m_typeAhead;
    std::optional<CSize> m_spacing; // as set; else it follows from the pictures
};

} // namespace toolkit
