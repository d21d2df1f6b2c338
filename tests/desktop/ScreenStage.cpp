// The contract's stages on a real screen: programs in windows of an X server, or of a Wayland compositor that shows its
// screen in a window of one. All that the user does is done to that server.
#include "tests/desktop/Stage.h"
#include "tests/desktop/XServer.h"

#include <QFile>
#include <QRect>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <map>

namespace
{

constexpr QSize kWindow(200, 120);

// One of the two programs, whose window is known by its colour.
struct Player
{
    const char* pszName;
    COLORREF color;
    QPoint place;
    Program program{};
};

QString At(QPoint at)
{
    return QString("%1 %2").arg(at.x()).arg(at.y());
}

class ScreenStage : public Stage
{
public:
    std::string Missing() const override { return MissingOf(QStringList{"Xvfb", "xdotool", "setxkbmap"} + OwnTools()); }

    bool Start() override
    {
        if (!m_screen.Start() || !m_screen.Run("setxkbmap us intl") || !StartManager())
            return false;
        MoveTo(m_actor.place + kRest);
        return StartPlayer(m_actor);
    }

    void Tell(const std::string& command) override { m_actor.program.Tell(command); }

    bool IsSeen(CSize size) override
    {
        const QSize wanted(size.cx, size.cy);
        return QTest::qWaitFor([&] { return FindColor(m_actor.color).size() == wanted; }, kPatience);
    }

    bool IsSeenAt(CPoint screen) override
    {
        const QPoint wanted(screen.x, screen.y);
        return QTest::qWaitFor([&] { return FindColor(m_actor.color).topLeft() == wanted; }, kPatience);
    }

    void Key(const std::string& key) override { m_screen.XDo(QString::fromStdString("key " + key)); }
    void Hold(const std::string& modifier, bool bDown) override
    {
        m_screen.XDo((bDown ? "keydown " : "keyup ") + QString::fromStdString(modifier));
    }
    void Move(CPoint at) override { MoveTo(InWindow(m_actor, at)); }
    void Press(int nButton) override { m_screen.XDo(QString("mousedown %1").arg(nButton)); }
    void Release(int nButton) override { m_screen.XDo(QString("mouseup %1").arg(nButton)); }
    void DoubleClick() override { m_screen.XDo("click --repeat 2 --delay 50 1"); }
    void Wheel(int nNotches) override
    {
        m_screen.XDo(QString("click --repeat %1 --delay 10 %2").arg(std::abs(nNotches)).arg(nNotches > 0 ? 4 : 5));
    }
    void Leave() override { MoveTo(kNowhere); }
    void GoToOther() override
    {
        StartOther();
        Click(InWindow(m_other, {10, 10}));
    }
    void ComeBack() override { Click(InWindow(m_actor, {10, 10})); }

    bool Choose(const std::function<void()>& open, CPoint at, const std::vector<std::string>& path) override
    {
        open();
        Hear("shown menu");
        MoveTo(kNowhere); // the pointer would be in the picture
        const bool bThere = QTest::qWaitFor([&] { return FindMenu() == at; }, kPatience);
        for (const std::string& item : path) {
            Key(std::string(1, static_cast<char>(std::tolower(item.front()))));
            if (&item != &path.back())
                Hear("shown menu");
        }
        if (path.empty())
            Key("Escape");
        return bThere;
    }
    void Answer(const std::string& box, int nButton) override
    {
        static const std::map<int, const char*> kKeys = {{1, "Return"}, {2, "Escape"}, {6, "alt+y"}, {7, "alt+n"}};
        Tell(box);
        Hear("shown box");
        Key(kKeys.at(nButton));
    }

    void OtherCopies() override
    {
        GoToOther();
        m_other.program.Ask("copy", "copied");
    }
    std::string OtherPastes() override
    {
        GoToOther();
        m_other.program.Tell("paste");
        for (;;)
            if (const std::string line = m_other.program.Line(); line.empty() || line == "nothing" || line[0] == 'f')
                return line;
    }

