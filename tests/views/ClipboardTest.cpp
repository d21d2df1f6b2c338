// The commands on atoms: what they do to containers, to the clipboard and to the disk, and whom they tell.
#include "Views/clipboard/clipboard.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/base/Files.h"
#include "Toolkit/base/GlobalMemory.h"
#include "Toolkit/exchange/DataObject.h"
#include "Toolkit/exchange/DataSource.h"
#include "Toolkit/menu/MessageBox.h"
#include "Views/clipboard/TransferFileOwner.h"
#include "tests/support/AllocationFailures.h"
#include "tests/views/ViewTest.h"

#include <algorithm>
#include <cstdlib>

namespace
{

class ClipboardTest : public TransferTest
{
protected:
    ClipboardTest() { pBag->Add("e"); }
    ~ClipboardTest() override { EmptyClipboard(); }

    void Activate(const std::vector<std::pair<FakeContainer*, const char*>>& pairs)
    {
        editor.pairs.clear();
        for (const auto& [pIn, pszName] : pairs)
            editor.pairs.push_back(views::HeldPair::Share(pIn->Named(pszName), pIn));
    }
    static void EmptyClipboard()
    {
        COleDataSource::FlushClipboard();
        (new COleDataSource)->SetClipboard();
    }
    // What a paste would find; "-" when there is nothing of ours.
    std::string OnClipboard() const
    {
        COleDataObject data;
        STGMEDIUM medium{};
        if (!data.AttachClipboard() || !data.GetData(editor.format, &medium))
            return "-";
        const auto pArchive = ArchiveRef::Adopt(ArchiveFromStgMedium(medium));
        ReleaseStgMedium(&medium);
        return pArchive ? BytesOf(pArchive.Get()) : "gone";
    }
};

TEST_F(ClipboardTest, ACopyLivesOnDiskUntilTheClipboardLetsGoOfIt)
{
    Activate({{pBox, "a"}, {pBox, "b"}});
    EXPECT_TRUE(CopyObjects(FALSE));
    EXPECT_EQ(Ledger({"writes 2"}), editor.TakeLedger());
    EXPECT_EQ("a\nb\n", OnClipboard());
    const std::string first = folder.Everything();
    EXPECT_EQ(1, CountFiles());

    Activate({{pBox, "c"}});
    EXPECT_TRUE(CopyObjects(FALSE)); // the first one's atoms are read back, released and gone
    EXPECT_EQ(Ledger({"writes 1", "reads"}), editor.TakeLedger());
    EXPECT_EQ("c\n", OnClipboard());
    EXPECT_EQ(1, CountFiles());
    EXPECT_NE(first, folder.Everything());

    editor.Uninstall(); // an editor that has gone is no reason to leave a file behind
    EmptyClipboard();
    EXPECT_EQ(Ledger(), editor.TakeLedger());
}

TEST_F(ClipboardTest, ACutTellsOnceOfWhatIsGone)
{
    Activate({{pBox, "a"}, {pBag, "d"}});
    pBox->onCall = [&](const std::string&) { EXPECT_EQ(toolkit::Cursor::Wait, desktop.CurrentCursor()); };
    EXPECT_TRUE(CopyObjects(TRUE));
    EXPECT_EQ(Ledger({"writes 2", "enumerates", "box permits a", "box removes a", "bag permits d", "bag removes d",
                      "nobody tells OnDeleteAtom(- in box)"}),
              editor.TakeLedger());
    EXPECT_EQ("a\nd\n", OnClipboard());
    EXPECT_EQ("b c / e", Members(pBox) + " / " + Members(pBag));
}

TEST_F(ClipboardTest, ACutThatIsRefusedPartWayLosesNothing)
{
    Activate({{pBox, "c"}});
    EXPECT_TRUE(CopyObjects(FALSE));
    const std::string kept = folder.Everything();
    Activate({{pBox, "a"}, {pBag, "d"}, {pBox, "b"}});
    pBag->permissionsFor["d"] = APF_ACCEPT;
    editor.TakeLedger();

    EXPECT_FALSE(CopyObjects(TRUE));
    EXPECT_EQ(Ledger({"writes 3", "enumerates", "box permits a", "box removes a", "bag permits d",
                      "nobody tells OnDeleteAtom(- in box)", "reads", "box adds a as a",
                      "nobody tells OnCreateAtom(a in box)"}),
              editor.TakeLedger());
    EXPECT_EQ("b c a / d e", Members(pBox) + " / " + Members(pBag));
    EXPECT_EQ("c\n", OnClipboard());
    EXPECT_EQ(kept, folder.Everything());

    Activate({{pBox, "a"}, {pBag, "d"}, {pBox, "b"}});
    editor.goesOnAfterRefusal = true;
    pBox->refused = {"removes a", "adds b as b"};
    EXPECT_FALSE(CopyObjects(TRUE));
    EXPECT_EQ("c a / d e", Members(pBox) + " / " + Members(pBag));
    EXPECT_EQ(kept, folder.Everything());
}

TEST_F(ClipboardTest, WhatACutCannotKeepComesBackToItsOwnPlace)
{
    editor.readsOn = true;
    pBox->Add("a"); // a namesake
    Activate({{pBox, "a"}, {pBag, "d"}});
    editor.pairs.insert(editor.pairs.begin() + 1, {CStubRef<IAtom>::Share(pBag->Named("e")), {}}); // in no container
    editor.goesOnAfterRefusal = true;
    editor.TakeLedger();
    EXPECT_FALSE(CopyObjects(TRUE));
    EXPECT_EQ("b c a a / e d", Members(pBox) + " / " + Members(pBag));
    EXPECT_EQ(1, std::ranges::count(editor.TakeLedger(), "nobody tells OnDeleteAtom(- in bag)"))
        << "each that lost some";

    Activate({{pBag, "d"}, {pBag, "e"}});
    pBag->permissionsFor["e"] = 0;
    pBag->refused = {"adds d as d"}; // its name is taken meanwhile
    pBag->onCall = [&](const std::string& strCall) {
        if (strCall == "removes d")
            pBag->Add("d");
    };
    EXPECT_FALSE(CopyObjects(TRUE));
    EXPECT_EQ("e d d (2)", Members(pBag));
}

TEST_F(ClipboardTest, ACutAtomIsInItsContainerOrOnTheClipboardWhateverFails)
{
    pBox->pLedger = nullptr;
    const auto cut = [&] {
        try {
            CopyObjects(TRUE);
        } catch (const CException&) {
        }
    };
    const auto check = [&] {
        EXPECT_NE(pBox->Named("a") != nullptr, OnClipboard() == "a\n");
        EXPECT_EQ(OnClipboard() == "a\n" ? 1 : 0, CountFiles());
        EXPECT_EQ(toolkit::Cursor::Arrow, desktop.CurrentCursor());
        desktop.TakeMessageBoxes();
        EmptyClipboard();
        if (!pBox->Named("a"))
            pBox->Add("a");
        Activate({{pBox, "a"}});
    };
    Activate({{pBox, "a"}});
    FailEveryAllocation(cut, check);
    desktop.RefuseClipboard(true);
    EXPECT_THROW(CopyObjects(TRUE), COleException);
    desktop.RefuseClipboard(false);
    check();
}

TEST_F(ClipboardTest, WhatCannotBeWrittenLeavesTheClipboardAndTheAtomsAsTheyWere)
{
    Activate({{pBox, "a"}});
    EXPECT_TRUE(CopyObjects(FALSE));
    editor.pairs.clear();
    EXPECT_FALSE(CopyObjects(TRUE)); // nothing is active
    Activate({{pBox, "b"}});
    archives.refusesStreams = true;
    EXPECT_FALSE(CopyObjects(TRUE));
    archives.refusesStreams = false;
    setenv("TEMP", "/proc", 1);
    EXPECT_FALSE(CopyObjects(TRUE));
    setenv("TEMP", folder.Path().c_str(), 1);
    EXPECT_EQ("a\n", OnClipboard());

    const auto pArchive = Holding("x\n");
    editor.Uninstall(); // without an editor nothing happens at all
    EXPECT_FALSE(CopyObjects(FALSE));
    EXPECT_FALSE(CopyObjects(TRUE));
    EXPECT_FALSE(RemoveObjects(TRUE)); // nor is anything asked
    EXPECT_FALSE(PasteObjects(pArchive.Get(), pBox, FALSE));
    EXPECT_EQ(0u, CheckPaste(pArchive.Get(), pBox, FALSE));
    EXPECT_EQ("a b c", Members(pBox));
}

TEST_F(ClipboardTest, RemovingAsksAndGivesTheFocusBack)
{
    Activate({{pBox, "a"}, {pBox, "b"}, {pBag, "d"}});
    field.SetFocus();
    desktop.Answer(IDNO);
    EXPECT_TRUE(RemoveObjects(TRUE));
    EXPECT_EQ(Ledger({": Remove?"}), desktop.TakeMessageBoxes());
    EXPECT_TRUE(HasFocus(field));
    EXPECT_EQ(Ledger(), editor.TakeLedger());

    pBox->onCall = [&](const std::string&) { EXPECT_EQ(toolkit::Cursor::Wait, desktop.CurrentCursor()); };
    pBox->permissionsFor["a"] = ~APF_REMOVE;
    pBox->refused = {"removes b"};
    editor.goesOnAfterRefusal = true;
    desktop.Answer(IDYES);
    EXPECT_TRUE(RemoveObjects(TRUE));
    desktop.TakeMessageBoxes();
    EXPECT_EQ(Ledger({"enumerates", "box permits a", "box permits b", "box removes b", "bag permits d", "bag removes d",
                      "nobody tells OnDeleteAtom(- in bag)"}),
              editor.TakeLedger());
    EXPECT_TRUE(HasFocus(field));

    Activate({{pBox, "a"}});
    EXPECT_TRUE(RemoveObjects(FALSE)); // nothing went, so nothing is told
    EXPECT_EQ(Ledger({"enumerates", "box permits a"}), editor.TakeLedger());
}

TEST_F(ClipboardTest, PastedAtomsKeepTheirNamesOnlyWhenTheyMove)
{
    const auto pArchive = Holding("a\nx\n");
    pBox->onCall = [&](const std::string&) { EXPECT_EQ(toolkit::Cursor::Wait, desktop.CurrentCursor()); };
    EXPECT_TRUE(PasteObjects(pArchive.Get(), pBox, FALSE));
    EXPECT_EQ(Ledger({"reads", "box permits a", "box validates a", "box adds a as a (2)",
                      "nobody tells OnCreateAtom(a (2) in box)", "box permits x", "box validates x", "box adds x as x",
                      "nobody tells OnCreateAtom(x in box)"}),
              editor.TakeLedger());

    pBag->refused = {"adds a as a"}; // passed over in silence
    EXPECT_TRUE(PasteObjects(pArchive.Get(), pBag, TRUE));
    EXPECT_EQ(Ledger({"reads", "bag permits a", "bag adds a as a", "bag permits x", "bag adds x as x",
                      "nobody tells OnCreateAtom(x in bag)"}),
              editor.TakeLedger());

    pBox->permissionsFor["a"] = 0; // what is not let in ends the paste
    EXPECT_FALSE(PasteObjects(pArchive.Get(), pBox, TRUE));
    EXPECT_EQ(Ledger({"reads", "box permits a"}), editor.TakeLedger());
    pBag->refused = {"validates a"};
    EXPECT_FALSE(PasteObjects(pArchive.Get(), pBag, FALSE));
    EXPECT_FALSE(PasteObjects(Holding("nameless\n").Get(), pBag, TRUE));
    EXPECT_FALSE(PasteObjects(pArchive.Get(), nullptr, FALSE));

    editor.onNotify = [](AEStateOperation, IAtom*) { AfxThrowMemoryException(); }; // a view's trouble is the caller's
    EXPECT_THROW(PasteObjects(Holding("y\n").Get(), pBag, TRUE), CMemoryException);
    EXPECT_EQ("d e x y", Members(pBag));
    EXPECT_EQ(Ledger(), desktop.TakeMessageBoxes());
    editor.onNotify = nullptr;
}

TEST_F(ClipboardTest, TheVerdictIsThatOfTheLastAtomLookedAt)
{
    pBox->permissionsFor = {
        {"copy", APF_ACCEPTCOPY}, {"both", APF_ACCEPT | APF_ACCEPTCOPY}, {"neither", ~(APF_ACCEPT | APF_ACCEPTCOPY)}};
    const auto verdict = [&](const char* pszNames, BOOL bMove) {
        return CheckPaste(Holding(pszNames).Get(), pBox, bMove);
    };
    EXPECT_EQ(0xFFFFFFFF, verdict("x\n", TRUE));
    EXPECT_EQ(Ledger({"reads", "box permits x", "box finds x"}), editor.TakeLedger());
    EXPECT_EQ(0xFFFFFFFF, verdict("x\na\n", FALSE)); // a name is no obstacle to a copy
    EXPECT_EQ(Ledger({"reads", "box permits x", "box permits a"}), editor.TakeLedger());
    EXPECT_EQ(0u, verdict("x\na\ny\n", TRUE)); // nothing is looked at after the obstacle
    EXPECT_EQ(Ledger({"reads", "box permits x", "box finds x", "box permits a", "box finds a"}), editor.TakeLedger());
    EXPECT_EQ(0u, verdict("neither\nx\n", FALSE));
    EXPECT_EQ(Ledger({"reads", "box permits neither"}), editor.TakeLedger());
    EXPECT_EQ(0u, verdict("", FALSE));
    EXPECT_EQ(0xFFFFFFFF, verdict("nameless\nx\n", TRUE)); // no name to look for, and no further
    EXPECT_EQ(1u, verdict("both\ncopy\n", FALSE));
    EXPECT_EQ(0xFFFFFFFF, verdict("copy\nboth\n", FALSE));
    EXPECT_EQ(0u, CheckPaste(Holding("x\n").Get(), nullptr, FALSE));
}

TEST_F(ClipboardTest, ATransferFileGoesWithItsOwnersLastReference)
{
    auto* const pOwner = new CTransferFileOwner(HGLOBALFromArchive(Holding("a\nb\n").Get()));
    void* p = &p;
    EXPECT_EQ(E_NOINTERFACE, pOwner->QueryInterface(IID{1, 2, 3, {}}, &p));
    EXPECT_EQ(nullptr, p);
    EXPECT_EQ(S_OK, pOwner->QueryInterface(IID_IUnknown, &p));
    EXPECT_EQ(static_cast<IUnknown*>(pOwner), p);
    EXPECT_EQ(1u, pOwner->Release());
    EXPECT_EQ(1, CountFiles());
    EXPECT_EQ(0u, pOwner->Release());
    EXPECT_EQ(Ledger({"reads"}), editor.TakeLedger());

    void* const hPath = HGLOBALFromArchive(Holding("a\n").Get());
    DeleteFile(toolkit::GlobalLocker<const char>(hPath).Get());
    for (int i = 0; i < 2; ++i) // of a file that is gone already, and of a handle that cannot be locked
        (new CTransferFileOwner(hPath))->Release();
    EXPECT_EQ(Ledger(), editor.TakeLedger());
}

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
