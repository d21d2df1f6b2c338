// A morning with the program, from outside: what a user does with mouse and keys, what stands on the disk then, and
// what a screen reader reads of the windows.
//
// With VIEWS_WALK_PICTURES=FOLDER there is a screenshot of each step, and it goes through all of light and dark at 1
// and 2.
#include "tests/desktop/ScreenReader.h"
#include "tests/desktop/XServerTest.h"

#include <QBuffer>
#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <tuple>
#include <utility>

namespace
{

using Screen = std::tuple<bool, int>; // dark? at which scale?

std::string NameOf(const testing::TestParamInfo<Screen>& screen)
{
    return (std::get<bool>(screen.param) ? "DarkAt" : "LightAt") + std::to_string(std::get<int>(screen.param));
}

constexpr char kPictures[] = "VIEWS_WALK_PICTURES";
constexpr int kMany = 3000;

class WalkthroughTest : public XServerTest, public testing::WithParamInterface<Screen>
{
protected:
    void SetUp() override
    {
        if (m_bDark != (m_nScale == 2) && !qEnvironmentVariableIsSet(kPictures))
            GTEST_SKIP() << "only with " << kPictures;
        m_size *= m_nScale;
        XServerTest::SetUp();
        if (IsSkipped())
            return;
        if (const std::string missing = MissingOf({"openbox", "dbus-daemon"}); !missing.empty())
            GTEST_SKIP() << missing << " is missing";
        for (const char* pszVariable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "TEMP"}) {
            m_environment.insert(pszVariable, m_folder.filePath(pszVariable));
            ASSERT_TRUE(QDir(m_folder.path()).mkpath(pszVariable));
        }
        m_environment.insert("QT_SCALE_FACTOR", QString::number(m_nScale));
        XServer::Start(m_manager, "openbox", {"--startup", "echo ready"});
        ASSERT_EQ("ready", m_manager.Await("ready"));
        ASSERT_TRUE(m_reader.Start(*this, m_bDark));
        Draw();
    }

