// Copying and pasting atoms of a library through the editor's archives, without a clipboard and without views.
#pragma once

#include "Editor/services/Services.h"
#include "Editor/services/StateHandler.h"
#include "tests/editor/LibraryFixture.h"

// At its end the editor is referred to by nobody.
class ArchiveTest : public LibraryTest
{
protected:
    ArchiveTest();
    ~ArchiveTest() override;

    static CStubRef<IArchive> MakeArchive(std::string_view bytes = {});
    static std::string BytesOf(IArchive* pArchive);

    // What CopyObjects writes when these are active; empty when the editor refuses.
    CStubRef<IArchive> Copy(const std::vector<IAtom*>& atoms);
    CStubRef<IArchive> Copy(IAtomContainer* pIn, const std::vector<const char*>& names);
    std::string CopyError(IAtomContainer* pIn, const std::vector<const char*>& names); // of a copy that is refused
    // The objects that ReadArchive hands out: "[a.bmp Ada]"; "! line" when it reads nothing.
    std::string Read(IArchive* pArchive);
    std::string Read(std::string_view bytes) { return Read(MakeArchive(bytes).Get()); }

    // As PasteObjects does: under valid names or, when it is a move, under their own. The lines of what failed.
    std::string Paste(IArchive* pArchive, IAtomContainer* pInto, bool bMove = false);
    // What a container answers for the first object: "accept copy", "none".
    std::string Permissions(IArchive* pArchive, IAtomContainer* pInto);
    static std::string ValidName(IAtomContainer* pIn, const std::string& name); // "?" without one
    // Of a change that is refused, the container's error; else "".
    static std::string Remove(IAtomContainer* pIn, const char* pszName);
    static std::string Rename(IAtomContainer* pIn, const char* pszName, const std::string& newName);

    editor::CAtomEditor editor;

private:
    class Selection final : public editor::CStateHandler
    {
    public:
        BOOL OnGetActivePairs(OBJPAIR* pairs, DWORD* pCount) override;
        std::vector<IAtom*> atoms;
    };

    editor::Services m_services{editor};
    Selection m_selection;
};
