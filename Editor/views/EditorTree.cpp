#include "Editor/views/EditorTree.h"

#include "Editor/model/Folder.h"
#include "Editor/model/PictureMember.h"
#include "Editor/services/AtomEditor.h"

#include <deque>
#include <set>
#include <utility>
#include <vector>

namespace editor
{
namespace
{

constexpr UINT kMostAtOnce = 10'000; // items that expanding a whole branch may bring before it reads no more

// The tree takes the focus whenever its selection changes. Where that only follows what was done elsewhere, the focus
// goes back; to the frame, which passes it on, when its window is shown no more.
class FocusKeeper
{
public:
    explicit FocusKeeper(HWND hTree) : m_hTree(hTree), m_hFocus(::GetFocus()) {}
    ~FocusKeeper()
    {
        if (m_hFocus && m_hFocus != m_hTree && ::GetFocus() == m_hTree)
            ::SetFocus(IsWindowVisible(m_hFocus) ? m_hFocus : GetTopLevel(m_hTree));
    }
    FocusKeeper(const FocusKeeper&) = delete;
    FocusKeeper& operator=(const FocusKeeper&) = delete;

private:
    const HWND m_hTree, m_hFocus;
};

} // namespace

BEGIN_MESSAGE_MAP(CEditorTree, CObjectsTree)
    ON_WM_CREATE()
    ON_NOTIFY_REFLECT(TVN_ITEMEXPANDING, OnItemExpanding)
    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

CEditorTree::CEditorTree(DropFailed dropFailed, DropRefused dropRefused, std::function<void()> pressed)
    : m_target(*this, std::move(dropFailed), std::move(dropRefused)),
      m_nameField(*this,
                  [this](IAtom* pAtom) -> HWND {
                      const HTREEITEM hItem = GetItem(pAtom);
                      return hItem ? EditLabel(hItem) : nullptr;
                  }),
      m_pressed(std::move(pressed))
{
    ShowMembersOnDemand();
}

IAtom* CEditorTree::AtomOf(HTREEITEM hItem) const
{
    const auto* const pRecord = hItem ? reinterpret_cast<const TREEITEMDATA*>(GetItemData(hItem)) : nullptr;
    return pRecord ? pRecord->pAtom.Get() : nullptr;
}

std::vector<std::string> CEditorTree::ExpandedPaths(std::size_t nMost) const
{
    std::vector<std::string> paths;
    std::deque<HTREEITEM> siblings{GetRootItem()}; // the first of each
    for (; !siblings.empty(); siblings.pop_front())
        for (HTREEITEM hItem = siblings.front(); hItem && paths.size() < nMost; hItem = GetNextSiblingItem(hItem)) {
            const CMember* const pMember = CMember::Of(AtomOf(hItem));
            if (!pMember || !(GetItemState(hItem, TVIS_EXPANDED) & TVIS_EXPANDED))
                continue;
            paths.push_back(pMember->Path());
            siblings.push_back(GetChildItem(hItem));
        }
    return paths;
}

void CEditorTree::ExpandAtom(IAtom* pAtom)
{
    if (const HTREEITEM hItem = GetItem(pAtom))
        Expand(hItem, TVE_EXPAND);
}

CStubRef<IAtom> CEditorTree::Beside(IAtom* pAtom, int nStep) const
{
    const auto step = [&](HTREEITEM hItem) {
        return nStep < 0 ? GetPrevSiblingItem(hItem) : GetNextSiblingItem(hItem);
    };
    const HTREEITEM hFrom = GetItem(pAtom);
    for (HTREEITEM hItem = hFrom ? step(hFrom) : nullptr; hItem; hItem = step(hItem))
        if (dynamic_cast<CPictureMember*>(AtomOf(hItem)))
            return CStubRef<IAtom>::Share(AtomOf(hItem));
    return {};
}

CStubRef<IAtomContainer> CEditorTree::ContainerAt(CPoint client) const
{
    return CStubRef<IAtomContainer>::From(AtomOf(HitTest(client)));
}

int CEditorTree::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CObjectsTree::OnCreate(lpCreateStruct) == -1)
        return -1;
    SetMemberOrder(MOF_NATURAL);
    GetDropTarget().Revoke();
    return m_target.Register(this) ? 0 : -1;
}

BOOL CEditorTree::OnDeleteAtom(IAtom* pAtom, IAtomContainer* pContainer)
{
    const FocusKeeper keeper(m_hWnd);
    const HTREEITEM hItem = pAtom || !pContainer ? nullptr : GetItem(pContainer);
    const bool bShown = hItem && AreMembersShown(hItem);
    if (bShown && dynamic_cast<CFolder*>(pContainer)) {
        UpdateMembers(hItem, pContainer);
        return TRUE;
    }
    CObjectsTree::OnDeleteAtom(pAtom, pContainer);
    if (bShown)
        ShowMembers(pContainer); // lines of a phase, which may have changed places
    return TRUE;
}

