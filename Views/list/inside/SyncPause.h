// Inside the library.
#pragma once

#include "Toolkit/base/Types.h"

namespace views
{

// Has a view ignore the editor for as long as it lives. Afterwards the view reacts again, also when it did not before:
// an inner pause ends the outer one.
class SyncPause
{
public:
    explicit SyncPause(BOOL& bSync) : m_bSync(bSync) { m_bSync = FALSE; }
    ~SyncPause() { m_bSync = TRUE; }
    SyncPause(const SyncPause&) = delete;
    SyncPause& operator=(const SyncPause&) = delete;

private:
    BOOL& m_bSync;
};

} // namespace views
