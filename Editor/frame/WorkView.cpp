#include "Editor/frame/WorkView.h"

#include "Toolkit/window/WindowApi.h"

#include <cstdio>

namespace editor
{
namespace
{

std::string Megabytes(std::uint64_t bytes)
{
    constexpr double kMega = 1'000'000, kGiga = 1'000'000'000;
    const auto size = static_cast<double>(bytes);
    char text[32];
    if (size < kGiga)
        std::snprintf(text, sizeof text, "%.0f MB", size / kMega);
    else
        std::snprintf(text, sizeof text, "%.2f GB", size / kGiga);
    return text;
}

std::string Amount(std::uint64_t amount, Progress::Unit unit)
{
    return unit == Progress::Unit::Bytes ? Megabytes(amount) : std::to_string(amount);
}

std::string TextOf(const Progress& progress)
{
    if (progress.done == 0)
        return progress.what + " ...";
    const std::string of = progress.total > 0 ? " of " + Amount(progress.total, progress.unit) : std::string();
    const char* const pszUnit = progress.unit == Progress::Unit::Bytes ? "" : " objects";
    return progress.what + ": " + Amount(progress.done, progress.unit) + of + pszUnit;
}

double PartOf(const Progress& progress)
{
    return progress.total == 0 ? -1 : static_cast<double>(progress.done) / static_cast<double>(progress.total);
}

} // namespace

WorkView::WorkView(LongWork& work, std::function<void(std::string)> tell)
    : m_work(work), m_tell(std::move(tell)), m_strip([this] { m_work.Cancel(); })
{}

BOOL WorkView::Create(hostkit::CWidget* pStatusBar)
{
    m_pStatusBar = pStatusBar;
    m_work.SetView(this);
    return m_strip.Create(pStatusBar);
}

void WorkView::Show(const Progress& progress)
{
    m_strip.MoveWindow(m_pStatusBar->Client());
    m_strip.SetState(m_work.GetMeter().IsAskedToEnd() ? "Cancelling ..." : TextOf(progress), PartOf(progress),
                     progress.unit != Progress::Unit::Found);
    m_strip.ShowWindow(SW_SHOW);
    ::ShowWindow(GetTopLevel(m_strip.m_hWnd), SW_SHOW); // the first folder takes long to be read
}

// Where a part was done and stays, the history's news come after this line and in its place.
void WorkView::OnCancelled()
{
    m_tell("Cancelled. Nothing was changed");
}

} // namespace editor
