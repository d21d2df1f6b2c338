#include "Toolkit/exchange/DataSource.h"

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/exchange/DataCache.h"
#include "Toolkit/focus/Capture.h"
#include "Toolkit/focus/InputState.h"
#include "Toolkit/message/Queue.h"

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

bool s_bDragging = false;

class Dragging
{
public:
    Dragging() { s_bDragging = true; }
    ~Dragging()
    {
        s_bDragging = false;
        // The desktop has kept the release to itself.
        toolkit::SetMouseKeyFlags(toolkit::MouseKeyFlags() & ~toolkit::kMouseButtons);
    }
    Dragging(const Dragging&) = delete;
    Dragging& operator=(const Dragging&) = delete;
};
} // namespace

COleDataSource::COleDataSource() : m_cache(std::make_shared<toolkit::DataCache>()) {}

COleDataSource::~COleDataSource()
{
    m_cache->Close();
}

COleDataSource* COleDataSource::GetClipboardOwner()
{
    return s_published.source.get();
}

void COleDataSource::CacheData(CLIPFORMAT cfFormat, STGMEDIUM* pMedium, FORMATETC* pFormat)
{
    m_cache->Put(pFormat && !cfFormat ? pFormat->cfFormat : cfFormat, *pMedium);
    *pMedium = {};
}

void COleDataSource::CacheGlobalData(CLIPFORMAT cfFormat, HGLOBAL hGlobal, FORMATETC* pFormat)
{
    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = hGlobal;
    CacheData(cfFormat, &medium, pFormat);
}

void COleDataSource::SetClipboard()
{
    if (GetClipboardOwner() != this && !Publish({std::unique_ptr<COleDataSource>(this), m_cache}))
        throw COleException(CLIPBRD_E_CANT_SET);
}

void COleDataSource::FlushClipboard()
{
    if (s_published.source)
        Publish({nullptr, s_published.data->CopyPlain()});
}

DROPEFFECT COleDataSource::DoDragDrop(DWORD dwEffects)
{
    if (s_bDragging || !(toolkit::MouseKeyFlags() & toolkit::kMouseButtons))
        return DROPEFFECT_NONE;
    const std::shared_ptr<toolkit::DataCache> data = m_cache; // outlives this object
    const Dragging dragging;
    ReleaseCapture();
    toolkit::UpdateWake();
    return toolkit::CurrentDesktop().RunDrag(data, dwEffects) & dwEffects;
}

std::shared_ptr<toolkit::DataProvider> toolkit::ClipboardData()
{
    if (s_published.data)
        return s_published.data;
    const std::shared_ptr<OfferedData> foreign = CurrentDesktop().FetchClipboard();
    return foreign ? std::make_shared<ForeignData>(foreign) : nullptr;
}
