// A list view as the frame uses it, whatever its rows look like.
#pragma once

#include "Editor/pictures/IconPainter.h"
#include "Editor/views/DropTargets.h"
#include "Editor/views/HoverPlayer.h"
#include "Editor/views/NameField.h"
#include "Views/host/StubRef.h"
#include "Views/list/list.h"

#include <functional>
#include <string>
#include <type_traits>
#include <vector>

namespace editor
{

bool IsAmong(const std::vector<CStubRef<IAtom>>& sorted, IAtom* pAtom); // sorted by address

// What the frame adds to a list view. One list of the frame is active at a time; the others hear what is entered
// without showing it, and cost nothing.
class CEditorList
{
public:
    struct Events
    {
        std::function<std::string()> askEmptyText; // for the middle of a list without rows
        std::function<void()> painted;             // rows have come into sight, and may have wished for pictures
        std::function<IAtomContainer*()> askShown; // what the active list shows, borrowed
        DropFailed dropFailed;
        DropRefused dropRefused;
        std::function<void()> pressed;                 // a mouse button, on the list
        std::function<void(int nNotches)> zoomed;      // the wheel, with Control; up is positive
        std::function<bool(IAtom* pAtom)> openOutside; // before a double click opens it here; true: it is open
        HoverPlayer::MakeFrames makeFrames{};
        std::function<bool()> askEnlarging{}; // of small pictures
    };

    virtual ~CEditorList() = default;
    CEditorList(const CEditorList&) = delete;
    CEditorList& operator=(const CEditorList&) = delete;

    virtual CStubRef<IAtom> GetAtom(int nRow) const = 0; // empty without such a row
    virtual void Activate(IAtom* pContainer) = 0;        // shows it; for NULL, what is entered next
    virtual void Deactivate() = 0;                       // lets go of all rows and of the pane
    virtual void SetOrder(UINT nOrder) = 0;              // MOF_*
    virtual void SetFilter(std::function<bool(IAtom* pAtom)> isShown) = 0;
    virtual void Reload() = 0; // rows by the present order and filter; those that stay keep selection and focus
    virtual CSize PictureSize() const = 0; // in pixels: at which rows wish for pictures
    // Of thumbnails. The focused row stays where it is seen, or else the one in the middle. False: nothing has changed.
    virtual bool SetPictureExtent(int /*nExtent*/) { return false; }
    std::vector<CStubRef<IAtom>> AtomsInSight() const; // sorted by address
    int FindRow(IAtom* pAtom) const;                   // looks at all; -1: none

    int RowAt(CPoint client) const { return m_view.HitTest(client); }      // -1 where none is
    IAtomContainer* ShownContainer() const { return m_events.askShown(); } // borrowed
    // What a drop there would come into: the row's atom if it is a container, else none; the shown one where no row is.
    CStubRef<IAtomContainer> ContainerAt(CPoint client) const;

    IAEStateHandler* Handler() const { return dynamic_cast<IAEStateHandler*>(&m_view); }
    HWND GetSafeHwnd() const { return m_view.GetSafeHwnd(); }
    BOOL IsWindowVisible() const { return m_view.IsWindowVisible(); }
    void SetFocus() { m_view.SetFocus(); }
    int GetItemCount() const { return m_view.GetItemCount(); }
    int GetSelectedCount() const { return m_view.GetSelectedCount(); }
    int GetNextItem(int nItem, UINT nFlags) const { return m_view.GetNextItem(nItem, nFlags); }
    UINT GetItemState(int nItem, UINT nMask) const { return m_view.GetItemState(nItem, nMask); }
    BOOL SetItemState(int nItem, UINT nState, UINT nMask) { return m_view.SetItemState(nItem, nState, nMask); }
    BOOL GetItemRect(int nItem, RECT* pRect, int nArea) const { return m_view.GetItemRect(nItem, pRect, nArea); }
    int GetFocusedRow() const { return GetNextItem(-1, LVNI_FOCUSED); }
    bool AreAllSelected() const { return GetItemCount() > 0 && GetSelectedCount() == GetItemCount(); }

    // The first selected row gets the focus and is scrolled into view.
    void FocusSelection();

    // What a user would miss after the rows have been loaded anew: selection, focused row and scroll position. Of
    // atoms that are not there any more nothing is selected; the focus stays in its place among the rows.
    struct State
    {
        bool bAllSelected = false;
        std::vector<CStubRef<IAtom>> selected; // unless all are; sorted by address
        CStubRef<IAtom> pFocused;
        int nFocused = -1; // its row then
        int nScrolled = 0; // pixels
    };
    // All rows may be selected only in case all are to be that will be there.
    enum class AllRows
    {
        MeansAll,
        AsTheyAre
    };
    State Remember(AllRows all = AllRows::MeansAll) const;
    void Restore(const State& state);
    void RestoreRows(const State& state); // selection and focus; the focused row is scrolled into view

protected:
    CEditorList(CListCtrl& view, Events events) : m_view(view), m_events(std::move(events)) {}

    void DrawEmptyText(const CRect& dirty) const;
    int RowToKeepInSight() const; // -1: none
    const Events& GetEvents() const { return m_events; }

private:
    void RestoreStates(const State& state);

    CListCtrl& m_view; // this very object
    const Events m_events;
};

template <class View>
class CEditorListOf final : public View, public CEditorList
{
public:
    CEditorListOf(CSize picture, Events events)
        : CEditorList(*this, std::move(events)),
          m_picture(picture),
          m_target(*this, GetEvents().dropFailed, GetEvents().dropRefused),
          m_nameField(*this, [this](IAtom* pAtom) { return View::EditLabel(FindRow(pAtom)); }),
          m_hover(*this, GetEvents().makeFrames,
                  {[this](int nRow) { return GetAtom(nRow); }, [this] { return PictureSize(); },
                   [this](int nRow, const auto& frame) { return DrawFrame(nRow, frame); },
                   [this](IAtom* pAtom) { View::OnChangeAtom(pAtom, nullptr); }})
    {
        View::PlaceNewAtoms();
        View::SetMemberOrder(MOF_NATURAL);
    }
    ~CEditorListOf() override { View::DestroyWindow(); }

