#include "Editor/widgets/PaneLayout.h"

#include "Editor/widgets/Look.h"
#include "HostKit/Splitter.h"

#include <algorithm>

namespace editor
{
namespace
{

constexpr int kLeastUsual = 176, kMostUsual = 280;

} // namespace

PaneLayout::PaneLayout(CSize client, int treeWidth)
{
    const int bottom = std::max<int>(kPathBarHeight, client.cy - kStatusBarHeight);
    path = {0, 0, client.cx, kPathBarHeight};
    status = {0, bottom, client.cx, bottom + kStatusBarHeight};
    const int contentBottom = std::max<int>(kPathBarHeight, bottom - kPropertiesHeight);
    content = {0, kPathBarHeight, client.cx, contentBottom};
    properties = {0, contentBottom, client.cx, bottom};

    const int most = client.cx - hostkit::CSplitter::kWidth - kLeastContent;
    if (most < kLeastTree)
        return;
    const int wanted = treeWidth == kUsualTree ? std::clamp<int>(client.cx / 4, kLeastUsual, kMostUsual) : treeWidth;
    const int width = std::clamp(wanted, kLeastTree, most);
    tree = {0, content.top, width, bottom};
    splitter = {width, content.top, width + hostkit::CSplitter::kWidth, bottom};
    content.left = properties.left = splitter.right;
}

} // namespace editor
