#include "HostKit/atoms/Handler.h"

namespace hostkit
{

CHandler::CHandler(IAtomEditor& editor) : m_editor(editor), m_dwCookie(editor.RegisterHandler(nullptr, this)) {}

CHandler::~CHandler()
{
    m_editor.UnregisterHandler(m_dwCookie);
}

} // namespace hostkit
