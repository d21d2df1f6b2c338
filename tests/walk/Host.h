// The host of the walk: an editor that writes down what it is told.
//
// Every call that a view makes of the host passes through Called, where a step may have armed something rude.
#pragma once

#include "tests/support/HostEditor.h"
#include "tests/walk/Rows.h"

#include <array>
#include <functional>
#include <map>
#include <set>

enum class Kind
{
    Plain,
    Container,
    Phase // its members are image links
};

// What the editor is told or asked, and what else counts as a word to the outside.
enum class Op
{
    PreRename,
    PreSave,
    Create,
    Delete,
    Change,
    Selected,
    Deselected,
    Selecting,
    Deselecting,
    Entered,
    Rename,
    AddPane,
    RemovePane,
    Renames, // a container is asked to
    Menu,
    Ops
};
constexpr auto kOps = static_cast<std::size_t>(Op::Ops);
const char* NameOf(Op op);
inline constexpr int kNobody = -1;

// A line of the ledger: who (a view's number or nobody) says what, about which atom in which container.
struct Call
{
    int who;
    Op op;
    const Atom* pAtom;
    const Atom* pContainer;
    friend bool operator==(const Call&, const Call&) = default;
};
using Calls = std::vector<Call>;
std::string Print(const Calls& calls);

class Host final : public HostEditor
{
public:
    Host();

    // What the world looks like.
    int nSerials = 0;
    std::set<Atom*> live;
    AtomRef pWorld;
    Atom* New(const std::string& strName, Kind kind = Kind::Plain); // with one reference
    std::vector<Atom*> Containers() const;                          // in the world, from the top down
    std::vector<AtomRef> former;                                    // atoms that went, kept so that they can be told of
    void ForgetFormer();                                            // those that nobody else holds
    std::map<std::pair<HIMAGELIST, int>, const Atom*> pictures;     // whose icon was put there last

    // How it behaves.
    struct Veto
    {
        bool stands = false;
        int serial = 0; // 0: every atom; otherwise every fourth
    };
    std::array<Veto, kOps> vetoes{};
    bool Vetoes(Op op, const Atom* pAtom) const;
    bool MayVeto(Op op) const { return vetoes[static_cast<std::size_t>(op)].stands; }

    // What was said.
    Calls calls;
    std::map<const Atom*, AtomRef> renamed;  // the former atom to the new one, while a step lasts
    std::map<IAEStateHandler*, int> numbers; // of the views
    std::function<int(HWND)> viewOf;
    std::map<int, bool> panes; // shown, by view

    // The nth call from now runs the action, with the atom it is about, if any. Once; 0 disarms.
    void Arm(int nth, std::function<void(Atom*)> action);
    bool isWatched = false; // by the checks: nothing rude happens now
    void Called(Atom* pAbout);

    void Announce(Op op, Atom* pAtom, Atom* pContainer); // the editor's own word to all views

    std::vector<int> RegisteredViews() const; // in that order
    BOOL NotifyHandlers(IAEStateHandler* sender, AEStateOperation operation, IAtom* atom, IAtomContainer* container,
                        DWORD reserved) override;
    void AddPane(DWORD kind, HWND hWnd, LPCSTR, HICON) override { ShowPane(kind, hWnd, true); }
    void RemovePane(DWORD kind, HWND hWnd) override { ShowPane(kind, hWnd, false); }
    CMenu* CreateContextMenu() override;
    BOOL EnumActivePairs(ACTIVEPAIRPROC callback, void* context) override;
    DROPEFFECT DoDragDrop(DWORD allowedEffects, DWORD reserved) override;

private:
    IAtom* MakeAtom(const std::string& strName) override { return New(strName); }
    void OnCalled() override { Called(nullptr); }
    void ShowPane(DWORD kind, HWND hWnd, bool bShow);

    int m_nUntilRude = 0;
    std::function<void(Atom*)> m_rude;
};
