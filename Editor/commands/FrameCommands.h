// What the user does to what is selected: asked where something would be lost, told what could not be done.
#pragma once

#include "Editor/commands/CommandTable.h"
#include "Editor/commands/UndoRedo.h"
#include "Editor/content/Content.h"
#include "Editor/content/ModifiedPhases.h"
#include "Editor/content/Navigation.h"
#include "Editor/resources/EditorResources.h"
#include "Editor/services/Commands.h"

namespace editor
{

class FrameCommands
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
    explicit FrameCommands(Parts parts)
        : m_parts(std::move(parts)),
          m_commands(m_parts.editor),
          m_undoRedo(m_parts.editor, m_parts.pictures, m_parts.navigation, m_parts.modified)
    {}

    Commands& GetPlain() { return m_commands; }
    History& GetHistory() const { return m_parts.editor.GetHistory(); }
    void Describe(CommandState& state) const;

    // Nothing is asked, and the answer is the reason for what was not done.
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
    // These members of the container that is shown and no others. The views hear of the last alone, however many.
    void SelectJust(const std::vector<CStubRef<IAtom>>& atoms);

    // The same by keys and menu, where it can be done (Describe). A message box tells what was not done.
    void CopySelection();
    void CutSelection();
    void RemoveSelection(); // asks first
    void PasteHere();
    void NewFolderAndName() { MakeAndName(&Commands::MakeFolder); } // the user gives it another name
    void NewPhaseAndName() { MakeAndName(&Commands::MakePhase); }
    void UndoOrTell() { TellAndForget(Undo(), &History::ForgetNextUndo); }
    void RedoOrTell() { TellAndForget(Redo(), &History::ForgetNextRedo); }
    void RestoreOrTell() { ShowFailure(IDS_RESTORE_FAILED, Restore()); }
    bool SaveOrTell();   // all phases that are modified; were all saved?
    void OpenSelected(); // the one that is
    void RenameSelected();
    void MoveEarlier() { MoveFrames(false); } // those that are selected in the phase that is shown
    void MoveLater() { MoveFrames(true); }
    void SelectAll(); // in the list
    void Refresh();   // reads what is shown anew; the list keeps its selection

    void ShowFailure(UINT nCaptionID, std::string reason) const; // empty: nothing

    // Where the user is, for a change that loads the list's rows anew.
    struct Position
    {
        CStubRef<CMember> pShown;
        CEditorList::State list;
    };
    Position RememberPosition() const;
    void GoOnAt(const Position& position); // as far as it is still there

private:
    void DescribeSelection(CommandState& state) const;
    std::string WhyNotMove(bool bLater) const;
    void MoveFrames(bool bLater);
    using Make = std::string (Commands::*)(CContainer* pTarget, std::vector<CStubRef<IAtom>>& arrived);
    std::string MakeAnd(Make make, bool* pbAny = nullptr); // did any object come?
    void MakeAndName(Make make);
    void ShowJust(const std::vector<CStubRef<IAtom>>& atoms);
    template <class Carry>
    std::string CarryAsAgreed(Carry carry);
    std::string Take(std::string (History::*step)(Changes&));
    void TellAndForget(const std::string& reason, void (History::*forget)()); // as the user likes; empty: nothing
    template <class Change>
    std::string ChangeSelection(Change change);
    bool WasCancelled() const { return m_parts.editor.GetWork().TakeCancelled(); } // the user knows why
    CEditorList& List() const { return m_parts.content.GetList(); }

    const Parts m_parts;
    Commands m_commands;
    UndoRedo m_undoRedo;
};

} // namespace editor
