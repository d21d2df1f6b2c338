#include "tests/views/ViewTest.h"

#include "Kernel/Kernel.h"
#include "Toolkit/base/GlobalMemory.h"
#include "Toolkit/exchange/ClipboardFormat.h"

#include <cstdlib>

ViewTest::ViewTest() : world(ContainerRef::Adopt(new FakeContainer("world")))
{
    resources.AddString(0xE00A, "Unreadable");
    resources.Join();
    frame.CreateEx(0, "", "frame", WS_OVERLAPPED | WS_VISIBLE, CRect(0, 0, 800, 400), nullptr, 0);
    field.CreateEx(0, "", "field", WS_CHILD | WS_VISIBLE, CRect(0, 390, 10, 400), &frame, 1);
    AfxSetMainWnd(&frame);
    desktop.Run();
}

ViewTest::~ViewTest()
{
    EXPECT_EQ(0, editor.CountHandlers());
    AfxSetMainWnd(nullptr);
    frame.DestroyWindow();
    world.Release();
    editor.active.Release();
    desktop.Run();

    EXPECT_EQ(0, FakeAtom::CountLive());
    EXPECT_EQ(0, editor.CountReferences());
    EXPECT_EQ(0, KRNL_CountReferences());
    EXPECT_EQ(std::vector<std::string>(), desktop.TakeMessageBoxes());
}

FakeContainer* ViewTest::MakeBox(const std::string& strName, const std::vector<std::string>& names)
{
    auto* const pBox = new FakeContainer(strName);
    world->Add(pBox);
    for (const std::string& strMember : names)
        pBox->Add(strMember);
    return pBox;
}

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
