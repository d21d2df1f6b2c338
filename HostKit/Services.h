// The services that the views call by name, installed in the kernel for as long as the object lives.
#pragma once

#include "HostKit/base/Api.h"
#include "Kernel/Kernel.h"

class IAtomEditor;

namespace hostkit
{

// The atom editor, memory streams, archives, and errors, which are shown in a message box: the caption, and the error's
// line. A host that puts a provider of its own in a service's place does so afterwards.
class HOSTKIT_API Services
{
public:
    explicit Services(IAtomEditor& editor); // borrowed
    ~Services();
    Services(const Services&) = delete;
    Services& operator=(const Services&) = delete;

private:
    struct EditorProvider : SERVICEPROVIDER
    {
        IAtomEditor* pEditor;
    };
    static BOOL GiveEditor(SERVICEPROVIDER* pProvider, void* pBuffer, DWORD dwSize, DWORD dwExtra);
    static BOOL GiveMemoryStream(SERVICEPROVIDER* pProvider, void* pBuffer, DWORD dwSize, DWORD dwExtra);
    static BOOL ShowError(SERVICEPROVIDER* pProvider, void* pBuffer, DWORD dwSize, DWORD dwExtra);

    EditorProvider m_editor;
    SERVICEPROVIDER m_errors;
    SERVICEPROVIDER m_streams;
};

} // namespace hostkit
