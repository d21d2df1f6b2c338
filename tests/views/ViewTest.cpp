#include "tests/views/ViewTest.h"

#include "Kernel/Kernel.h"

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
