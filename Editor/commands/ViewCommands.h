// What the frame shows besides objects, and where the keys go.
#pragma once

#include "Editor/commands/CommandTable.h"
#include "Editor/commands/Search.h"
#include "Editor/content/Content.h"
#include "Editor/content/Filter.h"
#include "Editor/content/PropertiesPane.h"
#include "Editor/views/EditorTree.h"
#include "Editor/widgets/KeysSheet.h"
#include "HostKit/frame/Pane.h"

namespace editor
{

class ViewCommands
{
public:
    struct Parts // all borrowed
    {
        CWnd& frame;
        hostkit::CPane& treePane;
        CEditorTree& tree;
        Content& content;
        CPropertiesPane& properties;
        CKeysSheet& keys;
        Filter& filter;
        Search& search;
    };
    explicit ViewCommands(Parts parts) : m_parts(parts) {}

    void Describe(CommandState& state) const;

    void ShowIcons() { m_parts.content.ShowList(ListKind::Icons); }
    void ShowThumbnails() { m_parts.content.ShowList(ListKind::Thumbnails); }
    // Of a picture that is shown, else of the thumbnails.
    void Enlarge() { Step(1); }
    void Reduce() { Step(-1); }
    void Step(int nSteps);
    void ShowUsualSize();
    void ShowOwnSize() { m_parts.content.GetPicture().ShowOwnSize(); }
    void TogglePixels() { m_parts.content.ShowPixels(!m_parts.content.ArePixelsShown()); }
    void ToggleFoldersFirst() { SetFoldersFirst(!m_bFoldersFirst); }
    void SetFoldersFirst(bool bFirst);
    bool AreFoldersFirst() const { return m_bFoldersFirst; }
    void ToggleFilter();
    void BeginSearch(); // for what the filter holds
    void TogglePlay() { m_parts.content.GetPlayer().TogglePlay(); }
    void StepBack() { m_parts.content.GetPlayer().Step(-1); }
    void StepForward() { m_parts.content.GetPlayer().Step(1); }
    void PlaySlower() { m_parts.content.GetPlayer().ChangeSpeed(-1); }
    void PlayFaster() { m_parts.content.GetPlayer().ChangeSpeed(1); }
    void ToggleLoop() { m_parts.content.GetPlayer().ToggleForEver(); }
    void ToggleBackAndForth() { m_parts.content.GetPlayer().ToggleTurnsBack(); }
    void FocusNextPane();
    void FocusTiming() { m_parts.properties.FocusFields(); }
    void LeaveFields(); // which enters what was typed
    void ShowKeys();    // or hides them again
    void ShowAbout();
    void Close() { m_parts.frame.PostMessage(WM_CLOSE); } // as the user closes the window

private:
    const Parts m_parts;
    bool m_bFoldersFirst = false;
};

} // namespace editor
