// A part of a host that hears and is asked what the views do.
#pragma once

#include "HostKit/base/Api.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/StateHandler.h"

namespace hostkit
{

// Registered for as long as it lives. Override what matters (Views/host/IAEStateHandler.h); all else agrees. Of tops of
// hierarchies that are there already it is not told.
class HOSTKIT_API CHandler : public CStateHandler
{
public:
    explicit CHandler(IAtomEditor& editor) // borrowed
        : m_editor(editor), m_dwCookie(editor.RegisterHandler(nullptr, this))
    {}
    virtual ~CHandler() { m_editor.UnregisterHandler(m_dwCookie); }
    CHandler(const CHandler&) = delete;
    CHandler& operator=(const CHandler&) = delete;

private:
    IAtomEditor& m_editor;
    const DWORD m_dwCookie;
};

} // namespace hostkit
