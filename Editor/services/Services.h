// The services that the views call by name, installed in the kernel for as long as the object lives.
#pragma once

#include "Editor/services/AtomEditor.h"
#include "Kernel/Kernel.h"

namespace editor
{

// Besides, "ConstructMemoryStream" and the class "CArchiveImp". Errors are shown in a message box: the caption, and the
// error's line.
class Services
{
public:
    explicit Services(CAtomEditor& editor); // borrowed
    ~Services();
    Services(const Services&) = delete;
    Services& operator=(const Services&) = delete;

private:
    struct EditorProvider : SERVICEPROVIDER
    {
        CAtomEditor* pEditor;
    };
    static BOOL GiveEditor(SERVICEPROVIDER* pProvider, void* pBuffer, DWORD dwSize, DWORD dwExtra);
    static BOOL GiveMemoryStream(SERVICEPROVIDER* pProvider, void* pBuffer, DWORD dwSize, DWORD dwExtra);
    static BOOL ShowError(SERVICEPROVIDER* pProvider, void* pBuffer, DWORD dwSize, DWORD dwExtra);

    EditorProvider m_editor;
    SERVICEPROVIDER m_errors;
    SERVICEPROVIDER m_streams;
};

} // namespace editor
