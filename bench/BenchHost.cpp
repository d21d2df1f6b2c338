#include "bench/BenchHost.h"

#include "AtomLib/AtomLib.h"
#include "Toolkit/graphics/ImageList.h"

#include <algorithm>
#include <cstring>
#include <map>

namespace bench
{
namespace
{

HBITMAP IconBitmap(int icon, int extent)
{
    static std::map<std::pair<int, int>, HBITMAP> s_icons;
    HBITMAP& hIcon = s_icons[{icon, extent}];
    if (!hIcon) {
        toolkit::Surface picture({extent, extent});
        std::ranges::copy(MakeIcon(icon, extent), picture.Row(0));
        hIcon = CreateBitmapFromSurface(std::move(picture));
    }
    return hIcon;
}

template <class Interface>
void Give(Interface* p, void** out)
{
    static_cast<CStubBaseInterface*>(p)->AddRef();
    *out = p;
}

} // namespace

int Look::AddToImageList(HIMAGELIST hImageList, int nReplace)
{
    int cx = 0, cy = 0;
    if (!ImageList_GetIconSize(hImageList, &cx, &cy))
        return -1;
    const HBITMAP hIcon = IconBitmap(m_sample.icon, cx);
    if (nReplace < 0)
        return ImageList_Add(hImageList, hIcon, nullptr);
    return ImageList_Replace(hImageList, nReplace, hIcon, nullptr) ? nReplace : -1;
}

BOOL Look::Draw(HDC hdc, CRect& rect, DWORD, DWORD, UINT)
{
    if (!DrawThumbnailProportional(hdc, rect, IconBitmap(m_sample.icon, 48), nullptr, nullptr, nullptr))
        return FALSE;
    const CSize text = GetTextExtent(hdc, m_sample.Name());
    return TextOut(hdc, rect.left + (rect.Width() - text.cx) / 2, rect.bottom, m_sample.Name());
}

BOOL Look::GiveName(char* pBuffer, DWORD* pLength) const
{
    *pLength = m_sample.length + 1u;
    if (pBuffer)
        std::memcpy(pBuffer, m_sample.name, *pLength);
    return TRUE;
}

Atom::Atom(Container& container, const Sample& sample, unsigned number)
    : Look(sample), m_container(container), m_number(number)
{}

void Atom::GetInterface(DWORD id, void** out)
{
    *out = nullptr;
    if (id == IID_IAtom)
        Give(static_cast<IAtom*>(this), out);
    else if (id == IID_IAtomIcon)
        Give(static_cast<IAtomIcon*>(this), out);
    else if (id == IID_IAtomThumbnail)
        Give(static_cast<IAtomThumbnail*>(this), out);
}

BOOL Atom::GetContainer(void** ppOut, DWORD dwInterfaceId)
{
    m_container.GetInterface(dwInterfaceId, ppOut);
    return *ppOut != nullptr;
}

template <class Kind>
void Group<Kind>::GetInterface(DWORD id, void** out)
{
    *out = nullptr;
    if (id == IID_IAtom)
        Give(static_cast<IAtom*>(this), out);
    else if (id == IID_IAtomContainer)
        Give(static_cast<IAtomContainer*>(this), out);
    else if (id == IID_IAtomIcon)
        Give(static_cast<IAtomIcon*>(this), out);
    else if (id == IID_ICharacterLibrary)
        Give(static_cast<ICharacterLibrary*>(this), out);
}

template <class Kind>
BOOL Group<Kind>::GetContainer(void** ppOut, DWORD dwInterfaceId)
{
    *ppOut = nullptr;
    if (m_pOuter)
        static_cast<CStubBaseInterface*>(m_pOuter)->GetInterface(dwInterfaceId, ppOut);
    return *ppOut != nullptr;
}

template <class Kind>
void Group<Kind>::GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD dwInterfaceId)
{
    for (UINT i = 0; i < nCount; ++i) {
        ppOut[i] = nullptr;
        if (nFirst + i < m_members.size())
            m_members[nFirst + i]->GetInterface(dwInterfaceId, &ppOut[i]);
    }
}

template class Group<Atom>;
template class Group<Container>;

Container::Container(std::span<const Sample> members, const Sample& self, IAtom* pOuter) : Group(self, pOuter)
{
    m_members.reserve(members.size());
    for (const Sample& member : members)
        Append(member);
}

Atom& Container::Append(const Sample& sample)
{
    return *m_members.emplace_back(std::make_unique<Atom>(*this, sample, GetCount()));
}

Library::Library(std::span<const Sample> samples) : Group(samples[0], nullptr)
{
    const std::size_t nEach = (samples.size() - kContainers - 1) / kContainers;
    for (std::size_t i = 0; i < kContainers; ++i) {
        const auto members = samples.subspan(1 + kContainers + i * nEach, nEach);
        m_members.push_back(std::make_unique<Container>(members, samples[1 + i], this));
    }
}

void Announce(AEStateOperation operation, IAtom* pAtom, IAtomContainer* pContainer)
{
    CStubRef<IAtomEditor>::Adopt(GetAtomEditor())->NotifyHandlers(nullptr, operation, pAtom, pContainer, 0);
}

} // namespace bench
