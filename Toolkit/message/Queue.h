// The message queue, as the rest of the window layer sees it.
#pragma once

#include "Toolkit/message/Messages.h"

#include <functional>

namespace toolkit
{

class Desktop;

void RequestRun(); // something was queued or noted: the desktop is asked, once, to have the queue run
// Asks the desktop for what the queue needs from now on. Before control goes to a loop of the desktop's own.
void UpdateWake();

bool RunOnePosted();
int CountPosted(); // to windows that are alive, and tasks
void DropTasks();  // the desktop goes

// Tasks may come from any thread as long as a desktop is accepted; NULL accepts no more.
void AcceptTasks(Desktop* pDesktop);

} // namespace toolkit
