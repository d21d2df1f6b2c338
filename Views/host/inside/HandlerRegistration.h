// Inside the library.
#pragma once

#include "Toolkit/base/Types.h"

#include <optional>

class IAEStateHandler;
class IAtomEditor;

namespace views
{

// A view's place among the editor's handlers, while its window lives.
class HandlerRegistration
{
public:
    // False when the window went while the editor was told: the handler is not registered then.
    bool Begin(IAtomEditor* pEditor, HWND hWnd, IAEStateHandler* pHandler);
    // Does nothing without a registration; without an editor there is none any more.
    void End();

private:
    std::optional<DWORD> m_cookie;
};

} // namespace views
