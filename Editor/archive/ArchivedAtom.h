// An object that has been read from an archive: what a container is asked to take.
#pragma once

#include "Editor/archive/ArchiveFormat.h"
#include "HostKit/base/ErrorInfo.h"
#include "HostKit/base/Names.h"
#include "Views/host/host.h"

#include <string>

namespace editor
{

// In no container, with nothing but a name. It keeps its archive alive, and is good for as long as the archive's bytes
// stay as they are.
class CArchivedAtom final : public hostkit::With<hostkit::Counted, IAtom>
{
public:
    CArchivedAtom(IArchive* pArchive, const ArchiveRecord& record)
        : m_pArchive(CStubRef<IArchive>::Share(pArchive)), m_record(record)
    {}

    // The object behind an atom, borrowed; NULL for one that was not read from an archive.
    static CArchivedAtom* Of(IAtom* pAtom) { return dynamic_cast<CArchivedAtom*>(pAtom); }

    const ArchiveRecord& Record() const { return m_record; }
    const std::string& Failure() const { return m_failure; } // why no container took it; empty when one did
    void SetFailure(std::string line) { m_failure = std::move(line); }

    void GetInterface(DWORD id, void** out) override
    {
        Counted::GetInterface(id, out);
        if (!*out && id == IID_IMyErrorInfo && !m_failure.empty())
            *out = hostkit::CErrorInfo::Make(m_failure).Detach();
    }

    DWORD GetID() override { return 0; }
    BOOL GetName(char* pBuffer, DWORD* pLength) override { return hostkit::GiveName(m_record.name, pBuffer, pLength); }
    BOOL GetContainer(void** ppOut, DWORD) override
    {
        if (ppOut)
            *ppOut = nullptr;
        return FALSE;
    }
    BOOL IsModified() override { return FALSE; }

private:
    const CStubRef<IArchive> m_pArchive;
    const ArchiveRecord m_record;
    std::string m_failure;
};

} // namespace editor
