// The reference editor as a whole: what main() makes once a desktop is installed.
#pragma once

#include "Editor/pictures/PictureReader.h"

#include <functional>
#include <memory>
#include <string>

namespace editor
{

class CMainFrame;

class EditorApp
{
public:
    struct Options
    {
        CSize size{960, 640};       // of the frame's client area
        bool isSizeNamed = false;   // is it to be that, whatever is remembered?
        std::string settingsPath{}; // what is remembered (Settings.h); empty: nothing is
        bool isReturning = false;   // is that folder to be shown which was shown last?
        std::string markFolder{};   // where steps leave their marks (Underway.h); empty: nowhere
        // Opens another window on the folder; empty, or the reason. May be empty.
        std::function<std::string(const std::string& path)> openWindow{};
        std::function<void()> onClosed; // the user closed the frame, whose window is gone; may be empty
        bool isFollowing = false;       // are the views to show what other programs do to the files?
    };

    // Installs the editor's services and resources; one editor at a time. The reader is borrowed and outlives the
    // editor (PictureReader tells for how long), the desktop, too.
    EditorApp(const PictureReader& reader, Options options);
    ~EditorApp(); // closes the frame
    EditorApp(const EditorApp&) = delete;
    EditorApp& operator=(const EditorApp&) = delete;

    // Shows the folder as a library, in the frame, which is made and shown at the first call. Empty when it is
    // shown; else one line that names the folder and the reason, and nothing has changed.
    std::string OpenFolder(const std::string& path);
    std::string OpenPath(const std::string& path); // the same; of a file its folder is opened, and the file shown

    HWND GetMainWindow() const;   // NULL before the first folder and after the frame was closed
    CMainFrame* GetFrame() const; // the same

    // Runs the queue until every picture in sight is decoded and painted, or somebody wants an end.
    void WaitUntilSettled(const std::function<bool()>& isToEnd = [] { return false; });

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace editor
