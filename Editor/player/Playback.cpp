#include "Editor/player/Playback.h"

#include <algorithm>
#include <iterator>

namespace editor
{
namespace
{

constexpr int kSpeeds[] = {25, 50, 100, 200, 400}; // per cent
constexpr int kShortest = 10;                      // milliseconds; nobody sees more

} // namespace

void Playback::SetCount(int nCount)
{
    m_nCount = std::max(nCount, 0);
    m_nAt = m_nCount == 0 ? -1 : std::clamp(m_nAt, 0, m_nCount - 1);
    m_bPlaying = m_bPlaying && m_nCount > 0;
}

void Playback::SetRepeats(int nRepeats)
{
    m_nRepeats = std::max(nRepeats, 0);
}

void Playback::Play()
{
    if (m_nCount == 0)
        return;
    if (Next() < 0) {
        m_nAt = 0;
        m_bBackwards = false;
    }
    m_nRounds = 0;
    m_bPlaying = m_nCount > 1;
}

void Playback::GoTo(int nFrame)
{
    if (m_nCount > 0)
        m_nAt = std::clamp(nFrame, 0, m_nCount - 1);
}

void Playback::Step(int nFrames)
{
    Pause();
    if (m_nCount > 0)
        m_nAt = ((m_nAt + nFrames) % m_nCount + m_nCount) % m_nCount;
}

// To and fro a round ends where it began.
bool Playback::EndsRound() const
{
    return m_bTurnsBack ? m_bBackwards && m_nAt == 0 : m_nAt == m_nCount - 1;
}

int Playback::Next() const
{
    if (m_nCount == 0)
        return -1;
    if (EndsRound() && !m_bForEver && m_nRepeats > 0 && m_nRounds + 1 >= m_nRepeats)
        return -1;
    if (!m_bTurnsBack)
        return (m_nAt + 1) % m_nCount;
    const bool bTurns = m_bBackwards ? m_nAt == 0 : m_nAt == m_nCount - 1;
    return std::clamp(m_nAt + (m_bBackwards != bTurns ? -1 : 1), 0, m_nCount - 1);
}

void Playback::Advance()
{
    const int nNext = Next();
    if (nNext < 0)
        return Pause();
    m_nRounds += EndsRound() ? 1 : 0;
    if (m_bTurnsBack && nNext != m_nAt)
        m_bBackwards = nNext < m_nAt;
    m_nAt = nNext;
}

void Playback::SetTurnsBack(bool bOn)
{
    m_bTurnsBack = bOn;
    m_bBackwards = false;
}

int Playback::GetSpeed() const
{
    return kSpeeds[m_nSpeed];
}

void Playback::ChangeSpeed(int nSteps)
{
    m_nSpeed = std::clamp(m_nSpeed + nSteps, 0, static_cast<int>(std::size(kSpeeds)) - 1);
}

int Playback::Scaled(int nDelay) const
{
    return std::max(kShortest, nDelay * 100 / GetSpeed());
}

} // namespace editor
