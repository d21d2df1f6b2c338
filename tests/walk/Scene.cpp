#include "tests/walk/Scene.h"

#include "Toolkit/base/Files.h"
#include "Toolkit/base/GlobalMemory.h"
#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/menu/Menu.h"
#include "Toolkit/run/Run.h"

#include <algorithm>

namespace
{

constexpr CRect kPlaces[kViews] = {{0, 0, 230, 170}, {230, 0, 520, 170}, {0, 170, 200, 320}, {210, 170, 400, 320}};

} // namespace

Scene::Scene(std::uint64_t seed) : model(host, *this)
{
    for (const UINT nID : {0xE00Au, 0xE012u, 0xE013u, 57355u, 57357u, 1008u, 1009u})
        resources.AddString(nID, "text");
    for (const UINT nID : {1007u, 1008u, 1009u})
        resources.AddIcon(nID, toolkit::Surface(CSize(16, 16), 0xFF0000FF));
    resources.AddBitmap(1006, toolkit::Surface(CSize(48, 48), 0xFFFFFF00));
    resources.AddBitmap(1011, toolkit::Surface(CSize(16, 16), 0xFF808000));
    resources.AddBitmap(1013, toolkit::Surface(CSize(32, 16), 0xFFC0C0C0));
    resources.Join();
    frame.CreateEx(0, "", "frame", WS_OVERLAPPED | WS_VISIBLE, CRect(0, 0, 540, 330), nullptr, 0);
    other.CreateEx(0, "", "other", WS_CHILD | WS_VISIBLE, CRect(420, 200, 500, 220), &frame, 1);
    AfxSetMainWnd(&frame);
    host.hMain = frame.m_hWnd;
    host.skipsSender = seed % 3 == 0;
    host.viewOf = [this](HWND hWnd) {
        const auto found = std::ranges::find_if(m_views, [hWnd](const auto& p) { return p->Wnd().m_hWnd == hWnd; });
        return static_cast<int>(found - m_views.begin());
    };
    FillWorld(seed);
    m_views.push_back(MakeIconList());
    m_views.push_back(MakeThumbList());
    m_views.push_back(std::make_unique<TreeView>(FALSE));
    m_views.push_back(std::make_unique<TreeView>(TRUE));
    host.pSelected = &At(kIcons).Handler();
    other.SetFocus();
    for (int view = 0; view < kViews; ++view) {
        host.numbers[&At(view).Handler()] = view;
        MakeWindow(view);
    }
    Settle();
}

Scene::~Scene() = default;

void Scene::FillWorld(std::uint64_t seed)
{
    const auto add = [this](Atom* pIn, const char* pszName, Kind kind = Kind::Plain) {
        Atom* const pNew = pIn->Add(host.New(pszName, kind));
        pNew->hasIcon = pNew->serial % 3 != 0;
        pNew->position = pNew->serial;
        return pNew;
    };
    Atom* const pWorld = host.pWorld.Get();
    Atom* const pBox = add(pWorld, "box", Kind::Container);
    Atom* const pBag = add(pBox, "bag", Kind::Container);
    Atom* const pPhase = add(pWorld, "phase", Kind::Phase);
    pPhase->permissions = APF_ACCEPT | APF_REMOVE; // a link that is renamed is a link no more, at once
    for (const char* pszName : {"d", "b", "A", "c", "E"})
        add(pBox, pszName);
    for (const char* pszName : {"m", "l"})
        add(pBag, pszName)->nFrames = 2;
    for (const char* pszName : {"y", "x"})
        add(pPhase, pszName);
    add(pWorld, "note")->displayName = "a note";
    if (seed % 16 == 5) { // more rows than the cache holds
        Atom* const pCrowd = add(pWorld, "crowd", Kind::Container);
        for (int i = 0; i < 1500; ++i)
            add(pCrowd, ("n" + std::to_string(i * 7919 % 1500)).c_str());
    }
}

void Scene::MakeWindow(int view)
{
    host.panes[view] = false;
    At(view).Make(&frame);
    At(view).Wnd().MoveWindow(kPlaces[view]);
    At(view).Wnd().ShowWindow(SW_SHOW);
    if (view >= kTree)
        At(view).Handler().OnCreateAtom(host.pWorld.Get(), nullptr);
    desktop.Run();
}

HWND Scene::WindowOf(int focus)
{
    if (focus == kNoFocus)
        return nullptr;
    if (focus == kOther || focus == kFrame)
        return focus == kOther ? other.m_hWnd : frame.m_hWnd;
    return focus < kField ? Window(focus) : At(focus - kField).LabelField();
}

int Scene::Focus()
{
    const HWND hFocus = ::GetFocus();
    for (int focus = 0; hFocus && focus <= kFrame; ++focus)
        if (WindowOf(focus) == hFocus)
            return focus;
    return kNoFocus;
}

