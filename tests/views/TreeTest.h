// A desk for trees: a frame window on a headless desktop, a host, and trees that can say what they show.
#pragma once

#include "Toolkit/graphics/Resources.h"
#include "Views/tree/tree.h"
#include "tests/support/DesktopTest.h"
#include "tests/views/FakeHost.h"

#include <memory>

class ProbeTree : public CObjectsTree
{
public:
    explicit ProbeTree(int bPassive) : CObjectsTree(bPassive) {}
    ~ProbeTree() override { DestroyWindow(); }

    using CObjectsTree::GetItem;
    FakeAtom* AtomOf(HTREEITEM hItem) const; // NULL for no item
    // "box! [a *b! c]": the items by their atoms' names, * the selected one, ! the bold ones, [] around children.
    std::string State() const { return StateBelow(TVI_ROOT); }
    std::string Labels(HTREEITEM hParent) const; // "a, b *"

    int nLabels = 0; // answered
    std::function<void(TVDISPINFO*)> onDispInfo;

protected:
    void OnGetDispInfo(TVDISPINFO* pInfo) override;

private:
    std::string StateBelow(HTREEITEM hParent) const;
};

class TreeTest : public DesktopTest
{
protected:
    TreeTest();
    ~TreeTest() override;

    struct Shape
    {
        bool passive = false;
        int x = 0; // in the frame
        const char* name = "tree";
    };
    ProbeTree& MakeTree(const Shape& shape); // created and shown, with nothing in it
    // The world announced and expanded, all news taken.
    ProbeTree& ShowTree(const Shape& shape);
    ProbeTree& ShowTree() { return ShowTree(Shape()); }

    // A box in the world with members of these names, in this order.
    FakeContainer* MakeBox(const std::string& strName, const std::vector<std::string>& names);

    static void Expand(ProbeTree& tree, FakeAtom* pAtom);
    static CPoint PointOf(ProbeTree& tree, FakeAtom* pAtom); // on its label
    void Click(ProbeTree& tree, FakeAtom* pAtom) { desktop.Click(tree.m_hWnd, PointOf(tree, pAtom)); }
    // Selected by the editor, with all news of it taken.
    void Select(ProbeTree& tree, FakeAtom* pAtom);
    bool HasFocus(const CWnd& wnd) const { return ::GetFocus() == wnd.m_hWnd; }

private:
    const int m_nAtoms; // alive before

protected:
    CResourceModule resources;
    FakeEditor editor;
    CWnd frame;
    CWnd field;         // something else that can have the focus, and has it
    ContainerRef world; // a library

private:
    std::vector<std::unique_ptr<ProbeTree>> m_trees;
};
