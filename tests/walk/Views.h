// The views of the walk, which tell what they show and watch their own caches.
#pragma once

#include "Views/list/list.h"
#include "Views/tree/tree.h"
#include "tests/walk/Rows.h"

#include <deque>
#include <memory>

// What the hooks say of a list's cache and of the images lent to its rows.
class CacheWatch
{
public:
    explicit CacheWatch(bool bSharesDefault) : m_bSharesDefault(bSharesDefault) {}

    int Count() const { return m_nCached; }
    void Begin(); // a new window
    void BeforeCaching();
    // The image that a row got, and how many there were before.
    void Cached(int nImage, bool bWantsImage, int nImagesBefore);
    void Uncached(int nImage);

    std::string fault;   // the first one
    bool isRude = false; // images come and go under the row that gets one: which it gets is not checked

private:
    const bool m_bSharesDefault; // image 0 is every row's that has none of its own
    int m_nCached = 0;
    int m_nOffered = -1;
    std::deque<int> m_free;
};

// One of the views, whichever kind.
class View
{
public:
    virtual ~View() = default;
    virtual CWnd& Wnd() = 0;
    virtual IAEStateHandler& Handler() = 0;
    virtual BOOL Make(CWnd* pParent) = 0;
    virtual BOOL SetRoot(Atom* pAtom) = 0;
    virtual Rows Shows() = 0;
    virtual HWND LabelField() = 0;

    bool IsAlive() { return Wnd().m_hWnd != nullptr; }
};

class ListView : public View
{
public:
    explicit ListView(bool bSharesDefault) : cache(bSharesDefault) {}
    virtual CListCtrl& List() = 0;
    virtual Atom* RowAtom(int nRow) const = 0;
    virtual Atom* Container() const = 0; // NULL, too, without rows
    Rows Shows() override;
    HWND LabelField() override { return IsAlive() ? List().GetEditControl() : nullptr; }

    CacheWatch cache;
};

class TreeView : public View, public CObjectsTree
{
public:
    explicit TreeView(int bPassive) : CObjectsTree(bPassive) {}
    ~TreeView() override { DestroyWindow(); }

    std::vector<HTREEITEM> Items(HTREEITEM hBelow = TVI_ROOT) const; // all, each before those below it
    HTREEITEM ItemOf(Atom* pAtom) const { return GetItem(pAtom); }
    Row RowOf(HTREEITEM hItem) const; // no atom without an item

    CWnd& Wnd() override { return *this; }
    IAEStateHandler& Handler() override { return *this; }
    BOOL Make(CWnd* pParent) override { return Create(pParent); }
    BOOL SetRoot(Atom* pAtom) override { return SetRootAtom(pAtom); }
    Rows Shows() override;
    HWND LabelField() override { return IsAlive() ? GetEditControl() : nullptr; }
};

std::unique_ptr<ListView> MakeIconList();
std::unique_ptr<ListView> MakeThumbList();
