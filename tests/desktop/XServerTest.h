// Programs in windows of an X server of the test's own, used with a real pointer and a real keyboard.
#pragma once

#include <QPoint>
#include <QProcess>
#include <QString>
#include <gtest/gtest.h>

constexpr int kPatience = 20'000; // milliseconds for what takes well under one second

// Ended with its object, when it has not ended before.
class Program : public QProcess
{
public:
    ~Program() override;
};

class XServerTest : public testing::Test
{
protected:
    void SetUp() override; // skips the test when Xvfb or xdotool is missing

    void Start(Program& program, const QString& path, const QStringList& arguments);
    QString XDo(const QString& command);      // what xdotool answers; empty when it failed or waited in vain
    QString FindWindow(const QString& title); // whose title begins so, as soon as it is in sight
    void Press(const QString& window, const QString& keys);
    void Drag(QPoint from, QPoint to); // places of the screen; one jump would drop nothing

    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();

private:
    Program m_server;
};
