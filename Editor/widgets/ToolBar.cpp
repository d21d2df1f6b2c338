#include "Editor/widgets/ToolBar.h"

namespace editor
{
namespace
{

constexpr int kButton = 32;
constexpr double kDisabled = 0.35; // of an icon's strength

// Where each tool stands in a row that begins there.
std::vector<CRect> Layout(const std::vector<Tool>& tools, CPoint at)
{
    std::vector<CRect> rects;
    for (const Tool& tool : tools) {
        at.x += tool.isFirst && !rects.empty() ? 2 * kSpace : 0;
        rects.emplace_back(at, CSize(kButton, kButton));
        at.x += kButton;
    }
    return rects;
}

} // namespace

int CToolBar::WidthOf(const std::vector<Tool>& tools)
{
    return tools.empty() ? 0 : Layout(tools, {kSpace, 0}).back().right + kSpace;
}

CRect CToolBar::RectOf(UINT nCommand) const
{
    const std::vector<Tool> tools = m_ask();
    const std::vector<CRect> rects = Layout(tools, {kSpace, (kPathBarHeight - kButton) / 2});
    for (std::size_t i = 0; i < tools.size(); ++i)
        if (tools[i].command == nCommand)
            return rects[i];
    return {};
}

int CToolBar::SpotAt(CPoint point) const
{
    const std::vector<CRect> rects = Layout(m_ask(), {kSpace, (kPathBarHeight - kButton) / 2});
    for (std::size_t i = 0; i < rects.size(); ++i)
        if (rects[i].PtInRect(point))
            return static_cast<int>(i);
    return kNothing;
}

CSpotBar::Tip CToolBar::TipOf(int nSpot) const
{
    const Tool tool = m_ask()[static_cast<std::size_t>(nSpot)];
    return {tool.tip, RectOf(tool.command)};
}

std::vector<CToolBar::Part> CToolBar::AccParts()
{
    const std::vector<Tool> tools = m_ask();
    const std::vector<CRect> rects = Layout(tools, {kSpace, (kPathBarHeight - kButton) / 2});
    std::vector<Part> parts;
    for (std::size_t i = 0; i < tools.size(); ++i) {
        const UINT state =
            (tools[i].isEnabled ? 0 : STATE_SYSTEM_UNAVAILABLE) | (tools[i].isDown ? STATE_SYSTEM_CHECKED : 0);
        parts.push_back({ROLE_SYSTEM_PUSHBUTTON, state, tools[i].tip, rects[i], "Press"});
    }
    return parts;
}

void CToolBar::Draw(HDC hdc)
{
    const std::vector<Tool> tools = m_ask();
    const std::vector<CRect> rects = Layout(tools, {kSpace, (kPathBarHeight - kButton) / 2});
    for (std::size_t i = 0; i < tools.size(); ++i) {
        if (tools[i].isFirst && i > 0)
            FillSolidRect(hdc,
                          CRect(CPoint(rects[i].left - kSpace, rects[i].top + kSpace), CSize(1, kButton - 2 * kSpace)),
                          LineColor());
        DrawTool(hdc, tools[i], rects[i], static_cast<int>(i));
    }
}

void CToolBar::DrawTool(HDC hdc, const Tool& tool, const CRect& rect, int nSpot) const
{
    if (tool.isDown)
        FillSolidRect(hdc, rect, PressedColor());
    if (tool.isEnabled)
        DrawGround(hdc, rect, nSpot);
    DrawCentred(hdc, rect, tool.isEnabled ? *tool.pIcon : Faded(*tool.pIcon, kDisabled));
}

} // namespace editor
