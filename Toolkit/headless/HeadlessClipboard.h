// The clipboard of a desktop without a screen, and the other program that a test plays on it.
#pragma once

#include "Toolkit/headless/HeadlessScreen.h"

namespace toolkit
{

using KindsAndBytes = std::vector<std::pair<std::string, std::string>>; // MIME types and what is rendered as them

std::shared_ptr<OfferedData> MakeOffer(KindsAndBytes data); // another program's

class TOOLKIT_API HeadlessClipboard : public HeadlessScreen
{
public:
    // As another program sees it: it takes it with data of its own, or leaves it empty, or asks for what the program
    // under test has published.
    void TakeClipboard(KindsAndBytes data);
    void RefuseClipboard(bool bRefuse) { m_bRefusesClipboard = bRefuse; } // to the program under test
    std::string PublishedKinds(); // separated by spaces; "" when nothing is published
    std::optional<std::string> ReadPublished(std::string_view kind);

    BOOL PublishClipboard(std::shared_ptr<OfferedData> data) override;
    std::shared_ptr<OfferedData> FetchClipboard() override { return m_foreign; }

protected:
    void LosePublished();

private:
    std::shared_ptr<OfferedData> m_published, m_foreign; // one of them at most
    bool m_bRefusesClipboard = false;
};

} // namespace toolkit
