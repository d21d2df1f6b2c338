// The icon list as the frame uses it.
#pragma once

#include "Views/list/IconList.h"

#include <functional>
#include <string>

namespace editor
{

class CEditorList : public CIconList
{
public:
    // `ask` gives the text for the middle of a list without rows.
    explicit CEditorList(std::function<std::string()> ask) : m_ask(std::move(ask)) {}
    ~CEditorList() override { DestroyWindow(); }

    CStubRef<IAtom> GetAtom(int nRow) const; // empty without such a row
    int GetFocusedRow() const { return GetNextItem(-1, LVNI_FOCUSED); }
    bool AreAllSelected() const { return GetItemCount() > 0 && GetSelectedCount() == GetItemCount(); }

    // The first selected row gets the focus and is scrolled into view.
    void FocusSelection();

    // What a user would miss after the rows have been loaded anew: selection, focused row and scroll position. Of
    // atoms that are not there any more nothing is selected; the focus stays in its place among the rows.
    struct State
    {
        bool bAllSelected = false;
        std::vector<CStubRef<IAtom>> selected; // unless all are; sorted by address
        CStubRef<IAtom> pFocused;
        int nFocused = -1; // its row then
        int nScrolled = 0; // pixels
    };
    State Remember() const;
    void Restore(const State& state);

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override; // the pane has the edges

    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    const std::function<std::string()> m_ask;
};

} // namespace editor
