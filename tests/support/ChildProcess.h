// Work done in a process of its own.
#pragma once

#include <sys/wait.h>
#include <unistd.h>

// What the work returns, as the exit status of a child that has nothing else to do; -1 where it has died.
template <class Work>
int InChild(Work work)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(work());
    int nStatus = 0;
    waitpid(child, &nStatus, 0);
    return WIFEXITED(nStatus) ? WEXITSTATUS(nStatus) : -1;
}
