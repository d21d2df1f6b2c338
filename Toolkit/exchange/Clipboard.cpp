#include "Toolkit/exchange/Clipboard.h"

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/exchange/DataCache.h"
#include "Toolkit/exchange/DataSource.h"

#include <utility>

namespace
{
// What this program has on the clipboard: a data source's cache, or the plain copies left of one.
struct Published
{
    std::unique_ptr<COleDataSource> source; // none: plain copies
    std::shared_ptr<toolkit::DataCache> data;
};

Published s_published;

// What the desktop holds. It must not keep the data alive: that goes with its source.
class Offer : public toolkit::OfferedData
{
public:
    explicit Offer(std::shared_ptr<toolkit::DataCache> data) : m_data(std::move(data)) {}

    std::vector<std::string> GetKinds() override { return m_data->GetKinds(); }
    std::optional<std::string> Render(std::string_view kind) override { return m_data->Render(kind); }
    void OnLost() override
    {
        if (s_published.data == m_data)
            const Published lost = std::exchange(s_published, {});
    }

private:
    const std::shared_ptr<toolkit::DataCache> m_data;
};

// Nothing has changed when memory runs out before the desktop has the data. The former data goes last: its releasers
// may look at the clipboard.
bool Publish(Published published)
{
    if (!toolkit::CurrentDesktop().PublishClipboard(std::make_shared<Offer>(published.data)))
        return false;
    const Published former = std::exchange(s_published, std::move(published));
    return true;
}
} // namespace

bool toolkit::OwnClipboard(std::unique_ptr<COleDataSource> source, std::shared_ptr<DataCache> data)
{
    return Publish({std::move(source), std::move(data)});
}

COleDataSource* toolkit::ClipboardOwner()
{
    return s_published.source.get();
}

void toolkit::FlushClipboard()
{
    if (s_published.source)
        Publish({nullptr, s_published.data->CopyPlain()});
}

std::shared_ptr<toolkit::DataProvider> toolkit::ClipboardData()
{
    if (s_published.data)
        return s_published.data;
    const std::shared_ptr<OfferedData> foreign = CurrentDesktop().FetchClipboard();
    return foreign ? std::make_shared<ForeignData>(foreign) : nullptr;
}
