#include "Editor/script/Script.h"

#include "Editor/disk/FileText.h"
#include "Editor/disk/Trash.h"
#include "Editor/frame/MainFrame.h"
#include "Editor/script/Words.h"

#include <algorithm>
#include <limits>

namespace editor
{
namespace
{

constexpr std::size_t kAny = std::numeric_limits<std::size_t>::max();

} // namespace

const Script::Command Script::kCommands[] = {
    {"open", 1, 1, &Script::Open},        {"enter", 1, 1, &Script::Enter},
    {"select", 0, kAny, &Script::Select}, {"delete", 0, 2, &Script::Delete},
    {"rename", 2, 2, &Script::Rename},    {"view", 1, 1, &Script::View},
    {"list", 0, 0, &Script::List},        {"screenshot", 1, 1, &Script::TakeScreenshot},
};

std::string ScriptHelp()
{
    return "A script has one command a line. Names with blanks stand in \"double quotes\"; # begins a remark.\n"
           "\n"
           "  open FOLDER        show another folder as the library\n"
           "  enter PATH         open what lies there: from what is shown, or with / in front from the library;\n"
           "                     .. leads up\n"
           "  select [NAME...]   select these objects and no others; * selects all, and nothing at all none\n"
           "  copy, cut, delete  the selected objects; nothing is asked. A folder is copied as a whole or not at all: "
           "what\n"
           "                     cannot be carried, such as a pipe, is named, and ends the script\n"
           "  delete for good    the same; what no trash can take is removed, and not refused\n"
           "  paste              what was copied or cut, into what is shown\n"
           "  new-folder         make \"New folder\" in what is shown, and selects it\n"
           "  new-phase          the same with \"New phase.phase\", which shows the selected pictures in their order\n"
           "  undo, redo         take back what was done to the disk last, step by step; a cut is one, its paste "
           "another\n"
           "  restore            fetch what was deleted or cut last back from the trash\n"
           "  rename NAME NEW    give an object another name\n"
           "  refresh            read what is shown anew\n"
           "  view AS            show objects as \"icons\" or as \"thumbnails\"\n"
           "  list               print the names of the objects that are shown\n"
           "  screenshot PNG     write a picture of the window\n";
}

std::string Script::Run(const std::string& name, std::string_view text)
{
    for (int nLine = 1; !text.empty(); ++nLine) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string reason = m_outside.isToEnd() ? "interrupted" : RunLine(text.substr(0, end));
        if (!reason.empty())
            return ToShown(name) + ':' + std::to_string(nLine) + ": " + ToShown(reason);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return {};
}

std::string Script::RunLine(std::string_view line)
{
    Words words;
    std::string trouble;
    if (!SplitWords(line, words, trouble) || words.empty())
        return trouble;
    const std::string command = words.front();
    words.erase(words.begin());
    std::string reason = RunCommand(command, words);
    if (const std::string unfollowed = Frame().GetFollower().TakeUnfollowed(); reason.empty())
        reason = unfollowed;
    m_app.WaitUntilSettled(m_outside.isToEnd);
    return reason.empty() ? reason : command + ": " + reason;
}

std::string Script::RunCommand(const std::string& command, const Words& words)
{
    const CommandEntry* const pShared = FindCommandOfWord(command);
    const auto own = std::find_if(std::begin(kCommands), std::end(kCommands),
                                  [&](const Command& one) { return command == one.pszName; });
    if (!pShared && own == std::end(kCommands))
        return "unknown command";
    if (!pShared && words.size() < own->nLeast)
        return "something is missing behind it";
    if (words.size() > (pShared ? 0 : own->nMost))
        return "there is too much behind it";
    return pShared ? (Frame().GetCommands().*pShared->runQuietly)() : (this->*own->run)(words);
}

std::string Script::Find(const std::string& name, CStubRef<CMember>& pFound) const
{
    CContainer* const pContainer = Frame().ShownContainer();
    CStubRef<IAtom> pAtom;
    pContainer->FindAtom(name.c_str(), pAtom.Receive(), IID_IAtom);
    pFound = CStubRef<CMember>::Share(CMember::Of(pAtom.Get()));
    return pFound ? std::string() : name + ": not in " + pContainer->ShownName();
}

std::string Script::Enter(const Words& words)
{
    std::string_view path = words[0];
    if (path.starts_with('/'))
        Frame().GetNavigation().GoToTop();
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('/'), path.size());
        if (std::string reason = EnterOne(std::string(path.substr(0, end))); !reason.empty())
            return reason;
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return {};
}

std::string Script::EnterOne(const std::string& part)
{
    if (part.empty() || part == ".")
        return {};
    if (part == "..") {
        if (!Frame().Shown()->Container())
            return "nothing is above the library";
        Frame().GetNavigation().GoUp();
        return {};
    }
    CStubRef<CMember> pMember;
    std::string reason = Find(part, pMember);
    if (reason.empty())
        Frame().GetNavigation().GoTo(pMember.Get());
    return reason;
}

std::string Script::Select(const Words& words)
{
    CStubRef<CMember> pStar;
    if (words.size() == 1 && words[0] == "*") {
        if (Find(words[0], pStar).empty())
            return "*: stands for all, and for one of them";
        Frame().GetList().SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
        return {};
    }
    std::vector<CStubRef<IAtom>> atoms;
    for (const std::string& name : words) {
        CStubRef<CMember> pMember;
        if (std::string reason = Find(name, pMember); !reason.empty())
            return reason;
        atoms.push_back(CStubRef<IAtom>::Share(pMember.Get()));
    }
    Frame().GetCommands().SelectJust(atoms);
    return {};
}

std::string Script::Delete(const Words& words)
{
    if (words.empty())
        return Frame().GetCommands().Remove();
    if (words != Words{"for", "good"})
        return "nothing or \"for good\" stands behind it";
    const PermanentRemoval agreed;
    return Frame().GetCommands().Remove();
}

std::string Script::Rename(const Words& words)
{
    CStubRef<CMember> pMember;
    std::string reason = Find(words[0], pMember);
    return reason.empty() ? Frame().GetCommands().GetPlain().Rename(pMember.Get(), words[1]) : reason;
}

std::string Script::View(const Words& words)
{
    const bool bIcons = words[0] == "icons";
    if (!bIcons && words[0] != "thumbnails")
        return words[0] + ": neither icons nor thumbnails";
    Frame().GetContent().ShowList(bIcons ? ListKind::Icons : ListKind::Thumbnails);
    return {};
}

std::string Script::List(const Words&)
{
    CEditorList& list = Frame().GetList();
    for (int i = 0, count = list.GetItemCount(); i < count; ++i)
        if (const CMember* const pMember = CMember::Of(list.GetAtom(i).Get()))
            m_outside.print(pMember->ShownName());
    return {};
}

} // namespace editor
