// A desk for trees, which can say what they show.
#pragma once

#include "Views/tree/tree.h"
#include "tests/views/ViewTest.h"

class ProbeTree : public CObjectsTree
{
public:
    explicit ProbeTree(int bPassive) : CObjectsTree(bPassive) {}
    ~ProbeTree() override { DestroyWindow(); }

    using CObjectsTree::GetItem;
    using CObjectsTree::ShowMembers;
    using CObjectsTree::ShowMembersOnDemand;
    // "box! [a *b! c]": items by their atoms' names, * the selected one, ! the bold ones, [] around children; - for an
    // item without an atom.
    std::string State(HTREEITEM hParent = TVI_ROOT) const;
    std::string Labels(FakeAtom* pParent) const; // "a, b *"
    CPoint PointOf(FakeAtom* pAtom) const;       // the middle of its label

    int nLabels = 0; // answered
    int nRects = 0;  // of items, asked for
    std::function<void(TVDISPINFO*)> onDispInfo;

    using CObjectsTree::RefreshItem;

protected:
    void OnGetDispInfo(TVDISPINFO* pInfo) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        nRects += message == TVM_GETITEMRECT;
        return CObjectsTree::WindowProc(message, wParam, lParam);
    }
};

class TreeTest : public ViewTest
{
protected:
    TreeTest();

    ProbeTree& MakeTree(bool bPassive = false); // created and shown, with nothing in it
    ProbeTree& ShowTree(bool bPassive = false); // the world and what is in it, expanded; all news taken

    void Click(ProbeTree& tree, FakeAtom* pAtom);        // on its label
    void Select(ProbeTree& tree, FakeAtom* pAtom);       // by the editor; all news taken
    void Remove(ProbeTree& tree, FakeAtom* pAtom) const; // as its container's member

private:
    std::vector<std::unique_ptr<ProbeTree>> m_trees;
};
