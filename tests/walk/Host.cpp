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

namespace
{

// Knows its host, which each call may make rude.
class WalkAtom final : public Atom
{
public:
    WalkAtom(Host& host, const std::string& strName) : Atom(strName), m_host(host) { host.live.insert(this); }
    ~WalkAtom() override
    {
        for (const AtomRef& pMember : members)
            Leave(*pMember.Get());
        m_host.live.erase(this);
    }

    DWORD GetID() override { return static_cast<DWORD>(serial); }
    AtomRef Remove(Atom* pMember) override
    {
        AtomRef pRemoved = Atom::Remove(pMember);
        if (pRemoved)
            Leave(*m_host.former.emplace_back(AtomRef::Share(pMember)).Get());
        return pRemoved;
    }
    int AddToImageList(HIMAGELIST hImageList, int nReplace) override
    {
        const int nImage = Atom::AddToImageList(hImageList, nReplace);
        m_host.pictures[{hImageList, nImage}] = this;
        return nImage;
    }
    BOOL RenameAtom(IAtom* pAtom, const char* pszNewName, void** ppOut, DWORD id) override
    {
        Atom* const pFormer = As(pAtom);
        m_host.calls.push_back({kNobody, Op::Renames, pFormer, this});
        if (pFormer->isContainer || !*pszNewName)
            return Called().Give(nullptr, ppOut, id);
        if (!Atom::RenameAtom(pAtom, pszNewName, ppOut, id))
            return FALSE;
        Atom* const pNew = members.back().Get();
        pNew->hasIcon = pFormer->hasIcon;
        pNew->nFrames = pFormer->nFrames;
        pNew->position = pFormer->position;
        m_host.renamed[pFormer] = AtomRef::Share(pNew);
        return TRUE;
    }

protected:
    Atom* Make(const std::string& strName) const override { return m_host.New(strName); }
    void OnCalled(Atom* pAbout) override { m_host.Called(pAbout); }

private:
    static void Leave(Atom& member)
    {
        member.parent = nullptr;
        member.isLink = false;
    }

    Host& m_host;
};

} // namespace

Atom* Host::New(const std::string& strName, Kind kind)
{
    auto* const pNew = new WalkAtom(*this, strName);
    const int serial = pNew->serial = ++nSerials;
    pNew->isContainer = kind != Kind::Plain;
    pNew->isPhase = kind == Kind::Phase;
    pNew->permissions = APF_ACCEPT | APF_REMOVE | APF_RENAME;
    pNew->iconColor = static_cast<toolkit::Pixel>(0xFF000000u | static_cast<unsigned>(serial * 7919) % 0xFFFFFF);
    pNew->thumbColor = RGB(serial * 31 % 256, 0, 255);
    return pNew;
}

Host::Host() : pWorld(AtomRef::Adopt(New("world", Kind::Container)))
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
    const DROPEFFECT effect = HostEditor::DoDragDrop(allowedEffects, reserved);
    if (effect != DROPEFFECT_MOVE)
        pairs.clear();
    return effect;
}
