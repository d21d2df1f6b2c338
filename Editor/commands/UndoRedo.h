// Steps of the history taken back and done again, and shown.
#pragma once

#include "Editor/content/ModifiedPhases.h"
#include "Editor/content/Navigation.h"
#include "Editor/history/History.h"

namespace editor
{

class UndoRedo
{
public:
    UndoRedo(CAtomEditor& editor, PictureStore& pictures, Navigation& navigation, ModifiedPhases& modified)
        : m_editor(editor), m_pictures(pictures), m_navigation(navigation), m_modified(modified)
    {} // all borrowed

    // Every view has heard of it by then, and shows what it showed under the name that it has now; or, where nothing of
    // it is to be seen there, the folder where it was. `present` are those members of the container that is shown that
    // have come, or bear another name. Empty when all was done, else the reason: then nothing was.
    using Atoms = std::vector<CStubRef<IAtom>>;
    std::string Take(std::string (History::*step)(Changes&), Atoms& present); // Undo, Redo or Restore

private:
    void TellOf(const std::string& path, const std::set<std::string>& names);
    void FollowNames(const Changes& changes, const std::string& shown);
    void GoWhereItIsSeen(const Changes& changes);
    void KeepUnsaved(const Changes& changes);
    Atoms Present(const Changes& changes) const;

    CAtomEditor& m_editor;
    PictureStore& m_pictures;
    Navigation& m_navigation;
    ModifiedPhases& m_modified;
};

} // namespace editor
