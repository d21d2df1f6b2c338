// Names: what atoms may be called, and who hears of a new name.
#include "Views/clipboard/clipboard.h"
#include "tests/support/AllocationFailures.h"
#include "tests/views/TransferTest.h"

namespace
{

class NamingTest : public TransferTest
{
protected:
    FakeAtom* const pA = pBox->Named("a");
};

TEST_F(NamingTest, WhoHearsOfANewNameAndThatWhatIsNotRenamedIsToldToNobody)
{
    EXPECT_TRUE(RenameObject(pA, nullptr, "d")); // in the container that holds it
    EXPECT_EQ(Ledger({"box finds d", "box permits a", "box renames a to d", "nobody tells OnCreateAtom(d in box)",
                      "nobody tells OnDeleteAtom(a in box)"}),
              editor.TakeLedger());
    FakeAtom* const pD = pBox->Named("d");
    EXPECT_TRUE(RenameObject(pD, pBox, "d")); // bears that name already
    EXPECT_EQ(Ledger({"box finds d"}), editor.TakeLedger());

    pBox->permissionsFor["d"] = ~APF_RENAME;
    EXPECT_FALSE(RenameObject(pD, pBox, "c"));
    EXPECT_EQ(Ledger({"box finds c", "box permits d"}), editor.TakeLedger());
    const auto pOrphan = AtomRef::Adopt(new FakeAtom("orphan"));
    EXPECT_FALSE(RenameObject(pOrphan.Get(), nullptr, "c"));
    EXPECT_FALSE(RenameObject(nullptr, pBox, "c"));
    EXPECT_EQ(Ledger(), editor.TakeLedger());

    editor.Uninstall(); // renamed all the same, but no one has heard of it
    EXPECT_FALSE(RenameObject(pBox->Named("b"), pBox, "e"));
    EXPECT_TRUE(pBox->Named("e"));
}

TEST_F(NamingTest, ARefusedRenameIsShownWithTheContainersReason)
{
    pBox->refused = {"renames a to b"}; // another member's name is no obstacle before the container says so
    pBox->onCall = [&](const std::string& strCall) {
        if (strCall == "errs")
            resources.AddString(0xE012, "Too late"); // there has been a caption before the error is asked for
    };
    EXPECT_FALSE(RenameObject(pA, pBox, "b"));
    EXPECT_EQ(Ledger({"box finds b", "box permits a", "box renames a to b", "error \"It was not renamed\" of box"}),
              editor.TakeLedger());
    EXPECT_EQ(Ledger(), desktop.TakeMessageBoxes());

    std::optional<FailAllocation> failure;
    pBox->onCall = [&](const std::string& strCall) {
        if (strCall.starts_with("renames"))
            failure.emplace(1); // the caption does not come about
    };
    EXPECT_FALSE(RenameObject(pA, pBox, "b"));
    EXPECT_EQ(Ledger({": Out of memory."}), desktop.TakeMessageBoxes());
}

TEST_F(NamingTest, TheContainerSaysWhetherANameMayChangeAndWhatACopyIsCalled)
{
    EXPECT_EQ(2, CanRenameObject(pA, pBox));
    EXPECT_EQ(2, CanRenameObject(pA, nullptr));
    pBox->permissionsFor["a"] = APF_REMOVE;
    EXPECT_EQ(0, CanRenameObject(pA, nullptr));
    const auto pOrphan = AtomRef::Adopt(new FakeAtom("orphan"));
    EXPECT_EQ(0, CanRenameObject(pOrphan.Get(), nullptr));

    CString strName("as it was");
    pBox->refused = {"validates a"};
    EXPECT_FALSE(GetValidName(pA, pBox, strName));
    pOrphan->nameFails = true;
    EXPECT_FALSE(GetValidName(pOrphan.Get(), pBox, strName));
    EXPECT_EQ("as it was", strName);

    pBox->refused.clear();
    const int nFailures = FailEveryAllocation([&] {
        const BOOL bValid = GetValidName(pA, pBox, strName);
        EXPECT_EQ(bValid ? "a (2)" : "as it was", strName);
    });
    EXPECT_LT(0, nFailures);
    EXPECT_EQ(Ledger(static_cast<std::size_t>(nFailures), ": Out of memory."), desktop.TakeMessageBoxes());
    EXPECT_EQ("a (2)", strName);
}

} // namespace
