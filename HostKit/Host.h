// All that views ask a host for, ready at once.
#pragma once

#include "HostKit/Services.h"
#include "HostKit/atoms/AtomEditor.h"
#include "HostKit/pictures/Resources.h"

namespace hostkit
{

// Made after the desktop and before the first view, gone after the last one. One at a time.
//
//     toolkit::HeadlessDesktop desktop;       // or qtdesktop::QtDesktop
//     hostkit::Host host("Songs");
//     hostkit::CFrame frame(host.GetEditor());
//
// Whatever stands here may be done without: services, editor, resources and frame each work alone, beside a host's own.
class HOSTKIT_API Host
{
public:
    explicit Host(LPCSTR pszName); // of the program, as message boxes bear it
    // With an editor of the host's own.
    Host(LPCSTR pszName, std::unique_ptr<CAtomEditor> pEditor);
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    CAtomEditor& GetEditor() { return *m_pEditor; }
    CResourceModule& GetResources() { return m_resources; } // what is added counts from the next view on

private:
    CResourceModule m_resources;
    const std::unique_ptr<CAtomEditor> m_pEditor;
    const Services m_services;
};

} // namespace hostkit
