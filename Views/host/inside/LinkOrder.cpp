#include "Views/host/inside/LinkOrder.h"

#include "Views/host/IAtom.h"
#include "Views/host/IPhase.h"
#include "Views/host/StubRef.h"

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
