#include "Editor/app/EndSignals.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace editor
{
namespace
{

volatile std::sig_atomic_t g_nLast = 0;
volatile int g_nWriting = -1;

void Note(int nSignal)
{
    const int former = errno;
    g_nLast = nSignal;
    [[maybe_unused]] const ssize_t done = write(g_nWriting, "", 1);
    errno = former;
}

void Catch(int nSignal)
{
    struct sigaction former, action = {};
    if (sigaction(nSignal, nullptr, &former) != 0 || former.sa_handler == SIG_IGN)
        return;
    action.sa_handler = &Note;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigaction(nSignal, &action, nullptr);
}

} // namespace

EndSignals::EndSignals()
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) == 0) {
        m_nHandle = ends[0];
        g_nWriting = ends[1];
    }
    Catch(SIGHUP);
    Catch(SIGINT);
    Catch(SIGTERM);
}

int EndSignals::GetLast() const
{
    return g_nLast;
}

} // namespace editor
