// A list control in a window, and what its user and its owner see of it.
#pragma once

#include "Toolkit/controls/list/ListCtrl.h"
#include "tests/toolkit/ItemControlFixture.h"

// Shows the rows "a", "b", "c" ... and writes down what it is told: "a? +selected" for a change it is asked about,
// "a: +selected" for one that happened, "all" for row -1.
class LedgerList : public LedgerControl<CListCtrl>
{
public:
    // A derived class may keep movements and timers to itself.
    bool keepsMouseMoves = false;
    std::function<std::string(int row)> text = [](int row) { return NameOf(row); };
    bool writesPaints = false;

    static std::string NameOf(int row);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnChanging(NMLISTVIEW* pChange, LRESULT* pResult);
    afx_msg void OnChanged(NMLISTVIEW* pChange, LRESULT* pResult);
    afx_msg void OnHint(NMLVCACHEHINT* pHint, LRESULT* pResult);
    afx_msg void OnDispInfo(NMLVDISPINFO* pInfo, LRESULT* pResult);
    afx_msg void OnDrag(NMLISTVIEW* pDrag, LRESULT* pResult);
    afx_msg void OnClick(NMITEMACTIVATE* pClick, LRESULT* pResult);
    afx_msg void OnBeginEdit(NMLVDISPINFO* pInfo, LRESULT* pResult);
    afx_msg void OnEndEdit(NMLVDISPINFO* pInfo, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()
};

// A list of three columns, 110 pixels wide each, with pictures of 48 by 48.
class ListControlTest : public ItemControlTest
{
protected:
    void SetUp() override;

    void ShowList(DWORD style); // after it was destroyed, again
    void Fill(int rows);        // and paints; the ledger is empty then

    CRect Part(int row, int area) const; // LVIR_*
    CPoint IconOf(int row) const { return Part(row, LVIR_ICON).CenterPoint(); }
    CPoint LabelOf(int row) const { return Part(row, LVIR_LABEL).CenterPoint(); }
    std::string State() const; // "[a *b (c)]": selected rows with a star, the focused one in parentheses
    std::string Selected() const;
    Ledger TakeLedger() { return list.TakeLedger(); }

    void Click(int row, toolkit::Modifiers modifiers = {});
    std::string AfterClick(int row, toolkit::Modifiers modifiers = {}) { return Click(row, modifiers), State(); }
    std::string AfterKey(UINT vkey, toolkit::Modifiers modifiers = {}) { return Key(vkey, modifiers), State(); }
    void Drag(CPoint from, CPoint to, toolkit::Modifiers modifiers = {}); // the button stays down
    // What was told last when a row has been dragged off its place.
    std::string AfterDrag(int row, toolkit::Modifiers modifiers = {},
                          toolkit::MouseButton button = toolkit::MouseButton::Left);

    const CPoint kEmpty{105, 10}; // between the pictures of a and b

    LedgerList list;
};
