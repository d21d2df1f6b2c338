// A desk for what travels between containers.
#pragma once

#include "tests/editor/TempFolder.h"
#include "tests/views/FakeArchive.h"
#include "tests/views/ViewTest.h"

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
