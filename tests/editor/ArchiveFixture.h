// Copying and pasting atoms of a library through the editor's archives, without a clipboard and without views.
#pragma once

#include "Editor/services/AtomEditor.h"
#include "HostKit/Services.h"
#include "tests/editor/LibraryFixture.h"
#include "tests/editor/StateSpy.h"

// At its end the editor is referred to by nobody.
class ArchiveTest : public LibraryTest
{
protected:
    ArchiveTest();
    ~ArchiveTest() override;

    static CStubRef<IArchive> MakeArchive(std::string_view bytes = {});
    static std::string BytesOf(IArchive* pArchive);

    // Containers are told by their paths in the library, which is "".

    // What CopyObjects writes when these are active; empty when the editor refuses.
    CStubRef<IArchive> Copy(const std::vector<IAtom*>& atoms);
    CStubRef<IArchive> Copy(const std::string& in, const std::vector<const char*>& names);
    std::string CopyError(const std::string& in, const std::vector<const char*>& names); // of a copy that is refused
    // The objects that ReadArchive hands out: "[a.bmp Ada]"; "! line" when it reads nothing.
    std::string Read(const CStubRef<IArchive>& pArchive);
    std::string Read(std::string_view bytes) { return Read(MakeArchive(bytes)); }
    BOOL ReadEach(const CStubRef<IArchive>& pArchive, std::function<BOOL(IAtom*)> take); // until it answers FALSE

    // As PasteObjects does: under valid names or, when it is a move, under their own. The lines of what failed.
    std::string Paste(const CStubRef<IArchive>& pArchive, const std::string& into, bool bMove = false);
    // What a container answers for the first object: "accept copy", "none".
    std::string Permissions(const CStubRef<IArchive>& pArchive, const std::string& into);
    std::string ValidName(const std::string& name, const std::string& in = {}); // "?" without one
    // Of a change that is refused, the container's error; else "".
    std::string Remove(const std::string& in, const char* pszName);
    std::string Rename(const std::string& in, const char* pszName, const std::string& newName);

    editor::CAtomEditor editor;

private:
    hostkit::Services m_services{editor};
    LedgerBook m_told;
    StateSpy m_selection{{}, m_told};
};
