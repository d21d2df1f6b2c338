// What the editor remembers from one time to the next.
#pragma once

#include "Toolkit/base/Geometry.h"

#include <string>
#include <vector>

namespace editor
{

struct Settings
{
    CRect window;      // the client area on the screen; empty: nowhere in particular
    int treeWidth = 0; // pixels; 0: as usual
    bool thumbnails = false;
    bool foldersFirst = false;
    int thumbnailExtent = 0;         // pixels; 0: as usual
    bool pixels = false;             // small pictures are enlarged, each pixel to a square
    std::vector<std::string> recent; // folders, the last one first
    // In the last one: the folder that was shown, and those that were expanded in the tree, the outer ones first.
    std::string shown;
    std::vector<std::string> expanded;

    static constexpr std::size_t kMostRecent = 10, kMostExpanded = 100;
    void NoteFolder(const std::string& path);
};

// A file of lines "name=value", made by WriteSettings. What cannot be read counts as not there: nobody is told.
std::string SettingsPath(); // of the user; empty where nobody knows
Settings ReadSettings(const std::string& path);
// Whole or not at all. Folders that another window has noted meanwhile stay. False when it could not be written.
bool WriteSettings(const std::string& path, Settings settings);

} // namespace editor