Hit Scene::HitAt(int view, CPoint at)
{
    UINT nFlags = 0;
    if (view < kTree) {
        const int row = List(view).List().HitTest(at, &nFlags);
        return {row, nullptr, row < 0 ? Part::Nothing : nFlags & LVHT_ONITEMLABEL ? Part::Label : Part::Picture};
    }
    const HTREEITEM hItem = Tree(view).HitTest(at, &nFlags);
    if (!hItem)
        return {};
    const Part part = nFlags & TVHT_ONITEMBUTTON  ? Part::Button
                      : nFlags & TVHT_ONITEMLABEL ? Part::Label
                      : nFlags & TVHT_ONITEMICON  ? Part::Picture
                                                  : Part::Beside;
    return {-1, Tree(view).RowOf(hItem).pAtom, part};
}

int Scene::Columns(int view) const
{
    CRect first, next;
    const CListCtrl& list = Ctrl(view);
    list.GetItemRect(0, &first, LVIR_ICON);
    int nColumns = 1;
    while (nColumns < list.GetItemCount() && list.GetItemRect(nColumns, &next, LVIR_ICON) && next.top == first.top)
        ++nColumns;
    return nColumns;
}

int Scene::Page(int view) const
{
    if (view >= kTree)
        return static_cast<int>(Items(view).GetVisibleCount());
    // A list with fewer rows than columns does not tell how many columns there are, and does not need to.
    const int nColumns = Columns(view);
    const int nPage = static_cast<int>(Ctrl(view).SendMessage(LVM_GETCOUNTPERPAGE));
    return nColumns < Ctrl(view).GetItemCount() ? std::max(nPage / nColumns, 1) : 1;
}

const Atom* Scene::TopItem(int view) const
{
    return Items(view).RowOf(Items(view).GetFirstVisibleItem()).pAtom;
}

// Exactly the world's atoms, each where it is a member.
bool Scene::ShowsWorld(int view)
{
    std::size_t nMembers = 1;
    for (const Atom* const pContainer : host.Containers())
        nMembers += pContainer->members.size();
    const auto items = Tree(view).Items();
    return items.size() == nMembers && std::ranges::all_of(items, [&](HTREEITEM hItem) {
               const Row row = Tree(view).RowOf(hItem);
               return Tree(view).ItemOf(row.pAtom) == hItem && row.pAtom->parent == row.pContainer;
           });
}

// Nothing is armed, refused, held down, hidden or due.
void Scene::Calm()
{
    host.Arm(0, nullptr);
    host.vetoes = {};
    desktop.Hold({});
    desktop.Release(frame.m_hWnd, {530, 325});
    for (int view = 0; view < kViews; ++view) {
        if (!IsAlive(view))
            MakeWindow(view);
        At(view).Wnd().ShowWindow(SW_SHOW);
    }
    other.SetFocus();
    desktop.Advance(2000);
}

void Scene::Settle()
{
    Calm();
    if (host.pWorld->members.empty())
        host.Announce(Op::Create, host.pWorld->Add(host.New("last")), host.pWorld.Get());
    const auto containers = host.Containers();
    for (const int view : {kIcons, kThumbs}) {
        if (std::ranges::find(containers, List(view).Container()) == containers.end())
            At(view).SetRoot(host.pWorld.Get());
    }
    for (Atom* const pContainer : containers)
        host.Announce(Op::Delete, nullptr, pContainer);
    for (const int view : {kTree, kPassive}) {
        if (ShowsWorld(view))
            continue;
        At(view).Wnd().DestroyWindow();
        MakeWindow(view);
    }
    // Each announces its selection, until all agree and none has anything left to announce.
    for (int i = 0; i < 3 * kViews; ++i) {
        At(i % kViews).Wnd().SetFocus();
        other.SetFocus();
    }
    for (const int view : {kIcons, kThumbs})
        if (!List(view).Container())
            At(view).SetRoot(host.pWorld.Get()); // an empty list does not tell what it shows
    desktop.Run();
    model.BeginAgain();
    for (int view = 0; view < kViews; ++view)
        model.Take(view, view < kTree ? List(view).Container() : nullptr, At(view).Shows());
    host.calls.clear();
}

std::vector<Scene::Count> Scene::CountAll()
{
    const toolkit::WindowCounts counts = toolkit::CountWindows();
    return {{"windows", counts.windows},         {"timers", counts.timers},
            {"posted messages", counts.posted},  {"drawing objects", toolkit::CountGdiObjects()},
            {"menus", toolkit::CountMenus()},    {"blocks of memory", toolkit::CountGlobalBlocks()},
            {"files", toolkit::CountOpenFiles()}};
}

std::string Scene::Close()
{
    Settle();
    m_views.clear();
    AfxSetMainWnd(nullptr);
    frame.DestroyWindow();
    host.active.Release();
    host.pWorld.Release();
    host.renamed.clear();
    host.former.clear();
    desktop.Run();
    desktop.TakeClipboard({});
    std::vector<Count> counts = CountAll();
    for (std::size_t i = 0; i < counts.size(); ++i)
        counts[i].n -= m_counts[i].n;
    counts.push_back({"atoms", Atom::CountLive()});
    counts.push_back({"handlers", host.CountHandlers()});
    counts.push_back({"references to the editor", host.CountReferences()});
    std::string left;
    for (const auto& [pszWhat, n] : counts)
        if (n != 0)
            left += "left over: " + std::to_string(n) + " " + pszWhat + "\n";
    return left;
}
