// Light or dark as the user has asked the whole desktop for, where Qt itself does not follow that.
#pragma once

#include <QDBusMessage>
#include <QObject>

namespace qtdesktop
{

// Desktops tell of it by their portal, once asked and whenever it changes; Qt only learns of it where the desktop has a
// plugin for that. Gives the application a dark palette while dark is asked for and Qt's own is light. A desktop that
// tells nothing changes nothing.
class AskedColors : public QObject
{
    Q_OBJECT

public:
    AskedColors();
    ~AskedColors() override;

private slots:
    void OnSettingChanged(const QDBusMessage& news);

private:
    void Follow(uint nWanted);

    bool m_bMadeDark = false; // by this object
};

} // namespace qtdesktop
