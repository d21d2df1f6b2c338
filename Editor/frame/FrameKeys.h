// What the user's keys mean in the frame.
#pragma once

#include "Editor/frame/EditorTree.h"
#include "Editor/frame/FrameCommands.h"
#include "HostKit/Pane.h"
#include "HostKit/Splitter.h"

namespace editor
{

class FrameKeys
{
public:
    struct Parts // all borrowed
    {
        CWnd& frame;
        hostkit::CPane& treePane;
        CEditorTree& tree;
        hostkit::CSplitter& splitter;
        Content& content;
        CPropertiesPane& properties;
        Navigation& navigation;
        FrameCommands& commands;
    };
    explicit FrameKeys(Parts parts) : m_parts(parts) {}

    bool Handle(HWND hWnd, UINT vkey, bool bAlt); // the window has the focus; false: the key means nothing here
    void LeaveFields();                           // which enters what was typed

private:
    bool HandleFrameKey(UINT vkey); // in tree and content
    bool HandleContentKey(UINT vkey);
    bool HandleTreeKey(UINT vkey);
    void OpenFocused(); // the list's focused row
    void FocusNextPane();
    void SaveByKey();

    const Parts m_parts;
};

} // namespace editor
