// A row of buttons for commands.
#pragma once

#include "Editor/widgets/Look.h"
#include "Editor/widgets/SpotBar.h"
#include "Toolkit/graphics/Surface.h"

#include <functional>
#include <vector>

namespace editor
{

struct Tool
{
    UINT command = 0;
    const toolkit::Surface* pIcon = nullptr; // borrowed
    std::string tip;
    bool isEnabled = true;
    bool isDown = false;  // what it stands for is on
    bool isFirst = false; // stands apart from the one before
};

// Asks for its buttons whenever it is drawn or used: telling it of a change costs nothing. One that is disabled can be
// clicked, too: whoever is told knows why it is.
class CToolBar : public CSpotBar
{
public:
    CToolBar(std::function<std::vector<Tool>()> ask, std::function<void(UINT nCommand)> use)
        : m_ask(std::move(ask)), m_use(std::move(use))
    {}

    static int WidthOf(const std::vector<Tool>& tools); // pixels
    CRect RectOf(UINT nCommand) const;                  // client; empty without such a button

    std::vector<Part> AccParts() override;
    void AccUse(int nPart) override { UseSpot(nPart); }

protected:
    Part AccWindow() override { return {ROLE_SYSTEM_TOOLBAR, 0, {}, {}, {}}; }
    int SpotAt(CPoint point) const override;
    void UseSpot(int nSpot) override { m_use(m_ask()[static_cast<std::size_t>(nSpot)].command); }
    Tip TipOf(int nSpot) const override;
    void Erase(HDC hdc) override { FillTopBar(hdc, Client()); }
    void Draw(HDC hdc) override;

private:
    void DrawTool(HDC hdc, const Tool& tool, const CRect& rect, int nSpot) const;

    const std::function<std::vector<Tool>()> m_ask;
    const std::function<void(UINT)> m_use;
};

} // namespace editor
