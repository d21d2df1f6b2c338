// What the user does.
#include "tests/walk/Steps.h"

namespace
{

constexpr std::pair<UINT, const char*> kKeys[] = {
    {VK_UP, "Up"},         {VK_DOWN, "Down"},    {VK_LEFT, "Left"},     {VK_RIGHT, "Right"}, {VK_HOME, "Home"},
    {VK_END, "End"},       {VK_PRIOR, "PageUp"}, {VK_NEXT, "PageDown"}, {VK_SPACE, "Space"}, {VK_BACK, "Back"},
    {VK_ADD, "+"},         {VK_SUBTRACT, "-"},   {VK_MULTIPLY, "*"},    {'A', "A"},          {VK_RETURN, "Enter"},
    {VK_ESCAPE, "Escape"}, {VK_UP, "Up"},        {VK_DOWN, "Down"}};
// Keys that move the caret in a label's field are the field's own affair.
constexpr std::pair<UINT, const char*> kFieldKeys[] = {{VK_BACK, "Back"}, {VK_RETURN, "Enter"}, {VK_ESCAPE, "Escape"}};

std::string Print(Keys keys)
{
    return std::string(keys.control ? "Ctrl+" : "") + (keys.shift ? "Shift+" : "");
}

std::string Print(CPoint at)
{
    return " at " + std::to_string(at.x) + "," + std::to_string(at.y);
}

int ScrollPosition(HWND hWnd)
{
    SCROLLINFO info{};
    ::GetScrollInfo(hWnd, SB_VERT, &info);
    return info.nPos;
}

void ClickOnce(Walker& walker, const Step& step, bool bDouble)
{
    const int view = step.View();
    if (!walker.scene.IsAlive(view))
        return;
    walker.LetTimePass(501); // so that two clicks are no double click
    const HWND hWnd = walker.scene.Window(view);
    const CPoint at = walker.PickPoint(view, step.b, step.c);
    const bool right = step.d % 8 == 0;
    const Keys keys{!bDouble && step.d / 8 % 4 == 0, !bDouble && step.d / 32 % 4 == 0};
    CPoint screen = at;
    ::ClientToScreen(hWnd, &screen);
    if (::WindowFromPoint(screen) != hWnd)
        walker.GoAstray(step.d / 128 % 3); // a label's field, a hidden view
    if (right && bDouble)
        walker.GoAstray(0); // the first click has opened a menu
    const Hit hit = walker.scene.HitAt(view, at);
    walker.Say((right ? "right " : "") + Print(keys) + kViewNames[view] + Print(at) + " row " +
               std::to_string(hit.row) + " item " + ::Print(hit.pAtom) + " part " +
               std::to_string(static_cast<int>(hit.part)));

    auto& desktop = walker.scene.desktop;
    const auto button = right ? toolkit::MouseButton::Right : toolkit::MouseButton::Left;
    if (right && step.d / 128 % 2)
        desktop.Choose("Something");
    desktop.Hold({.shift = keys.shift, .control = keys.control});
    const auto isSame = [&] { return ::IsWindow(hWnd) && walker.scene.HitAt(view, at) == hit; };
    desktop.Press(hWnd, at, button);
    bool bSame = isSame(); // nothing has scrolled under the mouse
    desktop.Release(hWnd, at, button);
    if (bDouble) {
        bSame = bSame && isSame();
        desktop.Press(hWnd, at, button);
        desktop.Release(hWnd, at, button);
    }
    desktop.Hold({});
    desktop.TakeMenus();
    if (!bSame)
        walker.GoAstray(step.d % 2);
    if (walker.Follows())
        bDouble ? walker.scene.model.DoubleClick(view, hit) : walker.scene.model.Click(view, hit, keys, right);
}

void Key(Walker& walker, const Step& step)
{
    const bool bEditing = walker.scene.Focus() >= kField && walker.scene.Focus() < kField + kViews;
    const auto [vkey, pszName] = bEditing ? kFieldKeys[step.a % 3] : kKeys[step.a % std::size(kKeys)];
    const Keys keys{!bEditing && step.b % 3 == 0, !bEditing && step.b / 3 % 3 == 0};
    if (vkey == 'A' && !keys.control)
        return;
    walker.Say(Print(keys) + pszName);
    walker.scene.model.NoteLayout();
    walker.scene.desktop.Hold({.shift = keys.shift, .control = keys.control});
    walker.scene.desktop.Key(vkey);
    walker.scene.desktop.Hold({});
    if (walker.Follows())
        walker.scene.model.Key(vkey, keys);
}

void Type(Walker& walker, const Step& step)
{
    const char c = "abcdeABCE mxy"[step.a % 13];
    walker.Say(std::string(1, c));
    walker.scene.desktop.Type(std::string(1, c));
    if (walker.Follows())
        walker.scene.model.Type(c);
}

void Wheel(Walker& walker, const Step& step)
{
    const HWND hFocus = ::GetFocus();
    const int before = ScrollPosition(hFocus);
    walker.scene.desktop.Wheel(walker.scene.frame.m_hWnd, {500, 300}, static_cast<int>(step.a % 7) - 3);
    if (walker.Follows() && ScrollPosition(hFocus) != before)
        walker.scene.model.Scrolled();
}

// By the scroll bar, while no label may hang on where it lies.
void Scroll(Walker& walker, const Step& step)
{
    static constexpr WPARAM kHow[] = {SB_LINEUP, SB_LINEDOWN, SB_PAGEUP, SB_PAGEDOWN};
    walker.Say(kViewNames[step.View()]);
    walker.GoAstray(0);
    if (walker.scene.IsAlive(step.View()))
        walker.scene.At(step.View())
            .Wnd()
            .SendMessage(step.c % 4 ? WM_VSCROLL : WM_HSCROLL, kHow[step.b % std::size(kHow)]);
}

void MoveMouse(toolkit::HeadlessDesktop& desktop, HWND hWnd, CPoint at)
{
    desktop.MoveTo(hWnd, at);
}

// What comes of it depends on what happens before the other half.
void HalfClick(Walker& walker, const Step& step, void (*how)(toolkit::HeadlessDesktop&, HWND, CPoint))
{
    const int view = step.View();
    const HWND hWnd = walker.scene.IsAlive(view) ? walker.scene.Window(view) : walker.scene.frame.m_hWnd;
    const CPoint at = walker.scene.IsAlive(view) ? walker.PickPoint(view, step.b, step.c) : CPoint(5, 5);
    walker.Say(kViewNames[view] + Print(at));
    walker.GoAstray(how == &MoveMouse ? 0 : step.d % 6);
    walker.scene.desktop.Hold({.shift = step.d / 8 % 4 == 0, .control = step.d / 32 % 4 == 0});
    how(walker.scene.desktop, hWnd, at);
    walker.scene.desktop.Hold({});
}

// A rubber band from beside the rows of a list; the pixels are compared while it is held.
void Band(Walker& walker, const Step& step)
{
    const int view = static_cast<int>(step.a % kTree);
    walker.GoAstray(1 + step.d % 3);
    if (!walker.scene.IsAlive(view))
        return;
    const HWND hWnd = walker.scene.Window(view);
    CRect client;
    ::GetClientRect(hWnd, &client);
    CPoint from(static_cast<int>(step.b % 200), static_cast<int>(step.c % 150));
    while (client.PtInRect(from) && walker.scene.HitAt(view, from).row >= 0)
        ++from.y;
    walker.Say(kViewNames[view] + Print(from));
    walker.scene.desktop.Hold({.shift = step.d / 4 % 4 == 0, .control = step.d / 16 % 4 == 0});
    walker.scene.desktop.Press(hWnd, from);
    for (unsigned i = 0; i < 1 + step.d / 64 % 3 && ::IsWindow(hWnd); ++i)
        walker.scene.desktop.MoveTo(hWnd, walker.PickPoint(view, step.b + i, step.c + 2 * i));
    if (step.d / 256 % 2 && ::IsWindow(hWnd))
        walker.scene.desktop.Release(hWnd, walker.scene.desktop.CursorPos());
    walker.scene.desktop.Hold({});
}

// It may come to this only at a later press.
void PlayDrag(Walker& walker, int onto, const Step& step)
{
    walker.dragIsPlanned = false;
    auto& desktop = walker.scene.desktop;
    const auto moveTo = [&](unsigned n, unsigned m) {
        if (walker.scene.IsAlive(onto))
            desktop.MoveTo(walker.scene.Window(onto), walker.PickPoint(onto, n, m));
    };
    const toolkit::Modifiers keys{.control = step.d / 4 % 2 == 0};
    desktop.Hold(keys);
    moveTo(step.c, step.b);
    if (step.d / 8 % 4 == 0)
        moveTo(step.d, step.c);
    moveTo(step.b, step.d);
    desktop.Hold({});
    desktop.Hold(keys); // each of the two moves again: entering has no effect yet
    if (step.d / 32 % 4 == 0 || !walker.scene.IsAlive(onto))
        desktop.Key(VK_ESCAPE);
    else
        desktop.Release(walker.scene.Window(onto), walker.PickPoint(onto, step.b, step.d));
    desktop.Hold({});
}

void Drag(Walker& walker, const Step& step)
{
    const int view = step.View(), onto = static_cast<int>(step.a / 4 % kViews);
    walker.GoAstray(step.d % 3);
    if (!walker.scene.IsAlive(view) || !walker.scene.IsAlive(onto))
        return;
    const HWND hWnd = walker.scene.Window(view);
    const CPoint at = walker.PickPoint(view, step.b, step.c);
    walker.Say(std::string(kViewNames[view]) + " to " + kViewNames[onto]);
    auto& desktop = walker.scene.desktop;
    walker.scene.host.pSelected = &walker.scene.At(view).Handler();
    if (!std::exchange(walker.dragIsPlanned, true))
        desktop.DuringDrag([&walker, onto, step] { PlayDrag(walker, onto, step); });
    desktop.Press(hWnd, at);
    desktop.MoveTo(hWnd, at + CPoint(3, 6));
    desktop.Release(hWnd, at + CPoint(3, 6));
}

} // namespace

const StepKinds& UserSteps()
{
    using toolkit::HeadlessDesktop;
    static const StepKinds s_kinds{
        {"click", 22, [](Walker& walker, const Step& step) { ClickOnce(walker, step, false); }},
        {"double click", 5, [](Walker& walker, const Step& step) { ClickOnce(walker, step, true); }},
        {"key", 22, &Key},
        {"type", 8, &Type},
        {"wheel", 3, &Wheel},
        {"scroll", 2, &Scroll},
        {"press", 3,
         [](Walker& walker, const Step& step) {
             HalfClick(walker, step, [](HeadlessDesktop& desktop, HWND hWnd, CPoint at) { desktop.Press(hWnd, at); });
         }},
        {"move", 4, [](Walker& walker, const Step& step) { HalfClick(walker, step, &MoveMouse); }},
        {"release", 3,
         [](Walker& walker, const Step& step) {
             HalfClick(walker, step, [](HeadlessDesktop& desktop, HWND hWnd, CPoint at) { desktop.Release(hWnd, at); });
         }},
        {"band", 2, &Band},
        {"drag", 2, &Drag},
    };
    return s_kinds;
}
