#include "Toolkit/paint/WindowDC.h"
#include "tests/walk/Scene.h"

#include <cstring>

namespace
{

std::string Differs(const std::string& what, const std::string& is, const std::string& expected)
{
    return is == expected ? "" : what + ":\n  is       " + is + "\n  expected " + expected;
}

std::string CompareView(Scene& scene, int view)
{
    const std::string name = kViewNames[view];
    if (scene.IsAlive(view) != scene.model.IsAlive(view))
        return "window: " + name;
    const Rows rows = scene.At(view).Shows(), expected = scene.model.Shows(view);
    if (rows != expected)
        return "state of " + name + ":\n  is       " + Print(rows) + "\n  expected " + Print(expected);
    const HWND hField = scene.At(view).LabelField();
    return Differs("label in " + name, hField ? "editing " + std::string(::GetWindowText(hField).View()) : "",
                   scene.model.IsEdited(view) ? "editing " + scene.model.EditedText() : "");
}

std::string CheckModel(Scene& scene)
{
    std::string fault;
    for (int view = 0; view < kViews && fault.empty(); ++view)
        fault = CompareView(scene, view);
    if (fault.empty())
        fault = Differs("focus", std::to_string(scene.Focus()), std::to_string(scene.model.Focus()));
    const Calls said = scene.model.TakeCalls();
    if (fault.empty() && said != scene.host.calls)
        fault = "ledger:";
    if (!fault.empty())
        fault += "\n  the ledger is\n" + Print(scene.host.calls) + "  expected\n" + Print(said);
    return fault;
}

// What the list answers for a row: no text when it is not cached.
LVITEM AnswerFor(Scene& scene, int view, int row)
{
    const CListCtrl& list = scene.List(view).List();
    NMLVDISPINFO info{{list.m_hWnd, list.GetDlgCtrlID(), LVN_GETDISPINFO}, {}};
    info.item.mask = LVIF_TEXT | LVIF_IMAGE;
    info.item.iItem = row;
    info.item.iImage = -2;
    scene.frame.SendMessage(WM_NOTIFY, info.hdr.idFrom, reinterpret_cast<LPARAM>(&info));
    return info.item;
}

// Each cached row has its own atom's text and picture, and an image that no other has.
std::string CheckCache(Scene& scene, int view)
{
    ListView& list = scene.List(view);
    const std::string name = kViewNames[view];
    if (!list.cache.fault.empty())
        return list.cache.fault + " in " + name;
    const int nRows = list.List().GetItemCount();
    const auto hImages = reinterpret_cast<HIMAGELIST>(list.List().SendMessage(LVM_GETIMAGELIST, LVSIL_NORMAL));
    std::set<int> images;
    int nCached = 0;
    for (int row = 0; row < nRows || list.RowAtom(row); ++row) { // there may be more atoms than rows
        const LVITEM answer = AnswerFor(scene, view, row);
        if (!answer.pszText)
            continue;
        ++nCached;
        const Atom* const pAtom = list.RowAtom(row);
        const std::string where = "cache: row " + std::to_string(row) + " of " + name;
        if (!pAtom || answer.pszText != pAtom->Label())
            return where + " shows " + answer.pszText + ", not " + Print(pAtom);
        const bool bDefault = view == kIcons && answer.iImage == 0;
        if (!bDefault && !images.insert(answer.iImage).second)
            return where + " shares image " + std::to_string(answer.iImage);
        if (view == kIcons && !bDefault && scene.host.pictures[{hImages, answer.iImage}] != pAtom)
            return where + " shows the picture of another atom";
    }
    if (nCached == list.cache.Count())
        return "";
    return "cache: " + std::to_string(list.cache.Count()) + " records for " + std::to_string(nCached) +
           " cached rows in " + name;
}

bool IsInSight(const TreeView& tree, HTREEITEM hItem)
{
    CRect row, client;
    tree.GetClientRect(&client);
    return tree.GetItemRect(hItem, &row, FALSE) && row.top < client.bottom && row.bottom > client.top;
}

// Bold is the path to the selected item and nothing else; each item in sight has its own picture.
std::string CheckItems(Scene& scene, int view)
{
    TreeView& tree = scene.Tree(view);
    const std::string name = kViewNames[view];
    std::set<HTREEITEM> path;
    for (HTREEITEM hItem = tree.GetSelectedItem(); hItem; hItem = tree.GetParentItem(hItem))
        path.insert(hItem);
    const auto hImages = reinterpret_cast<HIMAGELIST>(tree.SendMessage(TVM_GETIMAGELIST, TVSIL_NORMAL));
    std::set<int> images;
    for (const HTREEITEM hItem : tree.Items()) {
        const Row row = tree.RowOf(hItem);
        if (row.isBold != path.contains(hItem))
            return "bold: " + name + " " + Print(tree.Shows());
        if (!row.pAtom->hasIcon || !IsInSight(tree, hItem))
            continue;
        TVITEM item{};
        item.mask = TVIF_IMAGE;
        item.hItem = hItem;
        tree.CTreeCtrl::GetItem(&item);
        if (!images.insert(item.iImage).second)
            return "slots: " + Print(row.pAtom) + " in " + name + " shares image " + std::to_string(item.iImage);
        if (scene.host.pictures[{hImages, item.iImage}] != row.pAtom)
            return "slots: " + Print(row.pAtom) + " in " + name + " shows the picture of another atom";
    }
    return "";
}

std::map<const Atom*, int> KnownReferences(Scene& scene)
{
    std::map<const Atom*, int> known;
    ++known[scene.host.pWorld.Get()];
    ++known[Atom::As(scene.host.active.Get())];
    for (const AtomRef& pFormer : scene.host.former)
        ++known[pFormer.Get()];
    for (const Atom* const pAtom : scene.host.live)
        for (const AtomRef& pMember : pAtom->members)
            ++known[pMember.Get()];
    for (const int view : {kIcons, kThumbs}) {
        for (int row = 0; const Atom* const pAtom = scene.List(view).RowAtom(row); ++row)
            ++known[pAtom];
        ++known[scene.List(view).Container()];
    }
    for (const int view : {kTree, kPassive})
        for (const Row& row : scene.Tree(view).Shows()) {
            ++known[row.pAtom];
            ++known[row.pContainer];
        }
    return known;
}

// Every atom is held as often as somebody is known to hold it. An animated one that the mouse has passed over is held
// once more by each list of thumbnails, and a container by each list that has no rows to tell it by.
std::string CheckReferences(Scene& scene)
{
    auto known = KnownReferences(scene);
    for (const Atom* const pAtom : scene.host.live) {
        const int nMore = pAtom->CountReferences() - known[pAtom];
        const int nAllowed = pAtom->nFrames > 1 || pAtom->isContainer ? 2 : 0;
        if (nMore < 0 || nMore > nAllowed)
            return "references: " + Print(pAtom) + " has " + std::to_string(pAtom->CountReferences()) + ", not " +
                   std::to_string(known[pAtom]);
    }
    const int nEditor = scene.host.CountReferences();
    return nEditor == 0 ? "" : "references: " + std::to_string(nEditor) + " to the editor";
}

std::string WhatIsAt(Scene& scene, CPoint at)
{
    ::ClientToScreen(scene.frame.m_hWnd, &at);
    const int view = scene.host.viewOf(::WindowFromPoint(at));
    return view < kViews ? kViewNames[view] : "the frame";
}

// The window looks as if it had just been painted as a whole.
std::string CheckPixels(Scene& scene)
{
    const toolkit::Surface former = *toolkit::WindowSurface(scene.frame.m_hWnd);
    ::InvalidateRect(scene.frame.m_hWnd, nullptr);
    for (int focus = 0; focus <= kOther; ++focus)
        ::InvalidateRect(scene.WindowOf(focus), nullptr);
    scene.desktop.Run();
    const toolkit::Surface& now = *toolkit::WindowSurface(scene.frame.m_hWnd);
    const auto nBytes = static_cast<std::size_t>(former.Width()) * sizeof(toolkit::Pixel);
    for (int y = 0; y < former.Height(); ++y) {
        if (std::memcmp(former.Row(y), now.Row(y), nBytes) == 0)
            continue;
        int x = 0;
        while (former.At(x, y) == now.At(x, y))
            ++x;
        return "pixels: " + std::to_string(x) + "," + std::to_string(y) + " in " + WhatIsAt(scene, {x, y});
    }
    return "";
}

} // namespace

std::string Check(Scene& scene, bool bFollows, bool bPixels)
{
    Host& host = scene.host;
    host.isWatched = true;
    std::string fault = bFollows ? CheckModel(scene) : "";
    host.calls.clear();
    host.renamed.clear();
    host.ForgetFormer();
    const auto check = [&fault](auto how, auto&... arguments) {
        if (fault.empty())
            fault = how(arguments...);
    };
    if (bPixels || host.live.size() < 500) { // a crowd is looked through now and then
        for (int view = 0; view < kViews; ++view)
            if (scene.IsAlive(view))
                check(view < kTree ? CheckCache : CheckItems, scene, view);
        check(CheckReferences, scene);
    }
    if (bPixels)
        check(CheckPixels, scene);
    host.isWatched = false;
    return fault;
}
