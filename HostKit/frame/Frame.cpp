#include "HostKit/frame/Frame.h"

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/graphics/Gdi.h"

#include <algorithm>

namespace hostkit
{
namespace
{

constexpr DWORD kTreePane = 0;  // all other kinds are lists
constexpr int kLeastSide = 100; // pixels
constexpr UINT kSelectRenamed = WM_USER;
constexpr UINT kKeepFocus = WM_USER + 1;

} // namespace

BEGIN_MESSAGE_MAP(CFrame, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_MESSAGE(kKeepFocus, OnKeepFocus)
    ON_MESSAGE(kSelectRenamed, OnSelectRenamed)
END_MESSAGE_MAP()

CFrame::CFrame(CAtomEditor& editor)
    : m_editor(editor), m_splitter([this](int x) {
          m_nLeftWidth = x;
          Arrange();
      })
{
    AddStandardCommands();
}

CFrame::~CFrame()
{
    DestroyWindow();
}

BOOL CFrame::Create(LPCSTR pszTitle, CSize client)
{
    return CreateEx(0, "", pszTitle, WS_OVERLAPPED | WS_CLIPCHILDREN, CRect(CPoint(), client), nullptr, 0);
}

int CFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    m_editor.SetFrame(this);
    m_dwHandlerCookie = m_editor.RegisterHandler(m_hWnd, this); // before every view: it hears of everything first
    if (!AfxGetMainWnd())
        AfxSetMainWnd(this);
    return m_left.Create(this) && m_right.Create(this) && m_splitter.Create(this) ? 0 : -1;
}

void CFrame::OnDestroy()
{
    m_editor.UnregisterHandler(m_dwHandlerCookie);
    m_editor.SetFrame(nullptr);
    m_pOpened.Release();
    m_created = {};
    m_renamed = {};
    CWnd::OnDestroy();
    if (AfxGetMainWnd() != this)
        return;
    AfxSetMainWnd(nullptr);
    PostQuitMessage(0);
}

void CFrame::OnClose()
{
    if (MayClose())
        DestroyWindow();
}

void CFrame::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    Arrange();
}

// The focus is the views' own; the frame passes on what falls to it.
void CFrame::OnSetFocus(CWnd* pOldWnd)
{
    CWnd::OnSetFocus(pOldWnd);
    if (CPane& pane = m_right.GetView() ? m_right : m_left; pane.GetView())
        pane.SetFocus();
}

void CFrame::Arrange()
{
    CRect client;
    GetClientRect(&client);
    CRect left = client, right = client, bar;
    if (m_left.GetView() && m_right.GetView()) {
        const int nWanted = m_nLeftWidth == CSplitter::kUsual ? client.Width() / 3 : m_nLeftWidth;
        const int nMost = std::max(kLeastSide, client.Width() - kLeastSide - CSplitter::kWidth);
        left.right = std::clamp(nWanted, kLeastSide, nMost);
        bar = {left.right, client.top, left.right + CSplitter::kWidth, client.bottom};
        right.left = bar.right;
    }
    m_left.MoveWindow(left);
    m_splitter.MoveWindow(bar);
    m_right.MoveWindow(right);
}

void CFrame::AddPane(DWORD kind, HWND hWnd, LPCSTR pszCaption, HICON hIcon)
{
    CPane& side = kind == kTreePane ? m_left : m_right;
    if (side.GetView() && side.GetView() != hWnd)
        side.HideView();
    const toolkit::Surface* const pIcon = toolkit::IconSurface(hIcon);
    side.ShowView(hWnd, pszCaption ? pszCaption : "", pIcon ? *pIcon : toolkit::Surface());
    Arrange();
    if (kind != kTreePane && (::GetFocus() == nullptr || ::GetFocus() == m_hWnd))
        ::SetFocus(hWnd);
}

void CFrame::RemovePane(DWORD kind, HWND hWnd)
{
    CPane& side = kind == kTreePane ? m_left : m_right;
    if (side.GetView() != hWnd)
        return;
    side.HideView();
    Arrange();
}

void CFrame::Open(IAtom* pAtom)
{
    m_editor.Tell(&IAEStateHandler::OnAtomEntered, pAtom);
}

BOOL CFrame::OnAtomEntered(IAtom* pAtom, IAtomContainer*)
{
    m_pOpened = CStubRef<IAtom>::Share(pAtom);
    if (m_right.GetView() && ::GetFocus() == m_right.GetView())
        PostMessage(kKeepFocus);
    return TRUE;
}

// The tree follows what is opened and takes the focus with it; the user goes on in the list.
LRESULT CFrame::OnKeepFocus(WPARAM, LPARAM)
{
    if (::GetFocus() == m_left.GetView() && m_right.GetView())
        ::SetFocus(m_right.GetView());
    return 0;
}

BOOL CFrame::OnCreateAtom(IAtom* pAtom, IAtomContainer* pContainer)
{
    m_created = {CStubRef<IAtom>::Share(pAtom), CStubRef<IAtomContainer>::Share(pContainer)};
    return TRUE;
}

// A member that goes when another has just come to its container was renamed. The views take the next one's selection
// for it, and are put right when they have heard of both.
BOOL CFrame::OnDeleteAtom(IAtom* pAtom, IAtomContainer* pContainer)
{
    ActiveMember created = std::move(m_created);
    const bool bOpened = pAtom && pAtom == m_pOpened.Get();
    const bool bRenamed = pAtom && created.pAtom && pContainer && pContainer == created.pContainer.Get();
    if (bOpened && !bRenamed)
        m_pOpened.Release();
    if (!bRenamed)
        return TRUE;
    m_renamed = std::move(created);
    if (bOpened)
        Open(CStubRef<IAtom>::Share(m_renamed.pAtom.Get()).Get());
    else
        PostMessage(kSelectRenamed);
    return TRUE;
}

LRESULT CFrame::OnSelectRenamed(WPARAM, LPARAM)
{
    const ActiveMember renamed = std::move(m_renamed);
    if (!renamed.pAtom || !renamed.IsThere())
        return 0;
    IAtomContainer* const pContainer = renamed.pContainer.Get();
    m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnAtomDeselected, nullptr, pContainer, 0);
    m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnAtomSelected, renamed.pAtom.Get(), pContainer, 0);
    return 0;
}

} // namespace hostkit
