#include "Editor/frame/ContextMenu.h"

#include "Editor/frame/MainFrame.h"
#include "Views/clipboard/Naming.h"

#include <algorithm>

namespace editor
{

std::unique_ptr<CMenu> MakeContextMenu(const MenuState& state)
{
    auto pMenu = std::make_unique<CMenu>();
    if (!pMenu->CreatePopupMenu())
        return nullptr;
    const auto add = [&pMenu](UINT nCommand, const char* pszText, bool bEnabled) {
        pMenu->AppendMenu(MF_STRING | (bEnabled ? MF_ENABLED : MF_GRAYED), nCommand, pszText);
    };
    const auto separate = [&pMenu] { pMenu->AppendMenu(MF_SEPARATOR); };
    add(ID_OPEN, "&Open\tEnter", state.canOpen);
    separate();
    add(ID_CUT, "Cu&t\tCtrl+X", state.canRemove);
    add(ID_COPY, "&Copy\tCtrl+C", state.canCarry);
    add(ID_PASTE, "&Paste\tCtrl+V", state.canPaste);
    separate();
    add(ID_RENAME, "&Rename\tF2", state.canRename);
    add(ID_REMOVE, "&Delete\tDel", state.canRemove);
    separate();
    add(ID_SELECT_ALL, "Select &all\tCtrl+A", state.canSelectAll);
    add(ID_REFRESH, "Re&fresh\tF5", true);
    return pMenu;
}

// Whether there is anything to paste only the clipboard's owner knows, who may be another program that hangs: nobody
// waits for it before a menu. Pasting tells what there is not.
CMenu* CMainFrame::CreateContextMenu()
{
    const ActiveMembers members = GetActiveMembers(m_editor);
    const ActiveMember* const pOne = members.size() == 1 ? &members.front() : nullptr;
    const auto canGo = [](const ActiveMember& member) {
        return (member.pContainer->GetPermissions(member.pAtom.Get()) & APF_REMOVE) != 0;
    };
    MenuState state;
    state.canOpen = pOne && pOne->pAtom.Get() != Shown();
    state.canCarry = !members.empty();
    state.canRemove = state.canCarry && std::all_of(members.begin(), members.end(), canGo);
    state.canRename = pOne && CanRenameObject(pOne->pAtom.Get(), pOne->pContainer.Get());
    state.canPaste = ShownContainer() != nullptr;
    state.canSelectAll = !IsPictureShown() && m_pList->GetItemCount() > 0 && !m_pList->AreAllSelected();
    return MakeContextMenu(state).release();
}

void CMainFrame::OpenSelected()
{
    const ActiveMembers members = GetActiveMembers(m_editor);
    CMember* const pMember = members.size() == 1 ? CMember::Of(members.front().pAtom.Get()) : nullptr;
    if (pMember)
        GoTo(pMember);
}

void CMainFrame::RenameSelected()
{
    m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnAtomRename, nullptr, nullptr, 0);
}

void CMainFrame::SelectAll()
{
    m_pList->SetFocus();
    m_pList->SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
}

} // namespace editor
