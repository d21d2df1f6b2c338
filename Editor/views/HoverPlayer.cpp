#include "Editor/views/HoverPlayer.h"

namespace editor
{
namespace
{

constexpr UINT kRest = 250; // milliseconds

} // namespace

void HoverPlayer::MoveTo(int nRow)
{
    if (nRow == m_nRow && (nRow < 0 || IsThere()))
        return;
    m_list.KillTimer(kTimer);
    const bool bPlayed = std::exchange(m_pFrames, nullptr) != nullptr;
    const CStubRef<IAtom> pFormer = std::move(m_pAtom);
    m_nRow = nRow;
    m_bAwaited = false;
    if (nRow >= 0)
        m_pAtom = m_rows.askAtom(nRow);
    if (m_pAtom)
        m_list.SetTimer(kTimer, kRest);
    if (bPlayed)
        m_rows.restore(pFormer.Get());
}

void HoverPlayer::Tick()
{
    m_list.KillTimer(kTimer);
    if (!m_pAtom || !IsThere())
        return MoveTo(-1);
    if (m_pFrames)
        ShowNext();
    else
        Begin();
}

void HoverPlayer::Begin()
{
    m_pFrames = m_make(m_pAtom.Get(), [this] {
        if (std::exchange(m_bAwaited, false))
            Tick();
    });
    m_playback = {};
    m_playback.SetCount(m_pFrames ? m_pFrames->GetCount() : 0);
    m_playback.Play();
    if (!m_playback.IsPlaying())
        m_pFrames.reset();
    else
        m_list.SetTimer(kTimer, static_cast<UINT>(m_playback.Scaled(m_pFrames->DelayOf(0))));
}

void HoverPlayer::ShowNext()
{
    m_playback.SetCount(m_pFrames->GetCount());
    const int nFrame = m_playback.Next();
    if (nFrame < 0)
        return;
    const PictureStore::Answer answer = m_pFrames->Find(nFrame, m_rows.askSize());
    m_bAwaited = !answer.pPicture && !answer.bFailed;
    if (m_bAwaited)
        return;
    if (!m_rows.draw(m_nRow, answer))
        return MoveTo(-1);
    m_playback.Advance();
    m_list.SetTimer(kTimer, static_cast<UINT>(m_playback.Scaled(m_pFrames->DelayOf(nFrame))));
}

} // namespace editor
