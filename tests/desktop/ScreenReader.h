// What assistive technology reads of a program's windows, on a bus of the test's own, which is the session's, too.
#pragma once

#include "tests/desktop/XServer.h"

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QRect>
#include <vector>

struct Part
{
    QString service, path; // where to ask about it
    QString role, name;
    QRect place; // on the screen, in the desktop's units
    uint states = 0;
    int depth = 0;

    enum State
    {
        Expanded = 10,
        Focused = 12,
        Showing = 25
    };
    bool Is(State state) const { return states >> state & 1; }
};

class ScreenReader : public QDBusVirtualObject
{
public:
    ~ScreenReader() override;

    bool Start(XServer& screen, bool bDark); // before the programs whose desktop is to be dark or light

    // The program's windows and all that is in them, a part before what it holds; of what holds very many parts none of
    // those. Empty when it has not said anything yet.
    std::vector<Part> Read(qint64 nProcess);

private:
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    QVariantList Ask(const Part& part, const QString& interface, const QString& what, const QVariantList& arguments);
    QVariant Property(const Part& part, const QString& name);
    void Describe(Part& part);
    void AddChildren(const Part& parent, std::vector<Part>& parts);

    Program m_daemon;
    QString m_address;
    bool m_bDark = false;
};
