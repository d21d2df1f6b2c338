#include "QtDesktop/exchange/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <memory>
#include <utility>

namespace qtdesktop
{
namespace
{

// Read by itself by whoever knows its kind. Bytes of a kind that programs have agreed upon may lead to something that
// ends with this program, as the path of a transfer file does.
bool OutlivesProgram(const QString& kind)
{
    return kind.startsWith(QLatin1String("text/")) || kind.startsWith(QLatin1String("image/")) ||
           kind.startsWith(QLatin1String("x-special/"));
}

} // namespace

QtClipboard::QtClipboard()
{
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &QtClipboard::OnChanged);
}

QtClipboard::~QtClipboard()
{
    if (m_mime && QGuiApplication::clipboard()->mimeData() == m_mime)
        LeaveBehind();
    LosePublished();
}

// A clipboard manager, where there is one, is given it by Qt when the application ends, and keeps it.
void QtClipboard::LeaveBehind()
{
    auto pLeft = std::make_unique<QMimeData>();
    for (const QString& kind : m_mime->formats())
        if (OutlivesProgram(kind))
            pLeft->setData(kind, m_mime->data(kind));
    if (pLeft->formats().empty())
        QGuiApplication::clipboard()->clear();
    else
        QGuiApplication::clipboard()->setMimeData(pLeft.release());
}

// Qt does not say that a window system has refused; who has the clipboard then, it asks anew each time.
bool QtClipboard::Publish(std::shared_ptr<toolkit::OfferedData> data)
{
    const auto pMime = new OfferedMime(data);
    m_mime = pMime;
    const auto former = std::exchange(m_published, std::move(data)); // before the clipboard tells that it has changed
    QGuiApplication::clipboard()->setMimeData(pMime);
    OnChanged();
    if (!m_published && former)
        former->OnLost();
    return m_published != nullptr;
}

std::shared_ptr<toolkit::OfferedData> QtClipboard::Fetch()
{
    auto offer = std::make_shared<MimeOffer>([] { return QGuiApplication::clipboard()->mimeData(); });
    return m_published || offer->GetKinds().empty() ? nullptr : offer;
}

// The one sign of a new owner that every desktop gives.
void QtClipboard::OnChanged()
{
    if (!m_mime || QGuiApplication::clipboard()->mimeData() != m_mime)
        LosePublished();
}

void QtClipboard::LosePublished()
{
    if (const auto lost = std::exchange(m_published, nullptr))
        lost->OnLost();
}

} // namespace qtdesktop
