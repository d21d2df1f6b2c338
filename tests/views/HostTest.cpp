// How the library reaches its host: identifiers, services, tables of operations, references.
#include "Kernel/Kernel.h"
#include "Toolkit/graphics/Resources.h"
#include "tests/views/FakeHost.h"
#include "tests/views/KernelCalls.h"

#include <cstring>
#include <gtest/gtest.h>

namespace
{

class HostTest : public testing::Test
{
protected:
    ~HostTest() override
    {
        EXPECT_EQ(0, FakeAtom::CountLive());
        EXPECT_EQ(0, editor.CountReferences());
    }

    FakeEditor editor;
};

TEST_F(HostTest, LoadingTheLibraryAsksTheKernelForElevenNumbersAndOneServiceInOrder)
{
    const std::vector<std::string> expected{
        "id IPhase",    "id IImageLink",   "id IArchive",       "id ICharacterLibrary",
        "id IAtom",     "id IDispAtom",    "id IAtomContainer", "id IAEStateHandler",
        "id IAtomIcon", "id IMyErrorInfo", "id IAtomThumbnail", "service ConstructMemoryStream"};
    EXPECT_EQ(expected, KernelCallsAtLoad());
    EXPECT_EQ(INT_GetUniqueInterfaceID("IAtom"), IID_IAtom);
    EXPECT_EQ(INT_GetUniqueInterfaceID("IAtomThumbnail"), IID_IAtomThumbnail);
}

// Where an operation stands in its interface's table: a pointer to a virtual member function carries the offset of
// its entry plus one. The entries of the bases come first: four of CStubBaseInterface, then, where an interface
// stands on another, that one's; own operations follow, counted from 1.
template <class Function>
int PositionOf(Function operation, int nInherited)
{
    std::intptr_t offset;
    std::memcpy(&offset, &operation, sizeof offset);
    return static_cast<int>((offset - 1) / static_cast<std::intptr_t>(sizeof(void*))) - nInherited + 1;
}

TEST_F(HostTest, EveryOperationStandsAtItsPositionInTheTable)
{
    constexpr int kStub = 4, kAtom = kStub + 8, kStream = kStub + 7;
    const std::vector<int> positions{
        PositionOf(&CStubBaseInterface::AddRef, 0),
        PositionOf(&CStubBaseInterface::Release, 0),
        PositionOf(&CStubBaseInterface::GetInterface, 0),
        PositionOf(&CStubBaseInterface::StubReserved4, 0),
        PositionOf(&IKernel::CreateObject, kStub),
        PositionOf(&IAtom::GetID, kStub),
        PositionOf(&IAtom::GetName, kStub),
        PositionOf(&IAtom::GetContainer, kStub),
        PositionOf(&IAtom::IsModified, kStub),
        PositionOf(&IAtomIcon::GetIcon, kStub),
        PositionOf(&IAtomIcon::AddToImageList, kStub),
        PositionOf(&IAtomThumbnail::GetFrameCount, kStub),
        PositionOf(&IAtomThumbnail::Draw, kStub),
        PositionOf(&IDispAtom::GetDisplayName, kStub),
        PositionOf(&IPhase::GetPosition, kStub),
        PositionOf(&IByteStream::Seek, kStub),
        PositionOf(&IByteStream::GetLength, kStub),
        PositionOf(&IByteStream::SetEnd, kStub),
        PositionOf(&IByteStream::GetData, kStub),
        PositionOf(&IArchive::SetStream, kStream),
    };
    EXPECT_EQ((std::vector<int>{1, 2, 3, 4, 9, 2, 4, 6, 8, 2, 3, 1, 2, 1, 8, 3, 4, 6, 7, 1}), positions);

    const std::vector<int> container{
        PositionOf(&IAtomContainer::GetCount, kAtom),     PositionOf(&IAtomContainer::GetAtoms, kAtom),
        PositionOf(&IAtomContainer::FindAtomByID, kAtom), PositionOf(&IAtomContainer::FindAtom, kAtom),
        PositionOf(&IAtomContainer::AddAtom, kAtom),      PositionOf(&IAtomContainer::RenameAtom, kAtom),
        PositionOf(&IAtomContainer::RemoveAtom, kAtom),   PositionOf(&IAtomContainer::GetPermissions, kAtom),
        PositionOf(&IAtomContainer::ValidateName, kAtom),
    };
    EXPECT_EQ((std::vector<int>{1, 2, 3, 4, 6, 7, 8, 9, 10}), container);

    const std::vector<int> editorPositions{
        PositionOf(&IAtomEditor::RegisterHandler, kStub),    PositionOf(&IAtomEditor::UnregisterHandler, kStub),
        PositionOf(&IAtomEditor::NotifyHandlers, kStub),     PositionOf(&IAtomEditor::AddPane, kStub),
        PositionOf(&IAtomEditor::RemovePane, kStub),         PositionOf(&IAtomEditor::CreateContextMenu, kStub),
        PositionOf(&IAtomEditor::GetMainWindow, kStub),      PositionOf(&IAtomEditor::EnumActivePairs, kStub),
        PositionOf(&IAtomEditor::DoDragDrop, kStub),         PositionOf(&IAtomEditor::ReadArchive, kStub),
        PositionOf(&IAtomEditor::WriteActiveObjects, kStub), PositionOf(&IAtomEditor::GetClipboardFormat, kStub),
        PositionOf(&IAtomEditor::GetActiveAtom, kStub),
    };
    EXPECT_EQ((std::vector<int>{2, 3, 4, 5, 6, 13, 16, 18, 19, 21, 23, 24, 26}), editorPositions);

    const AEStateOperation operations[] = {
        &IAEStateHandler::PreRenameAtom,    &IAEStateHandler::PreSaveAtom,     &IAEStateHandler::OnCreateAtom,
        &IAEStateHandler::OnDeleteAtom,     &IAEStateHandler::OnChangeAtom,    &IAEStateHandler::OnAtomSelected,
        &IAEStateHandler::OnAtomDeselected, &IAEStateHandler::OnAtomSelecting, &IAEStateHandler::OnAtomDeselecting,
        &IAEStateHandler::OnAtomEntered,    &IAEStateHandler::OnAtomRename};
    int nExpected = 0;
    for (const AEStateOperation operation : operations)
        EXPECT_EQ(++nExpected, PositionOf(operation, kStub));
    EXPECT_EQ(12, PositionOf(&IAEStateHandler::OnGetActivePairs, kStub));
}

// The same count, taken from the table of a living object.
TEST_F(HostTest, AnObjectsTableHoldsItsOperationsAfterThoseOfItsBases)
{
    const auto pBox = ContainerRef::Adopt(new FakeContainer("box"));
    pBox->Add("a");
    IAtomContainer* const pContainer = pBox.Get();
    using Operation = UINT (*)(IAtomContainer*);
    const auto* pTable = *reinterpret_cast<const Operation* const*>(pContainer);
    EXPECT_EQ(1u, pTable[4 + 8](pContainer)); // GetCount: behind the stub's four and the atom's eight
    EXPECT_EQ(pBox->GetID(), pTable[4 + 1](pContainer));
    EXPECT_EQ(static_cast<IAtom*>(pContainer), static_cast<IAtom*>(CStubRef<IAtom>::From(pContainer).Get()));
}

struct Provider : SERVICEPROVIDER
{
    explicit Provider(SERVICEPROC proc) : SERVICEPROVIDER{&table}, table{proc} {}
    SERVICETABLE table;
};

TEST_F(HostTest, AServiceCallHoldsTheLockForTheProvidersAnswerAlone)
{
    SERVICEREC* const pRecord = SRVN_GetUniqueServiceID("TestSv");
    DWORD buffer = 5;
    KernelCalls().clear();
    EXPECT_FALSE(CallService(pRecord, &buffer, sizeof buffer, 0)); // no provider: the lock is left alone
    EXPECT_EQ(std::vector<std::string>(), KernelCalls());
    EXPECT_EQ(5u, buffer);

    Provider serving([](SERVICEPROVIDER*, void* pBuffer, DWORD dwSize, DWORD dwExtra) -> BOOL {
        KernelCalls().push_back("served " + std::to_string(dwSize) + " " + std::to_string(dwExtra));
        *static_cast<DWORD*>(pBuffer) = 6;
        return 3;
    });
    SRVN_InstallProvider("TestSv", &serving);
    KernelCalls().clear();
    EXPECT_EQ(3, CallService(pRecord, &buffer, sizeof buffer, 9));
    EXPECT_EQ((std::vector<std::string>{"wait", "served 4 9", "done"}), KernelCalls());
    EXPECT_EQ(6u, buffer);

    Provider refusing([](SERVICEPROVIDER*, void*, DWORD, DWORD) -> BOOL { return FALSE; });
    SRVN_InstallProvider("TestSv", &refusing);
    EXPECT_FALSE(CallService(pRecord, &buffer, sizeof buffer, 0));
    SRVN_InstallProvider("TestSv", nullptr);
}

TEST_F(HostTest, TheEditorComesWithAReferenceAndItsServiceIsLookedUpOnce)
{
    CStubRef<IAtomEditor>::Adopt(GetAtomEditor()).Release(); // the first user has been
    KernelCalls().clear();
    {
        const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
        EXPECT_EQ(static_cast<IAtomEditor*>(&editor), pEditor.Get());
        EXPECT_EQ(1, editor.CountReferences());
    }
    EXPECT_EQ((std::vector<std::string>{"wait", "done"}), KernelCalls());

    editor.Uninstall();
    KernelCalls().clear();
    EXPECT_EQ(nullptr, GetAtomEditor());
    EXPECT_EQ(std::vector<std::string>(), KernelCalls());
}

TEST_F(HostTest, AnErrorIsShownUnderTheHostsCaption)
{
    CResourceModule module;
    module.AddString(0xE00A, "No name");
    module.Join();
    const auto pAtom = AtomRef::Adopt(new FakeAtom("a"));
    ShowAtomError(nullptr, 0xE00A, pAtom.Get());
    ShowAtomError(nullptr, 0xE00A, nullptr);
    ShowAtomError(nullptr, 1, nullptr);
    EXPECT_EQ(Ledger({"error \"No name\" of a", "error \"No name\" of -", "error \"\" of -"}), editor.TakeLedger());
    EXPECT_EQ(1, pAtom->CountReferences());

    editor.Uninstall();
    ShowAtomError(nullptr, 0xE00A, pAtom.Get());
    EXPECT_EQ(Ledger(), editor.TakeLedger());
}

TEST_F(HostTest, OnlyASecondBlockBlocksTheFocus)
{
    EXPECT_FALSE(FocusBlock::IsInFocusBlock());
    {
        FocusBlock own;
        EXPECT_FALSE(FocusBlock::IsInFocusBlock());
        {
            FocusBlock hosts;
            EXPECT_TRUE(FocusBlock::IsInFocusBlock());
            EXPECT_EQ(&own, &(own = hosts));
            EXPECT_TRUE(FocusBlock::IsInFocusBlock());
        }
        EXPECT_FALSE(FocusBlock::IsInFocusBlock());
    }
    EXPECT_FALSE(FocusBlock::IsInFocusBlock());
    static_assert(sizeof(FocusBlock) == 1 && !std::is_copy_constructible_v<FocusBlock>);
}

TEST_F(HostTest, TheTopOfAHierarchyIsTheLastContainerOrALibraryByItself)
{
    const auto pWorld = ContainerRef::Adopt(new FakeContainer("world"));
    auto* const pBox = static_cast<FakeContainer*>(pWorld->Add(new FakeContainer("box")));
    IAtom* const pLeaf = pBox->Add("leaf");
    const auto topOf = [](IAtom* pAtom, DWORD id) {
        CStubRef<IAtom> pTop;
        const BOOL bFound = GetTopLevelAtom(pAtom, pTop.Receive(), id);
        EXPECT_EQ(bFound != FALSE, static_cast<bool>(pTop));
        return NameOf(pTop.Get());
    };
    EXPECT_EQ("world", topOf(pLeaf, IID_IAtom));
    EXPECT_EQ("world", topOf(pBox, IID_IAtom));
    EXPECT_EQ("-", topOf(pWorld.Get(), IID_IAtom)); // its own top only as a library
    pWorld->isLibrary = true;
    EXPECT_EQ("world", topOf(pWorld.Get(), IID_IAtom));
    EXPECT_EQ("-", topOf(pLeaf, IID_IPhase)); // the top does not have that interface
    EXPECT_EQ("-", topOf(nullptr, IID_IAtom));
    EXPECT_FALSE(GetTopLevelAtom(pLeaf, nullptr, IID_IAtom));
    EXPECT_EQ(1, pBox->CountReferences());
}

TEST_F(HostTest, AHolderGivesBackWhatItHoldsWhereverItGoes)
{
    static_assert(sizeof(CStubRef<IAtom>) == sizeof(void*));
    const auto pAtom = AtomRef::Adopt(new FakeAtom("a"));
    {
        auto pFirst = CStubRef<IAtom>::Share(pAtom.Get());
        CStubRef<IAtom> pSecond = std::move(pFirst);
        EXPECT_FALSE(pFirst);
        EXPECT_EQ(2, pAtom->CountReferences());
        pSecond = CStubRef<IAtom>::From(pAtom.Get());
        pSecond.QueryFrom(pAtom.Get());
        EXPECT_EQ(2, pAtom->CountReferences());
        EXPECT_FALSE(CStubRef<IAtomIcon>::From(pAtom.Get()));
        pAtom->GetInterface(IID_IAtom, pSecond.Receive());
        EXPECT_EQ(2, pAtom->CountReferences());
        pSecond.QueryFrom(static_cast<IAtom*>(nullptr));
        EXPECT_FALSE(pSecond);
    }
    EXPECT_EQ(1, pAtom->CountReferences());
}

} // namespace
