#include "tests/editor/ArchiveFixture.h"

#include "Editor/archive/Archive.h"
#include "Editor/archive/MemoryStream.h"

#include <algorithm>

ArchiveTest::ArchiveTest()
{
    editor.RegisterHandler(nullptr, &m_selection);
    editor.NotifyHandlers(&m_selection, &IAEStateHandler::OnAtomSelected, nullptr, nullptr,
                          0); // it is asked from now on
}

ArchiveTest::~ArchiveTest()
{
    editor.ForgetAtoms();
    EXPECT_EQ(0, editor.CountReferences());
}

BOOL ArchiveTest::Selection::OnGetActivePairs(OBJPAIR* pairs, DWORD* pCount)
{
    *pCount = static_cast<DWORD>(atoms.size());
    for (std::size_t i = 0; pairs && i < atoms.size(); ++i) {
        pairs[i].pAtom = CStubRef<IAtom>::Share(atoms[i]).Detach();
        CStubRef<IAtomContainer> pContainer;
        atoms[i]->GetContainer(pContainer.Receive(), IID_IAtomContainer);
        pairs[i].pContainer = pContainer.Detach();
    }
    return pairs != nullptr;
}

CStubRef<IArchive> ArchiveTest::MakeArchive(std::string_view bytes)
{
    const auto pStream = CStubRef<IByteStream>::Adopt(new editor::CMemoryStream);
    pStream->Seek(static_cast<DWORD>(bytes.size()), 0);
    pStream->SetEnd();
    std::copy(bytes.begin(), bytes.end(), static_cast<char*>(pStream->GetData()));
    auto pArchive = CStubRef<IArchive>::Adopt(new editor::CArchive);
    pArchive->SetStream(pStream.Get());
    return pArchive;
}

std::string ArchiveTest::BytesOf(IArchive* pArchive)
{
    return {static_cast<const char*>(pArchive->GetData()), pArchive->GetLength()};
}

CStubRef<IArchive> ArchiveTest::Copy(const std::vector<IAtom*>& atoms)
{
    m_selection.atoms = atoms;
    auto pArchive = MakeArchive("what was there before");
    const BOOL bWritten = editor.WriteActiveObjects(pArchive.Get());
    EXPECT_EQ(bWritten != FALSE, editor.GetArchiveError().empty());
    EXPECT_EQ(bWritten != FALSE, pArchive->GetLength() > 0);
    return pArchive;
}

CStubRef<IArchive> ArchiveTest::Copy(IAtomContainer* pIn, const std::vector<const char*>& names)
{
    std::vector<CStubRef<IAtom>> held;
    std::vector<IAtom*> atoms;
    for (const char* const pszName : names)
        atoms.push_back(held.emplace_back(Find(pIn, pszName)).Get());
    return Copy(atoms);
}

std::string ArchiveTest::CopyError(IAtomContainer* pIn, const std::vector<const char*>& names)
{
    Copy(pIn, names);
    return editor.GetArchiveError();
}

std::string ArchiveTest::Read(IArchive* pArchive)
{
    std::string names;
    const ARCHIVEATOMPROC note = [](IAtom* pAtom, void* pNames) -> BOOL {
        auto& text = *static_cast<std::string*>(pNames);
        text += (text.empty() ? "" : " ") + Name(pAtom);
        return TRUE;
    };
    if (editor.ReadArchive(note, pArchive, &names))
        return '[' + names + ']';
    EXPECT_EQ("", names) << "handed out before the whole was checked";
    return "! " + editor.GetArchiveError();
}

std::string ArchiveTest::Paste(IArchive* pArchive, IAtomContainer* pInto, bool bMove)
{
    struct Context
    {
        IAtomContainer* pInto;
        bool bMove;
        std::string failures;
    } context{pInto, bMove, {}};
    const ARCHIVEATOMPROC paste = [](IAtom* pAtom, void* p) -> BOOL {
        auto& c = *static_cast<Context*>(p);
        const std::string name = c.bMove ? Name(pAtom) : ValidName(c.pInto, Name(pAtom));
        CStubRef<IAtom> pNew;
        if (!c.pInto->GetPermissions(pAtom)) {
            c.failures += Name(pAtom) + ": not permitted\n";
            return TRUE;
        }
        if (!c.pInto->AddAtom(pAtom, 0, name.c_str(), pNew.Receive(), IID_IAtom))
            c.failures += Error(c.pInto) + '\n';
        EXPECT_EQ(static_cast<bool>(pNew), Error(pAtom).empty());
        return TRUE;
    };
    const BOOL bRead = editor.ReadArchive(paste, pArchive, &context);
    EXPECT_EQ(editor.GetArchiveError().empty(), bRead != FALSE) << "what was not taken is no success";
    return context.failures;
}

std::string ArchiveTest::Permissions(IArchive* pArchive, IAtomContainer* pInto)
{
    std::pair<IAtomContainer*, DWORD> asked(pInto, 0xFFFFFFFF);
    const ARCHIVEATOMPROC ask = [](IAtom* pAtom, void* p) -> BOOL {
        auto& [pContainer, dwAnswer] = *static_cast<decltype(asked)*>(p);
        dwAnswer = pContainer->GetPermissions(pAtom);
        return FALSE;
    };
    EXPECT_FALSE(editor.ReadArchive(ask, pArchive, &asked));
    return asked.second == (APF_ACCEPT | APF_ACCEPTCOPY) ? "accept copy"
           : asked.second == APF_ACCEPTCOPY              ? "copy"
           : asked.second == 0                           ? "none"
                                                         : "?";
}

std::string ArchiveTest::ValidName(IAtomContainer* pIn, const std::string& name)
{
    CString valid(name.c_str());
    return pIn->ValidateName(valid, 0) ? std::string(valid.View()) : "?";
}

std::string ArchiveTest::Remove(IAtomContainer* pIn, const char* pszName)
{
    const auto pAtom = Find(pIn, pszName);
    return pIn->RemoveAtom(pAtom.Get()) ? std::string() : Error(pIn);
}

std::string ArchiveTest::Rename(IAtomContainer* pIn, const char* pszName, const std::string& newName)
{
    const auto pAtom = Find(pIn, pszName);
    CStubRef<IAtom> pNew;
    if (!pIn->RenameAtom(pAtom.Get(), newName.c_str(), pNew.Receive(), IID_IAtom))
        return Error(pIn);
    EXPECT_NE(pAtom.Get(), pNew.Get());
    EXPECT_EQ(newName, Name(pNew.Get()));
    EXPECT_EQ(pszName, Name(pAtom.Get())) << "the former atom is still what it was";
    return {};
}
