#include "tests/walk/Host.h"

#include "Toolkit/exchange/ClipboardFormat.h"
#include "Toolkit/exchange/DataSource.h"
#include "Toolkit/menu/Menu.h"
#include "Views/clipboard/TransferFileOwner.h"
#include "Views/clipboard/clipboard.h"
#include "tests/views/FakeArchive.h"

#include <algorithm>
#include <memory>
#include <sstream>

namespace
{

constexpr std::pair<const char*, AEStateOperation> kWords[kOps] = {
    {"PreRenameAtom", &IAEStateHandler::PreRenameAtom},
    {"PreSaveAtom", &IAEStateHandler::PreSaveAtom},
    {"OnCreateAtom", &IAEStateHandler::OnCreateAtom},
    {"OnDeleteAtom", &IAEStateHandler::OnDeleteAtom},
    {"OnChangeAtom", &IAEStateHandler::OnChangeAtom},
    {"OnAtomSelected", &IAEStateHandler::OnAtomSelected},
    {"OnAtomDeselected", &IAEStateHandler::OnAtomDeselected},
    {"OnAtomSelecting", &IAEStateHandler::OnAtomSelecting},
    {"OnAtomDeselecting", &IAEStateHandler::OnAtomDeselecting},
    {"OnAtomEntered", &IAEStateHandler::OnAtomEntered},
    {"OnAtomRename", &IAEStateHandler::OnAtomRename},
    {"AddPane", nullptr},
    {"RemovePane", nullptr},
    {"RenameAtom", nullptr},
    {"CreateContextMenu", nullptr},
};

Op OpOf(AEStateOperation operation)
{
    const auto found = std::ranges::find(kWords, operation, &std::pair<const char*, AEStateOperation>::second);
    return static_cast<Op>(found - kWords);
}

} // namespace

const char* NameOf(Op op)
{
    return kWords[static_cast<std::size_t>(op)].first;
}

std::string Print(const Calls& calls)
{
    std::string text;
    for (const auto& [who, op, pAtom, pContainer] : calls)
        text += "    " + (who == kNobody ? "nobody" : "view " + std::to_string(who)) + " " + NameOf(op) + "(" +
                Print(pAtom) + " in " + Print(pContainer) + ")\n";
    return text;
}

Host::Host()
    : pWorld(AtomRef::Adopt(new Atom(*this, "world", Kind::Container))),
      format(RegisterClipboardFormat("Atoms of the walk")),
      m_editorService("GetAtomEditorSv", [this](void* pBuffer, DWORD, DWORD) {
          AddRef();
          *static_cast<IAtomEditor**>(pBuffer) = this;
          return TRUE;
      })
{}

std::vector<Atom*> Host::Containers() const
{
    std::vector<Atom*> found{pWorld.Get()};
    for (std::size_t i = 0; i < found.size(); ++i)
        for (const AtomRef& pMember : found[i]->members)
            if (pMember->IsContainer())
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
    NotifyHandlers(nullptr, kWords[static_cast<std::size_t>(op)].second, pAtom, pContainer, 0);
}

std::vector<int> Host::Handlers() const
{
    std::vector<int> views;
    for (const auto& [cookie, pHandler] : m_handlers)
        views.push_back(numbers.at(pHandler));
    return views;
}

DWORD Host::RegisterHandler(HWND, IAEStateHandler* handler)
{
    const DWORD cookie = ++m_nLastCookie;
    m_handlers[cookie] = handler;
    Called(nullptr);
    return cookie;
}

BOOL Host::NotifyHandlers(IAEStateHandler* sender, AEStateOperation operation, IAtom* atom, IAtomContainer* container,
                          DWORD)
{
    const Op op = OpOf(operation);
    Atom* const pAtom = Atom::As(atom);
    calls.push_back({sender ? numbers[sender] : kNobody, op, pAtom, Atom::As(container)});
    Called(pAtom);
    BOOL bAgreed = !Vetoes(op, pAtom);
    // Those who were there when it began, whether their windows are gone meanwhile or not.
    for (const auto& [cookie, pHandler] : std::map(m_handlers)) {
        if (pHandler != sender || !skipsSender)
            bAgreed &= (pHandler->*operation)(atom, container) != FALSE;
    }
    return bAgreed;
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
    auto pMenu = std::make_unique<CMenu>();
    pMenu->CreatePopupMenu();
    pMenu->AppendMenu(MF_STRING, 7, "Something");
    return pMenu.release();
}

BOOL Host::EnumActivePairs(ACTIVEPAIRPROC callback, void* context)
{
    const auto pairs = std::exchange(m_pairs, {});
    return std::ranges::all_of(pairs, [&](const views::HeldPair& pair) {
        return callback(pair.pAtom.Get(), pair.pContainer.Get(), context) != FALSE;
    });
}

void Host::HoldDragged()
{
    DWORD nPairs = 0;
    pDragged->OnGetActivePairs(nullptr, &nPairs);
    std::vector<OBJPAIR> active(nPairs + 1);
    pDragged->OnGetActivePairs(active.data(), &nPairs);
    m_pairs.clear();
    for (const auto& [pAtom, pContainer] : active)
        if (views::HeldPair held{CStubRef<IAtom>::Adopt(pAtom), CStubRef<IAtomContainer>::Adopt(pContainer)}; held)
            m_pairs.push_back(std::move(held));
}

DROPEFFECT Host::DoDragDrop(DWORD allowedEffects, DWORD)
{
    Called(nullptr);
    HoldDragged();
    const auto pArchive = ArchiveRef::Adopt(ConstructMemoryArchive());
    WriteActiveObjects(pArchive.Get());
    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = HGLOBALFromArchive(pArchive.Get());
    if (!medium.hGlobal)
        return DROPEFFECT_NONE; // nothing to drag
    medium.pUnkForRelease = new CTransferFileOwner(medium.hGlobal);
    COleDataSource source;
    source.CacheData(format, &medium);
    const DROPEFFECT effect = source.DoDragDrop(allowedEffects);
    if (effect != DROPEFFECT_MOVE)
        m_pairs.clear();
    return effect;
}

BOOL Host::ReadArchive(ARCHIVEATOMPROC callback, IArchive* archive, void* context)
{
    Called(nullptr);
    std::istringstream names(BytesOf(archive));
    for (std::string name; std::getline(names, name);) {
        auto pAtom = AtomRef::Adopt(new Atom(*this, name));
        Atom* const pObject = context ? pAtom.Get() : pAtom.Detach(); // the callback's without a context
        if (!callback(pObject, context))
            return FALSE;
    }
    return TRUE;
}

BOOL Host::WriteActiveObjects(IArchive* archive)
{
    std::string names;
    for (const views::HeldPair& pair : m_pairs)
        names += Atom::As(pair.pAtom.Get())->name + "\n";
    SetBytes(archive, names);
    return !m_pairs.empty();
}

void Host::GetActiveAtom(void** out, DWORD interfaceId)
{
    *out = nullptr;
    if (pActive)
        pActive->GetInterface(interfaceId, out);
}
