#include "tests/views/TransferTest.h"

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
