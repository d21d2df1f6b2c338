#include "tests/editor/EditorFixture.h"

#include "Editor/widgets/Look.h"
#include "HostKit/base/Counted.h"
#include "Toolkit/menu/MessageBox.h"

#include <algorithm>

// The brush behind thumbnails stays from the first list on: it is no leak of a test.
static const bool s_brushMade = (CThumbList(), true);

EditorTest::EditorTest(bool isFollowing) : m_nLive(hostkit::Counted::CountAlive())
{
    m_options.size = {640, 480};
    m_options.isFollowing = isFollowing;
    m_options.onClosed = [this] { ++nClosed; };
    StartAnew();
}

void EditorTest::StartAnew()
{
    CloseApp();
    m_pApp = std::make_unique<editor::EditorApp>(reader, m_options);
}

EditorTest::~EditorTest()
{
    reader.AllowAll();
    if (m_pApp)
        Settle(); // what threads are reading would come into the queue at any time
    CloseApp();
    EXPECT_EQ(m_nLive, hostkit::Counted::CountAlive()) << "atoms or their parts left alive";
}

std::string EditorTest::Open(const std::string& path)
{
    const std::string error = m_pApp->OpenFolder(path);
    if (error.empty())
        Settle();
    return error;
}

void EditorTest::ReadAll()
{
    reader.AllowAll();
    Settle();
}

void EditorTest::ResizeWindow(CSize size)
{
    toolkit::InputResize(m_pApp->GetMainWindow(), size);
    desktop.Run();
}

void EditorTest::CloseWindow()
{
    toolkit::InputClose(m_pApp->GetMainWindow());
    desktop.Run();
}

editor::CMainFrame& EditorTest::Frame()
{
    return dynamic_cast<editor::CMainFrame&>(*AfxGetMainWnd());
}

std::string EditorTest::Screen()
{
    std::string path;
    for (const std::string& part : Frame().GetBars().GetPathBar().GetPath())
        path += path.empty() ? "/" : part + '/';
    const bool isPicture = IsWindowVisible(Picture());
    EXPECT_NE(isPicture, IsWindowVisible(List()) != FALSE);
    const editor::Status status = Frame().GetStatus();
    std::string text = path + " | " + (isPicture ? "picture" : Rows()) + " | " + status.text;
    if (!status.detail.empty())
        text += (status.isError ? " | ! " : " | ") + status.detail;
    return text;
}

std::string EditorTest::Rows()
{
    editor::CEditorList& list = Frame().GetList();
    std::string text;
    for (int i = 0; i < list.GetItemCount(); ++i) {
        const UINT state = list.GetItemState(i, LVIS_SELECTED | LVIS_FOCUSED);
        std::string name = editor::CMember::Of(list.GetAtom(i).Get())->ShownName();
        if (state & LVIS_FOCUSED)
            name = '*' + name;
        if (state & LVIS_SELECTED)
            name = '(' + name + ')';
        text += (text.empty() ? "" : " ") + name;
    }
    return '[' + text + ']';
}

std::string EditorTest::Branches(HTREEITEM hItem)
{
    std::string text;
    for (; hItem; hItem = Tree().GetNextSiblingItem(hItem)) {
        std::string name = Tree().GetParentItem(hItem) ? Tree().GetItemText(hItem).GetString() : "/";
        if (hItem == Tree().GetSelectedItem())
            name = '(' + name + ')';
        text += (text.empty() ? "" : " ") + name;
        if (Tree().GetItemState(hItem, TVIS_EXPANDED))
            text += '[' + Branches(Tree().GetChildItem(hItem)) + ']';
        else if (Tree().ItemHasChildren(hItem))
            text += '+';
    }
    return text;
}

HTREEITEM EditorTest::FindItem(const std::string& label)
{
    HTREEITEM hItem = Tree().GetRootItem();
    while (hItem && Tree().GetItemText(hItem).GetString() != label)
        hItem = Tree().GetNextVisibleItem(hItem);
    EXPECT_TRUE(hItem) << "no item " << label;
    return hItem;
}

void EditorTest::Press(UINT vkey, toolkit::Modifiers modifiers)
{
    Key(vkey, modifiers);
    Settle();
}