    CStubRef<IAtom> GetAtom(int nRow) const override
    {
        const auto* const pPair = reinterpret_cast<const OBJPAIR*>(View::GetItemData(nRow));
        return CStubRef<IAtom>::Share(pPair ? pPair->pAtom : nullptr);
    }
    void Activate(IAtom* pContainer) override
    {
        m_bActive = true;
        if (pContainer)
            View::OnAtomEntered(pContainer, nullptr);
    }
    void Deactivate() override
    {
        m_bActive = false;
        View::OnAtomEntered(nullptr, nullptr);
    }
    void SetOrder(UINT nOrder) override
    {
        View::SetMemberOrder(nOrder);
        Reload();
    }
    void SetFilter(std::function<bool(IAtom* pAtom)> isShown) override { View::SetMemberFilter(std::move(isShown)); }
    void Reload() override
    {
        const auto pShown = CStubRef<IAtom>::From(GetEvents().askShown());
        if (!m_bActive || !pShown)
            return;
        const State state = Remember(AllRows::AsTheyAre);
        View::OnAtomEntered(pShown.Get(), nullptr);
        RestoreRows(state);
    }
    CSize PictureSize() const override
    {
        if constexpr (kAreThumbnails)
            return toolkit::ScreenScale().ToPixels(CSize(View::GetDrawingExtent(), View::GetDrawingExtent()));
        else
            return m_picture;
    }
    void ForgetPictures() // rows wish for them anew
    {
        View::ForgetCache();
        View::Invalidate();
    }
    bool SetPictureExtent(int nExtent) override
    {
        if constexpr (kAreThumbnails) {
            if (nExtent == View::GetPictureExtent())
                return false;
            const int nRow = RowToKeepInSight();
            CRect former, now;
            GetItemRect(nRow, &former, LVIR_ICON);
            View::SetPictureExtent(nExtent);
            if (GetItemRect(nRow, &now, LVIR_ICON)) {
                View::SendMessage(LVM_SCROLL, 0, now.CenterPoint().y - former.CenterPoint().y);
                View::EnsureVisible(nRow, FALSE);
            }
            return true;
        }
        return false;
    }

    BOOL OnAtomEntered(IAtom* pAtom, IAtomContainer* pContainer) override
    {
        return m_bActive ? View::OnAtomEntered(pAtom, pContainer) : TRUE;
    }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override
    {
        if (!View::PreCreateWindow(cs))
            return FALSE;
        cs.dwExStyle &= ~WS_EX_CLIENTEDGE; // the pane has the edges
        return TRUE;
    }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        CRect dirty;
        const bool bPaints = message == WM_PAINT && ::GetUpdateRect(View::m_hWnd, &dirty);
        if (message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN)
            GetEvents().pressed();
        if (kAreThumbnails)
            Hover(message, wParam, lParam);
        if (message == WM_MOUSEWHEEL && (wParam & MK_CONTROL)) {
            GetEvents().zoomed(static_cast<std::int16_t>(HIWORD(wParam)) > 0 ? 1 : -1);
            return 0;
        }
        if (message == WM_LBUTTONDBLCLK && GetEvents().openOutside(GetAtom(View::HitTest(CPoint(lParam))).Get()))
            return 0;
        const LRESULT nResult = View::WindowProc(message, wParam, lParam);
        m_nameField.After(message, wParam, lParam);
        if (message == WM_CREATE && nResult != -1) {
            View::SetTypeAhead(TRUE);
            View::GetDropTarget().Revoke();
            m_target.Register(this);
        }
        if (bPaints) {
            DrawEmptyText(dirty);
            GetEvents().painted();
        }
        return nResult;
    }

    void OnNameRefused(IAtom* pAtom, LPCSTR pszTyped) override { m_nameField.Refused(pAtom, pszTyped); }

private:
    static constexpr bool kAreThumbnails = std::is_base_of_v<CThumbList, View>;

    void Hover(UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_MOUSEMOVE)
            m_hover.MoveTo(View::HitTest({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}));
        else if (message == WM_MOUSELEAVE || message == WM_DESTROY || message == WM_LBUTTONDOWN ||
                 message == WM_MOUSEWHEEL || message == WM_VSCROLL)
            m_hover.MoveTo(-1);
        else if (message == WM_TIMER && wParam == HoverPlayer::kTimer)
            m_hover.Tick();
    }
    bool DrawFrame(int nRow, const PictureStore::Answer& frame)
    {
        if constexpr (kAreThumbnails) {
            const bool bPhase = static_cast<bool>(CStubRef<IPhase>::From(GetAtom(nRow).Get()));
            return View::DrawThumbnailAnew(nRow, [&](HDC hdc, CRect& rect) {
                const BOOL bDrawn = DrawThumbnail(hdc, rect, frame, GetEvents().askEnlarging());
                if (bPhase)
                    DrawMark(hdc, rect, hostkit::Pictogram::Phase);
                return bDrawn;
            });
        }
        return false;
    }

    const CSize m_picture;
    CEditorListTarget m_target;
    NameField m_nameField;
    HoverPlayer m_hover;
    bool m_bActive = false;
};

using CEditorIcons = CEditorListOf<CIconList>;
using CEditorThumbnails = CEditorListOf<CThumbList>;

} // namespace editor
