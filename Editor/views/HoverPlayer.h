// The thumbnail under the mouse moves.
#pragma once

#include "Editor/player/Frames.h"
#include "Editor/player/Playback.h"
#include "Toolkit/window/Wnd.h"

#include <functional>
#include <memory>

namespace editor
{

// For one list: only the row under the mouse plays, after the mouse has rested there for a moment. Without one there
// is no timer, and nothing is read.
class HoverPlayer
{
public:
    using MakeFrames = std::function<std::unique_ptr<Frames>(IAtom* pAtom, std::function<void()> arrived)>;
    struct Rows
    {
        std::function<CStubRef<IAtom>(int nRow)> askAtom;
        std::function<CSize()> askSize; // of a frame
        // Draws the row's thumbnail; false where it is not in sight.
        std::function<bool(int nRow, const PictureStore::Answer& frame)> draw;
        std::function<void(IAtom* pAtom)> restore; // it is to look as it usually does
    };

    HoverPlayer(CWnd& list, MakeFrames make, Rows rows) // the list is borrowed
        : m_list(list), m_make(std::move(make)), m_rows(std::move(rows))
    {}

    static constexpr UINT_PTR kTimer = 4711; // on the list
    void MoveTo(int nRow);                   // the mouse is there; -1: on none
    void Tick();

private:
    void Begin();
    void ShowNext();
    bool IsThere() const { return m_rows.askAtom(m_nRow).Get() == m_pAtom.Get(); }

    CWnd& m_list;
    const MakeFrames m_make;
    const Rows m_rows;
    int m_nRow = -1;
    CStubRef<IAtom> m_pAtom;
    std::unique_ptr<Frames> m_pFrames; // once it plays
    Playback m_playback;
    bool m_bAwaited = false; // the next frame is not there yet
};

} // namespace editor
