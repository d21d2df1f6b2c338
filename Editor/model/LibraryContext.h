// What all atoms of one library share.
#pragma once

#include "Editor/disk/FolderWatch.h"
#include "Editor/history/History.h"
#include "Editor/model/PhaseFollower.h"
#include "Editor/pictures/PictureStore.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace editor
{

class CImageLink;
class CPhase;

struct LibraryContext
{
    LongWork& work;                               // does what takes long; borrowed
    std::string rootPath{};                       // absolute, with neither links nor a slash at its end
    std::vector<std::string> pictureExtensions{}; // sorted
    std::shared_ptr<PictureStore> pPictures{};
    History* pHistory = nullptr;                // of what is done to the disk; borrowed. NULL: nothing is remembered
    std::unique_ptr<PhaseFollower> pFollower{}; // where there is a history
    FolderWatch* pWatch = nullptr; // of the folders that have been read; borrowed. NULL: nobody follows the disk
    DWORD nextId = 1;
    std::vector<const CPhase*> unsaved{};    // whose timing is set and not saved
    std::set<CImageLink*> links{};           // that somebody holds
    std::map<CPhase*, std::string> covers{}; // the paths of the pictures that phases are seen as
};

} // namespace editor
