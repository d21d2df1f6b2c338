#include "Editor/model/Member.h"

#include "Editor/disk/FileText.h"
#include "Editor/model/Container.h"
#include "Editor/model/LibraryContext.h"
#include "HostKit/base/ErrorInfo.h"
#include "HostKit/base/Names.h"
#include "Toolkit/graphics/ImageList.h"

#include <algorithm>

namespace editor
{
namespace
{

std::string Join(std::string folder, std::string_view name)
{
    if (!folder.ends_with('/'))
        folder += '/';
    return folder += name;
}

// The name to show of an atom whose own name cannot be shown as it is. An interface of the atom that it belongs to,
// made when it is asked for: most names need none.
class CDisplayName final : public hostkit::Counted, public IDispAtom
{
public:
    explicit CDisplayName(CMember* pMember)
        : m_pMember(CStubRef<CMember>::Share(pMember)), m_shown(pMember->ShownName())
    {}

    void GetInterface(DWORD id, void** out) override
    {
        if (id != IID_IDispAtom)
            return m_pMember->GetInterface(id, out);
        *out = static_cast<IDispAtom*>(this);
        AddRef();
    }

    BOOL GetDisplayName(char* pBuffer, DWORD* pLength) override { return hostkit::GiveName(m_shown, pBuffer, pLength); }

private:
    const CStubRef<CMember> m_pMember;
    const std::string m_shown;
};

} // namespace

CMember::CMember(CContainer* pContainer, UINT nIndex)
    : m_pContainer(CStubRef<CContainer>::Share(pContainer)), m_nIndex(nIndex)
{}

CMember::~CMember()
{
    if (m_pContainer)
        m_pContainer->Forget(*this);
}

std::string_view CMember::Name() const
{
    return m_pContainer->NameOf(*this);
}

std::string CMember::ShownName() const
{
    return ToShown(Name());
}

std::string CMember::Path() const
{
    return Join(m_pContainer->Path(), Name());
}

std::string CMember::PathInLibrary() const
{
    const std::string path = Path();
    const std::string inside = Join(Context().rootPath, {});
    return path.starts_with(inside) ? path.substr(inside.size()) : std::string();
}

std::string CMember::ErrorLine() const
{
    const std::string reason = ErrorReason();
    return reason.empty() ? reason : ShownName() + ": " + reason;
}

void CMember::GetInterface(DWORD id, void** out)
{
    Counted::GetInterface(id, out);
    if (*out)
        return;
    if (id == IID_IDispAtom && !IsShownAsItIs(Name()))
        *out = static_cast<IDispAtom*>(new CDisplayName(this));
    else if (id == IID_IMyErrorInfo)
        if (std::string line = LastErrorLine(); !line.empty())
            *out = hostkit::CErrorInfo::Make(std::move(line)).Detach();
}

LibraryContext& CMember::Context() const
{
    return static_cast<const CMember*>(m_pContainer.Get())->Context();
}

MemberKind CMember::KindOfName(std::string_view name) const
{
    const std::string extension = ExtensionOf(name);
    const std::vector<std::string>& pictures = Context().pictureExtensions;
    if (extension == "phase")
        return MemberKind::Phase;
    return std::binary_search(pictures.begin(), pictures.end(), extension) ? MemberKind::Picture : MemberKind::File;
}

DWORD CMember::GetID()
{
    return m_pContainer ? m_pContainer->IdOf(*this) : 0;
}

BOOL CMember::GetName(char* pBuffer, DWORD* pLength)
{
    return hostkit::GiveName(Name(), pBuffer, pLength);
}

BOOL CMember::GetContainer(void** ppOut, DWORD dwInterfaceId)
{
    if (!ppOut)
        return FALSE;
    *ppOut = nullptr;
    if (m_pContainer)
        m_pContainer->GetInterface(dwInterfaceId, ppOut);
    return *ppOut != nullptr;
}

BOOL CMember::GetIcon(ICONREQUEST* pRequest)
{
    if (!pRequest || pRequest->cx <= 0 || pRequest->cy <= 0)
        return FALSE;
    pRequest->hIcon = CreateIconFromSurface(DrawIcon({pRequest->cx, pRequest->cy}));
    return pRequest->hIcon != nullptr;
}

int CMember::AddToImageList(HIMAGELIST hImageList, int nReplace)
{
    int cx = 0, cy = 0;
    if (!ImageList_GetIconSize(hImageList, &cx, &cy))
        return -1;
    const std::unique_ptr<HICON__, decltype(&DestroyIcon)> hIcon(CreateIconFromSurface(DrawIcon({cx, cy})),
                                                                 &DestroyIcon);
    return ImageList_ReplaceIcon(hImageList, nReplace, hIcon.get());
}

} // namespace editor
