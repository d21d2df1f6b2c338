#include "tests/editor/ArchiveFixture.h"

#include "HostKit/atoms/Archive.h"
#include "HostKit/memory/MemoryStream.h"

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

CStubRef<IArchive> ArchiveTest::MakeArchive(std::string_view bytes)
{
    const auto pStream = CStubRef<IByteStream>::Adopt(new hostkit::CMemoryStream);
    pStream->Seek(static_cast<DWORD>(bytes.size()), 0);
    pStream->SetEnd();
    std::copy(bytes.begin(), bytes.end(), static_cast<char*>(pStream->GetData()));
    auto pArchive = CStubRef<IArchive>::Adopt(new hostkit::CArchive);
    pArchive->SetStream(pStream.Get());
    return pArchive;
}

std::string ArchiveTest::BytesOf(IArchive* pArchive)
{
    return {static_cast<const char*>(pArchive->GetData()), pArchive->GetLength()};
}

CStubRef<IArchive> ArchiveTest::Copy(const std::vector<IAtom*>& atoms)
{
    m_selection.active = atoms;
    auto pArchive = MakeArchive("what was there before");
    const BOOL bWritten = editor.WriteActiveObjects(pArchive.Get());
    EXPECT_EQ(bWritten != FALSE, editor.GetArchiveError().empty());
    EXPECT_EQ(bWritten != FALSE, pArchive->GetLength() > 0);
    return pArchive;
}

CStubRef<IArchive> ArchiveTest::Copy(const std::string& in, const std::vector<const char*>& names)
{
    const auto pIn = Container(in);
    std::vector<CStubRef<IAtom>> held;
    std::vector<IAtom*> atoms;
    for (const char* const pszName : names)
        atoms.push_back(held.emplace_back(Find(pIn.Get(), pszName)).Get());
    return Copy(atoms);
}

std::string ArchiveTest::CopyError(const std::string& in, const std::vector<const char*>& names)
{
    Copy(in, names);
    return editor.GetArchiveError();
}

BOOL ArchiveTest::ReadEach(const CStubRef<IArchive>& pArchive, std::function<BOOL(IAtom*)> take)
{
    const ARCHIVEATOMPROC call = [](IAtom* pAtom, void* pTake) -> BOOL {
        return (*static_cast<std::function<BOOL(IAtom*)>*>(pTake))(pAtom);
    };
    return editor.ReadArchive(call, pArchive.Get(), &take);
}

std::string ArchiveTest::Read(const CStubRef<IArchive>& pArchive)
{
    std::string names;
    const auto note = [&](IAtom* pAtom) -> BOOL {
        names += (names.empty() ? "" : " ") + Name(pAtom);
        return TRUE;
    };
    if (ReadEach(pArchive, note))
        return '[' + names + ']';
    EXPECT_EQ("", names) << "handed out before the whole was checked";
    return "! " + editor.GetArchiveError();
}

std::string ArchiveTest::Paste(const CStubRef<IArchive>& pArchive, const std::string& into, bool bMove)
{
    const auto pInto = Container(into);
    std::string failures;
    const auto paste = [&](IAtom* pAtom) -> BOOL {
        const std::string name = bMove ? Name(pAtom) : ValidName(Name(pAtom), into);
        CStubRef<IAtom> pNew;
        if (!pInto->GetPermissions(pAtom)) {
            failures += Name(pAtom) + ": not permitted\n";
            return TRUE;
        }
        if (!pInto->AddAtom(pAtom, 0, name.c_str(), pNew.Receive(), IID_IAtom))
            failures += Error(pInto.Get()) + '\n';
        EXPECT_EQ(static_cast<bool>(pNew), Error(pAtom).empty());
        return TRUE;
    };
    const BOOL bRead = ReadEach(pArchive, paste);
    EXPECT_EQ(editor.GetArchiveError().empty(), bRead != FALSE) << "what was not taken is no success";
    return failures;
}

std::string ArchiveTest::Permissions(const CStubRef<IArchive>& pArchive, const std::string& into)
{
    const auto pInto = Container(into);
    DWORD dwAnswer = 0xFFFFFFFF;
    EXPECT_FALSE(ReadEach(pArchive, [&](IAtom* pAtom) -> BOOL {
        dwAnswer = pInto->GetPermissions(pAtom);
        return FALSE;
    }));
    return dwAnswer == (APF_ACCEPT | APF_ACCEPTCOPY) ? "accept copy"
           : dwAnswer == APF_ACCEPTCOPY              ? "copy"
           : dwAnswer == 0                           ? "none"
                                                     : "?";
}

std::string ArchiveTest::ValidName(const std::string& name, const std::string& in)
{
    CString valid(name.c_str());
    return Container(in)->ValidateName(valid, 0) ? std::string(valid.View()) : "?";
}

std::string ArchiveTest::Remove(const std::string& in, const char* pszName)
{
    const auto pIn = Container(in);
    return pIn->RemoveAtom(Find(pIn.Get(), pszName).Get()) ? std::string() : Error(pIn.Get());
}

std::string ArchiveTest::Rename(const std::string& in, const char* pszName, const std::string& newName)
{
    const auto pIn = Container(in);
    const auto pAtom = Find(pIn.Get(), pszName);
    CStubRef<IAtom> pNew;
    if (!pIn->RenameAtom(pAtom.Get(), newName.c_str(), pNew.Receive(), IID_IAtom))
        return Error(pIn.Get());
    EXPECT_NE(pAtom.Get(), pNew.Get());
    EXPECT_EQ(newName, Name(pNew.Get()));
    EXPECT_EQ(pszName, Name(pAtom.Get())) << "the former atom is still what it was";
    return {};
}
