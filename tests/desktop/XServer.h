// An X server of the test's own, used with a real pointer and a real keyboard, and programs in its windows.
#pragma once

#include <QImage>
#include <QPoint>
#include <QProcess>
#include <QSize>
#include <QString>
#include <QTemporaryDir>
#include <optional>
#include <string>

constexpr int kPatience = 20'000; // milliseconds for what takes well under one second

// Ended with its object, when it has not ended before.
class Program : public QProcess
{
public:
    ~Program() override;

    void Tell(const std::string& line);
    std::string Line();                              // what it says next; empty when that does not come
    std::string Await(const std::string& beginning); // of what it says the next that begins so
    std::string Ask(const std::string& line, const std::string& beginning) { return Tell(line), Await(beginning); }
};

class XServer
{
public:
    bool Start();
    bool Start(Program& program, const QString& path, const QStringList& arguments);
    std::optional<QString> Run(const QString& command); // what it says; nothing when it failed or waited in vain
    QString XDo(const QString& command);                // what xdotool answers; empty as above
    QString FindWindow(const QString& title);           // whose title begins so, as soon as it is in sight
    void Drag(QPoint from, QPoint to);                  // places of the screen; one jump would drop nothing
    QImage Look() const;                                // what the screen shows

    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment(); // of all programs
    QSize m_size{1280, 840};                                                      // of the screen

private:
    QTemporaryDir m_folder; // with the screen's memory
    Program m_server;
};

std::string MissingOf(const QStringList& programs); // the first that is not installed; empty when all are
