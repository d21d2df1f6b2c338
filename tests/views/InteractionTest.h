// A desk for what travels between containers, and one with a list on the left and a tree on the right of its frame.
#pragma once

#include "tests/editor/TempFolder.h"
#include "tests/views/FakeArchive.h"
#include "tests/views/ListTest.h"
#include "tests/views/TreeTest.h"

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

// The list shows the box and its members; the tree shows the world, expanded: the bag below the box.
class InteractionTest : public TransferTest
{
protected:
    InteractionTest() { MakeViews(); }

    void MakeViews(bool bPassive = false);
    CPoint RowPoint(int nRow) const { return PointOf(*list, nRow); }
    CPoint EmptyPoint() const { return ::EmptyPoint(*list); }
    CPoint ItemPoint(FakeAtom* pAtom) const { return tree->PointOf(pAtom); }
    // "b -> 2": the rows and items that are highlighted, and the effect that a drop would have now.
    std::string Hover() const;
    // Moves there, and says what was asked of the host, followed by Hover.
    Ledger MoveOver(const CWnd& wnd, CPoint at);

    Ledger hooks;
    std::unique_ptr<ProbeList> list;
    std::unique_ptr<ProbeTree> tree;
};
