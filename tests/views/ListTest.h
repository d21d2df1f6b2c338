// A desk for list views, which write down their hooks.
#pragma once

#include "Views/list/list.h"
#include "tests/views/ViewTest.h"

// An icon list that writes down what its cache hooks are called with.
class ProbeList : public CIconList
{
public:
    ProbeList(Ledger& hooks, int bPassive) : CIconList(bPassive), m_hooks(hooks) {}
    ~ProbeList() override { DestroyWindow(); }

    using CIconList::CompareFunc;
    using CIconList::CompareFunc1;
    const OBJPAIR* Pair(int nRow) const { return reinterpret_cast<const OBJPAIR*>(GetItemData(nRow)); }
    // "[a *b (c)]": every row's atom, * when it is selected, () when it has the focus; - for a row without an atom.
    std::string State() const;

protected:
    void OnUncacheItem(int nItem, IAtom* pAtom, IAtomContainer* pContainer, CACHEDATA* pData) override;
    void OnCacheItem(int nItem, IAtom* pAtom, IAtomContainer* pContainer, CACHEDATA* pData) override;
    void OnClearContext() override;

private:
    void Write(const char* pszHook, int nItem, IAtom* pAtom, IAtomContainer* pContainer, const CACHEDATA& data);

    Ledger& m_hooks;
};

CPoint PointOf(const CListCtrl& list, int nRow); // the middle of its picture

class ListTest : public ViewTest
{
protected:
    ListTest();

    ProbeList& MakeList(bool bPassive = false);                            // created and shown, with nothing in it
    ProbeList& ShowList(FakeContainer* pContainer, bool bPassive = false); // showing it, all news taken

    // Showing it, but not visible: a test hints the rows it wants.
    ProbeList& HideList(FakeContainer* pContainer);

    void Click(ProbeList& list, int nRow, toolkit::MouseButton button = toolkit::MouseButton::Left);
    // The rows' picture is asked for, as the control does when it draws.
    void Hint(CListCtrl& list, int nFrom, int nTo);
    // "a 2, b 0": the texts and the pictures that the list gives for these rows; "" for a row for which it gives
    // nothing.
    std::string Shown(CListCtrl& list, int nRow) { return Shown(list, nRow, nRow); }
    std::string Shown(CListCtrl& list, int nFirst, int nLast);
    Ledger TakeHooks() { return std::exchange(hooks, {}); }

    Ledger hooks;

private:
    std::vector<std::unique_ptr<ProbeList>> m_lists;
};
