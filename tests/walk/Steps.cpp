#include "tests/walk/Steps.h"

#include <algorithm>
#include <cstdio>
#include <numeric>

namespace
{

std::uint64_t Mix(std::uint64_t x)
{
    x += 0x9E3779B97F4A7C15u;
    x = (x ^ x >> 30) * 0xBF58476D1CE4E5B9u;
    x = (x ^ x >> 27) * 0x94D049BB133111EBu;
    return x ^ x >> 31;
}

const StepKinds& Kinds()
{
    static const StepKinds s_kinds = [] {
        StepKinds kinds = UserSteps();
        kinds.insert(kinds.end(), HostSteps().begin(), HostSteps().end());
        return kinds;
    }();
    return s_kinds;
}

} // namespace

Step MakeStep(std::uint64_t seed, int number)
{
    const std::uint64_t bits = Mix(Mix(seed) + static_cast<std::uint64_t>(number)), more = Mix(bits);
    static const unsigned s_nAll = std::accumulate(Kinds().begin(), Kinds().end(), 0u,
                                                   [](unsigned n, const StepKind& kind) { return n + kind.nOften; });
    auto n = static_cast<unsigned>(bits % s_nAll);
    std::size_t kind = 0;
    while (n >= Kinds()[kind].nOften)
        n -= Kinds()[kind++].nOften;
    const auto part = [more](int nth) { return static_cast<unsigned>(more >> 16 * nth & 0xFFFF); };
    return {kind, part(0), part(1), part(2), part(3), bits >> 60 < 12};
}

// At once: the next word may be the last.
void Walker::Say(const std::string& text) const
{
    if (m_bTells)
        std::printf(" %s", text.c_str()), std::fflush(stdout);
}

std::string Walker::Do(const Step& step)
{
    Say(Kinds()[step.kind].pszName);
    scene.model.SetTime(scene.desktop.Ticks());
    HeedField();
    Kinds()[step.kind].perform(*this, step);
    scene.desktop.Run();
    const bool bFollows = Follows();
    std::string fault = Check(scene, bFollows, step.pixels);
    if (fault.empty() && !bFollows && --m_nAstray == 0) {
        scene.Settle();
        SetRude(false);
        Say("(and all settles)");
        fault = Check(scene, true, step.pixels);
    }
    return fault;
}

// Where the focus cannot leave a label's field the field takes it along when it goes.
void Walker::HeedField()
{
    const Host& host = scene.host;
    if (scene.model.IsEditing() && (host.MayVeto(Op::Selecting) || (host.MayVeto(Op::PreSave) && host.active)))
        GoAstray(0);
}

void Walker::GoAstray(unsigned nSteps)
{
    m_nAstray = std::max(m_nAstray, static_cast<int>(nSteps) + 1);
}

void Walker::SetRude(bool bRude)
{
    for (const int view : {kIcons, kThumbs})
        scene.List(view).cache.isRude = bRude;
}

Atom* Walker::PickContainer(unsigned n) const
{
    const auto containers = scene.host.Containers();
    return containers[n % containers.size()];
}

Atom* Walker::PickAtom(unsigned n) const
{
    const Atom* const pIn = PickContainer(n);
    return pIn->members.empty() ? scene.host.pWorld.Get() : pIn->members[n / 16 % pIn->members.size()].Get();
}

Atom* Walker::NewAtom(unsigned n)
{
    static constexpr const char* kNames[] = {"a", "B", "b", "c", "dd", "e", "A", "z", "Mm", "a longer name", "x"};
    const auto name = [](unsigned nth) { return kNames[nth % std::size(kNames)]; };
    const Kind kind = n / 64 % 12 == 0 ? Kind::Container : Kind::Plain;
    Atom* const pNew = scene.host.New(name(n), kind);
    pNew->hasIcon = n / 16 % 3 != 0;
    pNew->nFrames = n / 32 % 8 == 0 ? 2 : 0;
    pNew->position = static_cast<int>(n % 7);
    if (n / 128 % 6 == 0)
        pNew->displayName = name(n / 7);
    for (unsigned i = 0; kind == Kind::Container && i < n % 4; ++i)
        pNew->Add(scene.host.New(name(n + i)));
    return pNew;
}

CPoint Walker::PickPoint(int view, unsigned n, unsigned m)
{
    CRect client, rect;
    scene.At(view).Wnd().GetClientRect(&client);
    const CPoint anywhere(static_cast<int>(n) % std::max<int>(client.Width(), 1),
                          static_cast<int>(m) % std::max<int>(client.Height(), 1));
    if (m % 5 == 0)
        return anywhere;
    bool bFound = false;
    if (view < kTree) {
        const CListCtrl& list = scene.List(view).List();
        bFound = list.GetItemRect(list.GetTopIndex() + static_cast<int>(n % 8), &rect, m % 3 ? LVIR_ICON : LVIR_LABEL);
    } else {
        TreeView& tree = scene.Tree(view);
        HTREEITEM hItem = tree.GetFirstVisibleItem();
        for (unsigned i = 0; hItem && i < n % 8; ++i)
            hItem = tree.GetNextVisibleItem(hItem);
        bFound = hItem && tree.GetItemRect(hItem, &rect, TRUE);
        if (bFound && m % 4 == 0)
            rect.OffsetRect(-static_cast<int>(n / 8 % 40), 0); // picture or button
    }
    const CPoint at = rect.CenterPoint();
    return bFound && client.PtInRect(at) ? at : anywhere;
}

void Walker::LetTimePass(DWORD nMilliseconds)
{
    scene.desktop.Advance(nMilliseconds);
    if (Follows())
        scene.model.LetTimePass(scene.desktop.Ticks());
    HeedField(); // a label may have come due
}

void Walker::Announce(Op op, Atom* pAtom, Atom* pContainer)
{
    Say(std::string(NameOf(op)) + "(" + Print(pAtom) + " in " + Print(pContainer) + ")");
    scene.host.Announce(op, pAtom, pContainer);
    if (!scene.host.renamed.empty())
        GoAstray(0); // the model would see the members as they are after the renaming that this has led to
    if (Follows())
        scene.model.Announce(op, pAtom, pContainer);
}
