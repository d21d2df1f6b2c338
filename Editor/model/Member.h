// What all atoms of a library have in common.
#pragma once

#include "Editor/model/MemberTable.h"
#include "HostKit/base/Counted.h"
#include "Toolkit/graphics/Surface.h"
#include "Views/host/host.h"

#include <string>

namespace editor
{

class CContainer;
struct LibraryContext;

// An atom in its place in a container, which it keeps alive; the library itself has none. It knows its index and
// no more: name and identifier stand in the container.
//
// A member whose file has gone stays what it was for those who hold it; its container does not know it any more.
class CMember : public hostkit::With<hostkit::Counted, IAtom, IAtomIcon>
{
public:
    // The editor's own side of an atom, borrowed; NULL for NULL and for a foreign one.
    static CMember* Of(IAtom* pAtom) { return dynamic_cast<CMember*>(pAtom); }

    CContainer* Container() const { return m_pContainer.Get(); } // borrowed; NULL for the library
    virtual std::string_view Name() const;                       // any bytes; valid until the container is read anew
    std::string ShownName() const;                               // valid UTF-8 in one line
    virtual std::string Path() const;                            // on disk
    std::string PathInLibrary() const;       // from the library on; empty for the library, and for what lies outside
    virtual LibraryContext& Context() const; // the whole library's
    virtual std::string ErrorReason() const { return {}; } // what is wrong with it; empty when nothing is known
    std::string ErrorLine() const;                         // the name to it; empty without a reason

    void GetInterface(DWORD id, void** out) override;

    DWORD GetID() override;
    BOOL GetName(char* pBuffer, DWORD* pLength) override;
    BOOL GetContainer(void** ppOut, DWORD dwInterfaceId) override;
    BOOL IsModified() override { return FALSE; }

    BOOL GetIcon(ICONREQUEST* pRequest) override;
    int AddToImageList(HIMAGELIST hImageList, int nReplace) override;

protected:
    CMember(CContainer* pContainer, UINT nIndex); // with one reference
    ~CMember() override;

    virtual std::string LastErrorLine() const { return ErrorLine(); } // what IMyErrorInfo tells
    virtual toolkit::Surface DrawIcon(CSize size) = 0;
    MemberKind KindOfName(std::string_view name) const; // as what a file of that name is shown
    UINT Index() const { return m_nIndex; }

private:
    friend class CContainer; // moves its members when it is read anew

    const CStubRef<CContainer> m_pContainer;
    UINT m_nIndex; // MemberTable::kNone when the file has gone
};

} // namespace editor