    // Somebody's library: sketches, a character, and a folder of very many scans.
    void Draw()
    {
        for (const char* pszFolder : {"Sketches", "Bo", "Scans"})
            ASSERT_TRUE(QDir(m_folder.path()).mkpath("Cast/" + QString(pszFolder)));
        for (int i = 1; i <= 24; ++i) {
            QImage picture(96, 96, QImage::Format_ARGB32);
            picture.fill(Qt::transparent);
            QPainter(&picture).fillRect(i * 2, 20, 40, 56, QColor::fromHsv(i * 15 - 15, 200, 220));
            ASSERT_TRUE(picture.save(m_folder.filePath(QString("Cast/Sketches/sketch %1.png").arg(i))));
            ASSERT_TRUE(i > 3 || picture.save(m_folder.filePath(QString("Cast/Bo/nod %1.png").arg(i))));
        }
        QImage scan(8, 8, QImage::Format_RGB32);
        scan.fill(QColor(90, 130, 170));
        QBuffer bytes;
        ASSERT_TRUE(scan.save(&bytes, "bmp"));
        for (int i = 1; i <= kMany; ++i) {
            QFile file(m_folder.filePath(QString("Cast/Scans/scan %1.bmp").arg(i)));
            ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write(bytes.data()) > 0);
        }
    }

    void Open(const QStringList& arguments)
    {
        XServer::Start(m_editor, EDITOR_PROGRAM, arguments);
        m_nProcess = m_editor.processId();
    }

    // What it shows.
    void Await(const std::string& what, const std::function<bool()>& isSo)
    {
        if (!QTest::qWaitFor(isSo, kPatience))
            throw std::runtime_error("No " + what + "\nThe disk: " + Disk() + "\nThe window:\n" + Shown());
    }

    // The first whose name has that form, such as "*.png" or "[ab]*".
    Part Find(const QString& role, const QString& name)
    {
        const auto form = QRegularExpression::fromWildcard(name);
        const std::vector<Part> parts = m_reader.Read(m_nProcess);
        const auto pPart = std::ranges::find_if(parts, [&](const Part& part) {
            return part.role == role && part.Is(Part::Showing) && form.match(part.name).hasMatch();
        });
        return pPart == parts.end() ? Part() : *pPart;
    }

    Part AwaitPart(const QString& role, const QString& name)
    {
        Part part;
        Await((role + " " + name).toStdString(), [&] { return !(part = Find(role, name)).role.isEmpty(); });
        return part;
    }

    void AwaitStatus(const QString& end) { AwaitPart("status bar", '*' + end); }

    void AwaitField(const QString& name)
    {
        Await("a field with the keys", [&] { return Find("text", name).Is(Part::Focused); });
    }

    // All that it shows, where it is.
    std::string Shown()
    {
        std::string text;
        for (const Part& part : m_reader.Read(m_nProcess))
            if (part.Is(Part::Showing) && part.role != "push button") // which tell what may be taken back
                text += QString::asprintf("%*s%s '%s' %d %d %d %d%s\n", part.depth, "", qPrintable(part.role),
                                          qPrintable(part.name), part.place.x(), part.place.y(), part.place.width(),
                                          part.place.height(), part.Is(Part::Expanded) ? " open" : "")
                            .toStdString();
        return text;
    }

    // What is on the disk, but the scans; a phase with its lines.
    std::string Disk() const
    {
        const QDir library(m_folder.filePath("Cast"));
        QStringList names;
        QDirIterator it(library.path(), QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString name = library.relativeFilePath(it.next());
            QFile file(it.filePath());
            const bool bPhase = name.endsWith(".phase") && file.open(QFile::ReadOnly);
            if (!name.startsWith("Scans/"))
                names += name + (bPhase ? " (" + file.readAll().simplified() + ")" : "");
        }
        names.sort();
        return names.join(", ").toStdString();
    }

    void AwaitFile(const QString& part)
    {
        Await(part.toStdString(), [&] { return Disk().find(part.toStdString()) != std::string::npos; });
    }

    // What the user does. Objects are taken at their pictures.
    QPoint SpotOf(const Part& part)
    {
        const QPoint at =
            part.role == "list item" ? QPoint(part.place.center().x(), part.place.top() + 28) : part.place.center();
        return at * m_nScale;
    }

    void Click(const QString& role, const QString& name, const QString& holding = {}, int nTimes = 1)
    {
        const QPoint at = SpotOf(AwaitPart(role, name));
        Keys(holding, "keydown");
        XDo(QString("mousemove %1 %2 click --repeat %3 --delay 50 1").arg(at.x()).arg(at.y()).arg(nTimes));
        Keys(holding, "keyup");
    }

    void Keys(const QString& keys, const QString& how = "key")
    {
        if (!keys.isEmpty())
            XDo(how + ' ' + keys);
    }

    void Type(const QString& text)
    {
        XDo("type --delay 5 \"" + text + '"');
        XDo("key Return");
    }

    // Between a row and the one before it.
    QPoint LeftOf(const QString& name) { return (Find("list item", name).place.topLeft() + QPoint(3, 40)) * m_nScale; }

    void Show(const QString& folder) // in the tree
    {
        Click("tree item", folder);
        AwaitPart("frame", folder + " - Views");
    }

    void Select(const QString& first, const QString& last)
    {
        Click("list item", first);
        Click("list item", last, "shift");
    }

    void MakePhase(const QString& name, const QString& first, const QString& last, const QString& lines)
    {
        Select(first, last);
        Keys("ctrl+shift+p");
        AwaitField("New phase.phase");
        Type(name);
        AwaitFile(name + ".phase (" + lines + ')');
        Did("the phase " + name);
    }

    void Step(const QString& keys, const std::string& disk)
    {
        Keys(keys);
        Await("such a disk: " + disk, [&] { return Disk() == disk; });
    }

    // Looked at once nothing moves.
    void Did(const QString& what)
    {
        QImage former, now;
        const auto isCalm = [&] {
            QTest::qWait(100);
            return (former = std::exchange(now, Look())) == now;
        };
        Await("calm", isCalm);
        m_done.push_back(Disk());
        const QPoint ground = AwaitPart("menu bar", "Menus").place.bottomRight() - QPoint(4, 4);
        EXPECT_EQ(m_bDark, now.pixelColor(ground * m_nScale).lightness() < 128) << qPrintable(what);
        const QString name =
            QString::asprintf("%s %02zu %s.png", NameOf({GetParam(), 0}).c_str(), m_done.size(), qPrintable(what));
        EXPECT_TRUE(now.save(QDir(qEnvironmentVariable(kPictures, m_folder.path())).filePath(name), "png",
                             90)); // quickly written
    }

    const bool m_bDark = std::get<bool>(GetParam());
    const int m_nScale = std::get<int>(GetParam());
    QTemporaryDir m_folder;
    Program m_manager, m_editor;
    ScreenReader m_reader;
    qint64 m_nProcess = 0;           // that is used
    std::vector<std::string> m_done; // the disk after each step
};

