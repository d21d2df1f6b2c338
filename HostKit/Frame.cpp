#include "HostKit/Frame.h"

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/graphics/Gdi.h"

#include <algorithm>

namespace hostkit
{
namespace
{

constexpr DWORD kTreePane = 0;  // all other kinds are lists
constexpr int kLeastSide = 100; // pixels

} // namespace

BEGIN_MESSAGE_MAP(CFrame, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
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
    return TRUE;
}

BOOL CFrame::OnDeleteAtom(IAtom* pAtom, IAtomContainer*)
{
    if (pAtom && pAtom == m_pOpened.Get())
        m_pOpened.Release();
    return TRUE;
}

} // namespace hostkit
