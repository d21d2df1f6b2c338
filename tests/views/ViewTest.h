// A desk for views: a frame window on a headless desktop, and a host with a world of atoms.
#pragma once

#include "Toolkit/graphics/Resources.h"
#include "Toolkit/window/Wnd.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/FakeArchive.h"
#include "tests/support/TempFolder.h"
#include "tests/views/FakeHost.h"

// At its end the derived fixture's views must be gone; the test fails for every reference, handler and message box
// left over.
class ViewTest : public DesktopTest
{
protected:
    ViewTest();
    ~ViewTest() override;

    // A box in the world with members of these names, in this order. The box and the world live as long as the test.
    FakeContainer* MakeBox(const std::string& strName, const std::vector<std::string>& names);
    FakeContainer* MakeBox(const std::vector<std::string>& names) { return MakeBox("box", names); }

    // Creates the view in the frame and shows it.
    template <class View>
    View& Place(View& view, const CRect& rect, const char* pszName)
    {
        editor.handlerNames[&view] = pszName;
        EXPECT_TRUE(view.Create(&frame));
        view.MoveWindow(rect);
        view.ShowWindow(SW_SHOW);
        desktop.Run();
        return view;
    }
    static bool HasFocus(const CWnd& wnd) { return ::GetFocus() == wnd.m_hWnd; }

    CResourceModule resources;
    FakeEditor editor;
    CWnd frame;
    CWnd field; // something else in the frame that can have the focus
    ContainerRef world;
};

// A box (a, b, c) and a bag (d) that let all in and out and write down what they are asked, archives, and a folder for
// transfer files that must be empty at the end.
class TransferTest : public ViewTest
{
protected:
    TransferTest();
    ~TransferTest() override;

    static std::string Members(const FakeContainer* pIn);
    std::ptrdiff_t CountFiles() const { return std::distance(std::filesystem::directory_iterator(folder.Path()), {}); }

    TempFolder folder;
    FakeArchives archives;
    FakeContainer* const pBox;
    FakeContainer* const pBag;
};