    void DragWithin(CPoint from, CPoint to) override
    {
        BeginDrag(m_actor, from);
        Drop(m_actor, to);
    }
    void DragToNowhere(CPoint from) override
    {
        BeginDrag(m_actor, from);
        MoveTo(kNowhere);
        Release(1);
    }
    void DragAndCancel(CPoint from) override
    {
        BeginDrag(m_actor, from);
        Key("Escape");
        Release(1);
    }
    void DragToOther(CPoint from, const std::string& drop) override
    {
        StartOther();
        m_other.program.Ask(drop == "die" ? "drop hold" : "drop " + drop, "done");
        BeginDrag(m_actor, from);
        Drop(m_other, {50, 50});
        m_other.program.Await("drop ");
        if (drop == "die") {
            m_other.program.kill();
            m_other.program.waitForFinished(kPatience);
        }
    }
    std::string DragFromOther(CPoint to) override
    {
        StartOther();
        BeginDrag(m_other, {50, 50});
        Drop(m_actor, to);
        return m_other.program.Await("dragged");
    }

protected:
    virtual QStringList OwnTools() const = 0;
    virtual bool StartManager() = 0;
    virtual void Place(Player&) {} // where it is to be

    std::string NextLine() override { return m_actor.program.Line(); }

    void MoveTo(QPoint at) { m_screen.XDo("mousemove " + At(at)); }
    void Click(QPoint at) { m_screen.XDo("mousemove " + At(at) + " click 1"); }

    QRect FindColor(COLORREF color) const
    {
        const QImage screen = m_screen.Look();
        const QRgb wanted = qRgb(GetRValue(color), GetGValue(color), GetBValue(color)) & RGB_MASK;
        QRect found;
        for (int y = 0; y < screen.height(); ++y) {
            const auto* const pRow = reinterpret_cast<const QRgb*>(screen.constScanLine(y));
            for (int x = 0; x < screen.width(); ++x)
                if ((pRow[x] & RGB_MASK) == wanted)
                    found |= QRect(x, y, 1, 1);
        }
        return found;
    }

    // The window's corner, once it is in sight.
    QPoint CornerOf(const Player& player) const
    {
        QRect window;
        EXPECT_TRUE(QTest::qWaitFor([&] { return !(window = FindColor(player.color)).isEmpty(); }, kPatience));
        return window.topLeft();
    }
    QPoint InWindow(const Player& player, CPoint at) const { return CornerOf(player) + QPoint(at.x, at.y); }

    // The upper left corner of what covers the actor's window.
    CPoint FindMenu() const
    {
        const QPoint corner = CornerOf(m_actor);
        const QImage window = m_screen.Look().copy(QRect(corner, kWindow));
        const QRgb own = window.pixel(0, 0);
        for (int i = 0; i < kWindow.width() * kWindow.height(); ++i)
            if (const QPoint at(i % kWindow.width(), i / kWindow.width()); window.pixel(at) != own)
                return {at.x(), at.y()};
        return {-1, -1};
    }

    bool StartPlayer(Player& player)
    {
        const QString color = QString::number(player.color, 16);
        m_screen.Start(player.program, ACTOR_PROGRAM, {player.pszName, QString::number(player.place.x()), color});
        const auto isWhole = [&] { return FindColor(player.color).size() == kWindow; };
        if (player.program.Await("active").empty() || !QTest::qWaitFor(isWhole, kPatience))
            return false;
        Place(player);
        return true;
    }
    void StartOther()
    {
        if (m_other.program.state() == QProcess::NotRunning)
            StartPlayer(m_other);
    }

    void BeginDrag(Player& player, CPoint from)
    {
        player.program.Ask("drag", "done");
        MoveTo(InWindow(player, from));
        Press(1);
        MoveTo(InWindow(player, from + CPoint(8, 0)));
        player.program.Await("drags");
    }

    // What is over the target a second time has been agreed on with it.
    void Drop(Player& target, CPoint at)
    {
        const QPoint corner = CornerOf(target);
        for (const int nStep : {1, 0}) {
            MoveTo(corner + QPoint(at.x - nStep, at.y));
            target.program.Await("over " + std::to_string(at.x - nStep) + "," + std::to_string(at.y));
        }
        Release(1);
    }

