// The line at the bottom while work goes on that takes long: what, how far, and Cancel.
#pragma once

#include "Editor/widgets/Look.h"
#include "HostKit/frame/Widget.h"
#include "Toolkit/access/Accessible.h"

#include <functional>
#include <string>

namespace editor
{

// Escape, and closing the window, are Cancel as well.
class CProgressStrip : public hostkit::CWidget, public toolkit::AccessibleParts
{
public:
    // `cancel` may be called before anything is shown.
    explicit CProgressStrip(std::function<void()> cancel) : CWidget(0), m_cancel(std::move(cancel)) {}

    void SetState(std::string text, double dPart, bool bCanCancel); // 0 to 1; less: not known, and no bar
    const std::string& GetText() const { return m_text; }
    CRect CancelRect() const;

    std::vector<Part> AccParts() override;
    void AccUse(int) override { m_cancel(); }
    std::optional<toolkit::AccRange> AccValue() override;

protected:
    Part AccWindow() override { return {ROLE_SYSTEM_PROGRESSBAR, 0, m_text, {}, {}}; }
    void Erase(HDC hdc) override { FillBottomBar(hdc, Client()); }
    void Draw(HDC hdc) override;
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnClose() { m_cancel(); }
    DECLARE_MESSAGE_MAP()

private:
    CRect DrawButton(HDC hdc) const;
    CRect DrawBar(HDC hdc, const CRect& room) const;

    const std::function<void()> m_cancel;
    std::string m_text;
    double m_dPart = -1;
    bool m_bCanCancel = false;
};

} // namespace editor
