#include "examples/Screen.h"

#include "Toolkit/headless/HeadlessDesktop.h"

#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>

#ifdef EXAMPLES_QT
#include "QtDesktop/QtDesktop.h"

#include <QApplication>
#endif

namespace examples
{
namespace
{

constexpr std::pair<const char*, UINT> kKeys[] = {
    {"Home", VK_HOME}, {"End", VK_END}, {"Left", VK_LEFT},     {"Right", VK_RIGHT}, {"Up", VK_UP},   {"Down", VK_DOWN},
    {"F2", VK_F2},     {"F6", VK_F6},   {"Delete", VK_DELETE}, {"Back", VK_BACK},   {"A", 'A'},      {"C", 'C'},
    {"V", 'V'},        {"X", 'X'},      {"Enter", VK_RETURN},  {"Tab", VK_TAB},     {"Add", VK_ADD},
};

void WriteBmp(const toolkit::Surface& picture, const char* pszFile)
{
    const auto pixels = static_cast<std::uint32_t>(picture.Width()) * static_cast<std::uint32_t>(picture.Height());
    const std::uint32_t header[] = {14 + 40 + pixels * 4,
                                    0,
                                    14 + 40,
                                    40,
                                    static_cast<std::uint32_t>(picture.Width()),
                                    static_cast<std::uint32_t>(-picture.Height()),
                                    1 | 32 << 16,
                                    0,
                                    pixels * 4,
                                    0,
                                    0,
                                    0,
                                    0};
    std::ofstream file(pszFile, std::ios::binary);
    file.write("BM", 2).write(reinterpret_cast<const char*>(header), sizeof header);
    file.write(reinterpret_cast<const char*>(picture.Row(0)), static_cast<std::streamsize>(pixels) * 4);
}

// Each line that begins with "$ " is something that the user does, in client coordinates of the frame:
//
//     key NAME [ctrl]      click X Y [ctrl]      double X Y      drag X Y X Y [ctrl]      type TEXT      answer yes
//     close
//
// or looks at: "pixel X Y" prints the colour, "boxes" what message boxes said. Each is printed before it is done, so
// that what comes out is the file itself, when all other lines of it are what the program prints.
class Player
{
public:
    Player(toolkit::HeadlessDesktop& desktop, CWnd& frame) : m_desktop(desktop), m_frame(frame) {}

    bool Play(const std::string& line)
    {
        std::istringstream words(line);
        std::string what;
        words >> what;
        if (what == "key")
            return Key(words);
        if (what == "click" || what == "double" || what == "drag" || what == "pixel")
            return Point(what, words);
        if (what == "type")
            m_desktop.Type(line.substr(5));
        else if (what == "answer")
            m_desktop.Answer(line.ends_with("yes") ? IDYES : IDNO);
        else if (what == "boxes")
            for (const std::string& box : m_desktop.TakeMessageBoxes())
                std::printf("%s\n", box.c_str());
        else if (what == "close")
            m_frame.SendMessage(WM_CLOSE);
        else
            return false;
        return true;
    }

private:
    bool Key(std::istringstream& words)
    {
        std::string name, modifier;
        words >> name >> modifier;
        for (const auto& [pszName, vkey] : kKeys) {
            if (name != pszName)
                continue;
            m_desktop.Hold({.control = modifier == "ctrl"});
            m_desktop.Key(vkey);
            m_desktop.Hold({});
            return true;
        }
        return false;
    }

    bool Point(const std::string& what, std::istringstream& words)
    {
        CPoint at, to;
        words >> at.x >> at.y;
        if (what == "drag")
            words >> to.x >> to.y;
        if (!words)
            return false;
        std::string modifier;
        words >> modifier;
        const toolkit::Modifiers held{.control = modifier == "ctrl"};
        if (what == "pixel") {
            const COLORREF color = toolkit::ToColor(m_desktop.Dump(m_frame.m_hWnd).At(at.x, at.y));
            std::printf("#%02x%02x%02x\n", GetRValue(color), GetGValue(color), GetBValue(color));
        } else if (what == "double") {
            m_desktop.DoubleClick(m_frame.m_hWnd, at);
        } else if (what == "click") {
            m_desktop.Hold(held);
            m_desktop.Click(m_frame.m_hWnd, at);
        } else {
            Drag(at, to, held);
        }
        m_desktop.Hold({});
        return true;
    }

    void Drag(CPoint at, CPoint to, toolkit::Modifiers held)
    {
        m_desktop.DuringDrag([=, this] {
            m_desktop.Hold(held);
            m_desktop.MoveTo(m_frame.m_hWnd, to);
            m_desktop.Release(m_frame.m_hWnd, to);
        });
        m_desktop.Press(m_frame.m_hWnd, at);
        m_desktop.MoveTo(m_frame.m_hWnd, {at.x + 9, at.y + 9});
        m_desktop.Release(m_frame.m_hWnd, to);
    }

    toolkit::HeadlessDesktop& m_desktop;
    CWnd& m_frame;
};

int PlayFile(toolkit::HeadlessDesktop& desktop, CWnd& frame, const char* pszFile)
{
    std::ifstream file(pszFile);
    Player player(desktop, frame);
    desktop.Run();
    for (std::string line; std::getline(file, line);) {
        if (!line.starts_with("$ "))
            continue;
        std::printf("%s\n", line.c_str());
        if (!player.Play(line.substr(2)))
            return 2;
    }
    return desktop.ExitStatus().value_or(3); // a program that is closed has asked to end
}

} // namespace

#ifdef EXAMPLES_QT
struct Screen::Window
{
    Window(int& argc, char* argv[]) : application(argc, argv) {}

    QApplication application;
    qtdesktop::QtDesktop desktop;
};
#else
struct Screen::Window
{};
#endif

Screen::Screen(int argc, char* argv[])
    :
#ifdef EXAMPLES_QT
      m_pWindow(argc > 2 ? nullptr : std::make_unique<Window>(argc, argv)),
#endif
      m_pszMode(argc > 2 ? argv[1] : ""),
      m_pszFile(argc > 2 ? argv[2] : ""),
      m_pHeadless(m_pWindow ? nullptr : std::make_unique<toolkit::HeadlessDesktop>())
{}

Screen::~Screen() = default;

int Screen::Run(CWnd& frame)
{
    frame.ShowWindow(SW_SHOW);
#ifdef EXAMPLES_QT
    if (m_pWindow)
        return m_pWindow->application.exec();
#endif
    auto& desktop = static_cast<toolkit::HeadlessDesktop&>(*m_pHeadless);
    if (std::strcmp(m_pszMode, "--play") == 0)
        return PlayFile(desktop, frame, m_pszFile);
    if (std::strcmp(m_pszMode, "--picture") == 0)
        return WriteBmp(desktop.Dump(frame.m_hWnd), m_pszFile), 0;
    std::puts("There is no window without Qt: --play FILE or --picture OUT.bmp");
    return 2;
}

} // namespace examples
