// The contract's stage without a screen, where the test plays the other program itself.
#include "Toolkit/headless/HeadlessDesktop.h"
#include "Toolkit/window/WindowApi.h"
#include "tests/desktop/Actor.h"
#include "tests/desktop/Stage.h"

#include <deque>
#include <optional>

namespace
{

constexpr char kKind[] = "application/x-atoms";

toolkit::Modifiers ModifiersOf(const std::string& key)
{
    return {key.find("shift+") != key.npos, key.find("ctrl+") != key.npos, false};
}

class HeadlessStage : public Stage
{
public:
    bool Start() override
    {
        m_actor.emplace("left", CRect(CPoint(100, 100), CSize(200, 120)), kColor,
                        [this](const std::string& line) { m_lines.push_back(line); });
        ComeBack();
        return Hear() == "active";
    }

    void Tell(const std::string& command) override
    {
        m_actor->Do(command);
        m_desktop.Run();
    }

    bool IsSeen(CSize size) override
    {
        if (!::IsWindowVisible(Window()))
            return size == CSize();
        const toolkit::Surface seen = m_desktop.Dump(Window());
        const bool bPainted = seen.At(seen.Width() - 1, seen.Height() - 1) == toolkit::ToPixel(kColor);
        return bPainted && CSize(seen.Width(), seen.Height()) == size;
    }

    bool IsSeenAt(CPoint screen) override { return Corner() == screen; }

    void Key(const std::string& key) override
    {
        static const std::map<std::string, UINT> kKeys = {{"F2", VK_F2},   {"Menu", VK_APPS},
                                                          {"Tab", VK_TAB}, {"Delete", VK_DELETE},
                                                          {"c", 'C'},      {"Return", VK_RETURN}};
        const std::string last = key.substr(key.rfind('+') + 1);
        m_desktop.Hold(ModifiersOf(key));
        if (const auto it = kKeys.find(last); it != kKeys.end())
            m_desktop.Key(it->second);
        else
            m_desktop.Type(last);
        m_desktop.Hold({});
    }

    void Hold(const std::string& modifier, bool bDown) override
    {
        m_desktop.Hold(bDown ? ModifiersOf(modifier + "+") : toolkit::Modifiers());
    }
    void Move(CPoint at) override
    {
        m_at = at;
        m_desktop.MoveTo(Window(), at);
    }
    void Press(int nButton) override { m_desktop.Press(Window(), m_at, ButtonOf(nButton)); }
    void Release(int nButton) override { m_desktop.Release(Window(), m_at, ButtonOf(nButton)); }
    void DoubleClick() override { m_desktop.DoubleClick(Window(), m_at); }
    void Wheel(int nNotches) override { m_desktop.Wheel(Window(), m_at, nNotches); }
    void Leave() override { Input(&toolkit::InputMouseLeave); }
    void Resize(CSize size) override { Input(&toolkit::InputResize, size); }
    void MoveWindow(CPoint by) override { Input(&toolkit::InputMoved, Corner() + by); }
    void Close() override { Input(&toolkit::InputClose); }
    void GoToOther() override { Input(&toolkit::InputActivate, false); }
    void ComeBack() override { Input(&toolkit::InputActivate, true); }

    bool Choose(const std::function<void()>& open, CPoint at, const std::vector<std::string>& path) override
    {
        m_desktop.Choose(path.empty() ? "" : path.back());
        open();
        ::ClientToScreen(Window(), &at);
        return m_desktop.LastMenuPlace() == at;
    }
    void Answer(const std::string& box, int nButton) override
    {
        m_desktop.Answer(nButton);
        Tell(box);
    }

    void OtherCopies() override { m_desktop.TakeClipboard({{kKind, "from other"}}); }
    std::string OtherPastes() override { return m_desktop.ReadPublished(kKind).value_or("nothing"); }

    void DragWithin(CPoint from, CPoint to) override
    {
        Drag(from, [this, to] {
            m_desktop.MoveTo(Window(), to);
            m_desktop.Release(Window(), to);
        });
    }
    void DragToNowhere(CPoint from) override
    {
        Drag(from, [this] { m_desktop.DropOutside(DROPEFFECT_NONE); });
    }
    void DragAndCancel(CPoint from) override
    {
        Drag(from, [this] { m_desktop.Key(VK_ESCAPE); });
    }
    void DragToOther(CPoint from, const std::string& drop) override
    {
        Drag(from, [&] { m_desktop.DropOutside(drop == "take" ? DROPEFFECT_MOVE : DROPEFFECT_NONE); });
    }
    std::string DragFromOther(CPoint to) override
    {
        m_desktop.DragIn({{kKind, "from other"}});
        m_desktop.MoveTo(Window(), to);
        m_desktop.Release(Window(), to);
        return m_desktop.DragEffect() == DROPEFFECT_MOVE ? "dragged move" : "dragged another way";
    }

protected:
    std::string NextLine() override
    {
        if (m_lines.empty())
            m_desktop.Advance(1000);
        if (m_lines.empty() && !m_desktop.RunUntil([this] { return !m_lines.empty(); }))
            return "";
        const std::string line = m_lines.front();
        m_lines.pop_front();
        return line;
    }

private:
    HWND Window() const { return m_actor->GetSafeHwnd(); }
    CPoint Corner() const
    {
        CPoint at;
        ::ClientToScreen(Window(), &at);
        return at;
    }
    static toolkit::MouseButton ButtonOf(int nButton)
    {
        return nButton == 1 ? toolkit::MouseButton::Left : toolkit::MouseButton::Right;
    }
    template <class... Arguments>
    void Input(void (*put)(HWND, Arguments...), std::type_identity_t<Arguments>... arguments)
    {
        put(Window(), arguments...);
        m_desktop.Run();
    }
    void Drag(CPoint from, std::function<void()> script)
    {
        m_desktop.DuringDrag(std::move(script));
        Tell("drag");
        m_desktop.Press(Window(), from);
        m_desktop.MoveTo(Window(), from + CPoint(8, 0));
    }

    toolkit::HeadlessDesktop m_desktop;
    std::optional<Actor> m_actor;
    std::deque<std::string> m_lines;
    CPoint m_at;
};

} // namespace

std::unique_ptr<Stage> MakeHeadlessStage()
{
    return std::make_unique<HeadlessStage>();
}
