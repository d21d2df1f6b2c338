// Data on its way between the toolkit and Qt: MIME types on both sides.
#pragma once

#include "QtDesktop/exchange/DropReceipt.h"
#include "Toolkit/desktop/OfferedData.h"

#include <QMimeData>
#include <functional>
#include <memory>

namespace qtdesktop
{

// The toolkit's data as Qt asks for it: rendered on request, each time anew.
class OfferedMime : public QMimeData
{
public:
    // A receipt's address goes with the data of a drag.
    explicit OfferedMime(std::shared_ptr<toolkit::OfferedData> data,
                         std::shared_ptr<ReceiptAddress> receipt = std::make_shared<ReceiptAddress>())
        : m_data(std::move(data)), m_receipt(std::move(receipt))
    {}

    const std::shared_ptr<toolkit::OfferedData>& GetData() const { return m_data; }
    DROPEFFECT GetAllowed() const { return m_receipt->allowed; } // of a drag

    QStringList formats() const override;
    bool hasFormat(const QString& mimeType) const override { return formats().contains(mimeType); }

protected:
    QVariant retrieveData(const QString& mimeType, QMetaType type) const override;

private:
    const std::shared_ptr<toolkit::OfferedData> m_data;
    const std::shared_ptr<ReceiptAddress> m_receipt;
};

// Qt's data as the toolkit asks for it. Whoever has it is asked anew each time: what Qt hands out may be gone when its
// event loop has run, and is NULL then.
class MimeOffer : public toolkit::OfferedData
{
public:
    using Ask = std::function<const QMimeData*()>;
    explicit MimeOffer(Ask ask) : m_ask(std::move(ask)) {}

    std::vector<std::string> GetKinds() override;
    std::optional<std::string> Render(std::string_view kind) override;

private:
    const Ask m_ask;
};

} // namespace qtdesktop
