#include "Views/host/inside/AtomOrder.h"

#include "Views/host/IAtomContainer.h"
#include "Views/host/IPhase.h"
#include "Views/host/StubRef.h"
#include "Views/host/inside/ReadName.h"

#include <algorithm>
#include <limits>

namespace
{

int Difference(int a, int b)
{
    constexpr std::int64_t kMax = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::int64_t{a} - b, -kMax, kMax));
}

} // namespace

std::optional<int> views::CompareLinks(IAtom* a, IAtom* b)
{
    const auto pLinkA = CStubRef<IImageLink>::From(a);
    if (!pLinkA)
        return std::nullopt;
    const auto pLinkB = CStubRef<IImageLink>::From(b);
    const auto pAtomB = CStubRef<IAtom>::From(pLinkB.Get());
    CStubRef<IPhase> pPhase;
    if (!pAtomB || !pAtomB->GetContainer(pPhase.Receive(), IID_IPhase) || !pPhase)
        return std::nullopt;
    return Difference(pPhase->GetPosition(pLinkA.Get()), pPhase->GetPosition(pLinkB.Get()));
}

std::string_view views::RankOf(IAtom* pAtom, UINT nOrder)
{
    if (!(nOrder & MOF_CONTAINERSFIRST))
        return {};
    const bool bFirst = CStubRef<IAtomContainer>::From(pAtom) && !CStubRef<IPhase>::From(pAtom);
    return bFirst ? "\1" : "\2";
}

std::string views::AtomKey(IAtom* pAtom, const char* pszName, UINT nOrder)
{
    std::string key(RankOf(pAtom, nOrder));
    toolkit::AppendSortKey(key, pszName, TextOrderOf(nOrder));
    return key;
}

bool views::NameKeys::Add(IAtom* pAtom)
{
    auto dwLength = static_cast<DWORD>(AskNameLength(pAtom, &IAtom::GetName));
    if (m_buffer.size() <= dwLength)
        m_buffer.resize(std::size_t{dwLength} + 1);
    m_buffer[0] = '\0';
    m_buffer[dwLength] = '\0';
    if (!pAtom->GetName(m_buffer.data(), &dwLength))
        return false;
    m_keys.Add(m_buffer.data(), RankOf(pAtom, m_nOrder));
    return true;
}
