// The desktop's clipboard.
#pragma once

#include "QtDesktop/exchange/OfferedMime.h"

#include <QObject>
#include <QPointer>

namespace qtdesktop
{

// What is published is lost when another program takes the clipboard, and when this object goes; what everybody can
// read of it (text, pictures, the paths of files) stays on the clipboard then, where the desktop keeps it.
class QtClipboard : public QObject
{
public:
    QtClipboard();
    ~QtClipboard() override;

    bool Publish(std::shared_ptr<toolkit::OfferedData> data); // false: refused, and the former data is lost, too
    std::shared_ptr<toolkit::OfferedData> Fetch(); // NULL when the clipboard is empty or holds what was published

private:
    void OnChanged();
    void LosePublished();
    void LeaveBehind();

    std::shared_ptr<toolkit::OfferedData> m_published;
    QPointer<OfferedMime> m_mime; // owned by the clipboard
};

} // namespace qtdesktop
