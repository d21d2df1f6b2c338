// What the user's keys mean in the frame.
#pragma once

#include "Editor/commands/CommandDesk.h"
#include "Editor/content/Content.h"
#include "Editor/content/Filter.h"
#include "Editor/content/Navigation.h"
#include "Editor/views/EditorTree.h"
#include "HostKit/frame/Splitter.h"

namespace editor
{

class FrameKeys
{
public:
    struct Parts // all borrowed
    {
        CWnd& frame;
        CEditorTree& tree;
        hostkit::CSplitter& splitter;
        Content& content;
        Navigation& navigation;
        Filter& filter;
        CommandDesk& desk;
    };
    explicit FrameKeys(Parts parts) : m_parts(parts) {}

    bool Handle(HWND hWnd, UINT vkey, bool bAlt); // the window has the focus; false: the key means nothing here

private:
    bool HandleContentKey(UINT vkey);
    bool HandleZoomKey(UINT vkey);
    bool HandlePictureKey(UINT vkey);
    bool HandlePlayerKey(UINT vkey);
    void OpenFocused(); // the list's focused row

    const Parts m_parts;
};

} // namespace editor
