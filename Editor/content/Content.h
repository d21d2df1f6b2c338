// The right side of the frame: one of two lists, or a picture. Above a list that shows a phase it is played; a picture
// that moves is played in its own place.
#pragma once

#include "Editor/player/PlayerView.h"
#include "Editor/views/EditorList.h"
#include "Editor/views/PictureView.h"
#include "HostKit/frame/Pane.h"

namespace editor
{

enum class ListKind
{
    Icons,
    Thumbnails
};

class Content
{
public:
    // `pictures` is borrowed. `changed` is called when another list is shown. What Events::painted would be told is
    // dealt with here.
    Content(PictureStore& pictures, const CEditorList::Events& events, CPlayerView::Events player,
            std::function<void()> changed);

    bool Create(CWnd* pFrame);
    void ActivateFirst() { m_pList->Activate(nullptr); } // before any view of the frame is made

    CEditorList& GetList() { return *m_pList; } // the one that is shown, or will be
    const CEditorList& GetList() const { return *m_pList; }
    hostkit::CPane& GetListPane() { return m_listPane; }
    CPictureView& GetPicture() { return m_picture; }
    const CPictureView& GetPicture() const { return m_picture; }
    CPlayerView& GetPlayer() { return m_player; }
    CZoomView& GetZoomed() { return m_player.HasFrames() ? static_cast<CZoomView&>(m_player) : m_picture; }
    double GetZoom() const { return m_player.HasFrames() ? m_player.GetZoom() : m_picture.GetZoom(); }
    bool IsPictureShown() const { return m_picture.GetAtom() != nullptr; }
    bool Is(HWND hWnd) const
    {
        return hWnd && (hWnd == m_pList->GetSafeHwnd() || hWnd == m_picture.GetSafeHwnd() || hWnd == m_player.m_hWnd);
    }

    void MoveTo(const CRect& rect); // all of it; in the frame's client coordinates
    void TakeFocus();
    bool FocusPlayer(); // above the list; false: it is not there, or has the focus already
    ListKind GetKind() const { return m_pList == &m_icons ? ListKind::Icons : ListKind::Thumbnails; }
    void ShowList(ListKind kind); // with the selection of the one before
    // Of thumbnails, in pixels each way: some from the least to the most, or the next that is one of a few.
    static constexpr int kLeastThumbnail = 64, kUsualThumbnail = 128, kMostThumbnail = 512;
    void SetThumbnailExtent(int nExtent);
    void StepThumbnailExtent(int nSteps);
    int GetThumbnailExtent() const { return m_thumbnails.GetPictureExtent(); }
    // Small pictures are enlarged, each of their pixels to a square.
    void ShowPixels(bool bShow);
    bool ArePixelsShown() const { return m_pictures.IsEnlarging(); }
    void SetOrder(UINT nOrder); // MOF_*, of both lists
    void SetFilter(const std::function<bool(IAtom* pAtom)>& isShown);
    void ShowEmptyList(); // while the first folder is being read, which then shows it properly
    void ReloadList();    // by the present filter
    // The picture takes the list's place, and the focus unless that is kept.
    void ShowPicture(CMember* pMember, bool bKeepFocus);
    void HidePicture();
    void ShowPhase(CPhase& phase); // above the list
    void PlayPicture();            // which is shown, if it moves
    void HidePlayer();
    void UpdatePlayer(IAtom* pAtom); // which has changed; NULL: who knows

private:
    void Arrange();
    CEditorList::Events WithPainted(CEditorList::Events events);
    void ForgetUnseenPictures();

    PictureStore& m_pictures;
    const std::function<IAtomContainer*()> m_askShown;
    const std::function<void()> m_changed;
    hostkit::CPane m_listPane, m_picturePane;
    CEditorIcons m_icons;
    CEditorThumbnails m_thumbnails;
    CEditorList* m_pList = &m_icons; // the active one
    CPictureView m_picture;
    CPlayerView m_player;
    CStubRef<CPhase> m_pPlayed; // above the list; or empty
    CRect m_place;
};

} // namespace editor
