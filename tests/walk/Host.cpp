#include "tests/walk/Host.h"

#include "Toolkit/exchange/ClipboardFormat.h"

#include <algorithm>

const char* NameOf(Op op)
{
    static constexpr const char* kOthers[] = {"AddPane", "RemovePane", "RenameAtom", "CreateContextMenu"};
    constexpr std::size_t kAsked = std::size(kHostOperations);
    static_assert(kAsked + std::size(kOthers) == kOps);
    const auto n = static_cast<std::size_t>(op);
    return n < kAsked ? kHostOperations[n].pszName : kOthers[n - kAsked];
}

std::string Print(const Calls& calls)
{
    std::string text;
    for (const auto& [who, op, pAtom, pContainer] : calls)
        text += "    " + (who == kNobody ? "nobody" : "view " + std::to_string(who)) + " " + NameOf(op) + "(" +
                Print(pAtom) + " in " + Print(pContainer) + ")\n";
    return text;
}

Host::Host() : pWorld(AtomRef::Adopt(new Atom(*this, "world", Kind::Container)))
{
    pWorld->isLibrary = true;
    format = RegisterClipboardFormat("Atoms of the walk");
    menu = "Something";
}

std::vector<Atom*> Host::Containers() const
{
    std::vector<Atom*> found{pWorld.Get()};
    for (std::size_t i = 0; i < found.size(); ++i)
        for (const AtomRef& pMember : found[i]->members)
            if (pMember->isContainer)
                found.push_back(pMember.Get());
    return found;
}

void Host::ForgetFormer()
{
    std::erase_if(former, [](const AtomRef& p) { return p->CountReferences() == 1; });
}

bool Host::Vetoes(Op op, const Atom* pAtom) const
{
    const auto [stands, serial] = vetoes[static_cast<std::size_t>(op)];
    return stands && (serial == 0 || (pAtom && pAtom->serial % 4 == serial % 4));
}

void Host::Arm(int nth, std::function<void(Atom*)> action)
{
    m_nUntilRude = nth;
    m_rude = std::move(action);
}

void Host::Called(Atom* pAbout)
{
    if (!isWatched && m_nUntilRude > 0 && --m_nUntilRude == 0)
        std::exchange(m_rude, nullptr)(pAbout);
}

void Host::Announce(Op op, Atom* pAtom, Atom* pContainer)
{
    const auto pHeld = AtomRef::Share(pAtom), pHeldContainer = AtomRef::Share(pContainer);
    NotifyHandlers(nullptr, kHostOperations[static_cast<std::size_t>(op)].operation, pAtom, pContainer, 0);
}

std::vector<int> Host::RegisteredViews() const
{
    std::vector<int> views;
    for (const auto& [cookie, pHandler] : Handlers())
        views.push_back(numbers.at(pHandler));
    return views;
}

DWORD Host::RegisterHandler(HWND hWnd, IAEStateHandler* handler)
{
    const DWORD cookie = HostEditor::RegisterHandler(hWnd, handler);
    Called(nullptr);
    return cookie;
}

BOOL Host::NotifyHandlers(IAEStateHandler* sender, AEStateOperation operation, IAtom* atom, IAtomContainer* container,
                          DWORD reserved)
{
    const Op op = static_cast<Op>(IndexOf(operation));
    Atom* const pAtom = Atom::As(atom);
    calls.push_back({sender ? numbers[sender] : kNobody, op, pAtom, Atom::As(container)});
    Called(pAtom);
    const BOOL bAgreed = !Vetoes(op, pAtom);
    return HostEditor::NotifyHandlers(sender, operation, atom, container, reserved) & bAgreed;
}

// A tree's pane comes with its window, which is no news.
void Host::ShowPane(DWORD kind, HWND hWnd, bool bShow)
{
    if (kind != 0) {
        const int view = viewOf(hWnd);
        panes[view] = bShow;
        calls.push_back({view, bShow ? Op::AddPane : Op::RemovePane, nullptr, nullptr});
    }
    Called(nullptr);
}

CMenu* Host::CreateContextMenu()
{
    calls.push_back({kNobody, Op::Menu, nullptr, nullptr});
    Called(nullptr);
    return HostEditor::CreateContextMenu();
}

BOOL Host::EnumActivePairs(ACTIVEPAIRPROC callback, void* context)
{
    const auto dragged = std::exchange(pairs, {});
    return std::ranges::all_of(dragged, [&](const views::HeldPair& pair) {
        return callback(pair.pAtom.Get(), pair.pContainer.Get(), context) != FALSE;
    });
}

DROPEFFECT Host::DoDragDrop(DWORD allowedEffects, DWORD reserved)
{
    Called(nullptr);
    const DROPEFFECT effect = HostEditor::DoDragDrop(allowedEffects, reserved);
    if (effect != DROPEFFECT_MOVE)
        pairs.clear();
    return effect;
}

BOOL Host::ReadArchive(ARCHIVEATOMPROC callback, IArchive* archive, void* context)
{
    Called(nullptr);
    return HostEditor::ReadArchive(callback, archive, context);
}
