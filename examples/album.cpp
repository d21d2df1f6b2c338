// The smallest host: colours in an album, as large icons. Enter, F2, Delete and the right mouse button work.
#include "HostKit/HostKit.h"
#include "Views/list/list.h"
#include "examples/Screen.h"

#include <cstdio>
#include <cstdlib>

namespace
{

// An object of the program's own: what it is called, the kit knows.
class Color : public hostkit::CAtom
{
public:
    Color() = default; // where one is read
    Color(std::string name, COLORREF color) : CAtom(std::move(name)), m_color(color) {}

protected:
    toolkit::Surface DrawIcon(CSize size) override { return toolkit::Surface(size, toolkit::ToPixel(m_color)); }

    // With its bytes it can be renamed and copied, too.
    std::string Save() const override { return std::to_string(m_color); }
    bool Load(std::string_view bytes) override
    {
        m_color = static_cast<COLORREF>(std::strtoul(std::string(bytes).c_str(), nullptr, 10));
        return m_color <= 0xFFFFFF;
    }

private:
    COLORREF m_color = 0;
};

// Hears what happens to the objects.
class Teller : public hostkit::CHandler
{
public:
    using CHandler::CHandler;

    BOOL OnAtomSelected(IAtom* pAtom, IAtomContainer*) override
    {
        if (pAtom)
            std::printf("selected %s\n", hostkit::NameOf(pAtom).c_str());
        return TRUE;
    }
};

} // namespace

int main(int argc, char* argv[])
{
    examples::Screen screen(argc, argv);
    hostkit::Host host("Album");
    hostkit::RegisterAtom<Color>("Color");

    const auto pAlbum = hostkit::Make<hostkit::CContainer>("Album");
    pAlbum->Add(hostkit::Make<Color>("Ruby", RGB(176, 32, 52)));
    pAlbum->Add(hostkit::Make<Color>("Amber", RGB(240, 168, 32)));
    pAlbum->Add(hostkit::Make<Color>("Jade", RGB(32, 144, 92)));
    pAlbum->Add(hostkit::Make<Color>("Sapphire", RGB(36, 84, 168)));

    hostkit::CFrame frame(host.GetEditor());
    CIconList list;
    Teller teller(host.GetEditor());
    if (!frame.Create("Album", CSize(480, 240)) || !list.Create(frame.RightSide()))
        return 1;
    frame.Open(pAlbum.Get());
    return screen.Run(frame);
}