TEST_P(WalkthroughTest, ACharacterItsPhasesAPictureAmongManyAndTheNextDay)
{
    Open({m_folder.filePath("Cast")});
    AwaitStatus("3 objects");
    Did("the library");

    // A character of twelve pictures from another folder.
    Keys("ctrl+shift+n");
    AwaitField("New folder");
    Type("Ada");
    AwaitFile("Ada");
    Did("a character");
    Click("list item", "Sketches", {}, 2);
    AwaitStatus("24 objects");
    Keys("Control_L", "keydown");
    Drag(SpotOf(Find("list item", "sketch 12.png")), SpotOf(Find("tree item", "Ada")));
    Keys("Control_L", "keyup");
    AwaitFile("Ada/sketch 12.png");
    Did("one picture dragged");
    Select("sketch 1.png", "sketch 7.png");
    for (const char* pszMore : {"sketch 8.png", "sketch 9.png", "sketch 10.png", "sketch 11.png"})
        Click("list item", pszMore, "ctrl");
    AwaitStatus("24 objects, 11 selected");
    Keys("ctrl+c");
    Show("Ada");
    Keys("ctrl+v");
    AwaitStatus("12 objects, 11 selected");
    Did("eleven pasted");

    // Three phases, and the frames of one in another order.
    MakePhase("walk", "sketch 1.png", "sketch 4.png", "sketch 1.png sketch 2.png sketch 3.png sketch 4.png");
    MakePhase("wave", "sketch 5.png", "sketch 7.png", "sketch 5.png sketch 6.png sketch 7.png");
    MakePhase("jump", "sketch 11.png", "sketch 12.png", "sketch 11.png sketch 12.png");
    Click("list item", "walk.phase", {}, 2);
    AwaitStatus("4 objects");
    Did("a phase opened");
    Drag(SpotOf(Find("list item", "sketch 4.png")), LeftOf("sketch 2.png"));
    AwaitFile("Ada/walk.phase (sketch 1.png sketch 4.png sketch 2.png sketch 3.png)");
    Did("one frame moved");
    Select("sketch 2.png", "sketch 3.png");
    Drag(SpotOf(Find("list item", "sketch 2.png")), LeftOf("sketch 1.png"));
    AwaitFile("Ada/walk.phase (sketch 2.png sketch 3.png sketch 1.png sketch 4.png)");
    Did("two frames moved");

    // They are played, and looked at one by one.
    Click("push button", "Play or pause (Ctrl+P)");
    for (const char* pszFrame : {"[12]", "[34]"})
        AwaitPart("slider", QString("Frame: %1 of 4, 100 ms").arg(pszFrame));
    Keys("space");
    Keys("Home"); // one of the two that are selected
    AwaitPart("slider", "Frame: 1 of 4, 100 ms");
    Did("played");
    Keys("F8");
    AwaitPart("slider", "Frame: 2 of 4, 100 ms");
    Keys("F6");
    Keys("Left");
    AwaitPart("slider", "Frame: 1 of 4, 100 ms");
    Did("stepped");

    // A picture gets another name, which its phases follow.
    Show("Ada");
    Click("list item", "sketch 1.png");
    Keys("F2");
    AwaitField("sketch 1.png");
    Type("first");
    AwaitFile("Ada/walk.phase (sketch 2.png sketch 3.png first.png sketch 4.png)");
    Did("renamed");

    // Half of all that is taken back, step by step, and done again.
    const std::size_t nDone = m_done.size();
    for (const std::size_t nAgo : {3, 5, 6, 8})
        Step("ctrl+z", m_done[nDone - nAgo]);
    Did("half taken back");
    for (const std::size_t nAgo : {6, 5, 3, 1})
        Step("ctrl+shift+z", m_done[nDone - nAgo]);
    Did("done again");

    // One picture among very many: in the folder by its name, and from afar.
    Show("Scans");
    AwaitStatus("3000 objects");
    Keys("ctrl+f");
    AwaitField("Show names with");
    XDo("type 2718");
    AwaitStatus("1 object, 2999 hidden");
    Did("found in the folder");
    Keys("Escape");
    AwaitStatus("3000 objects");
    Show("Cast");
    Keys("ctrl+shift+f");
    XDo("type 2718");
    AwaitPart("list", "Found. 1 found");
    Did("found from afar");
    Keys("Return");
    AwaitPart("frame", "Scans - Views");
    AwaitStatus("3000 objects, 1 selected");
    Did("shown");
    Keys("ctrl+c");

    // Another character in a window of its own.
    Show("Cast");
    Click("list item", "Bo");
    Keys("ctrl+Return");
    const QString second = FindWindow("Bo - Views");
    m_nProcess = XDo("getwindowpid " + second).toLongLong();
    XDo("windowactivate --sync " + second);
    Keys("ctrl+v");
    AwaitFile("Bo/scan 2718.bmp");
    MakePhase("nod", "nod 1.png", "nod 3.png", "nod 1.png nod 2.png nod 3.png");
    Keys("ctrl+q");
    m_nProcess = m_editor.processId();
    Await("one window", [&] { return XDo("search --onlyvisible --name \"Bo - Views\"").isEmpty(); });
    XDo("windowactivate --sync " + FindWindow("Cast - Views"));

    // The next day all is where it was.
    Show("Ada");
    Keys("ctrl+2");
    AwaitPart("list", "Thumbnails");
    Keys("ctrl+plus");
    XDo(QString("windowsize --sync %1 %2 %3 windowmove --sync %1 90 70")
            .arg(FindWindow("Ada - Views"))
            .arg(1100 * m_nScale)
            .arg(700 * m_nScale));
    Did("before the end");
    const std::string before = Shown();
    Keys("ctrl+q");
    ASSERT_TRUE(m_editor.waitForFinished(kPatience));
    EXPECT_TRUE(QDir(m_folder.filePath("TEMP")).isEmpty()) << "a transfer file stays";
    Open({});
    AwaitPart("frame", "Ada - Views");
    Did("the next day");
    EXPECT_EQ(before, Shown());
}

INSTANTIATE_TEST_SUITE_P(Morning, WalkthroughTest, testing::Combine(testing::Bool(), testing::Values(1, 2)), NameOf);

} // namespace
