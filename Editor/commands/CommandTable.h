// The commands of the frame: what each is called in menus, tools and scripts, its key, when it can be given, what it
// does.
#pragma once

#include "HostKit/frame/CommandKey.h"
#include "HostKit/pictures/Pictograms.h"
#include "Toolkit/base/Types.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace editor
{

class FrameCommands;
class PlaceCommands;
class ViewCommands;

// As they go to the frame.
enum : UINT
{
    ID_OPEN = 3001,
    ID_CUT,
    ID_COPY,
    ID_PASTE,
    ID_RENAME,
    ID_REMOVE,
    ID_SELECT_ALL,
    ID_REFRESH,
    ID_ICONS,
    ID_THUMBNAILS,
    ID_UNDO,
    ID_REDO,
    ID_NEW_FOLDER,
    ID_NEW_PHASE,
    ID_RESTORE,
    ID_OPEN_FOLDER,
    ID_NEW_WINDOW,
    ID_SHOW_OUTSIDE,
    ID_COPY_PATH,
    ID_SAVE,
    ID_CLOSE,
    ID_TIMING,
    ID_NEXT_PANE,
    ID_BACK,
    ID_FORWARD,
    ID_UP,
    ID_PATH,
    ID_FOLDERS_FIRST,
    ID_FILTER,
    ID_LARGER,
    ID_SMALLER,
    ID_USUAL_SIZE,
    ID_PIXELS,
    ID_SEARCH,
    ID_OWN_SIZE,
    ID_RECENT, // a menu
    ID_PLAY,
    ID_STEP_BACK,
    ID_STEP_FORWARD,
    ID_SLOWER,
    ID_FASTER,
    ID_LOOP,
    ID_BACK_AND_FORTH,
    ID_FRAMES_EARLIER,
    ID_FRAMES_LATER,
    ID_KEYS,
    ID_ABOUT,
    ID_RECENT_FIRST = 3100, // in it
    ID_RECENT_LAST = 3119
};

// Why something cannot be done just now, and what is on.
struct CommandState
{
    using Why = std::string; // empty: it can be done
    Why open, carry, remove, rename, paste, selectAll, undo, redo, restore, makeFolder, makePhase, save, timing, list,
        recent, back, forward, up, outside, picture, play, earlier, later;
    Why never;                                         // stays empty
    std::string nameToUndo, nameToRedo, nameToRestore; // which step
    bool icons = false, thumbnails = false, foldersFirst = false, filter = false, pixels = false, playing = false,
         loop = false, backAndForth = false;
};

struct CommandTargets // all borrowed
{
    FrameCommands& objects;
    PlaceCommands& places;
    ViewCommands& views;
};

struct CommandEntry
{
    enum class Menu // of the bar, in its order
    {
        File,
        Edit,
        View,
        Play,
        Go,
        Help,
        None
    };
    enum class Context
    {
        No,
        Yes,
        Section // and begins a section there
    };
    enum class Reach // of the key
    {
        OfViews, // counts where the objects have the keys
        OfFrame  // and wherever text is edited
    };

    UINT nID;
    Menu menu;
    const char* pszText;   // NULL: another key for a command that has one
    bool bSection = false; // begins a section of its menu
    Context context = Context::No;
    hostkit::CommandKey key{};
    Reach reach = Reach::OfViews;
    std::optional<hostkit::Pictogram> tool{}; // on its button; none: it has no button
    CommandState::Why CommandState::*pWhyNot = &CommandState::never;
    bool CommandState::*pOn = nullptr;
    void (*run)(const CommandTargets& targets) = nullptr; // as the user gives it: asks, and tells what was not done
    const char* pszWord = nullptr;                        // in scripts, where nothing stands behind it; NULL: none
    // As scripts give it: nothing is asked. Empty when all was done, else the reason.
    std::string (FrameCommands::*runQuietly)() = nullptr;
};

std::span<const CommandEntry> AllCommands();

// NULL where there is none.
const CommandEntry* FindCommand(UINT nID);
const CommandEntry* FindCommandOfKey(UINT vkey, bool bControl, bool bShift, bool bAlt);
const CommandEntry* FindCommandOfWord(std::string_view word);

std::string WithoutMarks(std::string text); // for a menu: what is an & there marks no key
std::string MenuText(const CommandEntry& command, const CommandState& state); // with its mark, and without its key

// What else keys do, which is no command of the frame.
struct KeyUse
{
    const char* pszKey;
    const char* pszWhat;
};
std::span<const KeyUse> KeysOfViews();

} // namespace editor
