#include "Editor/content/Content.h"

#include "Editor/pictures/IconPainter.h"
#include "Editor/resources/EditorResources.h"
#include "Editor/widgets/Look.h"
#include "HostKit/pictures/Pictograms.h"

#include <algorithm>

namespace editor
{

Content::Content(PictureStore& pictures, const CEditorList::Events& events, CPlayerView::Events player,
                 std::function<void()> changed)
    : m_pictures(pictures),
      m_askShown(events.askShown),
      m_changed(std::move(changed)),
      m_icons(PictureSizeFor({kIconExtent, kIconExtent}), WithPainted(events)),
      m_thumbnails({}, WithPainted(events)),
      m_picture(pictures, [this] { m_changed(); }),
      m_player({std::move(player.askTools), std::move(player.use), [this] { m_changed(); }})
{}

CEditorList::Events Content::WithPainted(CEditorList::Events events)
{
    events.painted = [this] { ForgetUnseenPictures(); };
    events.askEnlarging = [this] { return m_pictures.IsEnlarging(); };
    events.makeFrames = [this](IAtom* pAtom, std::function<void()> arrived) {
        return MakeFrames(pAtom, m_pictures, std::move(arrived));
    };
    return events;
}

bool Content::Create(CWnd* pFrame)
{
    if (!m_listPane.Create(pFrame) || !m_picturePane.Create(pFrame) || !m_icons.Create(&m_listPane) ||
        !m_thumbnails.Create(&m_listPane) || !m_picture.Create(&m_picturePane) || !m_player.Create(&m_picturePane))
        return false;
    m_listPane.SetChoices({{"Icons", hostkit::GetPictogram(hostkit::Pictogram::IconPane, kPaneIconExtent)},
                           {"Thumbnails", hostkit::GetPictogram(hostkit::Pictogram::ThumbnailPane, kPaneIconExtent)}},
                          [this](int nChoice) { ShowList(static_cast<ListKind>(nChoice)); });
    return true;
}

void Content::MoveTo(const CRect& rect)
{
    m_place = rect;
    Arrange();
}

// In a low window there is room for the frames alone.
void Content::Arrange()
{
    constexpr int kLeast = 300; // pixels high
    CRect top = m_place, bottom = m_place;
    if (m_pPlayed) {
        top.bottom = m_place.Height() < kLeast ? top.top : top.top + m_place.Height() * 11 / 20;
        bottom.top = top.bottom;
    }
    m_listPane.MoveWindow(bottom);
    m_picturePane.MoveWindow(top);
}

void Content::ShowPhase(CPhase& phase)
{
    if (m_pPlayed.Get() == &phase)
        return m_player.Update();
    HidePlayer();
    if (phase.GetCount() == 0)
        return;
    m_pPlayed = CStubRef<CPhase>::Share(&phase);
    m_picturePane.ShowView(m_player.GetSafeHwnd(), phase.ShownName(),
                           hostkit::GetPictogram(hostkit::Pictogram::Phase, kPaneIconExtent));
    Arrange();
    m_player.SetFrames(MakeFrames(&phase, m_pictures, [this] { m_player.OnArrived(); }));
}

void Content::HidePlayer()
{
    if (!m_player.HasFrames())
        return;
    if (IsPictureShown())
        m_picture.TakeZoom(m_player);
    m_player.SetFrames(nullptr);
    m_pPlayed.Release();
    m_picturePane.HideView();
    Arrange();
}

// Once it is known.
void Content::PlayPicture()
{
    if (!IsPictureShown() || m_player.HasFrames())
        return;
    auto pFrames = MakeFrames(m_picture.GetAtom(), m_pictures, [this] { m_player.OnArrived(); });
    if (!pFrames)
        return;
    const bool bFocused = ::GetFocus() == m_picture.GetSafeHwnd();
    m_picturePane.ShowView(m_player.GetSafeHwnd(), CMember::Of(m_picture.GetAtom())->ShownName(),
                           hostkit::GetPictogram(hostkit::Pictogram::ThumbnailPane, kPaneIconExtent));
    m_picture.ShowWindow(SW_HIDE);
    m_player.SetFrames(std::move(pFrames));
    m_player.TakeZoom(m_picture);
    m_player.TogglePlay();
    if (bFocused)
        m_player.SetFocus();
}

void Content::UpdatePlayer(IAtom* pAtom)
{
    if (m_pPlayed && (!pAtom || pAtom == m_pPlayed.Get()))
        m_player.Update();
}

void Content::TakeFocus()
{
    if (IsPictureShown() && m_player.HasFrames())
        m_player.SetFocus();
    else if (IsPictureShown())
        m_picture.SetFocus();
    else if (m_pList->IsWindowVisible())
        m_pList->SetFocus();
}

bool Content::FocusPlayer()
{
    if (!m_pPlayed || m_player.Client().IsRectEmpty() || ::GetFocus() == m_player.m_hWnd)
        return false;
    m_player.SetFocus();
    return true;
}

void Content::ShowList(ListKind kind)
{
    CEditorList& next = kind == ListKind::Icons ? static_cast<CEditorList&>(m_icons) : m_thumbnails;
    CEditorList& former = *m_pList;
    if (&next == &former)
        return;
    const CEditorList::State state = former.Remember();
    const bool bFocused = ::GetFocus() == former.GetSafeHwnd();
    m_pList = &next;
    m_listPane.SetChosen(static_cast<int>(kind));
    former.Deactivate();
    next.Activate(IsPictureShown() ? nullptr : CStubRef<IAtom>::From(m_askShown()).Get());
    next.RestoreRows(state);
    if (bFocused)
        next.SetFocus();
    m_pictures.SendAwayUnseen(former.PictureSize(), [](IAtom*) { return false; });
    m_changed();
}

void Content::SetThumbnailExtent(int nExtent)
{
    const CSize former = m_thumbnails.PictureSize();
    if (!m_thumbnails.SetPictureExtent(std::clamp(nExtent, kLeastThumbnail, kMostThumbnail)))
        return;
    m_pictures.SendAwayUnseen(former, [](IAtom*) { return false; });
    m_changed();
}

void Content::StepThumbnailExtent(int nSteps)
{
    constexpr int steps[] = {kLeastThumbnail, 96, kUsualThumbnail, 160, 192, 256, 320, 384, kMostThumbnail};
    const int nExtent = GetThumbnailExtent();
    const int* const pNext = nSteps > 0 ? std::ranges::upper_bound(steps, nExtent)
                                        : std::max(std::begin(steps) + 1, std::ranges::lower_bound(steps, nExtent)) - 1;
    SetThumbnailExtent(pNext == std::end(steps) ? nExtent : *pNext);
}

void Content::ShowPixels(bool bShow)
{
    m_pictures.SetEnlarging(bShow);
    m_thumbnails.ForgetPictures();
    m_picture.OnPictureArrived();
    m_player.SetEnlarging(bShow);
    m_changed();
}

void Content::SetOrder(UINT nOrder)
{
    m_icons.SetOrder(nOrder);
    m_thumbnails.SetOrder(nOrder);
}

void Content::SetFilter(const std::function<bool(IAtom* pAtom)>& isShown)
{
    m_icons.SetFilter(isShown);
    m_thumbnails.SetFilter(isShown);
}

void Content::ShowEmptyList()
{
    m_listPane.ShowView(m_pList->GetSafeHwnd(), {}, {});
}

void Content::ReloadList()
{
    if (!IsPictureShown())
        m_pList->Reload();
}

void Content::ShowPicture(CMember* pMember, bool bKeepFocus)
{
    HidePlayer();
    m_picture.SetAtom(pMember);
    m_picturePane.ShowView(m_picture.GetSafeHwnd(), pMember->ShownName(),
                           hostkit::GetPictogram(hostkit::Pictogram::ThumbnailPane, kPaneIconExtent));
    if (!bKeepFocus)
        m_picture.SetFocus();
    PlayPicture();
}

void Content::HidePicture()
{
    if (!IsPictureShown())
        return;
    HidePlayer();
    m_picture.SetAtom(nullptr);
    m_picturePane.HideView();
}

// What was scrolled past is not worth reading. The tree's pictures are few, and small: it wishes for them again.
void Content::ForgetUnseenPictures()
{
    if (m_pictures.IsIdle())
        return;
    const std::vector<CStubRef<IAtom>> seen = m_pList->AtomsInSight();
    m_pictures.SendAwayUnseen(m_pList->PictureSize(), [&](IAtom* pAtom) { return IsAmong(seen, pAtom); });
}

} // namespace editor
