// How the library reaches its host: identifiers, services, tables of operations, references.
#include "Kernel/Kernel.h"
#include "tests/views/FakeHost.h"

#include <cstring>
#include <dlfcn.h>
#include <gtest/gtest.h>

namespace
{

// "id IAtom", "service GetAtomEditorSv", "wait", "done": every call since a test last cleared them. This program stands
// before the kernel.
Ledger& KernelCalls()
{
    static Ledger s_calls;
    return s_calls;
}

const Ledger s_atLoad = KernelCalls(); // this program's own globals are made after the libraries'

template <class Function>
Function* Next(const char* pszSymbol)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, pszSymbol));
}

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
    const Ledger expected{"id IPhase",    "id IImageLink",   "id IArchive",       "id ICharacterLibrary",
                          "id IAtom",     "id IDispAtom",    "id IAtomContainer", "id IAEStateHandler",
                          "id IAtomIcon", "id IMyErrorInfo", "id IAtomThumbnail", "service ConstructMemoryStream"};
    EXPECT_EQ(expected, s_atLoad);
    EXPECT_EQ(INT_GetUniqueInterfaceID("IAtom"), IID_IAtom);
    EXPECT_EQ(INT_GetUniqueInterfaceID("IAtomThumbnail"), IID_IAtomThumbnail);
}

// Where operations stand in their interface's table: a pointer to a virtual member function carries the offset of its
// entry plus one. The entries of the bases come first: four of CStubBaseInterface, then, where an interface stands on
// another, that one's; own operations follow, counted from 1.
template <class... Functions>
std::vector<int> Positions(int nInherited, Functions... operations)
{
    const auto position = [nInherited](auto operation) {
        std::intptr_t offset;
        std::memcpy(&offset, &operation, sizeof offset);
        return static_cast<int>((offset - 1) / static_cast<std::intptr_t>(sizeof(void*))) - nInherited + 1;
    };
    return {position(operations)...};
}

TEST_F(HostTest, EveryOperationStandsAtItsPositionInTheTable)
{
    using Expected = std::vector<int>;
    using Stub = CStubBaseInterface;
    using Container = IAtomContainer;
    using Handler = IAEStateHandler;
    using Editor = IAtomEditor;
    constexpr int kStub = 4, kAtom = kStub + 8, kStream = kStub + 7;

    EXPECT_EQ(Expected({1, 2, 3, 4}),
              Positions(0, &Stub::AddRef, &Stub::Release, &Stub::GetInterface, &Stub::StubReserved4));
    EXPECT_EQ(Expected({2, 4, 6, 8}),
              Positions(kStub, &IAtom::GetID, &IAtom::GetName, &IAtom::GetContainer, &IAtom::IsModified));
    EXPECT_EQ(Expected({1, 2, 3, 4, 6, 7, 8, 9, 10}),
              Positions(kAtom, &Container::GetCount, &Container::GetAtoms, &Container::FindAtomByID,
                        &Container::FindAtom, &Container::AddAtom, &Container::RenameAtom, &Container::RemoveAtom,
                        &Container::GetPermissions, &Container::ValidateName));
    EXPECT_EQ(Expected({2, 3, 1, 2, 1, 8, 9}),
              Positions(kStub, &IAtomIcon::GetIcon, &IAtomIcon::AddToImageList, &IAtomThumbnail::GetFrameCount,
                        &IAtomThumbnail::Draw, &IDispAtom::GetDisplayName, &IPhase::GetPosition,
                        &IKernel::CreateObject));
    EXPECT_EQ(Expected({3, 4, 6, 7}), Positions(kStub, &IByteStream::Seek, &IByteStream::GetLength,
                                                &IByteStream::SetEnd, &IByteStream::GetData));
    EXPECT_EQ(Expected({1}), Positions(kStream, &IArchive::SetStream));
    EXPECT_EQ(Expected({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}),
              Positions(kStub, &Handler::PreRenameAtom, &Handler::PreSaveAtom, &Handler::OnCreateAtom,
                        &Handler::OnDeleteAtom, &Handler::OnChangeAtom, &Handler::OnAtomSelected,
                        &Handler::OnAtomDeselected, &Handler::OnAtomSelecting, &Handler::OnAtomDeselecting,
                        &Handler::OnAtomEntered, &Handler::OnAtomRename, &Handler::OnGetActivePairs));
    EXPECT_EQ(Expected({2, 3, 4, 5, 6, 13, 16, 18, 19, 21, 23, 24, 26}),
              Positions(kStub, &Editor::RegisterHandler, &Editor::UnregisterHandler, &Editor::NotifyHandlers,
                        &Editor::AddPane, &Editor::RemovePane, &Editor::CreateContextMenu, &Editor::GetMainWindow,
                        &Editor::EnumActivePairs, &Editor::DoDragDrop, &Editor::ReadArchive,
                        &Editor::WriteActiveObjects, &Editor::GetClipboardFormat, &Editor::GetActiveAtom));
}

