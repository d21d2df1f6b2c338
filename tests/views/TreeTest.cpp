#include "tests/views/TreeTest.h"

#include "Kernel/Kernel.h"

FakeAtom* ProbeTree::AtomOf(HTREEITEM hItem) const
{
    const auto* pRecord = reinterpret_cast<const TREEITEMDATA*>(GetItemData(hItem));
    return pRecord ? dynamic_cast<FakeAtom*>(pRecord->pAtom.Get()) : nullptr;
}

std::string ProbeTree::StateBelow(HTREEITEM hParent) const
{
    std::string strState;
    for (HTREEITEM hItem = GetChildItem(hParent); hItem; hItem = GetNextSiblingItem(hItem)) {
        const FakeAtom* pAtom = AtomOf(hItem);
        strState += strState.empty() ? "" : " ";
        strState += hItem == GetSelectedItem() ? "*" : "";
        strState += pAtom ? pAtom->name : "-";
        strState += GetItemState(hItem, TVIS_BOLD) ? "!" : "";
        if (GetChildItem(hItem))
            strState += " [" + StateBelow(hItem) + "]";
    }
    return strState;
}

std::string ProbeTree::Labels(HTREEITEM hParent) const
{
    std::string strLabels;
    for (HTREEITEM hItem = GetChildItem(hParent); hItem; hItem = GetNextSiblingItem(hItem))
        strLabels += (strLabels.empty() ? "" : ", ") + std::string(GetItemText(hItem));
    return strLabels;
}

void ProbeTree::OnGetDispInfo(TVDISPINFO* pInfo)
{
    nLabels += (pInfo->item.mask & TVIF_TEXT) != 0;
    if (onDispInfo)
        onDispInfo(pInfo);
}

TreeTest::TreeTest() : m_nAtoms(FakeAtom::CountLive()), world(ContainerRef::Adopt(new FakeContainer("world")))
{
    world->isLibrary = true;
    resources.AddString(0xE00A, "Unreadable");
    resources.AddString(57355, "No room");
    resources.AddString(57357, "Libraries");
    resources.AddIcon(1007, toolkit::Surface(CSize(16, 16), 0xFF0000FF));
    resources.AddBitmap(1013, toolkit::Surface(CSize(32, 16), 0xFFFFFF00));
    resources.Join();
    frame.CreateEx(0, "", "frame", WS_OVERLAPPED | WS_VISIBLE, CRect(0, 0, 800, 400), nullptr, 0);
    field.CreateEx(0, "", "field", WS_CHILD | WS_VISIBLE, CRect(0, 390, 10, 400), &frame, 1);
    AfxSetMainWnd(&frame);
    field.SetFocus();
    desktop.Run();
}

TreeTest::~TreeTest()
{
    m_trees.clear();
    EXPECT_EQ(0, editor.CountHandlers());
    AfxSetMainWnd(nullptr);
    field.DestroyWindow();
    frame.DestroyWindow();
    world.Release();
    editor.active.Release();
    desktop.Run();

    EXPECT_EQ(m_nAtoms, FakeAtom::CountLive());
    EXPECT_EQ(0, editor.CountReferences());
    EXPECT_EQ(0, KRNL_CountReferences());
    EXPECT_EQ(std::vector<std::string>(), desktop.TakeMessageBoxes());
}

ProbeTree& TreeTest::MakeTree(const Shape& shape)
{
    ProbeTree& tree = *m_trees.emplace_back(std::make_unique<ProbeTree>(shape.passive));
    editor.Call(&tree, shape.name);
    EXPECT_TRUE(tree.Create(&frame));
    tree.MoveWindow(CRect(shape.x, 0, shape.x + 390, 380));
    tree.ShowWindow(SW_SHOW);
    desktop.Run();
    return tree;
}

ProbeTree& TreeTest::ShowTree(const Shape& shape)
{
    ProbeTree& tree = MakeTree(shape);
    EXPECT_TRUE(tree.OnCreateAtom(world.Get(), nullptr));
    if (!world->members.empty())
        Expand(tree, world.Get());
    desktop.Run();
    editor.TakeLedger();
    return tree;
}

FakeContainer* TreeTest::MakeBox(const std::string& strName, const std::vector<std::string>& names)
{
    auto* const pBox = new FakeContainer(strName);
    world->Add(pBox);
    for (const std::string& strMember : names)
        pBox->Add(strMember);
    return pBox;
}

void TreeTest::Expand(ProbeTree& tree, FakeAtom* pAtom)
{
    EXPECT_TRUE(tree.Expand(tree.GetItem(pAtom), TVE_EXPAND)) << pAtom->name;
}

CPoint TreeTest::PointOf(ProbeTree& tree, FakeAtom* pAtom)
{
    CRect rect;
    EXPECT_TRUE(tree.GetItemRect(tree.GetItem(pAtom), &rect, TRUE)) << pAtom->name;
    return rect.CenterPoint();
}

void TreeTest::Select(ProbeTree& tree, FakeAtom* pAtom)
{
    tree.OnAtomEntered(pAtom, nullptr);
    desktop.Run();
    editor.TakeLedger();
}
