// The signals that ask a program to end: SIGHUP, SIGINT and SIGTERM.
#pragma once

namespace editor
{

// Notes them, so that the program can end in order and put away what it keeps outside itself: the file of what it has
// on the clipboard. The same one once more ends it at once. Those that were ignored when the program was started stay
// so. What the system is waiting for is interrupted. One object in a program.
class EndSignals
{
public:
    EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

    int GetLast() const;                        // 0: none came
    int GetHandle() const { return m_nHandle; } // can be read from as soon as one came; -1: none to be had

private:
    int m_nHandle = -1;
};

} // namespace editor