TEST_F(HostTest, AServiceCallHoldsTheLockForTheProvidersAnswerAlone)
{
    SERVICEREC* const pRecord = SRVN_GetUniqueServiceID("TestSv");
    DWORD buffer = 5;
    KernelCalls().clear();
    EXPECT_FALSE(CallService(pRecord, &buffer, sizeof buffer, 0)); // no provider: the lock is left alone
    EXPECT_EQ(Ledger(), KernelCalls());
    EXPECT_EQ(5u, buffer);

    int nAnswer = 3;
    FakeService service("TestSv", [&](void* pBuffer, DWORD dwSize, DWORD dwExtra) {
        KernelCalls().push_back("served " + std::to_string(dwSize) + " " + std::to_string(dwExtra));
        *static_cast<DWORD*>(pBuffer) = 6;
        return nAnswer;
    });
    KernelCalls().clear();
    EXPECT_EQ(3, CallService(pRecord, &buffer, sizeof buffer, 9));
    EXPECT_EQ(Ledger({"wait", "served 4 9", "done"}), KernelCalls());
    EXPECT_EQ(6u, buffer);
    nAnswer = FALSE;
    EXPECT_FALSE(CallService(pRecord, &buffer, sizeof buffer, 0));
}

TEST_F(HostTest, TheEditorComesWithAReferenceAndItsServiceIsLookedUpOnce)
{
    CStubRef<IAtomEditor>::Adopt(GetAtomEditor()).Release(); // the first user has been
    KernelCalls().clear();
    EXPECT_EQ(&editor, CStubRef<IAtomEditor>::Adopt(GetAtomEditor()).Get());
    EXPECT_EQ(Ledger({"wait", "done"}), KernelCalls());
    editor.Uninstall();
    EXPECT_EQ(nullptr, GetAtomEditor());
}

TEST_F(HostTest, OnlyASecondBlockBlocksTheFocus)
{
    EXPECT_FALSE(FocusBlock::IsInFocusBlock());
    FocusBlock own;
    EXPECT_FALSE(FocusBlock::IsInFocusBlock());
    {
        FocusBlock hosts;
        EXPECT_TRUE(FocusBlock::IsInFocusBlock());
        EXPECT_EQ(&own, &(own = hosts));
        EXPECT_TRUE(FocusBlock::IsInFocusBlock());
    }
    EXPECT_FALSE(FocusBlock::IsInFocusBlock());
    for (const char* pszOperation : {"C1Ev", "D1Ev", "aSERKS_", "14IsInFocusBlockEv"})
        EXPECT_NE(nullptr, dlsym(RTLD_DEFAULT, (std::string("_ZN10FocusBlock") + pszOperation).c_str()))
            << pszOperation;
    static_assert(sizeof(FocusBlock) == 1 && !std::is_copy_constructible_v<FocusBlock>);
}

TEST_F(HostTest, TheTopOfAHierarchyIsTheLastContainerOrALibraryByItself)
{
    const auto pWorld = ContainerRef::Adopt(new FakeContainer("world"));
    IAtom* const pLeaf = static_cast<FakeContainer*>(pWorld->Add(new FakeContainer("box")))->Add("leaf");
    const auto topOf = [](IAtom* pAtom, DWORD id) {
        CStubRef<IAtom> pTop;
        const BOOL bFound = GetTopLevelAtom(pAtom, pTop.Receive(), id);
        EXPECT_EQ(bFound != FALSE, static_cast<bool>(pTop));
        return NameOf(pTop.Get());
    };
    EXPECT_EQ("world", topOf(pLeaf, IID_IAtom));
    EXPECT_EQ("-", topOf(pWorld.Get(), IID_IAtom)); // its own top only as a library
    pWorld->isLibrary = true;
    EXPECT_EQ("world", topOf(pWorld.Get(), IID_IAtom));
    EXPECT_EQ("-", topOf(pLeaf, IID_IPhase)); // the top does not have that interface
    EXPECT_EQ("-", topOf(nullptr, IID_IAtom));
    EXPECT_FALSE(GetTopLevelAtom(pLeaf, nullptr, IID_IAtom));
}

} // namespace

DWORD INT_GetUniqueInterfaceID(const char* pszName)
{
    KernelCalls().push_back(std::string("id ") + pszName);
    return Next<DWORD(const char*)>("_Z24INT_GetUniqueInterfaceIDPKc")(pszName);
}

SERVICEREC* SRVN_GetUniqueServiceID(const char* pszName)
{
    KernelCalls().push_back(std::string("service ") + pszName);
    return Next<SERVICEREC*(const char*)>("_Z23SRVN_GetUniqueServiceIDPKc")(pszName);
}

void CSyncWrRd::WaitForRead()
{
    KernelCalls().push_back("wait");
    Next<void(CSyncWrRd*)>("_ZN9CSyncWrRd11WaitForReadEv")(this);
}

void CSyncWrRd::DoneReading()
{
    KernelCalls().push_back("done");
    Next<void(CSyncWrRd*)>("_ZN9CSyncWrRd11DoneReadingEv")(this);
}
