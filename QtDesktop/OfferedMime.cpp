#include "QtDesktop/OfferedMime.h"

namespace qtdesktop
{

QStringList OfferedMime::formats() const
{
    QStringList formats;
    for (const std::string& kind : m_data->GetKinds())
        formats += QString::fromStdString(kind);
    return formats;
}

bool OfferedMime::hasFormat(const QString& mimeType) const
{
    return m_data->Has(mimeType.toStdString());
}

QVariant OfferedMime::retrieveData(const QString& mimeType, QMetaType) const
{
    const auto bytes = m_data->Render(mimeType.toStdString());
    return bytes ? QVariant(QByteArray(bytes->data(), static_cast<qsizetype>(bytes->size()))) : QVariant();
}

} // namespace qtdesktop
