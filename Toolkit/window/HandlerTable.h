// Which member function of a control handles which message.
#pragma once

#include "Toolkit/window/WindowApi.h"

#include <initializer_list>
#include <unordered_map>
#include <utility>

namespace toolkit
{

template <class Control>
class HandlerTable
{
public:
    using Handler = LRESULT (Control::*)(WPARAM, LPARAM);

    HandlerTable(std::initializer_list<std::pair<const UINT, Handler>> handlers) : m_handlers(handlers) {}

    // The handler's answer; that of ::DefWindowProc for a message that has none. The control may be gone afterwards.
    LRESULT Call(Control& control, HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) const
    {
        const auto it = m_handlers.find(message);
        return it == m_handlers.end() ? ::DefWindowProc(hWnd, message, wParam, lParam)
                                      : (control.*it->second)(wParam, lParam);
    }

private:
    const std::unordered_map<UINT, Handler> m_handlers;
};

} // namespace toolkit