    XServer m_screen;
    Program m_manager;
    Player m_actor{"left", kColor, {100, 100}};
    Player m_other{"other", RGB(20, 120, 60), {700, 100}};

    static constexpr QPoint kNowhere{640, 700};
    static constexpr QPoint kRest{90, 50}; // of the mouse in the window, at first
};

class X11Stage : public ScreenStage
{
public:
    void Resize(CSize size) override { ToWindow(QString("windowsize %1 %2").arg(size.cx).arg(size.cy)); }
    void MoveWindow(CPoint by) override { ToWindow("windowmove " + At(CornerOf(m_actor) + QPoint(by.x, by.y))); }
    void Close() override { Key("alt+F4"); }

protected:
    QStringList OwnTools() const override { return {"openbox"}; }
    bool StartManager() override
    {
        m_screen.m_environment.insert("XDG_CONFIG_HOME", "/nowhere");
        m_screen.Start(m_manager, "openbox", {"--startup", "echo ready"});
        return m_manager.Await("ready") == "ready";
    }

private:
    void ToWindow(const QString& command)
    {
        m_screen.XDo(QString("search --onlyvisible --limit 1 --name ^%1 ").arg(m_actor.pszName) + command);
    }
};

// The compositor puts windows where it likes.
class WaylandStage : public ScreenStage
{
public:
    void Resize(CSize size) override
    {
        const QPoint corner = InWindow(m_actor, {kWindow.width() - 10, kWindow.height() - 10});
        GrabAndDrag(3, corner, corner + QPoint(size.cx - kWindow.width(), size.cy - kWindow.height()));
    }
    void MoveWindow(CPoint by) override
    {
        const QPoint grip = CornerOf(m_actor) + kRest;
        GrabAndDrag(1, grip, grip + QPoint(by.x, by.y));
    }
    // With the button that Qt draws.
    void Close() override { Click(FindColor(m_actor.color).topRight() + QPoint(-13, -15)); }

protected:
    QStringList OwnTools() const override { return {"weston"}; }
    bool StartManager() override
    {
        QFile settings(m_folder.filePath("weston.ini"));
        if (!settings.open(QFile::WriteOnly))
            return false;
        settings.write("[core]\nbackend=x11-backend.so\nidle-time=0\n"
                       "[shell]\npanel-position=none\nlocking=false\nanimation=none\nstartup-animation=none\n"
                       "close-animation=none\nfocus-animation=none\nbackground-color=0xff303030\n");
        settings.close();
        m_screen.m_environment.insert("XDG_RUNTIME_DIR", m_folder.path());
        MoveTo({640, 820}); // outside: it follows the pointer only from where that has come in
        m_screen.Start(m_manager, "weston",
                       {"--use-pixman", "--width=1280", "--height=800", "--socket=screen", "-c", settings.fileName(),
                        "--log", m_folder.filePath("log")});
        m_screen.m_environment.insert("WAYLAND_DISPLAY", "screen");
        m_screen.m_environment.insert("QT_QPA_PLATFORM", "wayland");
        return QTest::qWaitFor([&] { return FindColor(kBackground).size() == kOutput; }, kPatience);
    }
    void Place(Player& player) override
    {
        GrabAndDrag(1, CornerOf(player) + kRest, player.place + kRest);
        EXPECT_TRUE(QTest::qWaitFor([&] { return FindColor(player.color).topLeft() == player.place; }, kPatience));
    }

private:
    // The left button moves windows then, the right one sizes them.
    void GrabAndDrag(int nButton, QPoint from, QPoint to)
    {
        m_screen.XDo(QString("keydown super mousemove %1 mousedown %2 mousemove %3 mouseup %2 keyup super")
                         .arg(At(from), QString::number(nButton), At(to)));
    }

    static constexpr COLORREF kBackground = RGB(0x30, 0x30, 0x30);
    static constexpr QSize kOutput{1280, 800};

    QTemporaryDir m_folder; // with the socket
};

} // namespace

std::unique_ptr<Stage> MakeX11Stage()
{
    return std::make_unique<X11Stage>();
}

std::unique_ptr<Stage> MakeWaylandStage()
{
    return std::make_unique<WaylandStage>();
}
