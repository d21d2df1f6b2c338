#include "QtDesktop/exchange/OfferedMime.h"

namespace qtdesktop
{

QStringList OfferedMime::formats() const
{
    QStringList formats;
    for (const std::string& kind : m_data->GetKinds())
        formats += QString::fromStdString(kind);
    if (!m_receipt->name.isEmpty())
        formats += kReceiptKind;
    return formats;
}

QVariant OfferedMime::retrieveData(const QString& mimeType, QMetaType) const
{
    if (mimeType == QLatin1String(kReceiptKind)) {
        m_receipt->bAsked = true;
        return m_receipt->ToBytes();
    }
    const auto bytes = m_data->Render(mimeType.toStdString());
    return bytes ? QVariant(QByteArray(bytes->data(), static_cast<qsizetype>(bytes->size()))) : QVariant();
}

std::vector<std::string> MimeOffer::GetKinds()
{
    const QMimeData* const pMime = m_ask();
    std::vector<std::string> kinds;
    for (const QString& format : pMime ? pMime->formats() : QStringList())
        kinds.push_back(format.toStdString());
    return kinds;
}

std::optional<std::string> MimeOffer::Render(std::string_view kind)
{
    const QMimeData* const pMime = m_ask();
    const QString format = QString::fromUtf8(kind.data(), static_cast<qsizetype>(kind.size()));
    if (!pMime || !pMime->hasFormat(format))
        return std::nullopt;
    return pMime->data(format).toStdString();
}

} // namespace qtdesktop
