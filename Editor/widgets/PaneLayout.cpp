#include "Editor/widgets/PaneLayout.h"

#include "Editor/widgets/Look.h"
#include "HostKit/frame/Splitter.h"

#include <algorithm>

namespace editor
{
namespace
{

constexpr int kLeastUsual = 176, kMostUsual = 280;

} // namespace

PaneLayout::PaneLayout(CSize client, const Wanted& wanted)
{
    PlaceBars(client.cx, wanted);
    const int top = path.bottom;
    const int bottom = std::max<int>(top, client.cy - kStatusBarHeight);
    status = {0, bottom, client.cx, bottom + kStatusBarHeight};
    const int contentBottom = std::max<int>(top, bottom - kPropertiesHeight);
    content = {0, top, client.cx, contentBottom};
    properties = {0, contentBottom, client.cx, bottom};

    const int most = client.cx - hostkit::CSplitter::kWidth - kLeastContent;
    if (most < kLeastTree)
        return;
    const int usual = wanted.tree == kUsualTree ? std::clamp<int>(client.cx / 4, kLeastUsual, kMostUsual) : wanted.tree;
    const int width = std::clamp(usual, kLeastTree, most);
    tree = {0, content.top, width, bottom};
    splitter = {width, content.top, width + hostkit::CSplitter::kWidth, bottom};
    content.left = properties.left = splitter.right;
}

void PaneLayout::PlaceBars(int right, const Wanted& wanted)
{
    menus = {0, 0, right, kMenuBarHeight};
    path = {wanted.ways, menus.bottom, right, menus.bottom + kPathBarHeight};
    ways = {0, path.top, wanted.ways, path.bottom};
    if (path.Width() < kLeastPath + wanted.tools)
        return;
    path.right -= wanted.tools;
    tools = {path.right, path.top, right, path.bottom};
}

} // namespace editor
