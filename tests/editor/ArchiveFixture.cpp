#include "tests/editor/ArchiveFixture.h"

#include "Editor/archive/Archive.h"
#include "Editor/archive/MemoryStream.h"

#include <cstring>

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
    std::memcpy(pStream->GetData(), bytes.data(), bytes.size());
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
