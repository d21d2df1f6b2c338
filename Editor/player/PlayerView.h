// Plays what moves: a picture pane with buttons below it.
#pragma once

#include "Editor/player/Frames.h"
#include "Editor/player/Playback.h"
#include "Editor/player/SeekBar.h"
#include "Editor/widgets/ToolBar.h"
#include "Editor/widgets/ZoomView.h"
#include "Toolkit/access/Accessible.h"

#include <memory>

namespace editor
{

// Driven by a timer. A frame that has not been read yet is waited for, with the one before it in sight; the next few
// are read ahead. Small pictures are enlarged as they are elsewhere. While it is zoomed, frames are read as they are.
class CPlayerView : public CZoomView, public toolkit::Accessible
{
public:
    struct Events
    {
        std::function<std::vector<Tool>()> askTools;
        std::function<void(UINT nCommand)> use;
        std::function<void()> zoomed{};
    };
    explicit CPlayerView(Events events);
    ~CPlayerView() override { DestroyWindow(); }

    BOOL Create(CWnd* pParent);
    // Stands still at the first, as it fits; NULL: there is nothing to play.
    void SetFrames(std::unique_ptr<Frames> pFrames);
    bool HasFrames() const { return m_pFrames != nullptr; }
    void OnArrived(); // a frame's picture has come
    void Update();    // the frames may be others now: looked at once, however often it is called

    const Playback& GetPlayback() const { return m_playback; }
    void TogglePlay();
    void Step(int nFrames);
    void GoTo(int nFrame);   // goes on playing there
    void Follow(int nFrame); // the same, unless it plays
    void ChangeSpeed(int nSteps);
    void ToggleForEver();
    void ToggleTurnsBack();
    void SetEnlarging(bool bPixels); // small pictures: each pixel to a square?

    const toolkit::Surface& GetShown() const { return m_shown; } // as it fits, or its own pixels; empty: there is none
    CSeekBar& GetSeekBar() { return m_seekBar; }
    CToolBar& GetTools() { return m_tools; }

    UINT AccRole(LPARAM) override { return ROLE_SYSTEM_GRAPHIC; }
    std::string AccDescription(LPARAM) override;

protected:
    CRect View() const override; // all but the bar
    CSize FullSize() const override;
    CSize FittedSize() const override;
    void OnZoomed() override;

    void Erase(HDC hdc) override { FillSolidRect(hdc, View(), CalmColor()); }
    void Draw(HDC hdc) override;
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg LRESULT OnUpdate(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void CountFrames();
    CSize Room() const;
    CSize Wanted() const { return m_zoom.IsFit() ? Room() : CSize(kMostRead, kMostRead); }
    bool Fetch(int nFrame); // shows it; false: it is not there yet
    void ShowPresent();
    void ReadAhead();
    void Tick();
    void ScheduleNext(bool bFirst);
    void StopTimer();
    void TellPlace();

    const Events m_events;
    CToolBar m_tools;
    CSeekBar m_seekBar;
    std::unique_ptr<Frames> m_pFrames;
    Playback m_playback;
    toolkit::Surface m_shown;
    bool m_bPixels = false;
    bool m_bUpdatePosted = false;
    bool m_bAwaited = false; // the frame that is to be shown is not there yet
    bool m_bDue = false;     // the next frame's time has come
    DWORD m_dwDue = 0;       // when the next frame is
};

} // namespace editor
