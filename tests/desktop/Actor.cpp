#include "tests/desktop/Actor.h"

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/exchange/DataSource.h"
#include "Toolkit/focus/InputState.h"
#include "Toolkit/menu/MessageBox.h"
#include "Toolkit/message/TaskInbox.h"
#include "Toolkit/window/WindowApi.h"

#include <cstring>
#include <iostream>
#include <utility>

namespace
{

constexpr UINT kTick = 20; // milliseconds
const CLIPFORMAT kFormat = RegisterClipboardFormat("application/x-atoms");
const std::set<std::string> kOnlyWhenHeeded = {"move", "leave", "size", "moved", "active", "inactive"};
const std::set<std::string> kNeverSaid = {"key Control", "key Shift", "key other"}; // held with others
const std::set<std::string> kQuiet = {"heed", "ignore", "show", "hide", "place", "vanish", "drag", "drop"};

std::string Pair(int first, int second)
{
    return std::to_string(first) + "," + std::to_string(second);
}

std::string Name(DROPEFFECT effect)
{
    return effect == DROPEFFECT_MOVE ? "move" : effect == DROPEFFECT_COPY ? "copy" : "none";
}

std::string Take(HGLOBAL hMem)
{
    const toolkit::GlobalLocker<char> bytes(hMem);
    const std::string text = bytes.Get() ? std::string(bytes.Get(), GlobalSize(hMem)) : "nothing";
    GlobalFree(hMem);
    return text;
}

} // namespace

Actor::Actor(const std::string& name, const CRect& place, COLORREF color, Say say)
    : CProbeWnd(name.c_str(), place), m_name(name), m_say(std::move(say))
{
    m_color = color;
    Register(this);
}

Actor::~Actor()
{
    if (m_thread.joinable())
        m_thread.join();
}

void Actor::Do(const std::string& command)
{
    toolkit::PostTask([this, command] {
        std::istringstream words(command);
        Perform(words);
    });
}

void Actor::Perform(std::istringstream& command)
{
    std::string verb, word;
    command >> verb;
    const auto rest = [&command] { return std::string(std::istreambuf_iterator<char>(command >> std::ws), {}); };
    const auto number = [&command] {
        int n = 0;
        command >> n;
        return n;
    };
    const std::map<std::string, std::function<void()>> verbs = {
        {"heed", [&] { m_heeded.insert(rest()); }},
        {"ignore", [&] { m_heeded.erase(rest()); }},
        {"show", [&] { ShowWindow(SW_SHOW); }},
        {"hide", [&] { ShowWindow(SW_HIDE); }},
        {"place",
         [&] {
             const int l = number(), t = number(), r = number(), b = number();
             MoveWindow(CRect(l, t, r, b));
         }},
        {"vanish", [&] { DestroyWindow(); }},
        {"where",
         [&] {
             CRect place;
             GetWindowRect(&place);
             m_say(Pair(place.left, place.top) + " " + Pair(place.Width(), place.Height()));
         }},
        {"timers",
         [&] {
             m_nTicks = 0;
             m_nTicksWanted = number();
             m_timerStart = toolkit::CurrentDesktop().Ticks();
             SetTimer(1, kTick);
         }},
        {"threads",
         [&] {
             m_thread = std::thread([this] {
                 toolkit::PostTask([this] { m_say("task 1"); });
                 toolkit::PostTask([this] { m_say("task 2"); });
             });
         }},
        {"menu",
         [&] {
             CPoint at(number(), 0);
             at.y = number();
             ClientToScreen(&at);
             OpenMenu(at);
         }},
        {"box",
         [&] {
             const auto nType = static_cast<UINT>(number());
             const int nAnswer = ::MessageBox(GetSafeHwnd(), "Delete all?", "Question", nType);
             m_say("answered " + std::to_string(nAnswer));
         }},
        {"copy", [&] { Copy(); }},
        {"paste", [&] { Paste(); }},
        {"owner", [&] { m_say(COleDataSource::GetClipboardOwner() ? "its own" : "not its own"); }},
        {"drag", [&] { m_bDrags = true; }},
        {"drop", [&] { m_drop = rest(); }},
    };
    verbs.at(verb)();
    if (kQuiet.contains(verb))
        m_say("done");
}

