#include "QtDesktop/QtOutside.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QUrl>

namespace qtdesktop
{
namespace
{

// Every byte of the name, also those that are no UTF-8.
QUrl UrlOf(const std::string& path)
{
    const QByteArray encoded = QByteArray::fromStdString(path).toPercentEncoding("/");
    return QUrl::fromEncoded("file://" + encoded, QUrl::StrictMode);
}

std::string FolderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == path.npos || slash == 0 ? "/" : path.substr(0, slash);
}

} // namespace

std::optional<std::string> AskForFolder(QWidget* pOwner, const std::string& title, const std::string& start)
{
    // Its owner deletes it when it goes meanwhile.
    const QPointer<QFileDialog> pDialog =
        new QFileDialog(pOwner, QString::fromStdString(title), QFile::decodeName(start.c_str()));
    pDialog->setFileMode(QFileDialog::Directory);
    pDialog->setOption(QFileDialog::ShowDirsOnly);
    const bool bChosen = pDialog->exec() == QDialog::Accepted && pDialog && !pDialog->selectedFiles().isEmpty();
    std::optional<std::string> path;
    if (bChosen)
        path = QFile::encodeName(pDialog->selectedFiles().constFirst()).toStdString();
    delete pDialog;
    return path;
}

std::string OpenWithItsProgram(const std::string& path)
{
    return QDesktopServices::openUrl(UrlOf(path)) ? "" : "no program was found that opens it";
}

std::string ShowInFileManager(const std::string& path)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return OpenWithItsProgram(FolderOf(path)).empty() ? "" : "no file manager was found";
    QDBusMessage message = QDBusMessage::createMethodCall(
        "org.freedesktop.FileManager1", "/org/freedesktop/FileManager1", "org.freedesktop.FileManager1", "ShowItems");
    message << QStringList{QString::fromLatin1(UrlOf(path).toEncoded())} << QString();
    auto* const pWatcher = new QDBusPendingCallWatcher(bus.asyncCall(message));
    QObject::connect(pWatcher, &QDBusPendingCallWatcher::finished, pWatcher, [pWatcher, path] {
        if (pWatcher->isError())
            OpenWithItsProgram(FolderOf(path));
        pWatcher->deleteLater();
    });
    return {};
}

} // namespace qtdesktop
