// A window as assistive technology sees it: what it is, what it is called, what state it is in, and what is in it.
//
// A native window or a CWnd that has more to tell than its text and its child windows derives from this; the CWnd
// counts when both do. Nothing is kept for it: all is asked for when somebody wants to know, and only then, from the
// queue as painting is. Whatever is asked of the owner may change the window, so an item is asked about only while
// AccHas knows it.
//
// An item is a number of the window's own choosing, which is not CHILDID_SELF; that one is the window itself.
#pragma once

#include "Toolkit/access/WinEvents.h"
#include "Toolkit/base/Geometry.h"
#include "Toolkit/handle/WindowObject.h"

#include <optional>
#include <string>
#include <vector>

inline constexpr UINT ROLE_SYSTEM_MENUBAR = 0x02;
inline constexpr UINT ROLE_SYSTEM_MENUITEM = 0x0C;
inline constexpr UINT ROLE_SYSTEM_PANE = 0x10;
inline constexpr UINT ROLE_SYSTEM_TOOLBAR = 0x16;
inline constexpr UINT ROLE_SYSTEM_STATUSBAR = 0x17;
inline constexpr UINT ROLE_SYSTEM_LINK = 0x1E;
inline constexpr UINT ROLE_SYSTEM_LIST = 0x21;
inline constexpr UINT ROLE_SYSTEM_LISTITEM = 0x22;
inline constexpr UINT ROLE_SYSTEM_OUTLINE = 0x23; // a tree
inline constexpr UINT ROLE_SYSTEM_OUTLINEITEM = 0x24;
inline constexpr UINT ROLE_SYSTEM_GRAPHIC = 0x28;
inline constexpr UINT ROLE_SYSTEM_STATICTEXT = 0x29;
inline constexpr UINT ROLE_SYSTEM_TEXT = 0x2A; // a field for text
inline constexpr UINT ROLE_SYSTEM_PUSHBUTTON = 0x2B;
inline constexpr UINT ROLE_SYSTEM_PROGRESSBAR = 0x30;
inline constexpr UINT ROLE_SYSTEM_SLIDER = 0x33;

inline constexpr UINT STATE_SYSTEM_UNAVAILABLE = 0x1;
inline constexpr UINT STATE_SYSTEM_SELECTED = 0x2;
inline constexpr UINT STATE_SYSTEM_FOCUSED = 0x4; // the window has the focus, and this in it
inline constexpr UINT STATE_SYSTEM_CHECKED = 0x10;
inline constexpr UINT STATE_SYSTEM_READONLY = 0x40;
inline constexpr UINT STATE_SYSTEM_EXPANDED = 0x200;
inline constexpr UINT STATE_SYSTEM_COLLAPSED = 0x400;
inline constexpr UINT STATE_SYSTEM_OFFSCREEN = 0x10000; // scrolled out of sight
inline constexpr UINT STATE_SYSTEM_FOCUSABLE = 0x100000;
inline constexpr UINT STATE_SYSTEM_SELECTABLE = 0x200000;
inline constexpr UINT STATE_SYSTEM_MULTISELECTABLE = 0x1000000;

inline constexpr UINT SELFLAG_TAKEFOCUS = 0x1;
inline constexpr UINT SELFLAG_TAKESELECTION = 0x2; // alone
inline constexpr UINT SELFLAG_ADDSELECTION = 0x8;
inline constexpr UINT SELFLAG_REMOVESELECTION = 0x10;

namespace toolkit
{

struct AccRange
{
    double least, most, now;
};

class TOOLKIT_API Accessible
{
public:
    virtual ~Accessible() = default;

    virtual UINT AccRole(LPARAM /*item*/) { return ROLE_SYSTEM_PANE; }
    virtual UINT AccState(LPARAM /*item*/) { return 0; } // that the window is focused or hidden, the handle knows
    virtual std::string AccName(LPARAM /*item*/) { return {}; }
    virtual std::string AccDescription(LPARAM /*item*/) { return {}; }
    virtual CRect AccPlace(LPARAM /*item*/) { return {}; } // client; of an item

    // Items, in the window or in one of them. Child windows are none of them.
    virtual bool AccHas(LPARAM /*item*/) { return false; }
    virtual int AccCount(LPARAM /*parent*/) { return 0; }
    virtual LPARAM AccChild(LPARAM /*parent*/, int /*place*/) { return CHILDID_SELF; }
    virtual LPARAM AccParent(LPARAM /*item*/) { return CHILDID_SELF; }
    virtual int AccIndex(LPARAM item) { return static_cast<int>(item) - 1; } // among its parent's children
    virtual LPARAM AccAt(CPoint /*client*/) { return CHILDID_SELF; }
    virtual LPARAM AccFocus() { return CHILDID_SELF; } // the item that has the focus while the window has

    // What the user could do. The window may be gone afterwards.
    virtual std::string AccAction(LPARAM /*item*/) { return {}; } // the word for what AccDo does; empty: nothing
    virtual void AccDo(LPARAM /*item*/) {}
    virtual bool AccCanSelect() { return false; }
    virtual void AccSelect(LPARAM /*item*/, UINT /*flags*/) {} // SELFLAG_*

    // Of a slider or a progress bar.
    virtual std::optional<AccRange> AccValue() { return std::nullopt; }
    virtual void AccSetValue(double /*value*/) {}
};

// For a window that draws a few parts beside each other, such as buttons. A part's item is its place, from 1.
class TOOLKIT_API AccessibleParts : public Accessible
{
public:
    struct Part
    {
        UINT role = ROLE_SYSTEM_PUSHBUTTON;
        UINT state = 0;
        std::string name;
        CRect place;        // client
        std::string action; // the word for what a press does; empty: nothing
        std::string description{};
    };
    virtual std::vector<Part> AccParts() = 0;
    virtual void AccUse(int /*nPart*/) {} // counted from 0

    UINT AccRole(LPARAM item) override { return Find(item).role; }
    UINT AccState(LPARAM item) override { return Find(item).state; }
    std::string AccName(LPARAM item) override { return Find(item).name; }
    std::string AccDescription(LPARAM item) override { return Find(item).description; }
    CRect AccPlace(LPARAM item) override { return Find(item).place; }
    bool AccHas(LPARAM item) override { return item >= 1 && item <= AccCount(CHILDID_SELF); }
    int AccCount(LPARAM parent) override;
    LPARAM AccChild(LPARAM, int place) override { return place + 1; }
    LPARAM AccAt(CPoint client) override;
    std::string AccAction(LPARAM item) override { return Find(item).action; }
    void AccDo(LPARAM item) override { AccUse(static_cast<int>(item) - 1); }

protected:
    virtual Part AccWindow() { return {ROLE_SYSTEM_PANE, 0, {}, {}, {}}; } // what is told of the window itself

private:
    Part Find(LPARAM item);
};

// What a window tells of itself, which is little for a window that has no description, and held meanwhile: whatever is
// asked may destroy the window.
class TOOLKIT_API AccessibleOf
{
public:
    explicit AccessibleOf(HWND hWnd);

    Accessible* operator->() const { return m_pTells; }

private:
    const WindowHold m_hold;
    Accessible* const m_pTells;
};

// What the window itself is called: what it says, else what it was given, else its text, unless that is for the user
// to change.
TOOLKIT_API std::string AccessibleWindowName(HWND hWnd);
TOOLKIT_API std::vector<HWND> AccessibleChildren(HWND hWnd); // its child windows that are shown

} // namespace toolkit

// What a window is called that does not say so itself, such as a field whose label is drawn beside it.
TOOLKIT_API BOOL SetAccessibleName(HWND hWnd, LPCSTR pszName);
