// What is done to what is selected, and what is seen of it afterwards.
#pragma once

#include "Editor/commands/UndoRedo.h"
#include "Editor/content/Content.h"
#include "Editor/content/ModifiedPhases.h"
#include "Editor/content/Navigation.h"
#include "Editor/services/Commands.h"

namespace editor
{

// Nothing is asked, and the answer is the reason for what was not done.
class QuietCommands
{
public:
    struct Parts // all borrowed
    {
        CAtomEditor& editor;
        PictureStore& pictures;
        Navigation& navigation;
        Content& content;
        ModifiedPhases& modified;
        std::function<void()> updateStatus;
    };
    explicit QuietCommands(Parts parts)
        : m_parts(std::move(parts)),
          m_commands(m_parts.editor),
          m_undoRedo(m_parts.editor, m_parts.pictures, m_parts.navigation, m_parts.modified)
    {}

    Commands& GetPlain() { return m_commands; }
    History& GetHistory() const { return m_parts.editor.GetHistory(); }

    std::string Copy() { return m_commands.Copy(); }
    std::string Cut();
    std::string Remove();
    std::string Paste() { return MakeAnd(&Commands::Paste); } // into the container that is shown
    std::string Undo() { return Take(&History::Undo); }       // the last step that was done, wherever that was
    std::string Redo() { return Take(&History::Redo); }
    std::string Restore() { return Take(&History::Restore); } // what was removed last, and is still in the trash
    std::string NewFolder() { return MakeAnd(&Commands::MakeFolder); } // in the container that is shown
    std::string NewPhase() { return MakeAnd(&Commands::MakePhase); }   // there, of the pictures that are selected
    std::string RefreshQuietly();
    void Refresh(); // reads what is shown anew; the list keeps its selection
    // These members of the container that is shown and no others. The views hear of the last alone, however many.
    void SelectJust(const std::vector<CStubRef<IAtom>>& atoms);

    // Where the user is, for a change that loads the list's rows anew.
    struct Position
    {
        CStubRef<CMember> pShown;
        CEditorList::State list;
    };
    Position RememberPosition() const;
    void GoOnAt(const Position& position); // as far as it is still there

protected:
    using Make = std::string (Commands::*)(CContainer* pTarget, std::vector<CStubRef<IAtom>>& arrived);
    std::string MakeAnd(Make make, bool* pbAny = nullptr); // did any object come?
    CEditorList& List() const { return m_parts.content.GetList(); }

    const Parts m_parts;
    Commands m_commands;

private:
    void ShowJust(const std::vector<CStubRef<IAtom>>& atoms);
    std::string Take(std::string (History::*step)(Changes&));
    template <class Change>
    std::string ChangeSelection(Change change);

    UndoRedo m_undoRedo;
};

} // namespace editor
