// What the user does to objects: copying, cutting, pasting, removing, renaming.
#pragma once

#include "Editor/model/Container.h"
#include "Editor/services/AtomEditor.h"

#include <string>
#include <vector>

namespace editor
{

enum class Removal
{
    ToTheTrash,
    ForGood
};

// The library's commands (Views/clipboard/clipboard.h), with the reason told when something was not done: one line that
// names the object where there is one. Empty: all of it was done.
class Commands
{
public:
    explicit Commands(CAtomEditor& editor) : m_editor(editor) {} // borrowed

    // What a removal would be asked about: 'Move "walk.png" to the trash?', 'Remove 3 objects for good?'; and how many
    // phases would miss pictures. Cutting is only asked about where there are such phases: else it is empty.
    std::string RemoveQuestion(Removal removal = Removal::ToTheTrash) const;
    std::string CutQuestion() const;

    // These and no others become the selected members of the container, if it is shown.
    void Select(const std::vector<CStubRef<IAtom>>& atoms, IAtomContainer* pContainer);

    // On the active objects.
    std::string Copy();
    std::string Cut();
    std::string Remove(); // without asking

    // What the clipboard holds, objects or else the files that a file manager has copied, is added to the container.
    // `arrived` are the new members.
    std::string Paste(CContainer* pTarget, std::vector<CStubRef<IAtom>>& arrived);
    // In the container: a folder; a phase that shows the active pictures in their order.
    std::string MakeFolder(CContainer* pTarget, std::vector<CStubRef<IAtom>>& arrived);
    std::string MakePhase(CContainer* pTarget, std::vector<CStubRef<IAtom>>& arrived);
    // What has the new name is another object.
    std::string Rename(CMember* pMember, const std::string& name);

private:
    void TellOfChange(const ActiveMembers& members); // of the containers that they are in
    std::string PasteAtoms(CContainer* pTarget);
    std::string Make(MemberKind kind, const std::string& name, const std::string& text, CContainer* pTarget);
    bool AreFilesOnClipboard(CContainer* pTarget) const;
    std::string PasteClipboardFiles(CContainer* pTarget);

    CAtomEditor& m_editor;
};

} // namespace editor
