// One window has the user's keys and presses for itself.
#pragma once

#include "Toolkit/handle/WindowTypes.h"

namespace toolkit
{

// While one lives, keys and presses of buttons are for that window and those inside it alone; NULL: for none. The last
// one made counts.
class ModalInput
{
public:
    explicit ModalInput(HWND hModal);
    ~ModalInput();
    ModalInput(const ModalInput&) = delete;
    ModalInput& operator=(const ModalInput&) = delete;

    static bool IsOn();
    static HWND Window();
    static bool Admits(HWND hWnd); // always, when there is no modal window

private:
    const bool m_bFormerOn;
    const HWND m_hFormer;
};

} // namespace toolkit
