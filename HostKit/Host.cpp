#include "HostKit/Host.h"

#include "Toolkit/menu/MessageBox.h"

namespace hostkit
{

Host::Host(LPCSTR pszName) : Host(pszName, std::make_unique<CAtomEditor>()) {}

Host::Host(LPCSTR pszName, std::unique_ptr<CAtomEditor> pEditor) : m_pEditor(std::move(pEditor)), m_services(*m_pEditor)
{
    AddDefaultResources(m_resources);
    m_resources.Join();
    AfxSetAppName(pszName);
}

Host::~Host()
{
    m_pEditor->ForgetAtoms();
}

} // namespace hostkit