LRESULT Actor::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_ACTIVATE)
        Note(wParam == WA_ACTIVE ? "active" : "inactive");
    else if (message == WM_MOVE)
        Note("moved");
    else if (message == WM_TIMER)
        Tick();
    else if (message == WM_CONTEXTMENU) {
        CPoint at;
        ::GetCursorPos(&at);
        OpenMenu(at);
        return 0;
    }
    const bool bDrags = m_bDrags && message == WM_MOUSEMOVE && (wParam & MK_LBUTTON);
    const LRESULT result = CProbeWnd::WindowProc(message, wParam, lParam);
    if (bDrags)
        Drag();
    return result;
}

void Actor::Note(const std::string& entry)
{
    const std::string word = entry.substr(0, entry.find(' '));
    const bool bSaid = !kOnlyWhenHeeded.contains(word) || m_heeded.contains(word);
    if (m_say && bSaid && !kNeverSaid.contains(entry))
        m_say(entry);
}

void Actor::Tick()
{
    if (++m_nTicks < m_nTicksWanted)
        return;
    KillTimer(1);
    const DWORD passed = toolkit::CurrentDesktop().Ticks() - m_timerStart;
    const bool bInTime = passed >= kTick * static_cast<DWORD>(m_nTicks);
    m_say(bInTime ? "ticked " + std::to_string(m_nTicks) : "too early");
}

void Actor::OpenMenu(CPoint screen)
{
    CMenu menu;
    FillMenu(menu);
    m_say("chose " + std::to_string(menu.TrackPopupMenu(TPM_RETURNCMD, screen.x, screen.y, this)));
}

std::unique_ptr<COleDataSource> Actor::Offer() const
{
    const std::string text = "from " + m_name;
    const HGLOBAL hMem = GlobalAlloc(GMEM_MOVEABLE, text.size());
    std::memcpy(toolkit::GlobalLocker<char>(hMem).Get(), text.data(), text.size());
    auto pSource = std::make_unique<COleDataSource>();
    pSource->CacheGlobalData(kFormat, hMem);
    return pSource;
}

void Actor::Copy()
{
    try {
        Offer().release()->SetClipboard();
        m_say("copied");
    } catch (const COleException&) {
        m_say("refused");
    }
}

void Actor::Paste()
{
    COleDataObject data;
    m_say(data.AttachClipboard() ? Take(data.GetGlobalData(kFormat)) : "nothing");
}

void Actor::Drag()
{
    m_bDrags = false;
    m_dragged = Offer();
    m_say("drags");
    m_say("dragged " + Name(m_dragged->DoDragDrop(DROPEFFECT_COPY | DROPEFFECT_MOVE)));
}

DROPEFFECT Actor::OnDragEnter(CWnd* pWnd, COleDataObject* pData, DWORD dwKeys, CPoint at)
{
    return OnDragOver(pWnd, pData, dwKeys, at);
}

DROPEFFECT Actor::OnDragOver(CWnd*, COleDataObject* pData, DWORD dwKeys, CPoint at)
{
    if (!pData->IsDataAvailable(kFormat))
        return DROPEFFECT_NONE;
    Note("over " + Pair(at.x, at.y));
    if (m_drop == "forget")
        m_dragged.reset();
    return dwKeys & MK_CONTROL ? DROPEFFECT_COPY : DROPEFFECT_MOVE;
}

BOOL Actor::OnDrop(CWnd*, COleDataObject* pData, DROPEFFECT effect, CPoint)
{
    m_say("drop " + Name(effect) + " " + Take(pData->GetGlobalData(kFormat)));
    const std::string how = std::exchange(m_drop, "take");
    std::string line;
    if (how == "hold")
        std::getline(std::cin, line); // as long as its input is open
    if (how == "vanish")
        DestroyWindow();
    return how != "refuse";
}
