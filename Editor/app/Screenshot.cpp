#include "Editor/app/Screenshot.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QImageWriter>
#include <QPixmap>
#include <QSaveFile>
#include <QTemporaryFile>
#include <QWidget>

namespace editor
{

Screenshot::Screenshot(const std::string& path) : m_path(path)
{
    if (path.empty()) {
        m_pTemporary = std::make_unique<QTemporaryFile>(QDir::tempPath() + "/views-XXXXXX.png");
        const bool bOpen = m_pTemporary->open();
        m_path = (bOpen ? m_pTemporary->fileName() : m_pTemporary->fileTemplate()).toStdString();
    } else {
        m_pNamed = std::make_unique<QSaveFile>(QString::fromStdString(path));
        m_pNamed->open(QIODevice::WriteOnly);
    }
    if (!File().isOpen())
        Fail(File().errorString());
}

Screenshot::~Screenshot() = default;

// Without a display the mouse counts as in the screen's corner, where the window is.
bool Screenshot::Write(QWidget& window)
{
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&window, &leave);
    QCoreApplication::processEvents();
    QImageWriter writer(&File(), "png");
    if (!writer.write(window.grab().toImage().convertToFormat(QImage::Format_RGB32)))
        return Fail(writer.errorString());
    return Keep() || Fail(File().errorString());
}

QFileDevice& Screenshot::File()
{
    if (m_pNamed)
        return *m_pNamed;
    return *m_pTemporary;
}

bool Screenshot::Keep()
{
    if (m_pNamed)
        return m_pNamed->commit();
    m_pTemporary->setAutoRemove(false);
    return m_pTemporary->flush();
}

bool Screenshot::Fail(const QString& reason)
{
    m_error = m_path + ": " + (reason.left(1).toLower() + reason.mid(1)).toStdString();
    return false;
}

} // namespace editor
