#include "tests/views/InteractionTest.h"

#include "Toolkit/base/GlobalMemory.h"
#include "Toolkit/ole/ClipboardFormat.h"

#include <cstdlib>

TransferTest::TransferTest() : pBox(MakeBox("box", {"a", "b", "c"})), pBag(MakeBox("bag", {"d"}))
{
    setenv("TEMP", folder.Path().c_str(), 1);
    resources.AddString(0xE012, "It was not renamed");
    resources.AddString(0xE013, "Remove?");
    editor.format = RegisterClipboardFormat("Atoms of the fake");
    for (FakeContainer* p : {pBox, pBag}) {
        p->permissions = APF_ACCEPT | APF_REMOVE | APF_RENAME;
        p->pLedger = &editor.ledger;
    }
}

TransferTest::~TransferTest()
{
    unsetenv("TEMP");
    editor.pairs.clear();
    EXPECT_EQ("", folder.Everything());
    EXPECT_EQ(0, toolkit::CountGlobalBlocks());
}

std::string TransferTest::Members(const FakeContainer* pIn)
{
    std::string strNames;
    for (const AtomRef& p : pIn->members)
        strNames += (strNames.empty() ? "" : " ") + p->name;
    return strNames;
}

void InteractionTest::MakeViews(bool bPassive)
{
    list = std::make_unique<ProbeList>(hooks, bPassive);
    tree = std::make_unique<ProbeTree>(bPassive);
    editor.pSelected = list.get();
    Place(*list, CRect(0, 0, 390, 380), "list").SetRootAtom(pBox);
    Place(*tree, CRect(400, 0, 800, 380), "tree").OnCreateAtom(world.Get(), nullptr);
    tree->Expand(tree->GetItem(world.Get()), TVE_EXPAND);
    desktop.Run();
    editor.TakeLedger();
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
