#include "tests/views/TreeTest.h"

std::string ProbeTree::State(HTREEITEM hParent) const
{
    std::string strState;
    for (HTREEITEM hItem = GetChildItem(hParent); hItem; hItem = GetNextSiblingItem(hItem)) {
        const auto* pRecord = reinterpret_cast<const TREEITEMDATA*>(GetItemData(hItem));
        strState += strState.empty() ? "" : " ";
        strState += hItem == GetSelectedItem() ? "*" : "";
        strState += NameOf(pRecord ? pRecord->pAtom.Get() : nullptr);
        strState += GetItemState(hItem, TVIS_BOLD) ? "!" : "";
        if (GetChildItem(hItem))
            strState += " [" + State(hItem) + "]";
    }
    return strState;
}

std::string ProbeTree::Labels(FakeAtom* pParent) const
{
    std::string strLabels;
    for (HTREEITEM hItem = GetChildItem(GetItem(pParent)); hItem; hItem = GetNextSiblingItem(hItem))
        strLabels += (strLabels.empty() ? "" : ", ") + std::string(GetItemText(hItem));
    return strLabels;
}

CPoint ProbeTree::PointOf(FakeAtom* pAtom) const
{
    CRect rect;
    EXPECT_TRUE(GetItemRect(GetItem(pAtom), &rect, TRUE)) << pAtom->name;
    return rect.CenterPoint();
}

void ProbeTree::OnGetDispInfo(TVDISPINFO* pInfo)
{
    nLabels += (pInfo->item.mask & TVIF_TEXT) != 0;
    if (onDispInfo)
        onDispInfo(pInfo);
}

TreeTest::TreeTest()
{
    world->isLibrary = true;
    resources.AddString(57355, "No room");
    resources.AddString(57357, "Libraries");
    resources.AddIcon(1007, toolkit::Surface(CSize(16, 16), 0xFF0000FF));
    resources.AddBitmap(1013, toolkit::Surface(CSize(32, 16), 0xFFFFFF00));
    field.SetFocus();
}

ProbeTree& TreeTest::MakeTree(bool bPassive)
{
    m_trees.push_back(std::make_unique<ProbeTree>(bPassive));
    return Place(*m_trees.back(), CRect(0, 0, 390, 380), "tree");
}

ProbeTree& TreeTest::ShowTree(bool bPassive)
{
    ProbeTree& tree = MakeTree(bPassive);
    EXPECT_TRUE(tree.OnCreateAtom(world.Get(), nullptr));
    tree.Expand(tree.GetItem(world.Get()), TVE_EXPAND);
    for (const AtomRef& pMember : world->members)
        tree.Expand(tree.GetItem(pMember.Get()), TVE_EXPAND);
    desktop.Run();
    editor.TakeLedger();
    return tree;
}

void TreeTest::Click(ProbeTree& tree, FakeAtom* pAtom)
{
    desktop.Click(tree.m_hWnd, tree.PointOf(pAtom));
}

void TreeTest::Select(ProbeTree& tree, FakeAtom* pAtom)
{
    tree.OnAtomEntered(pAtom, nullptr);
    desktop.Run();
    editor.TakeLedger();
}

void TreeTest::Remove(ProbeTree& tree, FakeAtom* pAtom) const
{
    EXPECT_TRUE(tree.OnDeleteAtom(pAtom, pAtom->parent));
}
