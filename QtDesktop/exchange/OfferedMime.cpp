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

} // namespace qtdesktop
