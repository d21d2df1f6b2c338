// Which member function of a control, or of one of its parts, handles which message.
#pragma once

#include "Toolkit/window/DefWindowProc.h"
#include "Toolkit/window/MessageParam.h"

#include <initializer_list>
#include <utility>
#include <vector>

namespace toolkit
{

template <class Control>
class HandlerTable
{
public:
    using Handler = LRESULT (*)(Control&, WPARAM, LPARAM);
    using Entry = std::pair<UINT, Handler>;

    HandlerTable(std::initializer_list<Entry> handlers)
    {
        while (m_slots.size() < 4 * handlers.size())
            m_slots.resize(2 * m_slots.size());
        for (const Entry& entry : handlers)
            m_slots[SlotOf(entry.first)] = entry;
    }

    // Handlers are called as CallHandler does it.
    template <auto handler>
    static LRESULT To(Control& control, WPARAM wParam, LPARAM lParam)
    {
        return CallHandler<handler>(control, wParam, lParam);
    }
    template <auto part, auto handler>
    static LRESULT To(Control& control, WPARAM wParam, LPARAM lParam)
    {
        return CallHandler<handler>(control.*part, wParam, lParam);
    }

    // The handler's answer; that of ::DefWindowProc for a message that has none.
    LRESULT Call(Control& control, UINT message, WPARAM wParam, LPARAM lParam) const
    {
        const Handler handler = m_slots[SlotOf(message)].second;
        return handler ? handler(control, wParam, lParam) : ::DefWindowProc(control.m_hWnd, message, wParam, lParam);
    }

private:
    // The message's slot, or the empty one where it would be.
    std::size_t SlotOf(UINT message) const
    {
        const std::size_t mask = m_slots.size() - 1;
        std::size_t i = message * 0x9E3779B1u >> 16 & mask;
        while (m_slots[i].second && m_slots[i].first != message)
            i = (i + 1) & mask;
        return i;
    }

    std::vector<Entry> m_slots = std::vector<Entry>(16); // a power of two, at most a quarter of them taken
};

} // namespace toolkit
