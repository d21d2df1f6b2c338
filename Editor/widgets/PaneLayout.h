// Where the frame's parts stand.
#pragma once

#include "Toolkit/base/Geometry.h"

namespace editor
{

// From the top: the path, the panes side by side, the status. A window too narrow for two panes shows only the right
// one. Client coordinates.
struct PaneLayout
{
    static constexpr int kLeastTree = 120;    // pixels wide
    static constexpr int kLeastContent = 240; // of the pane at the right
    static constexpr int kUsualTree = -1;     // a quarter of the window, within bounds

    // treeWidth: what the user wants, or kUsualTree.
    PaneLayout(CSize client, int treeWidth);

    CRect path, tree, splitter, content, properties,
        status; // tree and splitter are empty when there is no room for them
};

} // namespace editor
