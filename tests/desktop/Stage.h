// A desktop with the actor's window on it, a user, and another program: what the contract of all desktops is tried on.
#pragma once

#include "Toolkit/base/Geometry.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

class Stage
{
public:
    virtual ~Stage() = default;

    static constexpr COLORREF kColor = RGB(250, 240, 230); // of the actor's window, 200 x 120

    virtual std::string Missing() const { return ""; } // the first program that it needs and is not installed
    virtual bool Start() = 0;                          // the actor's window is shown and active then

    virtual void Tell(const std::string& command) = 0; // the actor (tests/desktop/Actor.h)
    void Do(const std::string& command);               // as above, and it is done afterwards
    // What it says next, of what begins so; what comes before is passed over. Empty when that does not come.
    std::string Hear(const std::string& beginning = "");
    std::string Ask(const std::string& command, const std::string& beginning = ""); // tells it, and hears

    // Is, or becomes within a while, the actor's window as large as that on the screen? 0,0: it is in sight nowhere.
    virtual bool IsSeen(CSize size) = 0;
    virtual bool IsSeenAt(CPoint screen) = 0;

    // The user, with points in the window. Keys as in "shift+F2"; what is held with them comes first.
    virtual void Key(const std::string& key) = 0;
    virtual void Hold(const std::string& modifier, bool bDown) = 0;
    virtual void Move(CPoint at) = 0;
    virtual void Press(int nButton) = 0; // 1 left, 3 right
    virtual void Release(int nButton) = 0;
    virtual void DoubleClick() = 0;
    virtual void Wheel(int nNotches) = 0;
    virtual void Leave() = 0; // with the mouse
    virtual void Resize(CSize size) = 0;
    virtual void MoveWindow(CPoint by) = 0;
    virtual void Close() = 0;
    virtual void GoToOther() = 0; // makes the other program active
    virtual void ComeBack() = 0;

    // Something that opens a menu, in which the user goes down these items, or leaves it when there are none. Was it
    // at that place in the window?
    virtual bool Choose(const std::function<void()>& open, CPoint at, const std::vector<std::string>& path) = 0;
    virtual void Answer(const std::string& box, int nButton) = 0;

    // The other program. It drags and copies "from other".
    virtual void OtherCopies() = 0;
    virtual std::string OtherPastes() = 0;
    virtual void DragWithin(CPoint from, CPoint to) = 0;
    virtual void DragToNowhere(CPoint from) = 0;
    virtual void DragAndCancel(CPoint from) = 0; // with Escape
    // Which does with it what the actor knows for "drop", or is killed while it holds: "die".
    virtual void DragToOther(CPoint from, const std::string& drop) = 0;
    virtual std::string DragFromOther(CPoint to) = 0; // what it says of the drag's end

protected:
    virtual std::string NextLine() = 0; // of the actor
};

std::unique_ptr<Stage> MakeHeadlessStage();
std::unique_ptr<Stage> MakeX11Stage();
std::unique_ptr<Stage> MakeWaylandStage();
