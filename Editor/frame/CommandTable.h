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
inline constexpr UINT ID_OPEN = 3001;
inline constexpr UINT ID_CUT = 3002;
inline constexpr UINT ID_COPY = 3003;
inline constexpr UINT ID_PASTE = 3004;
inline constexpr UINT ID_RENAME = 3005;
inline constexpr UINT ID_REMOVE = 3006;
inline constexpr UINT ID_SELECT_ALL = 3007;
inline constexpr UINT ID_REFRESH = 3008;
inline constexpr UINT ID_ICONS = 3009;
inline constexpr UINT ID_THUMBNAILS = 3010;
inline constexpr UINT ID_UNDO = 3011;
inline constexpr UINT ID_REDO = 3012;
inline constexpr UINT ID_NEW_FOLDER = 3031;
inline constexpr UINT ID_NEW_PHASE = 3032;
inline constexpr UINT ID_RESTORE = 3033;
inline constexpr UINT ID_OPEN_FOLDER = 3041;
inline constexpr UINT ID_NEW_WINDOW = 3042;
inline constexpr UINT ID_SHOW_OUTSIDE = 3043;
inline constexpr UINT ID_COPY_PATH = 3044;
inline constexpr UINT ID_SAVE = 3045;
inline constexpr UINT ID_CLOSE = 3046;
inline constexpr UINT ID_TIMING = 3047;
inline constexpr UINT ID_NEXT_PANE = 3048;
inline constexpr UINT ID_BACK = 3049;
inline constexpr UINT ID_FORWARD = 3050;
inline constexpr UINT ID_UP = 3051;
inline constexpr UINT ID_PATH = 3052;
inline constexpr UINT ID_FOLDERS_FIRST = 3055;
inline constexpr UINT ID_FILTER = 3056;
inline constexpr UINT ID_LARGER = 3061;
inline constexpr UINT ID_SMALLER = 3062;
inline constexpr UINT ID_USUAL_SIZE = 3063;
inline constexpr UINT ID_PIXELS = 3064;
inline constexpr UINT ID_SEARCH = 3066;
inline constexpr UINT ID_OWN_SIZE = 3065;
inline constexpr UINT ID_RECENT = 3057;       // a menu
inline constexpr UINT ID_RECENT_FIRST = 3100; // in it
inline constexpr UINT ID_RECENT_LAST = 3119;
inline constexpr UINT ID_PLAY = 3061;
inline constexpr UINT ID_STEP_BACK = 3062;
inline constexpr UINT ID_STEP_FORWARD = 3063;
inline constexpr UINT ID_SLOWER = 3064;
inline constexpr UINT ID_FASTER = 3065;
inline constexpr UINT ID_LOOP = 3066;
inline constexpr UINT ID_BACK_AND_FORTH = 3067;
inline constexpr UINT ID_KEYS = 3053;
inline constexpr UINT ID_ABOUT = 3054;

// Why something cannot be done just now, and what is on.
struct CommandState
{
    using Why = std::string; // empty: it can be done
    Why open, carry, remove, rename, paste, selectAll, undo, redo, restore, makeFolder, makePhase, save, timing, list,
        recent, back, forward, up, outside, picture, play;
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
