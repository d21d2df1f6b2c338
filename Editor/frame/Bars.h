// What stands above and below the panes: menus, ways, path, tools; status and size.
#pragma once

#include "Editor/commands/CommandDesk.h"
#include "Editor/content/Content.h"
#include "Editor/content/Navigation.h"
#include "Editor/widgets/MenuBar.h"
#include "Editor/widgets/PaneLayout.h"
#include "Editor/widgets/PathBar.h"
#include "Editor/widgets/SizeSlider.h"
#include "Editor/widgets/StatusBar.h"
#include "Editor/widgets/ToolBar.h"

namespace editor
{

class Bars
{
public:
    struct Parts // borrowed, and not used before the bars are made
    {
        Navigation& navigation;
        PlaceCommands& places;
        ViewCommands& views;
        CommandDesk& desk;
        Content& content;
        std::function<Status()> askStatus;
    };
    explicit Bars(const Parts& parts);

    bool Create(CWnd* pFrame);

    CMenuBar& GetMenuBar() { return m_menuBar; }
    CToolBar& GetWays() { return m_ways; }
    CToolBar& GetTools() { return m_tools; }
    CPathBar& GetPathBar() { return m_pathBar; }
    CStatusBar& GetStatusBar() { return m_statusBar; }
    const CStatusBar& GetStatusBar() const { return m_statusBar; }
    CSizeSlider& GetSizeSlider() { return m_sizeSlider; }
    PaneLayout::Wanted GetWanted(int nTree) const; // with such a tree

    void MoveTo(const PaneLayout& layout);
    void ShowPath(); // of what is shown
    void Update();   // what is shown or selected has changed: costs nothing until they are drawn
    void SetNews(std::string news) { m_statusBar.SetNews(std::move(news)); }

private:
    const Parts m_parts;
    CMenuBar m_menuBar;
    CToolBar m_ways, m_tools;
    CPathBar m_pathBar;
    CStatusBar m_statusBar;
    CSizeSlider m_sizeSlider;
};

} // namespace editor
