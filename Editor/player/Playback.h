// Which frame is shown, and which comes next.
#pragma once

namespace editor
{

// Knows neither pictures nor a clock. Frames count from 0; without frames it is at -1 and does not play.
class Playback
{
public:
    void SetCount(int nCount);     // keeps the frame as far as it is there
    void SetRepeats(int nRepeats); // so often all frames are played, unless for ever; 0: without an end
    int At() const { return m_nAt; }
    int GetCount() const { return m_nCount; }
    bool IsPlaying() const { return m_bPlaying; }

    void Play(); // from the first frame, where the last has been played
    void Pause() { m_bPlaying = false; }
    void GoTo(int nFrame);
    void Step(int nFrames); // round the ends, and playing ends
    int Next() const;       // the frame that follows when it plays; -1: it ends with this one
    void Advance();         // to that

    bool IsForEver() const { return m_bForEver; }
    void SetForEver(bool bOn) { m_bForEver = bOn; }
    bool TurnsBack() const { return m_bTurnsBack; } // at the ends, instead of beginning anew
    void SetTurnsBack(bool bOn);

    int GetSpeed() const; // per cent
    void ChangeSpeed(int nSteps);
    int Scaled(int nDelay) const; // milliseconds, at this speed

private:
    bool EndsRound() const; // is the last frame of a round shown?

    int m_nCount = 0, m_nAt = -1;
    int m_nRepeats = 1, m_nRounds = 0; // played so far
    bool m_bPlaying = false, m_bForEver = true, m_bTurnsBack = false, m_bBackwards = false;
    int m_nSpeed = 2; // its place among the speeds
};

} // namespace editor
