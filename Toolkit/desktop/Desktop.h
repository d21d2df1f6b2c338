// The desktop: everything the toolkit needs of the machine around it.
//
// One desktop is installed at a time, before the first window. HeadlessDesktop is built in; a real one shows
// the same surfaces in real windows. All calls come on the user-interface thread.
#pragma once

#include "Toolkit/base/Geometry.h"
#include "Toolkit/desktop/DropEffect.h"
#include "Toolkit/desktop/MenuItems.h"
#include "Toolkit/desktop/MessageBoxTypes.h"
#include "Toolkit/desktop/OfferedData.h"
#include "Toolkit/graphics/Surface.h"
#include "Toolkit/graphics/SysColors.h"
#include "Toolkit/graphics/TextEngine.h"

#include <memory>
#include <optional>

namespace toolkit
{

enum class Cursor
{
    Arrow,
    Wait,
    Text,
    Hand,
    SizeWE, // moves something to the left or right
    NoDrop, // what a drag would do here
    DropCopy,
    DropMove
};

class TOOLKIT_API Desktop
{
public:
    virtual ~Desktop() = default;

    virtual DWORD Ticks() = 0;                                          // milliseconds; may wrap
    virtual TextEngine& GetTextEngine() { return BuiltinTextEngine(); } // it tells by InputFont when it has another
    virtual ColorScheme GetColorScheme() { return {}; } // the desktop tells by InputColors when it has another
    // Of the finest of its screens; it tells by InputScale when it has another. Windows are painted at that scale.
    virtual PixelScale GetScreenScale() { return {}; }
    virtual DWORD GetDoubleClickTime() { return 500; } // milliseconds

    // Top-level windows. Present: the pixels of `dirty`, in coordinates, are new. The surface stays the window's own.
    virtual void WindowCreated(HWND hTop) = 0;
    virtual void WindowChanged(HWND hTop) = 0; // shown, hidden or renamed
    // Moved or sized by the program. Not called for what InputResize and InputMoved told: the desktop knows, and a
    // late echo would undo what the user has done since.
    virtual void WindowPlaced(HWND hTop) = 0;
    virtual void WindowDestroyed(HWND hTop) = 0;
    virtual void Present(HWND hTop, const Surface& surface, const CRect& dirty) = 0;

    // The queue has something to do: at once (0) or in so many milliseconds, for the next timer. Replaces the
    // former request; nullopt: nothing at all. The desktop then calls toolkit::RunPendingMessages.
    virtual void Wake(std::optional<DWORD> inMilliseconds) = 0;
    virtual void WakeFromThread() = 0; // a task was posted by another thread, which calls this: have the queue run

    // Has the queue run for what the user has done meanwhile, and returns. For work that does not return to the
    // desktop.
    virtual void ProcessEvents() {}

    virtual int ShowMessageBox(HWND hOwner, LPCSTR pszText, LPCSTR pszCaption, UINT nType) = 0;
    // The command chosen, 0 for none. Messages run meanwhile. What the menu has no use for, the owner is asked about by
    // WM_NEXTMENU; where it answers TRUE the menu ends.
    virtual UINT TrackMenu(HWND hOwner, const std::vector<MenuItem>& items, CPoint screen) = 0;
    virtual void ShowCursor(Cursor cursor) = 0;
    // A word of explanation beside a part of the window, until the mouse leaves that part; screen coordinates. Empty:
    // none any more.
    virtual void ShowToolTip(HWND /*hTop*/, const std::string& /*text*/, const CRect& /*part*/) {}

    // Where windows have room on the screen at that point, or else on the first; empty where nobody knows.
    virtual CRect GetWorkArea(CPoint /*screen*/) { return {}; }

    // What lies outside the program. Paths are absolute, their bytes the file system's.
    // The folder that the user chooses, who begins at `start`; nullopt: none. Messages run meanwhile.
    virtual std::optional<std::string> AskFolder(HWND /*hOwner*/, const std::string& /*title*/,
                                                 const std::string& /*start*/)
    {
        return std::nullopt;
    }
    // With the program that the user has for such files, or in the file manager, selected. Empty when that was set
    // going, else the reason.
    virtual std::string OpenOutside(const std::string& /*path*/) { return "there is no desktop"; }
    virtual std::string ShowOutside(const std::string& /*path*/) { return "there is no desktop"; }

    // The clipboard. Publishing takes it from whoever has it, the program's own former data included, which is not
    // told. The desktop holds the data as long as it is there, renders of it what others ask for, and calls its OnLost
    // when another program takes the clipboard, or when the desktop itself goes. FALSE when the clipboard is not to be
    // had: the data is let go of, and what the program had there before is lost and told so.
    virtual BOOL PublishClipboard(std::shared_ptr<OfferedData> data) = 0;
    // What another program has there; NULL when it is empty or the program's own.
    virtual std::shared_ptr<OfferedData> FetchClipboard() = 0;

    // Drags the data until the user has dropped or cancelled it, or it is gone; one of the allowed effects, or none.
    // While it is over the program's own windows, a DragTracker tells them. Messages run meanwhile.
    virtual DROPEFFECT RunDrag(std::shared_ptr<OfferedData> data, DROPEFFECT allowed) = 0;

    // The program is to end with that status when what waits has been handled: whoever runs the desktop's loop returns.
    virtual void Quit(int nStatus) { static_cast<void>(nStatus); }

    // Another field has the focus, or none, or the field's text or caret is new: ask FocusedTextInput.
    virtual void TextInputChanged() {}

    // Something is new for assistive technology (Toolkit/access): an EVENT_ and the item, 0 for the window. Called
    // often, in the middle of changes, also of windows that go: ask about it later, and only when somebody listens.
    virtual void AccessibleChanged(DWORD /*event*/, HWND /*hWnd*/, LPARAM /*item*/) {}
};

TOOLKIT_API Desktop& CurrentDesktop();     // one that does nothing while none is installed
void SetCurrentDesktop(Desktop* pDesktop); // what InstallDesktop does here

} // namespace toolkit

// Ends the program's run, mostly from the main window's OnDestroy.
inline void PostQuitMessage(int nExitCode)
{
    toolkit::CurrentDesktop().Quit(nExitCode);
}
