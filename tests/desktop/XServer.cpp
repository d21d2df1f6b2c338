#include "tests/desktop/XServer.h"

#include <QFile>
#include <QStandardPaths>
#include <QTest>
#include <QtEndian>

namespace
{

QString At(QPoint at)
{
    return QString("%1 %2").arg(at.x()).arg(at.y());
}

} // namespace

std::string MissingOf(const QStringList& programs)
{
    for (const QString& name : programs)
        if (QStandardPaths::findExecutable(name).isEmpty())
            return name.toStdString();
    return "";
}

Program::~Program()
{
    terminate();
    if (state() != NotRunning && !waitForFinished(kPatience))
        kill();
}

std::string Program::Line()
{
    while (!canReadLine())
        if (!waitForReadyRead(kPatience))
            return "";
    return readLine().trimmed().toStdString();
}

void Program::Tell(const std::string& line)
{
    write((line + "\n").c_str());
    waitForBytesWritten(kPatience);
}

std::string Program::Await(const std::string& beginning)
{
    for (;;)
        if (const std::string line = Line(); line.empty() || line.starts_with(beginning))
            return line;
}

// It is not to begin anew whenever its only program ends, and says its display's number once it takes connections.
bool XServer::Start()
{
    m_server.start("Xvfb",
                   {"-displayfd", "1", "-screen", "0", QString("%1x%2x24").arg(m_size.width()).arg(m_size.height()),
                    "-nolisten", "tcp", "-noreset", "-fbdir", m_folder.path()});
    m_environment.insert("DISPLAY", QString::fromStdString(":" + m_server.Line()));
    m_environment.insert("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    m_environment.insert("LC_ALL", "C.UTF-8"); // whose table of dead keys is the usual one
    m_environment.remove("WAYLAND_DISPLAY");
    m_environment.remove("QT_QPA_PLATFORM");
    return m_server.state() == QProcess::Running;
}

bool XServer::Start(Program& program, const QString& path, const QStringList& arguments)
{
    program.setProcessEnvironment(m_environment);
    program.start(path, arguments);
    return program.waitForStarted(kPatience);
}

// The server keeps the screen in a file: a header of big-endian words, the colours, the pixels.
QImage XServer::Look() const
{
    QFile file(m_folder.filePath("Xvfb_screen0"));
    if (!file.open(QFile::ReadOnly))
        return {};
    const QByteArray bytes = file.readAll();
    const auto word = [&bytes](int n) { return qFromBigEndian<qint32>(bytes.constData() + 4 * n); };
    enum
    {
        HeaderSize = 0,
        Width = 4,
        Height = 5,
        BytesPerLine = 12,
        Colors = 19,
        kColorSize = 12
    };
    const auto* const pPixels =
        reinterpret_cast<const uchar*>(bytes.constData()) + word(HeaderSize) + kColorSize * word(Colors);
    return QImage(pPixels, word(Width), word(Height), word(BytesPerLine), QImage::Format_RGB32).copy();
}

QString XServer::XDo(const QString& command)
{
    return Run("xdotool " + command).value_or(QString());
}

std::optional<QString> XServer::Run(const QString& command)
{
    Program tool;
    QStringList words = QProcess::splitCommand(command);
    tool.setProcessEnvironment(m_environment);
    tool.start(words.takeFirst(), words);
    if (!tool.waitForFinished(kPatience) || tool.exitCode() != 0)
        return std::nullopt;
    return QString(tool.readAllStandardOutput().trimmed());
}

// The tool gives up early when any window goes while it looks around.
QString XServer::FindWindow(const QString& title)
{
    QString window;
    const auto isThere = [&] {
        window = XDo("search --onlyvisible --limit 1 --name \"^" + title + '"');
        return !window.isEmpty();
    };
    return QTest::qWaitFor(isThere, kPatience) ? window : QString();
}

void XServer::Drag(QPoint from, QPoint to)
{
    QString steps = "mousemove " + At(from) + " mousedown 1";
    for (int i = 1; i <= 4; ++i)
        steps += " sleep 0.1 mousemove " + At(from + QPoint(8 * i, 0));
    for (int i = 1; i <= 5; ++i)
        steps += " sleep 0.1 mousemove " + At(from + (to - from) * i / 5);
    XDo(steps + " sleep 0.1 mousemove_relative 2 0 sleep 0.6 mouseup 1");
}
