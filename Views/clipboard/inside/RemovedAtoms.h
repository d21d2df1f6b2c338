// Inside the library: taking the active atoms out of their containers.
#pragma once

#include "Views/host/IAtomContainer.h"
#include "Views/host/StubRef.h"

#include <vector>

class IArchive;
class IAtomEditor;

namespace views
{

// What one removal has taken out so far, and the way back.
class RemovedAtoms
{
public:
    RemovedAtoms() = default;
    RemovedAtoms(const RemovedAtoms&) = delete;
    RemovedAtoms& operator=(const RemovedAtoms&) = delete;

    // Removes all active atoms that may go. FALSE when one of them stays.
    BOOL RemoveActive(IAtomEditor* pEditor);
    // Tells every view that members of the first container that lost some are gone; nothing when none did.
    void Announce(IAtomEditor* pEditor) const;
    // Adds the removed ones again, from the archive that the active atoms were written into before: under their own
    // names or, where that is refused, under valid ones. Every view is told first of each container that lost some,
    // then of each that is back. Errors are reported; what can come back does.
    void PutBack(IAtomEditor* pEditor, IArchive* pArchive);

private:
    static BOOL RemoveObjectFn(IAtom* pAtom, IAtomContainer* pContainer, void* pContext);
    static BOOL PutBackFn(IAtom* pAtom, void* pContext);
    bool AddPlace();

    // For each active atom in turn the container that it was removed from; empty for one that stayed.
    std::vector<CStubRef<IAtomContainer>> m_containers;
    std::size_t m_nRead = 0; // atoms that came back from the archive
};

} // namespace views
