// A library in a temporary folder, without a window.
#pragma once

#include "Editor/model/Library.h"
#include "tests/editor/BmpReader.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/TempFolder.h"

// At its end no object of the model may be alive.
class LibraryTest : public DesktopTest
{
protected:
    LibraryTest();
    ~LibraryTest() override;

    // An error's line instead of an exception: "! line".
    std::string Open() { return Open(folder.Path()); }
    std::string Open(const std::string& path);
    editor::CLibrary* Library() { return m_pLibrary.Get(); }

    // The members by name, in the container's order: "[Ada/ ball.bmp walk.phase>]"; missing ones as "-".
    static std::string Members(IAtomContainer* pContainer);
    std::string Members(const std::string& path) { return Members(Container(path).Get()); }
    CStubRef<IAtomContainer> Container(const std::string& path); // in the library, which is ""
    static CStubRef<IAtom> Find(IAtomContainer* pIn, const char* pszName);
    CStubRef<IAtom> Find(const char* pszName) { return Find(Library(), pszName); }
    static CStubRef<IAtom> At(IAtomContainer* pIn, UINT nPlace);
    static std::string Name(IAtom* pAtom);
    static std::string Error(IAtom* pAtom); // empty without one
    // Of an icon 48 pixels wide: what is in its middle, or "folder", "phase", "broken", "none yet".
    static std::string Icon(IAtom* pAtom);
    Ledger TakeArrivals() { return m_arrivals.TakeLedger(); }
    void Settle();  // all pictures wanted so far have arrived
    void ReadAll(); // the same, and nothing is held back

    TrashHome trash;
    TempFolder folder;
    BmpReader reader;
    std::shared_ptr<editor::PictureStore> pPictures;

private:
    LedgerBook m_arrivals;
    editor::LongWork m_work;
    CStubRef<editor::CLibrary> m_pLibrary;
    const int m_nLive;
};
