// The kit's own atoms, written into archives and read out of them.
#include "HostKit/atoms/AtomEditor.h"
#include "HostKit/atoms/inside/AtomFormat.h"
#include "Toolkit/base/Exception.h"
#include "Views/host/IArchive.h"

#include <cstring>

namespace hostkit
{
namespace
{

// The stream's only bytes; false when there is no memory for them.
bool SetBytes(IArchive& archive, std::string_view bytes)
{
    archive.Seek(static_cast<DWORD>(bytes.size()), 0);
    archive.SetEnd();
    void* const pData = archive.GetData();
    if (pData)
        std::memcpy(pData, bytes.data(), bytes.size());
    return pData && archive.GetLength() == bytes.size();
}

std::string_view BytesOf(IArchive& archive)
{
    const DWORD dwLength = archive.GetLength();
    const void* const pData = archive.GetData();
    return pData ? std::string_view(static_cast<const char*>(pData), dwLength) : std::string_view();
}

} // namespace

BOOL CAtomEditor::WriteActiveObjects(IArchive* archive)
{
    if (!archive)
        return FALSE;
    try {
        const ActiveMembers members = GetActiveMembers(*this);
        std::string trouble = members.empty() ? "Nothing is selected" : "";
        const std::string bytes = members.empty() ? std::string() : AtomFormat::Write(members, trouble);
        if (!SetBytes(*archive, bytes) && trouble.empty())
            trouble = "There is no memory for these objects";
        return NoteArchiveError(std::move(trouble));
    } catch (CMemoryException& exception) {
        SetBytes(*archive, {});
        return NoteArchiveError(exception.GetErrorMessage());
    }
}

BOOL CAtomEditor::ReadArchive(ARCHIVEATOMPROC callback, IArchive* archive, void* context)
{
    if (!callback || !archive)
        return FALSE;
    try {
        std::string trouble;
        std::vector<CStubRef<CAtom>> atoms = AtomFormat::Read(BytesOf(*archive), trouble);
        if (!NoteArchiveError(std::move(trouble)))
            return FALSE;
        for (CStubRef<CAtom>& pAtom : atoms)
            if (!callback(context ? pAtom.Get() : pAtom.Detach(), context)) // without a context it is the callback's
                return FALSE;
        return TRUE;
    } catch (CMemoryException& exception) {
        return NoteArchiveError(exception.GetErrorMessage());
    }
}

} // namespace hostkit
