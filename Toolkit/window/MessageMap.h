// Message maps: for each class a table from message to handler.
//
// A map is searched from the most derived class to the base; the first entry that fits gets the message. A
// handler that wants the base's behaviour, too, calls the base's handler, which ends in Default().
#pragma once

#include "Toolkit/window/MessageThunks.h"

#include <array>

class CWnd;

namespace toolkit
{

// FALSE: the message counts as not handled, by this window at all; the search does not go on.
using MessageHandler = bool (*)(CWnd* pWnd, MessageCall& call);

struct MessageEntry
{
    UINT message;
    UINT code; // the notification's or command's code; 0 for other messages
    UINT id, lastID;
    MessageHandler handler;
};

// What a search has found, an entry or none. No message has the number 0.
struct FoundEntry
{
    UINT message = 0, code = 0, id = 0;
    const MessageEntry* pEntry = nullptr;
};

struct MessageMap
{
    const MessageMap* (*base)(); // NULL at the root
    const MessageEntry* entries; // ends with an entry for message 0
    // What was searched last for objects of this very class. Windows belong to one thread, and so does this.
    mutable std::array<FoundEntry, 32> found{};
};

// The entry for a message, searched from the given class to the base; NULL without one.
TOOLKIT_API const MessageEntry* SearchMessageEntry(const MessageMap* pMap, UINT message, UINT code, UINT id);

// The same; costs a search only for what was not searched lately.
inline const MessageEntry* FindMessageEntry(const MessageMap* pMap, UINT message, UINT code, UINT id)
{
    FoundEntry& found = pMap->found[(message * 0x9E3779B1u ^ code * 0x85EBCA77u) >> 27];
    if (found.message != message || found.code != code || found.id != id)
        found = {message, code, id, SearchMessageEntry(pMap, message, code, id)};
    return found.pEntry;
}

} // namespace toolkit

#define afx_msg

