// A tree control in a window, and what its user and its owner see of it.
#pragma once

#include "Toolkit/controls/tree/TreeCtrl.h"
#include "tests/toolkit/ItemControlFixture.h"

#include <list>

// Shows items by name and writes down what it is told: "selecting a -> b" for a change it is asked about, "selected"
// for one that happened.
class LedgerTree : public LedgerControl<CTreeCtrl>
{
public:
    std::function<void(const std::string& name)> asked = [](const std::string&) {}; // what to show of an item
    int labelRequests = 0;                                                          // since it was last set to 0
    UINT keeps = 0; // what the control is to keep of an answer: TVIF_DI_SETITEM

    // An item whose label, pictures and children flag are left to this owner.
    HTREEITEM Add(const std::string& name, HTREEITEM hParent = TVI_ROOT, HTREEITEM hInsertAfter = TVI_LAST);
    std::string& NameOf(HTREEITEM hItem) const; // a change is seen when the control asks again
    HTREEITEM Find(const std::string& name) const;

protected:
    afx_msg void OnSelection(NMTREEVIEW* pChange, LRESULT* pResult);
    afx_msg void OnBranch(NMTREEVIEW* pNews, LRESULT* pResult);
    afx_msg void OnDelete(NMTREEVIEW* pNews, LRESULT* pResult);
    afx_msg void OnDrag(NMTREEVIEW* pDrag, LRESULT* pResult);
    afx_msg void OnBeginEdit(NMTVDISPINFO* pInfo, LRESULT* pResult);
    afx_msg void OnEndEdit(NMTVDISPINFO* pInfo, LRESULT* pResult);
    afx_msg void OnSetDispInfo(NMTVDISPINFO* pInfo, LRESULT* pResult);
    afx_msg void OnDispInfo(NMTVDISPINFO* pInfo, LRESULT* pResult);
    afx_msg void OnEvent(NMHDR* pHeader, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    void WriteItem(const char* verb, const TVITEM& item, LRESULT* pResult = nullptr);

    mutable std::list<std::string> m_names; // what each item's lParam points to
};

// A tree of ten rows and the width of about forty letters, without lines, with pictures.
class TreeControlTest : public ItemControlTest
{
protected:
    void SetUp() override;
    void TearDown() override;

    // "a [b c] d (e)": children in brackets when expanded, in parentheses when collapsed. Replaces all; the ledger is
    // empty then, and everything is painted.
    void Fill(const std::string& text);
    std::string State() const; // the same, the selected item with a star
    Ledger TakeLedger() { return tree.TakeLedger(); }

    HTREEITEM operator[](const std::string& name) const { return tree.Find(name); }
    CRect LabelOf(const std::string& name) const; // also when it is not in sight
    CPoint IconOf(const std::string& name) const;
    CPoint ButtonOf(const std::string& name) const;
    std::string InRow(int row) const; // counted from the client area's top
    void Click(const std::string& name) { desktop.Click(tree.m_hWnd, LabelOf(name).CenterPoint()); }

    LedgerTree tree;

private:
    void Describe(HTREEITEM hItem, std::string& text) const;
};
