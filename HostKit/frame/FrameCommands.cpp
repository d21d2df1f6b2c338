// The frame's commands: what the user does to what is selected.
#include "HostKit/atoms/Commands.h"
#include "HostKit/base/Names.h"
#include "HostKit/frame/Frame.h"
#include "HostKit/pictures/Resources.h"
#include "Toolkit/base/Exception.h"
#include "Toolkit/menu/Menu.h"
#include "Views/clipboard/clipboard.h"

#include <algorithm>

namespace hostkit
{
namespace
{

using With = CommandKey::With;

constexpr UINT kFirstCommand = 3001; // as they go to the frame, in their order

std::string QuestionFor(const ActiveMembers& members)
{
    return members.size() == 1 ? "Remove \"" + ShownNameOf(members.front().pAtom.Get()) + "\"?"
                               : "Remove " + std::to_string(members.size()) + " objects?";
}

} // namespace

void CFrame::AddStandardCommands()
{
    const auto any = [this] { return !GetActiveMembers(m_editor).empty(); };
    const auto one = [this] { return GetActiveMembers(m_editor).size() == 1; };
    const auto mayGo = [this] {
        const ActiveMembers members = GetActiveMembers(m_editor);
        return !members.empty() && std::ranges::all_of(members, &ActiveMember::MayGo);
    };
    const auto mayRename = [this] {
        const ActiveMembers members = GetActiveMembers(m_editor);
        return members.size() == 1 && CanRenameObject(members[0].pAtom.Get(), members[0].pContainer.Get());
    };
    const auto mayPaste = [this] { return static_cast<bool>(CStubRef<IAtomContainer>::From(m_pOpened.Get())); };
    const auto rename = [this] {
        m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnAtomRename, nullptr, nullptr, 0);
    };
    m_commands = {
        {"&Open", false, {VK_RETURN, With::Nothing}, one, [this] { OpenSelected(); }},
        {"Cu&t", true, {'X', With::Control}, mayGo, [this] { Cut(); }},
        {"&Copy", false, {'C', With::Control}, any, [this] { Copy(); }},
        {"&Paste", false, {'V', With::Control}, mayPaste, [this] { Paste(); }},
        {"&Rename", true, {VK_F2, With::Nothing}, mayRename, rename},
        {"&Delete", false, {VK_DELETE, With::Nothing}, mayGo, [this] { Remove(); }},
        {"", false, {VK_BACK, With::Nothing}, {}, [this] { OpenAbove(); }},
        {"", false, {VK_F6, With::Whatever}, {}, [this] { FocusOtherSide(); }},
    };
}

CMenu* CFrame::CreateContextMenu()
{
    auto pMenu = std::make_unique<CMenu>();
    if (!pMenu->CreatePopupMenu())
        return nullptr;
    for (std::size_t i = 0; i < m_commands.size(); ++i) {
        const Command& command = m_commands[i];
        if (command.text.empty())
            continue;
        if (command.bSection)
            pMenu->AppendMenu(MF_SEPARATOR);
        const std::string key = command.key.Text();
        const std::string text = command.text + (key.empty() ? "" : '\t' + key);
        pMenu->AppendMenu(MF_STRING | (command.canRun && !command.canRun() ? MF_GRAYED : MF_ENABLED), kFirstCommand + i,
                          text.c_str());
    }
    return pMenu.release();
}

BOOL CFrame::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT nCommand = LOWORD(wParam) - kFirstCommand;
    if (lParam != 0 || nCommand >= m_commands.size())
        return CWnd::OnCommand(wParam, lParam);
    const auto run = m_commands[nCommand].run; // it may add commands
    run();
    return TRUE;
}

// The keys mean commands where a view has the focus, not in a label that is being edited.
BOOL CFrame::PreTranslateMessage(MSG* pMsg)
{
    const bool bView =
        pMsg->hwnd == m_hWnd || (pMsg->hwnd && (pMsg->hwnd == m_left.GetView() || pMsg->hwnd == m_right.GetView()));
    if (bView && pMsg->message == WM_KEYDOWN && RunKey(static_cast<UINT>(pMsg->wParam)))
        return TRUE;
    return CWnd::PreTranslateMessage(pMsg);
}

bool CFrame::RunKey(UINT vkey)
{
    const bool bControl = ::GetKeyState(VK_CONTROL) < 0, bShift = ::GetKeyState(VK_SHIFT) < 0;
    const auto found = std::ranges::find_if(
        m_commands, [=](const Command& command) { return command.key.IsGivenBy(vkey, bControl, bShift); });
    if (found == m_commands.end())
        return false;
    const auto run = found->run;
    if (!found->canRun || found->canRun())
        run();
    return true;
}

void CFrame::OpenSelected()
{
    if (::GetFocus() == m_left.GetView() && m_right.GetView())
        return FocusOtherSide(); // what is selected in a tree is open already
    const ActiveMembers members = GetActiveMembers(m_editor);
    if (!members.empty())
        m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnAtomEntered, members[0].pAtom.Get(),
                                members[0].pContainer.Get(), 0);
}

void CFrame::OpenAbove()
{
    CStubRef<IAtom> pAbove;
    if (m_pOpened && m_pOpened->GetContainer(pAbove.Receive(), IID_IAtom))
        Open(pAbove.Get());
}

void CFrame::FocusOtherSide()
{
    const bool bLeft = ::GetFocus() == m_left.GetView();
    if (const HWND hView = (bLeft ? m_right : m_left).GetView())
        ::SetFocus(hView);
}

// The work answers why it could not be done; empty: it was.
template <class Work>
void CFrame::TellFailureOf(UINT nCaptionID, const Work& work)
try {
    const std::string reason = work();
    ShowFailure(m_hWnd, nCaptionID, reason);
} catch (const CException& exception) {
    ShowFailure(m_hWnd, nCaptionID, exception.GetErrorMessage());
}

void CFrame::Copy()
{
    TellFailureOf(IDS_COPY_FAILED, [this] { return CopyObjects(FALSE) ? std::string() : m_editor.GetArchiveError(); });
}

void CFrame::Cut()
{
    TellFailureOf(IDS_CUT_FAILED, [this] {
        const ActiveMembers members = GetActiveMembers(m_editor);
        if (CopyObjects(TRUE))
            return std::string();
        return m_editor.GetArchiveError().empty() ? m_editor.WhyStillThere(members) : m_editor.GetArchiveError();
    });
}

void CFrame::Paste()
{
    TellFailureOf(IDS_PASTE_FAILED,
                  [this] { return PasteAtoms(m_editor, CStubRef<IAtomContainer>::From(m_pOpened.Get()).Get()); });
}

void CFrame::Remove()
{
    TellFailureOf(IDS_REMOVE_FAILED, [this] {
        const ActiveMembers members = GetActiveMembers(m_editor);
        if (!UserAgrees(QuestionFor(members)))
            return std::string();
        RemoveObjects(FALSE);
        return m_editor.WhyStillThere(members);
    });
}

void CFrame::OnMoved(const std::string& reason)
{
    ShowFailure(m_hWnd, IDS_MOVE_FAILED, reason);
}

} // namespace hostkit
