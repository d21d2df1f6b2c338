#include "tests/editor/LibraryFixture.h"

#include "Editor/pictures/IconPainter.h"
#include "HostKit/base/Counted.h"
#include "HostKit/base/ErrorInfo.h"
#include "Toolkit/graphics/Gdi.h"

#include <algorithm>

using hostkit::Pictogram;

namespace
{

bool AreSame(const toolkit::Surface& a, const toolkit::Surface& b)
{
    return a.Bounds() == b.Bounds() && std::equal(a.Row(0), a.Row(0) + a.Width() * a.Height(), b.Row(0));
}

} // namespace

LibraryTest::LibraryTest() : m_nLive(hostkit::Counted::CountAlive())
{
    editor::PictureStore::Limits limits;
    limits.threads = 1;
    limits.waiting = 3;
    pPictures =
        std::make_shared<editor::PictureStore>(reader, limits, [this](IAtom* pAtom) { m_arrivals.Write(Name(pAtom)); });
}

LibraryTest::~LibraryTest()
{
    m_pLibrary.Release();
    reader.AllowAll();
    for (desktop.Run(); !pPictures->IsIdle(); desktop.Run())
        pPictures->WaitForResult(std::chrono::milliseconds(10));
    pPictures->Stop();
    EXPECT_EQ(m_nLive, hostkit::Counted::CountAlive()) << "atoms or their parts left alive";
}

std::string LibraryTest::Open(const std::string& path)
{
    std::string error;
    m_pLibrary = editor::CLibrary::Open(path, reader.Extensions(), pPictures, m_work, error);
    EXPECT_EQ(error.empty(), static_cast<bool>(m_pLibrary));
    return m_pLibrary ? Members(m_pLibrary.Get()) : "! " + error;
}

std::string LibraryTest::Members(IAtomContainer* pContainer)
{
    std::string text;
    for (UINT i = 0; i < pContainer->GetCount(); ++i) {
        const auto pAtom = At(pContainer, i);
        text += text.empty() ? "" : " ";
        text += pAtom ? Name(pAtom.Get()) : "-";
        if (CStubRef<IPhase>::From(pAtom.Get()))
            text += '>';
        else if (CStubRef<IAtomContainer>::From(pAtom.Get()))
            text += '/';
    }
    return '[' + text + ']';
}

CStubRef<IAtomContainer> LibraryTest::Container(const std::string& path)
{
    auto pFound = CStubRef<IAtomContainer>::Share(Library());
    for (const std::filesystem::path& name : std::filesystem::path(path)) {
        const auto pIn = std::exchange(pFound, {});
        EXPECT_TRUE(pIn && pIn->FindAtom(name.c_str(), pFound.Receive(), IID_IAtomContainer)) << path;
    }
    return pFound;
}

CStubRef<IAtom> LibraryTest::Find(IAtomContainer* pIn, const char* pszName)
{
    CStubRef<IAtom> pFound;
    const BOOL bFound = pIn->FindAtom(pszName, pFound.Receive(), IID_IAtom);
    EXPECT_EQ(bFound != FALSE, static_cast<bool>(pFound));
    return pFound;
}

CStubRef<IAtom> LibraryTest::At(IAtomContainer* pIn, UINT nPlace)
{
    CStubRef<IAtom> pAtom;
    pIn->GetAtoms(nPlace, 1, pAtom.Receive(), IID_IAtom);
    return pAtom;
}

std::string LibraryTest::Name(IAtom* pAtom)
{
    DWORD length = 0;
    if (!pAtom->GetName(nullptr, &length))
        return "?";
    std::string name(length, '?');
    EXPECT_TRUE(pAtom->GetName(name.data(), &length));
    EXPECT_EQ('\0', name.back());
    name.pop_back();
    return name;
}

std::string LibraryTest::Error(IAtom* pAtom)
{
    return hostkit::CErrorInfo::LineOf(CStubRef<IMyErrorInfo>::From(pAtom).Get());
}

std::string LibraryTest::Icon(IAtom* pAtom)
{
    const auto pIcon = CStubRef<IAtomIcon>::From(pAtom);
    ICONREQUEST request{48, 48, nullptr};
    if (!pIcon || !pIcon->GetIcon(&request))
        return "no icon";
    const toolkit::Surface shown = *toolkit::IconSurface(request.hIcon);
    DestroyIcon(request.hIcon);
    const std::pair<hostkit::Pictogram, const char*> known[] = {{hostkit::Pictogram::Folder, "folder"},
                                                                {hostkit::Pictogram::Phase, "phase"},
                                                                {hostkit::Pictogram::File, "file"},
                                                                {hostkit::Pictogram::BrokenPicture, "broken"},
                                                                {hostkit::Pictogram::Placeholder, "none yet"}};
    for (const auto& [which, pszName] : known)
        if (AreSame(shown, editor::PaintPictogram(which, {48, 48})))
            return pszName;
    char middle[16];
    std::snprintf(middle, sizeof middle, "%06X", shown.At(24, 24) & 0xFFFFFF);
    return middle;
}

void LibraryTest::Settle()
{
    EXPECT_TRUE(desktop.RunUntil([&] { return pPictures->IsIdle(); }));
}

void LibraryTest::ReadAll()
{
    reader.AllowAll();
    Settle();
}
