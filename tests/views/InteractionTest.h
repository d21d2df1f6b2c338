// A desk with a list on the left and a tree on the right of one frame, for what the user does across views.
#pragma once

#include "tests/editor/TempFolder.h"
#include "tests/views/FakeArchive.h"
#include "tests/views/ListTest.h"
#include "tests/views/TreeTest.h"

// The list shows the box and its members; the tree shows the world, expanded: the bag below the box.
class InteractionTest : public ViewTest
{
protected:
    InteractionTest();
    ~InteractionTest() override;

    void MakeViews(bool bPassive = false);
    CPoint RowPoint(int nRow) const; // the middle of its picture
    CPoint EmptyPoint() const;       // in the list, in no row
    CPoint ItemPoint(FakeAtom* pAtom) const;
    // "b -> 2": the rows and items that are highlighted, and the effect that a drop would have now.
    std::string Hover() const;
    // Moves there, and says what was asked of the host, followed by Hover.
    Ledger MoveOver(const CWnd& wnd, CPoint at);
    static std::string Members(const FakeContainer* pIn);

    TempFolder folder;
    FakeArchives archives;
    FakeContainer* const pBox;
    FakeContainer* const pBag;
    Ledger hooks;
    std::unique_ptr<ProbeList> list;
    std::unique_ptr<ProbeTree> tree;
};
