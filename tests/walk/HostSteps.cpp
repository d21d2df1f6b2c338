// What the host does, in good time or while a view calls it.
#include "tests/walk/Steps.h"

namespace
{

void Focus(Walker& walker, const Step& step)
{
    static constexpr int kFocusable[] = {kIcons, kThumbs, kTree, kPassive, kOther, kNoFocus};
    const int focus = kFocusable[step.a % std::size(kFocusable)];
    walker.Say(focus == kOther ? "other" : focus == kNoFocus ? "none" : kViewNames[focus]);
    if (focus < kViews && focus != kNoFocus && !walker.scene.IsAlive(focus))
        return;
    if (focus == kNoFocus && walker.scene.model.IsEditing())
        walker.GoAstray(0);
    ::SetFocus(walker.scene.WindowOf(focus));
    if (walker.Follows())
        walker.scene.model.SetFocus(focus);
}

void Rename(Walker& walker, const Step& step)
{
    walker.Say(kViewNames[step.View()]);
    if (!walker.scene.IsAlive(step.View()))
        return;
    walker.scene.At(step.View()).Handler().OnAtomRename(nullptr, nullptr);
    if (walker.Follows())
        walker.scene.model.BeginRename(step.View());
}

void Create(Walker& walker, const Step& step)
{
    Atom* const pIn = walker.PickContainer(step.a);
    if (pIn->members.size() < 30 && walker.scene.host.Containers().size() <= 12)
        walker.Announce(Op::Create, pIn->Add(walker.NewAtom(step.b)), pIn);
}

void DeleteFrom(Walker& walker, const Step& step, bool bSome)
{
    Atom* const pIn = walker.PickContainer(step.a);
    const std::size_t nStay = pIn == walker.scene.host.pWorld.Get() ? 2 : 0; // so that something is left to walk on
    for (unsigned i = 0; i <= (bSome ? step.c % 4 : 0) && pIn->members.size() > nStay; ++i) {
        Atom* const pAtom = pIn->members[nStay + (step.b + i) % (pIn->members.size() - nStay)].Get();
        pIn->Remove(pAtom);
        if (!bSome)
            walker.Announce(Op::Delete, pAtom, pIn);
    }
    if (bSome)
        walker.Announce(Op::Delete, nullptr, pIn);
}

void Change(Walker& walker, const Step& step)
{
    Atom* const pAtom = walker.PickAtom(step.a);
    switch (step.b % 4) {
    case 0:
        pAtom->isModified = !pAtom->isModified;
        break;
    case 1:
        pAtom->displayName = pAtom->displayName ? std::nullopt : std::optional<std::string>("shown");
        break;
    case 2:
        pAtom->hasIcon = !pAtom->hasIcon;
        break;
    default:
        pAtom->name = std::string(1, static_cast<char>('a' + step.c % 26));
        break;
    }
    walker.Announce(Op::Change, pAtom, pAtom->parent);
}

void Enter(Walker& walker, const Step& step)
{
    Atom* const pAtom = walker.PickAtom(step.a);
    walker.Announce(Op::Entered, pAtom, pAtom->parent);
}

void SetRoot(Walker& walker, const Step& step)
{
    Atom* const pAtom = step.b % 4 ? walker.PickContainer(step.b) : walker.PickAtom(step.b);
    walker.Say(std::string(kViewNames[step.View()]) + " " + Print(pAtom));
    if (!walker.scene.IsAlive(step.View()))
        return;
    walker.scene.At(step.View()).SetRoot(pAtom);
    if (!walker.scene.host.renamed.empty())
        walker.GoAstray(0);
    if (walker.Follows())
        walker.scene.model.Hear(step.View(), Op::Entered, pAtom, pAtom->parent);
}

// Elsewhere.
void Select(Walker& walker, const Step& step)
{
    const Op op = step.b % 2 ? Op::Selected : Op::Deselected;
    Atom* const pAtom = step.c % 4 ? walker.PickAtom(step.a) : nullptr;
    walker.Announce(op, pAtom, pAtom ? pAtom->parent : walker.PickContainer(step.a));
}

void Veto(Walker& walker, const Step& step)
{
    static constexpr Op kVetoed[] = {Op::PreRename, Op::PreSave, Op::Selecting, Op::Deselecting};
    const Op op = kVetoed[step.a % std::size(kVetoed)];
    auto& veto = walker.scene.host.vetoes[static_cast<std::size_t>(op)];
    veto = {!veto.stands && step.b % 2, op == Op::PreSave ? 0 : static_cast<int>(step.c % 8)};
    walker.Say(std::string(NameOf(op)) + (veto.stands ? " from now on" : " no more"));
}

void Activate(Walker& walker, const Step& step)
{
    walker.scene.host.active = step.a % 2 ? CStubRef<IAtom>::Share(walker.scene.host.pWorld.Get()) : nullptr;
    walker.Say(step.a % 2 ? "world" : "none");
}

void Resize(Walker& walker, const Step& step)
{
    walker.Say(kViewNames[step.View()]);
    CRect rect;
    CWnd& wnd = walker.scene.At(step.View()).Wnd();
    wnd.GetWindowRect(&rect);
    wnd.MoveWindow(
        CRect(rect.TopLeft(), CSize(static_cast<int>(step.b % 200) + 20, static_cast<int>(step.c % 150) + 20)));
}

void Show(Walker& walker, const Step& step)
{
    walker.Say(kViewNames[step.View()]);
    CWnd& wnd = walker.scene.At(step.View()).Wnd();
    const bool bShow = !wnd.IsWindowVisible();
    wnd.ShowWindow(bShow ? SW_SHOW : SW_HIDE);
    if (walker.Follows() && walker.scene.IsAlive(step.View()))
        walker.scene.model.Show(step.View(), bShow);
}

// The window goes, or another one is made.
void Remake(Walker& walker, const Step& step)
{
    const int view = step.View();
    walker.Say(kViewNames[view]);
    if (walker.scene.IsAlive(view)) {
        walker.scene.At(view).Wnd().DestroyWindow();
        if (walker.Follows())
            walker.scene.model.Destroy(view);
        return;
    }
    walker.scene.MakeWindow(view);
    if (!walker.Follows())
        return;
    walker.scene.model.Make(view);
    if (view >= kTree)
        walker.scene.model.Hear(view, Op::Create, walker.scene.host.pWorld.Get(), nullptr);
}

void Speak(Walker& walker, const Step& step)
{
    if (walker.scene.IsAlive(step.View()))
        return;
    walker.Say(kViewNames[step.View()]);
    IAEStateHandler& handler = walker.scene.At(step.View()).Handler();
    DWORD nPairs = 0;
    OBJPAIR pairs[4]{};
    handler.OnGetActivePairs(nullptr, &nPairs);
    nPairs = 4;
    handler.OnGetActivePairs(pairs, &nPairs);
    Atom* const pBox = walker.PickContainer(step.b);
    handler.OnAtomSelected(nullptr, pBox);
    handler.OnAtomDeselected(nullptr, pBox);
    handler.OnAtomRename(nullptr, nullptr);
}

void Advance(Walker& walker, const Step& step)
{
    const DWORD nTime = step.a % 3 ? 600 : step.b % 3000;
    walker.Say(std::to_string(nTime));
    walker.LetTimePass(nTime);
}

void BeRude(Walker& walker, unsigned what, unsigned which, Atom* pAbout)
{
    const int view = static_cast<int>(which % kViews);
    Host& host = walker.scene.host;
    Atom* const pIn = walker.PickContainer(which);
    const auto removeFrom = [&host](Atom* pContainer, Atom* pAtom, bool bTold) {
        if (pContainer->Remove(pAtom))
            host.Announce(Op::Delete, bTold ? pAtom : nullptr, pContainer);
    };
    switch (what) {
    case 0:
        walker.scene.At(view).Wnd().DestroyWindow();
        return;
    case 1:
        return pAbout && pAbout->parent ? removeFrom(pAbout->parent, pAbout, true) : void();
    case 2:
        ::SetFocus(which % 3 ? walker.scene.Window(view) : walker.scene.other.m_hWnd);
        return;
    case 3:
        walker.scene.At(view).SetRoot(walker.PickContainer(which / 4));
        return;
    case 4:
        return walker.scene.desktop.Run();
    case 5:
        return host.Announce(Op::Create, pIn->Add(walker.NewAtom(which)), pIn);
    default:
        if (pIn != host.pWorld.Get() && !pIn->members.empty())
            removeFrom(pIn, pIn->members[which / 16 % pIn->members.size()].Get(), which % 2);
    }
}

void ArmRudeness(Walker& walker, const Step& step)
{
    static constexpr const char* kDeeds[] = {"destroys", "deletes", "focuses", "roots", "runs", "creates", "removes"};
    const unsigned nth = 1 + step.b % (step.a % 2 ? 4 : 60), what = step.c % std::size(kDeeds);
    walker.GoAstray(1 + step.d % 4);
    walker.SetRude(true);
    walker.Say("at call " + std::to_string(nth) + " " + kDeeds[what] + " " + std::to_string(step.d % 16));
    walker.scene.host.Arm(static_cast<int>(nth),
                          [&walker, what, which = step.d](Atom* pAbout) { BeRude(walker, what, which, pAbout); });
}

} // namespace

const StepKinds& HostSteps()
{
    static const StepKinds s_kinds{
        {"focus", 5, &Focus},
        {"rename", 6, &Rename},
        {"create", 8, &Create},
        {"delete", 6, [](Walker& walker, const Step& step) { DeleteFrom(walker, step, false); }},
        {"delete some", 2, [](Walker& walker, const Step& step) { DeleteFrom(walker, step, true); }},
        {"change", 6, &Change},
        {"enter", 3, &Enter},
        {"set root", 3, &SetRoot},
        {"select", 5, &Select},
        {"veto", 3, &Veto},
        {"activate", 1, &Activate},
        {"resize", 3, &Resize},
        {"show", 2, &Show},
        {"remake", 1, &Remake},
        {"speak", 1, &Speak},
        {"advance", 6, &Advance},
        {"rude", 4, &ArmRudeness},
    };
    return s_kinds;
}
