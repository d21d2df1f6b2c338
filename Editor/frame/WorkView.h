// What the user sees of work that takes long, in the place of the status.
#pragma once

#include "Editor/widgets/ProgressStrip.h"
#include "Editor/work/LongWork.h"

namespace editor
{

class WorkView final : public ProgressView
{
public:
    WorkView(LongWork& work, std::function<void(std::string)> tell); // borrowed; `tell`: a line of news
    ~WorkView() { m_work.SetView(nullptr); }
    WorkView(const WorkView&) = delete;
    WorkView& operator=(const WorkView&) = delete;

    BOOL Create(hostkit::CWidget* pStatusBar);
    CProgressStrip& GetStrip() { return m_strip; }

    HWND GetModalWindow() const override { return m_strip.m_hWnd; }
    void Show(const Progress& progress) override;
    void Hide() override { m_strip.ShowWindow(SW_HIDE); }
    void OnCancelled() override;

private:
    LongWork& m_work;
    const std::function<void(std::string)> m_tell;
    hostkit::CWidget* m_pStatusBar = nullptr;
    CProgressStrip m_strip;
};

} // namespace editor
