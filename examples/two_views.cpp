// A tree and a list in step, and a part of the program that does not allow everything: what is locked cannot be
// selected. Drag, cut, copy and paste between both, and between two of these programs.
#include "HostKit/HostKit.h"
#include "Views/list/list.h"
#include "Views/tree/tree.h"
#include "examples/Screen.h"

#include <cstdio>
#include <cstdlib>

namespace
{

// A note lasts so many quarters; the longer, the larger its picture.
class Note : public hostkit::CAtom
{
public:
    Note() = default;
    Note(std::string name, int nQuarters, bool bLocked = false)
        : CAtom(std::move(name)), m_nQuarters(nQuarters), m_bLocked(bLocked)
    {}

    bool IsLocked() const { return m_bLocked; }

protected:
    toolkit::Surface DrawIcon(CSize size) override
    {
        toolkit::Surface picture(size);
        const int nExtent = std::min<int>(size.cx, size.cy) * (m_nQuarters + 2) / 6;
        const toolkit::Pixel color = toolkit::ToPixel(m_bLocked ? RGB(170, 60, 60) : RGB(60, 110, 170));
        for (int y = size.cy - nExtent; y < size.cy; ++y)
            std::fill_n(picture.Row(y) + (size.cx - nExtent) / 2, nExtent, color);
        return picture;
    }

    std::string Save() const override { return std::to_string(m_nQuarters) + (m_bLocked ? "!" : ""); }
    bool Load(std::string_view bytes) override // another program may have written it
    {
        m_bLocked = bytes.ends_with('!');
        m_nQuarters = std::atoi(std::string(bytes).c_str());
        return m_nQuarters >= 1 && m_nQuarters <= 4;
    }

private:
    int m_nQuarters = 1;
    bool m_bLocked = false;
};

// The top of a hierarchy says that it is one.
class Library : public hostkit::With<hostkit::CContainer, ICharacterLibrary>
{
public:
    Library() : With("Songs") {}
};

// A handler like the views: it is asked before anything is selected, and told what has come and gone.
class Guard : public hostkit::CHandler
{
public:
    using CHandler::CHandler;

    BOOL OnAtomSelecting(IAtom* pAtom, IAtomContainer*) override
    {
        const auto* const pNote = dynamic_cast<Note*>(pAtom);
        if (!pNote || !pNote->IsLocked())
            return TRUE;
        std::printf("%s is locked\n", pNote->Name().c_str());
        return FALSE;
    }
    BOOL OnAtomEntered(IAtom* pAtom, IAtomContainer*) override { return Print("opened", pAtom); }
    BOOL OnCreateAtom(IAtom* pAtom, IAtomContainer*) override { return Print("new:", pAtom); }
    BOOL OnDeleteAtom(IAtom* pAtom, IAtomContainer*) override { return Print("gone:", pAtom); }

private:
    static BOOL Print(const char* pszWhat, IAtom* pAtom)
    {
        std::printf("%s %s\n", pszWhat, pAtom ? hostkit::NameOf(pAtom).c_str() : "some");
        return TRUE;
    }
};

CStubRef<Library> MakeLibrary()
{
    auto pLibrary = hostkit::Make<Library>();
    auto* const pMorning = pLibrary->Add(hostkit::Make<hostkit::CContainer>("Morning"));
    pMorning->Add(hostkit::Make<Note>("do", 1));
    pMorning->Add(hostkit::Make<Note>("re", 2));
    pMorning->Add(hostkit::Make<Note>("mi", 4, true));
    pLibrary->Add(hostkit::Make<hostkit::CContainer>("Evening"))->Add(hostkit::Make<Note>("so", 3));
    return pLibrary;
}

} // namespace

int main(int argc, char* argv[])
{
    examples::Screen screen(argc, argv);
    hostkit::Host host("Two views");
    hostkit::RegisterAtom<Note>("Note");
    const auto pLibrary = MakeLibrary();

    hostkit::CFrame frame(host.GetEditor());
    CIconList list;
    CObjectsTree tree;
    Guard guard(host.GetEditor());
    if (!frame.Create("Two views", CSize(560, 320)) || !list.Create(frame.RightSide()) ||
        !tree.Create(frame.LeftSide()))
        return 1;
    host.GetEditor().AddTop(pLibrary.Get());
    frame.Open(pLibrary.Get());
    return screen.Run(frame);
}
