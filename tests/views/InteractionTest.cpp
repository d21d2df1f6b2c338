#include "tests/views/InteractionTest.h"

#include "Toolkit/base/GlobalMemory.h"
#include "Toolkit/ole/ClipboardFormat.h"

#include <cstdlib>
#include <filesystem>

InteractionTest::InteractionTest() : pBox(MakeBox("box", {"a", "b", "c"})), pBag(MakeBox("bag", {"d"}))
{
    setenv("TEMP", folder.Path().c_str(), 1);
    resources.AddString(0xE012, "Not renamed");
    editor.format = RegisterClipboardFormat("Atoms of the fake");
    for (FakeContainer* p : {pBox, pBag}) {
        p->permissions = APF_ACCEPT | APF_REMOVE | APF_RENAME;
        p->pLedger = &editor.ledger;
    }
    MakeViews();
}

InteractionTest::~InteractionTest()
{
    list.reset();
    tree.reset();
    editor.pairs.clear();
    unsetenv("TEMP");
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
    EXPECT_EQ(0, toolkit::CountGlobalBlocks());
}

void InteractionTest::MakeViews(bool bPassive)
{
    list = std::make_unique<ProbeList>(hooks, bPassive);
    tree = std::make_unique<ProbeTree>(bPassive);
    editor.Call(list.get(), "list");
    editor.Call(tree.get(), "tree");
    editor.pSelected = list.get();
    list->Create(&frame);
    list->MoveWindow(CRect(0, 0, 390, 380));
    list->ShowWindow(SW_SHOW);
    list->SetRootAtom(pBox);
    tree->Create(&frame);
    tree->MoveWindow(CRect(400, 0, 800, 380));
    tree->ShowWindow(SW_SHOW);
    tree->OnCreateAtom(world.Get(), nullptr);
    tree->Expand(tree->GetItem(world.Get()), TVE_EXPAND);
    desktop.Run();
    editor.TakeLedger();
}

CPoint InteractionTest::RowPoint(int nRow) const
{
    CRect rect;
    EXPECT_TRUE(list->GetItemRect(nRow, &rect, LVIR_ICON));
    return rect.CenterPoint();
}

CPoint InteractionTest::EmptyPoint() const
{
    CRect rect;
    list->GetClientRect(&rect);
    return {rect.right - 30, rect.bottom - 30};
}

CPoint InteractionTest::ItemPoint(FakeAtom* pAtom) const
{
    CRect rect;
    EXPECT_TRUE(tree->GetItemRect(tree->GetItem(pAtom), &rect, TRUE));
    return rect.CenterPoint();
}

std::string InteractionTest::Hover() const
{
    std::string strHover;
    for (int i = -1; list->m_hWnd && (i = list->GetNextItem(i, LVNI_DROPHILITED)) >= 0;)
        strHover += NameOf(list->Pair(i)->pAtom) + " ";
    for (FakeAtom* p : std::initializer_list<FakeAtom*>{world.Get(), pBox, pBag}) {
        if (tree->m_hWnd && tree->GetItemState(tree->GetItem(p), TVIS_DROPHILITED))
            strHover += p->name + " ";
    }
    return strHover + "-> " + std::to_string(desktop.DragEffect());
}

Ledger InteractionTest::MoveOver(const CWnd& wnd, CPoint at)
{
    editor.TakeLedger();
    desktop.MoveTo(wnd.m_hWnd, at);
    Ledger told = editor.TakeLedger();
    told.push_back(Hover());
    return told;
}

std::string InteractionTest::Members(const FakeContainer* pIn)
{
    std::string strNames;
    for (const AtomRef& p : pIn->members)
        strNames += (strNames.empty() ? "" : " ") + p->name;
    return strNames;
}
