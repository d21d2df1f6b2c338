// The wait cursor.
#pragma once

#include "Toolkit/base/Types.h"

// Shows the wait cursor as long as one of them lives.
class TOOLKIT_API CWaitCursor
{
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;

    void Restore(); // shows it again, after a message box has shown another
};
