#include "Editor/player/PlayerView.h"

#include "Editor/pictures/Enlarge.h"
#include "Editor/widgets/Look.h"
#include "HostKit/pictures/Pictograms.h"
#include "Toolkit/access/Accessible.h"
#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/Scale.h"

#include <algorithm>
#include <utility>

namespace editor
{
namespace
{

constexpr UINT_PTR kFrameTimer = 1;
constexpr UINT kUpdate = WM_USER;
constexpr int kBar = kPathBarHeight;
constexpr int kReadAhead = 4; // frames
constexpr int kBroken = 96;

} // namespace

BEGIN_MESSAGE_MAP(CPlayerView, CZoomView)
    ON_WM_SIZE()
    ON_WM_TIMER()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_MESSAGE(kUpdate, OnUpdate)
END_MESSAGE_MAP()

CPlayerView::CPlayerView(Events events)
    : CZoomView([this] { m_events.zoomed(); }, WS_CLIPCHILDREN),
      m_events(std::move(events)),
      m_tools([this] { return m_events.askTools(); }, [this](UINT nCommand) { m_events.use(nCommand); }),
      m_seekBar([this](int nFrame) { GoTo(nFrame); })
{}

BOOL CPlayerView::Create(CWnd* pParent)
{
    return CZoomView::Create(pParent) && m_tools.Create(this) && m_seekBar.Create(this) &&
           SetAccessibleName(m_tools.m_hWnd, "Player");
}

void CPlayerView::SetFrames(std::unique_ptr<Frames> pFrames)
{
    StopTimer();
    m_pFrames = std::move(pFrames);
    m_playback.Pause();
    m_playback.SetCount(0);
    m_zoom.Fit();
    m_shown = {};
    CountFrames();
}

void CPlayerView::Update()
{
    if (m_hWnd && !std::exchange(m_bUpdatePosted, true))
        PostMessage(kUpdate);
}

LRESULT CPlayerView::OnUpdate(WPARAM, LPARAM)
{
    m_bUpdatePosted = false;
    CountFrames();
    return 0;
}

void CPlayerView::CountFrames()
{
    m_playback.SetCount(m_pFrames ? m_pFrames->GetCount() : 0);
    m_playback.SetRepeats(m_pFrames ? m_pFrames->GetRepeats() : 1);
    ShowPresent();
}

void CPlayerView::OnArrived()
{
    if (m_pFrames && m_pFrames->GetCount() != m_playback.GetCount())
        return CountFrames(); // so many are known by now
    const bool bAwaited = std::exchange(m_bAwaited, false);
    if (m_bDue && Fetch(m_playback.Next()))
        Tick();
    else if (bAwaited && !m_bDue)
        ShowPresent();
}

std::string CPlayerView::AccDescription(LPARAM)
{
    if (m_playback.At() < 0)
        return {};
    return std::string(m_playback.IsPlaying() ? "playing, frame " : "frame ") + std::to_string(m_playback.At() + 1) +
           " of " + std::to_string(m_playback.GetCount());
}

CRect CPlayerView::View() const
{
    CRect stage = Client();
    stage.bottom = std::max(stage.top, stage.bottom - kBar);
    return stage;
}

CSize CPlayerView::Room() const
{
    CRect room = View();
    room.DeflateRect(kSpace, kSpace);
    return toolkit::ScreenScale().ToPixels(CSize(std::max(room.Width(), 0), std::max(room.Height(), 0)));
}

CSize CPlayerView::FullSize() const
{
    return m_pFrames && !m_shown.IsEmpty() ? m_pFrames->FullSizeOf(m_playback.At()) : CSize();
}

CSize CPlayerView::FittedSize() const
{
    return editor::FittedSize(FullSize(), Room(), m_bPixels);
}

void CPlayerView::OnZoomed()
{
    if (m_zoom.IsFit())
        m_shown = FittedTo(m_shown, Room(), m_bPixels);
    Fetch(m_playback.At());
}

bool CPlayerView::Fetch(int nFrame)
{
    if (!m_pFrames || nFrame < 0 || Room().cx == 0 || Room().cy == 0)
        return true; // there is nothing to wait for
    const PictureStore::Answer answer = m_pFrames->Find(nFrame, Wanted());
    m_bAwaited = !answer.pPicture && !answer.bFailed;
    if (m_bAwaited)
        return false;
    if (!answer.pPicture)
        m_shown = hostkit::GetPictogram(hostkit::Pictogram::BrokenPicture, kBroken);
    else
        m_shown = m_zoom.IsFit() ? FittedTo(*answer.pPicture, Room(), m_bPixels) : *answer.pPicture;
    m_shown.SetScale(toolkit::ScreenScale());
    const CRect stage = View();
    ::InvalidateRect(m_hWnd, &stage);
    return true;
}

void CPlayerView::ShowPresent()
{
    if (!m_hWnd)
        return;
    if (m_playback.At() < 0)
        m_shown = {};
    Fetch(m_playback.At());
    TellPlace();
    m_tools.Invalidate();
    Invalidate();
}

// The nearest is wished for last: it is read first.
void CPlayerView::ReadAhead()
{
    if (!m_pFrames || m_playback.GetCount() < 2)
        return;
    Playback ahead = m_playback;
    int next[kReadAhead];
    for (int& nFrame : next) {
        ahead.Advance();
        nFrame = ahead.At();
    }
    for (int i = kReadAhead - 1; i >= 0; --i)
        m_pFrames->Find(next[i], Wanted());
}

void CPlayerView::TogglePlay()
{
    if (m_playback.IsPlaying()) {
        m_playback.Pause();
        StopTimer();
    } else {
        m_playback.Play();
        ScheduleNext(true);
    }
    ShowPresent();
}

void CPlayerView::ScheduleNext(bool bFirst)
{
    m_bDue = false;
    if (!m_playback.IsPlaying())
        return;
    const DWORD dwNow = toolkit::CurrentDesktop().Ticks();
    const int nDelay = m_playback.Scaled(m_pFrames->DelayOf(m_playback.At()));
    const bool bLate = static_cast<int>(dwNow - m_dwDue) > nDelay; // a whole frame: nobody runs after that
    m_dwDue = (bFirst || bLate ? dwNow : m_dwDue) + static_cast<DWORD>(nDelay);
    SetTimer(kFrameTimer, static_cast<UINT>(std::max(1, static_cast<int>(m_dwDue - dwNow))));
    ReadAhead();
}

void CPlayerView::StopTimer()
{
    m_bDue = false;
    KillTimer(kFrameTimer);
}

void CPlayerView::OnTimer(UINT_PTR)
{
    KillTimer(kFrameTimer);
    m_bDue = m_playback.IsPlaying();
    if (m_bDue && Fetch(m_playback.Next()))
        Tick();
}

// The next frame is there, and shown.
void CPlayerView::Tick()
{
    m_playback.Advance();
    ScheduleNext(false);
    TellPlace();
    if (!m_playback.IsPlaying())
        m_tools.Invalidate();
}

void CPlayerView::Step(int nFrames)
{
    StopTimer();
    m_playback.Step(nFrames);
    ShowPresent();
}

void CPlayerView::GoTo(int nFrame)
{
    m_playback.GoTo(nFrame);
    ShowPresent();
}

void CPlayerView::Follow(int nFrame)
{
    if (m_pFrames && !m_playback.IsPlaying() && nFrame != m_playback.At())
        GoTo(nFrame);
}

void CPlayerView::ChangeSpeed(int nSteps)
{
    m_playback.ChangeSpeed(nSteps);
    ScheduleNext(true);
    TellPlace();
}

void CPlayerView::ToggleForEver()
{
    m_playback.SetForEver(!m_playback.IsForEver());
    m_tools.Invalidate();
}

void CPlayerView::ToggleTurnsBack()
{
    m_playback.SetTurnsBack(!m_playback.TurnsBack());
    m_tools.Invalidate();
}

// The tools ask a lot before they are drawn: not for each frame.
void CPlayerView::TellPlace()
{
    const int nAt = m_playback.At();
    std::string text;
    if (nAt >= 0)
        text = std::to_string(nAt + 1) + " of " + std::to_string(m_playback.GetCount()) + ", " +
               std::to_string(m_pFrames->DelayOf(nAt)) + " ms";
    if (nAt >= 0 && m_playback.GetSpeed() != 100)
        text += " at " + std::to_string(m_playback.GetSpeed()) + " %";
    m_seekBar.Show(nAt, m_playback.GetCount(), std::move(text));
}

void CPlayerView::SetEnlarging(bool bPixels)
{
    m_bPixels = bPixels;
    ShowPresent();
}

void CPlayerView::Draw(HDC hdc)
{
    CRect stage = View();
    if (::GetFocus() == m_hWnd)
        DrawFocusRect(hdc, stage);
    stage.DeflateRect(1, 1);
    if (m_shown.IsEmpty())
        return;
    IntersectClipRect(hdc, stage);
    if (m_zoom.IsFit() || FullSize() == CSize())
        DrawOnChecks(hdc, toolkit::Centred(m_shown.Size(), stage), m_shown);
    else
        DrawZoomed(hdc, m_shown);
}

void CPlayerView::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    const int nTools = std::min(CToolBar::WidthOf(m_events.askTools()), cx);
    m_tools.MoveWindow({0, View().bottom, nTools, cy});
    m_seekBar.MoveWindow({nTools, View().bottom, cx, cy});
    ShowPresent();
}

void CPlayerView::OnSetFocus(CWnd* pOldWnd)
{
    CWnd::OnSetFocus(pOldWnd);
    Invalidate();
}

void CPlayerView::OnKillFocus(CWnd* pNewWnd)
{
    CWnd::OnKillFocus(pNewWnd);
    Invalidate();
}

} // namespace editor