// Those that are still there keep what is expanded below them.
void CEditorTree::UpdateMembers(HTREEITEM hItem, IAtomContainer* pContainer)
{
    std::set<IAtom*> known;
    std::vector<CStubRef<IAtom>> gone;
    for (HTREEITEM hChild = GetChildItem(hItem); hChild; hChild = GetNextSiblingItem(hChild)) {
        IAtom* const pAtom = AtomOf(hChild);
        known.insert(pAtom);
        if (pAtom && !pContainer->FindAtomByID(pAtom->GetID(), nullptr, 0))
            gone.push_back(CStubRef<IAtom>::Share(pAtom));
    }
    for (const auto& pAtom : gone)
        CObjectsTree::OnDeleteAtom(pAtom.Get(), pContainer);
    for (UINT i = 0, nCount = pContainer->GetCount(); i < nCount; ++i) {
        CStubRef<IAtom> pAtom;
        pContainer->GetAtoms(i, 1, pAtom.Receive(), IID_IAtom);
        if (pAtom && !known.contains(pAtom.Get()))
            CObjectsTree::OnCreateAtom(pAtom.Get(), pContainer);
    }
}

BOOL CEditorTree::OnAtomEntered(IAtom* pAtom, IAtomContainer* pContainer)
{
    const FocusKeeper keeper(m_hWnd);
    ShowItemOf(CMember::Of(pAtom));
    return CObjectsTree::OnAtomEntered(pAtom, pContainer);
}

BOOL CEditorTree::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!CObjectsTree::PreCreateWindow(cs))
        return FALSE;
    cs.dwExStyle &= ~WS_EX_CLIENTEDGE;
    return TRUE;
}

LRESULT CEditorTree::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN)
        m_pressed();
    const LRESULT nResult = CObjectsTree::WindowProc(message, wParam, lParam);
    m_nameField.After(message, wParam, lParam);
    return nResult;
}

void CEditorTree::OnGetDispInfo(TVDISPINFO* pInfo)
{
    TVITEM& item = pInfo->item;
    const auto* const pRecord = reinterpret_cast<const TREEITEMDATA*>(item.lParam);
    if (!(item.mask & TVIF_CHILDREN) || !pRecord || AreMembersShown(item.hItem))
        return;
    if (auto* const pContainer = dynamic_cast<CContainer*>(pRecord->pAtom.Get()))
        item.cChildren = MayHoldAny(*pContainer) ? 1 : 0;
}

// Nobody knows is as good as yes: expanding it will tell.
bool CEditorTree::MayHoldAny(CContainer& container)
{
    if (const auto known = container.HoldsAny())
        return *known;
    if (m_asked.contains(&container))
        return true;
    const auto now = m_questions.Ask(container.LookForAny(), [this, pAsked = &container](bool bAny) {
        pAsked->NoteHoldsAny(bAny);
        m_asked.erase(pAsked);
        Invalidate();
    });
    if (now)
        container.NoteHoldsAny(*now);
    else
        m_asked.emplace(&container, CStubRef<CContainer>::Share(&container));
    return now.value_or(true);
}

void CEditorTree::OnItemExpanding(NMTREEVIEW* pChange, LRESULT* pResult)
{
    *pResult = 0;
    const HTREEITEM hItem = pChange->itemNew.hItem;
    if (pChange->action != TVE_EXPAND || AreMembersShown(hItem))
        return;
    if (GetCount() >= m_nMostItems) {
        *pResult = TRUE;
        return;
    }
    const auto pAtom = CStubRef<IAtom>::Share(AtomOf(hItem));
    const LongWork::Command command(CAtomEditor::Current().GetWork(), "Reading", Progress::Unit::Found);
    ShowMembers(pAtom.Get());
    Invalidate(); // without members the button goes
}

void CEditorTree::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    const UINT nMost = nChar == VK_MULTIPLY ? GetCount() + kMostAtOnce : ~0u;
    const UINT nFormer = std::exchange(m_nMostItems, nMost);
    CObjectsTree::OnKeyDown(nChar, nRepCnt, nFlags);
    m_nMostItems = nFormer;
}

// From the top down as far as need be.
void CEditorTree::ShowItemOf(CMember* pMember)
{
    if (!pMember || !pMember->Container() || GetItem(pMember))
        return;
    CContainer* const pContainer = pMember->Container();
    ShowItemOf(pContainer);
    if (!AreMembersShown(GetItem(pContainer)))
        ShowMembers(pContainer);
}

} // namespace editor
