#include "Toolkit/headless/HeadlessClipboard.h"

#include <algorithm>

namespace
{
class ForeignOffer : public toolkit::OfferedData
{
public:
    explicit ForeignOffer(toolkit::KindsAndBytes data) : m_data(std::move(data)) {}

    std::vector<std::string> GetKinds() override
    {
        std::vector<std::string> kinds;
        for (const auto& [kind, bytes] : m_data)
            kinds.push_back(kind);
        return kinds;
    }

    std::optional<std::string> Render(std::string_view kind) override
    {
        const auto found =
            std::find_if(m_data.begin(), m_data.end(), [kind](const auto& d) { return d.first == kind; });
        return found == m_data.end() ? std::nullopt : std::optional(found->second);
    }

private:
    const toolkit::KindsAndBytes m_data;
};
} // namespace

std::shared_ptr<toolkit::OfferedData> toolkit::MakeOffer(KindsAndBytes data)
{
    return std::make_shared<ForeignOffer>(std::move(data));
}

BOOL toolkit::HeadlessClipboard::PublishClipboard(std::shared_ptr<OfferedData> data)
{
    m_foreign.reset();
    if (m_bRefusesClipboard)
        LosePublished();
    else
        m_published = std::move(data);
    return !m_bRefusesClipboard;
}

void toolkit::HeadlessClipboard::LosePublished()
{
    if (const auto lost = std::exchange(m_published, nullptr))
        lost->OnLost();
}

void toolkit::HeadlessClipboard::TakeClipboard(KindsAndBytes data)
{
    m_foreign = data.empty() ? nullptr : MakeOffer(std::move(data));
    LosePublished();
}

std::string toolkit::HeadlessClipboard::PublishedKinds()
{
    std::string all;
    for (const std::string& kind : m_published ? m_published->GetKinds() : std::vector<std::string>())
        all += (all.empty() ? "" : " ") + kind;
    return all;
}

std::optional<std::string> toolkit::HeadlessClipboard::ReadPublished(std::string_view kind)
{
    return m_published ? m_published->Render(kind) : std::nullopt;
}
