// What a list tells assistive technology, and what is asked of it there. An item is a row, counted from 1.
#pragma once

#include "Toolkit/access/Accessible.h"
#include "Toolkit/controls/list/IconLayout.h"
#include "Toolkit/controls/list/ListOwner.h"
#include "Toolkit/controls/list/ListSelection.h"
#include "Toolkit/controls/list/ListViewport.h"

namespace toolkit
{

class ListAccess : public Accessible
{
public:
    // All borrowed; they need not be there before something is asked or told.
    ListAccess(NativeWindow& window, const IconLayout& layout, ListOwner& owner, ListSelection& selection,
               ListViewport& viewport)
        : m_window(window), m_layout(layout), m_owner(owner), m_selection(selection), m_viewport(viewport)
    {}

    UINT AccRole(LPARAM item) override { return item == CHILDID_SELF ? ROLE_SYSTEM_LIST : ROLE_SYSTEM_LISTITEM; }
    UINT AccState(LPARAM item) override;
    std::string AccName(LPARAM item) override;
    CRect AccPlace(LPARAM item) override { return m_layout.CellRect(RowOf(item)); }
    bool AccHas(LPARAM item) override { return Rows().Has(RowOf(item)); }
    int AccCount(LPARAM parent) override { return parent == CHILDID_SELF ? Rows().Count() : 0; }
    LPARAM AccChild(LPARAM, int place) override { return ItemOf(place); }
    LPARAM AccAt(CPoint client) override { return ItemOf(m_layout.CellAt(client)); }
    LPARAM AccFocus() override { return ItemOf(Rows().Focus()); }
    std::string AccAction(LPARAM item) override { return item == CHILDID_SELF ? "" : "Open"; }
    void AccDo(LPARAM item) override;
    bool AccCanSelect() override { return true; }
    void AccSelect(LPARAM item, UINT flags) override;

protected:
    void TellName(int row) const;                                 // where it is seen
    void TellStates(int row, UINT oldState, UINT newState) const; // row -1: all

private:
    const RowStates& Rows() const { return m_selection.Rows(); }
    static int RowOf(LPARAM item) { return static_cast<int>(item) - 1; }
    static LPARAM ItemOf(int row) { return row + 1; }
    bool IsSeen(int row) const;
    void Tell(DWORD event, int row) const { NotifyWinEvent(event, m_window.m_hWnd, OBJID_CLIENT, ItemOf(row)); }

    NativeWindow& m_window;
    const IconLayout& m_layout;
    ListOwner& m_owner;
    ListSelection& m_selection;
    ListViewport& m_viewport;
};

} // namespace toolkit
