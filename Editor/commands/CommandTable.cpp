#include "Editor/commands/CommandTable.h"

#include "Editor/commands/FrameCommands.h"
#include "Editor/commands/PlaceCommands.h"
#include "Editor/commands/ViewCommands.h"

#include <algorithm>
#include <type_traits>

namespace editor
{
namespace
{

using Menu = CommandEntry::Menu;
using Context = CommandEntry::Context;
using With = hostkit::CommandKey::With;
using Reach = CommandEntry::Reach;
using hostkit::Pictogram;
using Can = CommandState;
using Objects = FrameCommands;
using Places = PlaceCommands;
using Views = ViewCommands;

template <auto kMethod>
void Do(const CommandTargets& targets)
{
    using Method = decltype(kMethod);
    if constexpr (std::is_invocable_v<Method, Objects&>)
        (targets.objects.*kMethod)();
    else if constexpr (std::is_invocable_v<Method, Places&>)
        (targets.places.*kMethod)();
    else
        (targets.views.*kMethod)();
}

void Save(const CommandTargets& targets)
{
    targets.views.LeaveFields();
    targets.objects.SaveOrTell();
}

// clang-format off
// In the menus' order.
constexpr CommandEntry kCommands[] = {
    {.nID = ID_OPEN_FOLDER, .menu = Menu::File, .pszText = "Open &folder...", .key = {'O', With::Control},
     .reach = Reach::OfFrame, .run = Do<&Places::OpenFolder>},
    {.nID = ID_RECENT, .menu = Menu::File, .pszText = "Open &recent", .pWhyNot = &Can::recent},
    {.nID = ID_NEW_WINDOW, .menu = Menu::File, .pszText = "Open in a new &window", .key = {VK_RETURN, With::Control}, .pWhyNot = &Can::outside, .run = Do<&Places::OpenWindow>},
    {.nID = ID_OPEN, .menu = Menu::File, .pszText = "&Open", .bSection = true, .context = Context::Section,
     .key = {VK_RETURN, With::Views}, .pWhyNot = &Can::open, .run = Do<&Objects::OpenSelected>},
    {.nID = ID_SHOW_OUTSIDE, .menu = Menu::File, .pszText = "S&how in the file manager", .key = {'E', With::Control}, .run = Do<&Places::ShowOutside>},
    {.nID = ID_COPY_PATH, .menu = Menu::File, .pszText = "Copy &path", .key = {'C', With::ControlShift},
     .run = Do<&Places::CopyPath>},
    {.nID = ID_SAVE, .menu = Menu::File, .pszText = "&Save", .bSection = true, .key = {'S', With::Control},
     .reach = Reach::OfFrame, .pWhyNot = &Can::save, .run = Save},
    {.nID = ID_CLOSE, .menu = Menu::File, .pszText = "&Close", .bSection = true, .key = {'Q', With::Control},
     .reach = Reach::OfFrame, .run = Do<&Views::Close>},

    {.nID = ID_UNDO, .menu = Menu::Edit, .pszText = "&Undo", .context = Context::Section, .key = {'Z', With::Control}, .tool = Pictogram::Undo, .pWhyNot = &Can::undo, .run = Do<&Objects::UndoOrTell>,
     .pszWord = "undo", .runQuietly = &Objects::Undo},
    {.nID = ID_REDO, .menu = Menu::Edit, .pszText = "Re&do", .context = Context::Yes, .key = {'Z', With::ControlShift}, .tool = Pictogram::Redo, .pWhyNot = &Can::redo, .run = Do<&Objects::RedoOrTell>,
     .pszWord = "redo", .runQuietly = &Objects::Redo},
    {.nID = ID_REDO, .menu = Menu::None, .pszText = nullptr, .key = {'Y', With::Control},
     .pWhyNot = &Can::redo, .run = Do<&Objects::RedoOrTell>},
    {.nID = ID_CUT, .menu = Menu::Edit, .pszText = "Cu&t", .bSection = true, .context = Context::Section, .key = {'X', With::Control}, .tool = Pictogram::Cut, .pWhyNot = &Can::remove, .run = Do<&Objects::CutSelection>,
     .pszWord = "cut", .runQuietly = &Objects::Cut},
    {.nID = ID_COPY, .menu = Menu::Edit, .pszText = "&Copy", .context = Context::Yes, .key = {'C', With::Control}, .tool = Pictogram::Copy, .pWhyNot = &Can::carry, .run = Do<&Objects::CopySelection>,
     .pszWord = "copy", .runQuietly = &Objects::Copy},
    {.nID = ID_PASTE, .menu = Menu::Edit, .pszText = "&Paste", .context = Context::Yes, .key = {'V', With::Control}, .tool = Pictogram::Paste, .pWhyNot = &Can::paste, .run = Do<&Objects::PasteHere>,
     .pszWord = "paste", .runQuietly = &Objects::Paste},
    {.nID = ID_NEW_FOLDER, .menu = Menu::Edit, .pszText = "&New folder", .bSection = true,
     .context = Context::Section, .key = {'N', With::ControlShift}, .pWhyNot = &Can::makeFolder,
     .run = Do<&Objects::NewFolderAndName>, .pszWord = "new-folder", .runQuietly = &Objects::NewFolder},
    {.nID = ID_NEW_PHASE, .menu = Menu::Edit, .pszText = "New p&hase", .context = Context::Yes,
     .key = {'P', With::ControlShift}, .pWhyNot = &Can::makePhase, .run = Do<&Objects::NewPhaseAndName>,
     .pszWord = "new-phase", .runQuietly = &Objects::NewPhase},
    {.nID = ID_RENAME, .menu = Menu::Edit, .pszText = "&Rename", .bSection = true, .context = Context::Section,
     .key = {VK_F2, With::Nothing}, .pWhyNot = &Can::rename, .run = Do<&Objects::RenameSelected>},
    {.nID = ID_REMOVE, .menu = Menu::Edit, .pszText = "&Delete", .context = Context::Yes, .key = {VK_DELETE, With::Nothing},
     .tool = Pictogram::Delete, .pWhyNot = &Can::remove, .run = Do<&Objects::RemoveSelection>},
    {.nID = ID_RESTORE, .menu = Menu::Edit, .pszText = "Re&store", .context = Context::Yes,
     .pWhyNot = &Can::restore, .run = Do<&Objects::RestoreOrTell>, .pszWord = "restore",
     .runQuietly = &Objects::Restore},
    {.nID = ID_TIMING, .menu = Menu::Edit, .pszText = "Frame delay and re&peat", .key = {VK_F4, With::Nothing},
     .pWhyNot = &Can::timing, .run = Do<&Views::FocusTiming>},
    {.nID = ID_FRAMES_EARLIER, .menu = Menu::Edit, .pszText = "Frames one place &earlier", .key = {VK_LEFT, With::AltShift},
     .pWhyNot = &Can::earlier, .run = Do<&Objects::MoveEarlier>},
    {.nID = ID_FRAMES_LATER, .menu = Menu::Edit, .pszText = "Frames one place &later", .key = {VK_RIGHT, With::AltShift},
     .pWhyNot = &Can::later, .run = Do<&Objects::MoveLater>},
    {.nID = ID_SELECT_ALL, .menu = Menu::Edit, .pszText = "Select &all", .bSection = true,
     .context = Context::Section, .key = {'A', With::Views}, .pWhyNot = &Can::selectAll,
     .run = Do<&Objects::SelectAll>},

    {.nID = ID_ICONS, .menu = Menu::View, .pszText = "&Icons", .key = {'1', With::Control},
     .pOn = &Can::icons, .run = Do<&Views::ShowIcons>},
    {.nID = ID_THUMBNAILS, .menu = Menu::View, .pszText = "&Thumbnails", .key = {'2', With::Control},
     .pOn = &Can::thumbnails, .run = Do<&Views::ShowThumbnails>},
    {.nID = ID_LARGER, .menu = Menu::View, .pszText = "&Larger", .bSection = true, .key = {VK_OEM_PLUS, With::Control},
     .run = Do<&Views::Enlarge>},
    {.nID = ID_LARGER, .menu = Menu::None, .pszText = nullptr, .key = {VK_OEM_PLUS, With::ControlShift}, .run = Do<&Views::Enlarge>},
    {.nID = ID_LARGER, .menu = Menu::None, .pszText = nullptr, .key = {VK_ADD, With::Control}, .run = Do<&Views::Enlarge>},
    {.nID = ID_SMALLER, .menu = Menu::View, .pszText = "&Smaller", .key = {VK_OEM_MINUS, With::Control}, .run = Do<&Views::Reduce>},
    {.nID = ID_SMALLER, .menu = Menu::None, .pszText = nullptr, .key = {VK_SUBTRACT, With::Control}, .run = Do<&Views::Reduce>},
    {.nID = ID_USUAL_SIZE, .menu = Menu::View, .pszText = "&Usual size", .key = {'0', With::Control}, .run = Do<&Views::ShowUsualSize>},
    {.nID = ID_OWN_SIZE, .menu = Menu::View, .pszText = "&Own size", .pWhyNot = &Can::picture, .run = Do<&Views::ShowOwnSize>},
    {.nID = ID_PIXELS, .menu = Menu::View, .pszText = "Small pictures as s&quares", .pOn = &Can::pixels, .run = Do<&Views::TogglePixels>},
    {.nID = ID_FILTER, .menu = Menu::View, .pszText = "Filter by &name", .bSection = true, .key = {'F', With::Control}, .reach = Reach::OfFrame, .tool = Pictogram::Find, .pWhyNot = &Can::list, .pOn = &Can::filter,
     .run = Do<&Views::ToggleFilter>},
    {.nID = ID_SEARCH, .menu = Menu::View, .pszText = "Search &below", .key = {'F', With::ControlShift}, .reach = Reach::OfFrame, .run = Do<&Views::BeginSearch>},
    {.nID = ID_FOLDERS_FIRST, .menu = Menu::View, .pszText = "&Folders first",
     .pOn = &Can::foldersFirst, .run = Do<&Views::ToggleFoldersFirst>},
    {.nID = ID_REFRESH, .menu = Menu::View, .pszText = "&Refresh", .bSection = true, .context = Context::Yes,
     .key = {VK_F5, With::Whatever}, .run = Do<&Objects::Refresh>, .pszWord = "refresh",
     .runQuietly = &Objects::RefreshQuietly},
    {.nID = ID_NEXT_PANE, .menu = Menu::View, .pszText = "&Next pane", .key = {VK_F6, With::Whatever},
     .run = Do<&Views::FocusNextPane>},
    {.nID = ID_NEXT_PANE, .menu = Menu::None, .pszText = nullptr, .key = {VK_TAB, With::Whatever},
     .run = Do<&Views::FocusNextPane>},

    {.nID = ID_PLAY, .menu = Menu::Play, .pszText = "&Play or pause", .key = {'P', With::Control},
     .tool = Pictogram::Play, .pWhyNot = &Can::play, .pOn = &Can::playing, .run = Do<&Views::TogglePlay>},
    {.nID = ID_STEP_BACK, .menu = Menu::Play, .pszText = "Frame &back", .bSection = true, .key = {VK_F7, With::Nothing},
     .tool = Pictogram::StepBack, .pWhyNot = &Can::play, .run = Do<&Views::StepBack>},
    {.nID = ID_STEP_FORWARD, .menu = Menu::Play, .pszText = "Frame &forward", .key = {VK_F8, With::Nothing},
     .tool = Pictogram::StepForward, .pWhyNot = &Can::play, .run = Do<&Views::StepForward>},
    {.nID = ID_SLOWER, .menu = Menu::Play, .pszText = "&Slower", .bSection = true, .key = {'S', With::ControlShift},
     .tool = Pictogram::Slower, .pWhyNot = &Can::play, .run = Do<&Views::PlaySlower>},
    {.nID = ID_FASTER, .menu = Menu::Play, .pszText = "Fas&ter", .key = {'D', With::ControlShift},
     .tool = Pictogram::Faster, .pWhyNot = &Can::play, .run = Do<&Views::PlayFaster>},
    {.nID = ID_LOOP, .menu = Menu::Play, .pszText = "&Loop", .bSection = true, .key = {'L', With::ControlShift},
     .tool = Pictogram::Loop, .pWhyNot = &Can::play, .pOn = &Can::loop, .run = Do<&Views::ToggleLoop>},
    {.nID = ID_BACK_AND_FORTH, .menu = Menu::Play, .pszText = "Ba&ck and forth", .key = {'B', With::ControlShift},
     .tool = Pictogram::BackAndForth, .pWhyNot = &Can::play, .pOn = &Can::backAndForth,
     .run = Do<&Views::ToggleBackAndForth>},

    {.nID = ID_BACK, .menu = Menu::Go, .pszText = "&Back", .key = {VK_LEFT, With::Alt},
     .tool = Pictogram::Back, .pWhyNot = &Can::back, .run = Do<&Places::GoBack>},
    {.nID = ID_FORWARD, .menu = Menu::Go, .pszText = "&Forward", .key = {VK_RIGHT, With::Alt},
     .tool = Pictogram::Forward, .pWhyNot = &Can::forward, .run = Do<&Places::GoForward>},
    {.nID = ID_UP, .menu = Menu::Go, .pszText = "&Up", .key = {VK_UP, With::Alt}, .tool = Pictogram::Up,
     .pWhyNot = &Can::up, .run = Do<&Places::GoUp>},
    {.nID = ID_PATH, .menu = Menu::Go, .pszText = "Type a &path", .bSection = true, .key = {'L', With::Control}, .reach = Reach::OfFrame, .run = Do<&Places::TypePath>},

    {.nID = ID_KEYS, .menu = Menu::Help, .pszText = "&Keys", .key = {VK_F1, With::Whatever},
     .reach = Reach::OfFrame, .run = Do<&Views::ShowKeys>},
    {.nID = ID_ABOUT, .menu = Menu::Help, .pszText = "&About", .run = Do<&Views::ShowAbout>},
};

constexpr KeyUse kKeysOfViews[] = {
    {"Enter, double click", "Open"},
    {"Backspace", "Up"},
    {"Arrows, Home, End, Page", "Select another object"},
    {"Arrows in a picture", "The next or the last one"},
    {"+  -  0  1  in a picture", "Larger, smaller, all of it, own size"},
    {"Shift+arrows in a picture", "Another part of it"},
    {"Space in a phase", "Play or pause"},
    {"Arrows in the player", "Frame back or forward"},
    {"Shift with them", "Select all up to there"},
    {"Ctrl+Space, Ctrl+click", "Select one more, or one less"},
    {"Letters", "The next name that begins so"},
    {"+  -  *", "Expand, collapse, all below"},
    {"Menu, Shift+F10", "What can be done with it"},
    {"F10, Alt", "The menus"},
};
// clang-format on

constexpr bool AreNamedOnce()
{
    return std::ranges::all_of(kCommands, [](const CommandEntry& command) {
        const auto names = [&](const CommandEntry& other) { return other.pszText && other.nID == command.nID; };
        return std::ranges::count_if(kCommands, names) == 1;
    });
}
static_assert(AreNamedOnce(), "two commands have one number");

template <class Matches>
const CommandEntry* Find(Matches matches)
{
    const auto* const pFound = std::find_if(std::begin(kCommands), std::end(kCommands), matches);
    return pFound == std::end(kCommands) ? nullptr : pFound;
}

// " rename of "walk.png"" behind what takes a step back or does it again.
std::string StepOf(const CommandEntry& command, const CommandState& state)
{
    const std::string name = command.nID == ID_UNDO      ? state.nameToUndo
                             : command.nID == ID_REDO    ? state.nameToRedo
                             : command.nID == ID_RESTORE ? state.nameToRestore
                                                         : std::string();
    return name.empty() ? name : ' ' + WithoutMarks(name);
}

} // namespace

std::span<const CommandEntry> AllCommands()
{
    return kCommands;
}

const CommandEntry* FindCommand(UINT nID)
{
    return Find([=](const CommandEntry& command) { return command.nID == nID; });
}

const CommandEntry* FindCommandOfKey(UINT vkey, bool bControl, bool bShift, bool bAlt)
{
    return Find([=](const CommandEntry& command) { return command.key.IsGivenBy(vkey, bControl, bShift, bAlt); });
}

const CommandEntry* FindCommandOfWord(std::string_view word)
{
    return Find([=](const CommandEntry& command) { return command.pszWord && word == command.pszWord; });
}

std::string WithoutMarks(std::string text)
{
    for (std::size_t at = text.find('&'); at != text.npos; at = text.find('&', at + 2))
        text.insert(at, 1, '&');
    return text;
}

std::string MenuText(const CommandEntry& command, const CommandState& state)
{
    return command.pszText + StepOf(command, state);
}

std::span<const KeyUse> KeysOfViews()
{
    return kKeysOfViews;
}

} // namespace editor
