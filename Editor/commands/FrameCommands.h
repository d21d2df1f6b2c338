// What the user does to what is selected: asked where something would be lost, told what could not be done.
#pragma once

#include "Editor/commands/CommandTable.h"
#include "Editor/commands/QuietCommands.h"
#include "Editor/resources/EditorResources.h"

namespace editor
{

// By keys and menu, where it can be done (Describe). A message box tells what was not done.
class FrameCommands : public QuietCommands
{
public:
    using QuietCommands::QuietCommands;

    void Describe(CommandState& state) const;

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

    void ShowFailure(UINT nCaptionID, std::string reason) const; // empty: nothing

private:
    void DescribeSelection(CommandState& state) const;
    std::string WhyNotMove(bool bLater) const;
    void MoveFrames(bool bLater);
    void MakeAndName(Make make);
    template <class Carry>
    std::string CarryAsAgreed(Carry carry);
    void TellAndForget(const std::string& reason, void (History::*forget)());      // as the user likes; empty: nothing
    bool WasCancelled() const { return m_parts.editor.GetWork().TakeCancelled(); } // the user knows why
};

} // namespace editor
