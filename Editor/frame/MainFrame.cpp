#include "Editor/frame/MainFrame.h"

#include "Editor/frame/ContextMenu.h"
#include "Editor/frame/Look.h"
#include "Editor/model/Phase.h"
#include "Editor/pictures/IconPainter.h"
#include "Editor/resources/EditorResources.h"

#include <utility>

namespace editor
{
namespace
{

constexpr UINT kSelectRenamed = WM_USER;

} // namespace

BEGIN_MESSAGE_MAP(CMainFrame, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_TIMER()
    ON_WM_SETFOCUS()
    ON_MESSAGE(kSelectRenamed, OnSelectRenamed)
    ON_COMMAND(ID_OPEN, OpenSelected)
    ON_COMMAND(ID_CUT, CutSelection)
    ON_COMMAND(ID_COPY, CopySelection)
    ON_COMMAND(ID_PASTE, PasteHere)
    ON_COMMAND(ID_RENAME, RenameSelected)
    ON_COMMAND(ID_REMOVE, RemoveSelection)
    ON_COMMAND(ID_SELECT_ALL, SelectAll)
    ON_COMMAND(ID_REFRESH, Refresh)
END_MESSAGE_MAP()

CMainFrame::CMainFrame(CAtomEditor& editor, PictureStore& pictures, std::function<void()> closed)
    : m_editor(editor),
      m_commands(editor),
      m_pictures(pictures),
      m_closed(std::move(closed)),
      m_pathBar([this] { GoUp(); }, [this](int nPart) { GoToPart(nPart); }),
      m_treePane(kSpace / 2),
      m_splitter([this](int x) { MoveSplitter(x); }),
      m_icons(PictureSizeFor({kIconExtent, kIconExtent}), ListEvents()),
      m_thumbnails({kThumbnailExtent, kThumbnailExtent}, ListEvents()),
      m_tree(ReportDrop()),
      m_picture(pictures),
      m_properties({[this] { return SelectedPhases(); },
                    [this](const CPropertiesPane::Phases& phases) { NoteModified(phases); },
                    [this] { FocusContent(); }}),
      m_statusBar([this] { return GetStatus(); })
{}

CMainFrame::~CMainFrame()
{
    DestroyWindow();
}

BOOL CMainFrame::Create(CSize client)
{
    return CreateEx(0, "", "Views", WS_OVERLAPPED | WS_CLIPCHILDREN, CRect(CPoint(), client), nullptr, 0);
}

// The former library goes when nothing of it is selected any more.
void CMainFrame::ShowLibrary(CLibrary* pLibrary)
{
    const auto pFormer = std::exchange(m_pLibrary, CStubRef<CLibrary>::Share(pLibrary));
    m_editor.AddTop(pLibrary);
    m_tree.ExpandAtom(pLibrary);
    GoTo(pLibrary);
    if (pFormer)
        m_editor.RemoveTop(pFormer.Get());
}

BOOL CMainFrame::OnCreateAtom(IAtom* pAtom, IAtomContainer*)
{
    m_pCreated = CStubRef<CMember>::Share(CMember::Of(pAtom));
    UpdateStatus();
    return TRUE;
}

// A member that goes when another has just come to its container was renamed.
BOOL CMainFrame::OnDeleteAtom(IAtom* pAtom, IAtomContainer* pContainer)
{
    const CStubRef<CMember> pCreated = std::move(m_pCreated);
    const bool bRenamed = pAtom && pCreated && pCreated->Container() && pContainer == pCreated->Container();
    if (bRenamed)
        FollowRenamed(pAtom, pCreated.Get());
    ForgetModified(pAtom, bRenamed ? pCreated.Get() : nullptr);
    UpdateStatus();
    return TRUE;
}

BOOL CMainFrame::OnChangeAtom(IAtom* pAtom, IAtomContainer*)
{
    if (pAtom && pAtom == m_picture.GetAtom())
        m_picture.OnPictureArrived();
    m_statusBar.Invalidate();
    if (dynamic_cast<CPhase*>(CMember::Of(pAtom)))
        m_properties.Update(); // looks through all that is selected: not for each picture that has been read
    return TRUE;
}

BOOL CMainFrame::OnAtomSelected(IAtom*, IAtomContainer*)
{
    UpdateStatus();
    return TRUE;
}

BOOL CMainFrame::OnAtomDeselected(IAtom*, IAtomContainer*)
{
    UpdateStatus();
    return TRUE;
}

// The list, which hears of it next, shows a container's members and makes way for anything else.
BOOL CMainFrame::OnAtomEntered(IAtom* pAtom, IAtomContainer*)
{
    CMember* const pMember = CMember::Of(pAtom);
    if (!pMember)
        return TRUE;
    m_pShown = CStubRef<CMember>::Share(pMember);
    if (CStubRef<IAtomContainer>::From(pAtom))
        HidePicture();
    else
        ShowPicture(pMember);
    SetWindowText((pMember->ShownName() + " - Views").c_str());
    UpdatePath();
    UpdateStatus();
    return TRUE;
}

// The views show the object under its new name last, and take the next one's selection for the one that went. They are
// put right when they have heard of both; where what is shown was renamed, before they turn to something else.
void CMainFrame::FollowRenamed(IAtom* pFormer, CMember* pRenamed)
{
    for (CMember* pMember = Shown(); pMember; pMember = pMember->Container()) {
        if (static_cast<IAtom*>(pMember) != pFormer)
            continue;
        GoTo(pRenamed);
        break;
    }
    m_pRenamed = CStubRef<CMember>::Share(pRenamed);
    PostMessage(kSelectRenamed);
}

LRESULT CMainFrame::OnSelectRenamed(WPARAM, LPARAM)
{
    const CStubRef<CMember> pRenamed = std::move(m_pRenamed);
    if (!pRenamed || Shown() != pRenamed->Container())
        return 0;
    std::vector<CStubRef<IAtom>> atoms;
    atoms.push_back(CStubRef<IAtom>::Share(pRenamed.Get()));
    m_commands.Select(atoms, pRenamed->Container());
    m_pList->FocusSelection();
    return 0;
}

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    // The frame hears of everything first; the lists, registered before the tree, show what was entered by the time
    // that the tree selects it.
    m_editor.SetFrame(this);
    m_pList->Activate(nullptr);
    m_dwHandlerCookie = m_editor.RegisterHandler(m_hWnd, this);
    const bool bMade = m_pathBar.Create(this) && m_treePane.Create(this) && m_splitter.Create(this) &&
                       m_listPane.Create(this) && m_picturePane.Create(this) && m_statusBar.Create(this) &&
                       m_icons.Create(&m_listPane) && m_thumbnails.Create(&m_listPane) && m_tree.Create(&m_treePane) &&
                       m_picture.Create(&m_picturePane) && m_properties.Create(this);
    OfferLists();
    return bMade ? 0 : -1;
}

void CMainFrame::OnDestroy()
{
    m_editor.UnregisterHandler(m_dwHandlerCookie);
    m_editor.SetFrame(nullptr);
    CWnd::OnDestroy();
}

void CMainFrame::OnClose()
{
    if (!MayClose())
        return;
    const std::function<void()> closed = m_closed; // the frame may go with it
    DestroyWindow();
    if (closed)
        closed();
}

void CMainFrame::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    Arrange();
}

// The focus is the views' own; the frame passes on what falls to it when one is hidden.
void CMainFrame::OnSetFocus(CWnd* pOldWnd)
{
    CWnd::OnSetFocus(pOldWnd);
    FocusContent();
}

void CMainFrame::UpdatePath()
{
    std::vector<std::string> parts;
    for (const CMember* pMember = Shown(); pMember; pMember = pMember->Container())
        parts.insert(parts.begin(), pMember->ShownName());
    m_pathBar.SetPath(std::move(parts));
}

} // namespace editor