#define DECLARE_MESSAGE_MAP()                                                                                          \
protected:                                                                                                             \
    static const toolkit::MessageMap* GetThisMessageMap();                                                             \
    const toolkit::MessageMap* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const toolkit::MessageMap* theClass::GetMessageMap() const                                                         \
    {                                                                                                                  \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    const toolkit::MessageMap* theClass::GetThisMessageMap()                                                           \
    {                                                                                                                  \
        using ThisClass = theClass;                                                                                    \
        using BaseClass = baseClass;                                                                                   \
        static constexpr toolkit::MessageEntry entries[] = {

#define END_MESSAGE_MAP()                                                                                              \
    {                                                                                                                  \
        0, 0, 0, 0, nullptr                                                                                            \
    }                                                                                                                  \
    }                                                                                                                  \
    ;                                                                                                                  \
    static constinit const toolkit::MessageMap map{[] { return BaseClass::GetThisMessageMap(); }, entries};            \
    return &map;                                                                                                       \
    }

#define TOOLKIT_ENTRY(message, thunk, member) {message, 0, 0, 0, &toolkit::thunk<ThisClass, &ThisClass::member>},

#define ON_WM_CREATE() TOOLKIT_ENTRY(WM_CREATE, CallCreate, OnCreate)
#define ON_WM_DESTROY() TOOLKIT_ENTRY(WM_DESTROY, CallMessage, OnDestroy)
#define ON_WM_CLOSE() TOOLKIT_ENTRY(WM_CLOSE, CallMessage, OnClose)
#define ON_WM_PAINT() TOOLKIT_ENTRY(WM_PAINT, CallMessage, OnPaint)
#define ON_WM_ERASEBKGND() TOOLKIT_ENTRY(WM_ERASEBKGND, CallMessage, OnEraseBkgnd)
#define ON_WM_SIZE() TOOLKIT_ENTRY(WM_SIZE, CallSize, OnSize)
#define ON_WM_SYSCOLORCHANGE() TOOLKIT_ENTRY(WM_SYSCOLORCHANGE, CallMessage, OnSysColorChange)
#define ON_WM_SHOWWINDOW() TOOLKIT_ENTRY(WM_SHOWWINDOW, CallMessage, OnShowWindow)
#define ON_WM_SETFOCUS() TOOLKIT_ENTRY(WM_SETFOCUS, CallMessage, OnSetFocus)
#define ON_WM_KILLFOCUS() TOOLKIT_ENTRY(WM_KILLFOCUS, CallMessage, OnKillFocus)
#define ON_WM_LBUTTONDOWN() TOOLKIT_ENTRY(WM_LBUTTONDOWN, CallMessage, OnLButtonDown)
#define ON_WM_LBUTTONUP() TOOLKIT_ENTRY(WM_LBUTTONUP, CallMessage, OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() TOOLKIT_ENTRY(WM_LBUTTONDBLCLK, CallMessage, OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() TOOLKIT_ENTRY(WM_RBUTTONDOWN, CallMessage, OnRButtonDown)
#define ON_WM_RBUTTONDBLCLK() TOOLKIT_ENTRY(WM_RBUTTONDBLCLK, CallMessage, OnRButtonDblClk)
#define ON_WM_RBUTTONUP() TOOLKIT_ENTRY(WM_RBUTTONUP, CallMessage, OnRButtonUp)
#define ON_WM_MOUSEMOVE() TOOLKIT_ENTRY(WM_MOUSEMOVE, CallMessage, OnMouseMove)
#define ON_WM_MOUSEWHEEL() TOOLKIT_ENTRY(WM_MOUSEWHEEL, CallWheel, OnMouseWheel)
#define ON_WM_KEYDOWN() TOOLKIT_ENTRY(WM_KEYDOWN, CallKey, OnKeyDown)
#define ON_WM_KEYUP() TOOLKIT_ENTRY(WM_KEYUP, CallKey, OnKeyUp)
#define ON_WM_CHAR() TOOLKIT_ENTRY(WM_CHAR, CallKey, OnChar)
#define ON_WM_TIMER() TOOLKIT_ENTRY(WM_TIMER, CallMessage, OnTimer)
#define ON_WM_CONTEXTMENU() TOOLKIT_ENTRY(WM_CONTEXTMENU, CallMessage, OnContextMenu)

// LRESULT handler(WPARAM, LPARAM)
#define ON_MESSAGE(message, memberFxn) {message, 0, 0, 0, &toolkit::CallMessage<ThisClass, &ThisClass::memberFxn>},
// void handler(); the command's identifier
#define ON_COMMAND(id, memberFxn) {WM_COMMAND, 0, id, id, &toolkit::CallCommand<ThisClass, &ThisClass::memberFxn>},
// void handler(); a control's own WM_COMMAND, which carries its notification's code, seen by the parent
#define ON_CONTROL(code, id, memberFxn)                                                                                \
    {WM_COMMAND, code, id, id, &toolkit::CallCommand<ThisClass, &ThisClass::memberFxn>},
// void handler(); the same, come back to the control, not seen by the parent
#define ON_CONTROL_REFLECT(code, memberFxn)                                                                            \
    {WM_REFLECT_BASE + WM_COMMAND, code, 0, 0, &toolkit::CallCommand<ThisClass, &ThisClass::memberFxn>},
// BOOL handler(); FALSE lets the parent see it, too
#define ON_CONTROL_REFLECT_EX(code, memberFxn)                                                                         \
    {WM_REFLECT_BASE + WM_COMMAND, code, 0, 0, &toolkit::CallCommandEx<ThisClass, &ThisClass::memberFxn>},
// void handler(NMHDR*, LRESULT*); a child's notification, seen by the parent
#define ON_NOTIFY(code, id, memberFxn)                                                                                 \
    {WM_NOTIFY, code, id, id, &toolkit::CallNotify<ThisClass, &ThisClass::memberFxn>},
// void handler(NMHDR*, LRESULT*); a notification that comes back to the control, not seen by the parent
#define ON_NOTIFY_REFLECT(code, memberFxn)                                                                             \
    {WM_REFLECT_BASE + WM_NOTIFY, code, 0, 0, &toolkit::CallNotify<ThisClass, &ThisClass::memberFxn>},
// BOOL handler(NMHDR*, LRESULT*); FALSE lets the parent see it, too
#define ON_NOTIFY_REFLECT_EX(code, memberFxn)                                                                          \
    {WM_REFLECT_BASE + WM_NOTIFY, code, 0, 0, &toolkit::CallNotifyEx<ThisClass, &ThisClass::memberFxn>},
