#include "Editor/frame/Bars.h"

#include "Editor/commands/PlaceCommands.h"
#include "Editor/commands/ViewCommands.h"
#include "Toolkit/access/Accessible.h"

namespace editor
{

Bars::Bars(const Parts& parts)
    : m_parts(parts),
      m_menuBar(CommandDesk::MenuTitles(), {[this](int nMenu) { return m_parts.desk.MakeMenu(nMenu); },
                                            [this](UINT nID) { m_parts.desk.Run(nID); }}),
      m_ways([this] { return m_parts.desk.Tools(CommandDesk::Row::Ways); },
             [this](UINT nID) { m_parts.desk.Run(nID); }),
      m_tools([this] { return m_parts.desk.Tools(CommandDesk::Row::Objects); },
              [this](UINT nID) { m_parts.desk.Run(nID); }),
      m_pathBar({[this](int nPart) { m_parts.navigation.GoToPart(nPart); }, [this] { m_parts.places.TypePath(); },
                 [this](const std::string& path) { return m_parts.places.ShowTyped(path); },
                 [this] { m_parts.content.TakeFocus(); }}),
      m_statusBar(parts.askStatus),
      m_sizeSlider(Content::kLeastThumbnail, Content::kMostThumbnail,
                   {[this] { return m_parts.content.GetThumbnailExtent(); },
                    [this](int nExtent) { m_parts.content.SetThumbnailExtent(nExtent); },
                    [this](int nSteps) { m_parts.views.Step(nSteps); }})
{}

bool Bars::Create(CWnd* pFrame)
{
    return m_menuBar.Create(pFrame) && m_ways.Create(pFrame) && m_tools.Create(pFrame) && m_pathBar.Create(pFrame) &&
           m_statusBar.Create(pFrame) && m_sizeSlider.Create(pFrame) && SetAccessibleName(m_menuBar.m_hWnd, "Menus") &&
           SetAccessibleName(m_ways.m_hWnd, "Ways") && SetAccessibleName(m_tools.m_hWnd, "Tools");
}

PaneLayout::Wanted Bars::GetWanted(int nTree) const
{
    return {.tree = nTree,
            .ways = CToolBar::WidthOf(m_parts.desk.Tools(CommandDesk::Row::Ways)),
            .tools = CToolBar::WidthOf(m_parts.desk.Tools(CommandDesk::Row::Objects))};
}

void Bars::MoveTo(const PaneLayout& layout)
{
    m_menuBar.MoveWindow(layout.menus);
    m_ways.MoveWindow(layout.ways);
    m_pathBar.MoveWindow(layout.path);
    m_tools.MoveWindow(layout.tools);
    const bool bSizes = m_parts.content.GetKind() == ListKind::Thumbnails && !m_parts.content.IsPictureShown();
    CRect status = layout.status;
    status.right -= bSizes ? CSizeSlider::kWidth : 0;
    m_statusBar.MoveWindow(status);
    m_sizeSlider.MoveWindow({status.right, status.top, layout.status.right, status.bottom});
    m_sizeSlider.ShowWindow(bSizes ? SW_SHOW : SW_HIDE);
}

void Bars::ShowPath()
{
    std::vector<std::string> parts;
    for (const CMember* const pMember : m_parts.navigation.Path())
        parts.push_back(pMember->ShownName());
    m_pathBar.SetPath(std::move(parts));
}

void Bars::Update()
{
    m_statusBar.Update();
    m_sizeSlider.Invalidate();
    m_ways.Invalidate();
    m_tools.Invalidate();
}

} // namespace editor
