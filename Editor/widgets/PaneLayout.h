// Where the frame's parts stand.
#pragma once

#include "Toolkit/base/Geometry.h"

namespace editor
{

// From the top: the menus; ways, path and tools in a row; the panes side by side; the status. A window too narrow for
// two panes shows only the right one. Client coordinates.
struct PaneLayout
{
    static constexpr int kLeastTree = 120;    // pixels wide
    static constexpr int kLeastContent = 240; // of the pane at the right
    static constexpr int kUsualTree = -1;     // a quarter of the window, within bounds

    static constexpr int kLeastPath = 160; // the tools make way for it

    struct Wanted // pixels
    {
        int tree = kUsualTree; // what the user wants
        int ways = 0, tools = 0;
    };
    PaneLayout(CSize client, const Wanted& wanted);

    // Tree, splitter and tools are empty when there is no room for them.
    CRect menus, ways, path, tools, tree, splitter, content, properties, status;

private:
    void PlaceBars(int right, const Wanted& wanted);
};

} // namespace editor