void EditorTest::Enter(const std::string& text)
{
    desktop.Type(text);
    Press(VK_RETURN);
}

void EditorTest::SetDelay(const std::string& milliseconds)
{
    Press(VK_F4);
    Enter(milliseconds);
}

void EditorTest::Delete()
{
    desktop.Answer(IDYES);
    Press(VK_DELETE);
}

void EditorTest::Select(std::initializer_list<const char*> names)
{
    for (const char* pszName : names) {
        Click(pszName);
        desktop.Hold({.control = true});
    }
    desktop.Hold({});
}

void EditorTest::Click(const char* pszName)
{
    desktop.Advance(1000);
    desktop.Click(List(), PlaceOf(pszName));
    Settle();
}

void EditorTest::DoubleClick(const char* pszName)
{
    desktop.Advance(1000);
    desktop.DoubleClick(List(), PlaceOf(pszName));
    Settle();
}

// Each part has its text's width and a margin on both sides, and an arrow before it.
void EditorTest::ClickPath(int nPart)
{
    desktop.Advance(1000);
    if (nPart < 0)
        return ClickTool(Frame().GetBars().GetWays(), editor::ID_UP);
    CPoint at(editor::kSpace, editor::kPathBarHeight / 2);
    for (int i = 0; i < nPart; ++i)
        at.x += editor::TextWidth(Frame().GetBars().GetPathBar().GetPath()[static_cast<std::size_t>(i)]) +
                4 * editor::kSpace;
    desktop.Click(Frame().GetBars().GetPathBar().GetSafeHwnd(), at);
    Settle();
}

void EditorTest::ClickTool(editor::CToolBar& bar, UINT nCommand)
{
    desktop.Click(bar.GetSafeHwnd(), bar.RectOf(nCommand).CenterPoint());
    Settle();
}

void EditorTest::ChooseFromMenu(int nMenu, const std::string& command)
{
    editor::CMenuBar& bar = Frame().GetBars().GetMenuBar();
    desktop.Choose(command);
    desktop.Click(bar.m_hWnd, bar.TitleRect(nMenu).CenterPoint());
    Settle();
}

void EditorTest::ChooseAt(CPoint at, const char* pszCommand)
{
    desktop.Choose(pszCommand);
    desktop.Click(List(), at, toolkit::MouseButton::Right);
    Settle();
}

void EditorTest::Drag(HWND hFrom, CPoint at, std::function<void()> script)
{
    desktop.DuringDrag(std::move(script));
    desktop.Advance(1000);
    desktop.Press(hFrom, at);
    desktop.MoveTo(hFrom, at + CPoint(9, 0));
    if (desktop.IsDragging())
        ADD_FAILURE() << "still dragging";
    Settle();
}

void EditorTest::DropOn(HWND hWnd, CPoint at)
{
    desktop.MoveTo(hWnd, at);
    desktop.Release(hWnd, at);
}

toolkit::Pixel EditorTest::MiddleOf(HWND hWnd)
{
    const toolkit::Surface shown = desktop.Dump(hWnd);
    return shown.At(shown.Width() / 2, shown.Height() / 2);
}

CPoint EditorTest::PlaceOf(const char* pszName)
{
    editor::CEditorList& list = Frame().GetList();
    for (int i = 0; i < list.GetItemCount(); ++i) {
        if (editor::CMember::Of(list.GetAtom(i).Get())->ShownName() != pszName)
            continue;
        CRect icon;
        EXPECT_TRUE(list.GetItemRect(i, &icon, LVIR_ICON));
        return icon.CenterPoint();
    }
    ADD_FAILURE() << "no row " << pszName;
    return {};
}

CPoint EditorTest::PlaceInTree(const std::string& label)
{
    CRect text;
    EXPECT_TRUE(Tree().GetItemRect(FindItem(label), &text, TRUE));
    return text.CenterPoint();
}

int EditorTest::CountInk(const toolkit::Surface& shown, COLORREF background)
{
    const int nPixels = shown.Width() * shown.Height();
    return nPixels - static_cast<int>(std::count(shown.Row(0), shown.Row(0) + nPixels, toolkit::ToPixel(background)));
}
