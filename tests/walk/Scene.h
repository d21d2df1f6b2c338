// The stage of a walk: a frame on a headless desktop with two lists, two trees and another window, the host behind
// them, and the model beside them.
#pragma once

#include "Toolkit/graphics/Resources.h"
#include "Toolkit/headless/HeadlessDesktop.h"
#include "tests/support/FakeArchive.h"
#include "tests/walk/Model.h"
#include "tests/walk/Views.h"

class Scene final : private Layout
{
public:
    explicit Scene(std::uint64_t seed);
    ~Scene();
    Scene(const Scene&) = delete;

    toolkit::HeadlessDesktop desktop;
    CResourceModule resources;
    FakeArchives archives;
    Host host;
    CWnd frame, other;
    Model model;

    View& At(int view) { return *m_views[static_cast<std::size_t>(view)]; }
    ListView& List(int view) { return static_cast<ListView&>(At(view)); }
    TreeView& Tree(int view) { return static_cast<TreeView&>(At(view)); }
    bool IsAlive(int view) { return At(view).IsAlive(); }
    HWND Window(int view) { return At(view).Wnd().m_hWnd; }
    HWND WindowOf(int focus); // kField + view and the others, too
    int Focus();              // as the model names it

    void MakeWindow(int view);
    Hit HitAt(int view, CPoint at);
    // Everybody comes to rest, and the model takes over what the views show then.
    void Settle();

    // What is left when all is closed; "" when that is nothing.
    std::string Close();

private:
    int Columns(int view) const override;
    int Page(int view) const override;
    const Atom* TopItem(int view) const override;

    void FillWorld(std::uint64_t seed);
    bool ShowsWorld(int view);
    void Calm();
    CListCtrl& Ctrl(int view) const { return static_cast<ListView&>(*m_views[static_cast<std::size_t>(view)]).List(); }
    TreeView& Items(int view) const { return static_cast<TreeView&>(*m_views[static_cast<std::size_t>(view)]); }

    std::vector<std::unique_ptr<View>> m_views;
    struct Count
    {
        const char* pszWhat;
        int n;
    };
    static std::vector<Count> CountAll();
    const std::vector<Count> m_counts = CountAll(); // before there is a window
};

inline const char* const kViewNames[kViews] = {"icons", "thumbs", "tree", "passive"};

// The first thing that does not hold, as "what: how"; "" when all is well. The model is asked only while it follows.
std::string Check(Scene& scene, bool bFollows, bool bPixels); // Checks.cpp
