#include "Toolkit/focus/ModalInput.h"

#include "Toolkit/handle/WindowQueries.h"

namespace
{
struct
{
    bool bOn = false;
    HWND hWnd = nullptr;
} s_modal;
} // namespace

toolkit::ModalInput::ModalInput(HWND hModal) : m_bFormerOn(s_modal.bOn), m_hFormer(s_modal.hWnd)
{
    s_modal = {true, hModal};
}

toolkit::ModalInput::~ModalInput()
{
    s_modal = {m_bFormerOn, m_hFormer};
}

bool toolkit::ModalInput::IsOn()
{
    return s_modal.bOn;
}

HWND toolkit::ModalInput::Window()
{
    return s_modal.hWnd;
}

bool toolkit::ModalInput::Admits(HWND hWnd)
{
    return !s_modal.bOn || (s_modal.hWnd && (hWnd == s_modal.hWnd || IsChild(s_modal.hWnd, hWnd)));
}
