// Scroll bars under the mouse: dragging the thumb, paging by a press on the track, and the hover's feedback.
// Points are on the screen.
#pragma once

#include "Toolkit/message/Input.h"
#include "Toolkit/scroll/ScrollBar.h"

namespace toolkit
{

void PressScrollBar(HWND hWnd, CPoint screen);
bool IsTrackingScrollBar();
void TrackScrollBar(const InputEvent& event, CPoint screen);
void HoverScrollBars(HWND hWnd, CPoint screen); // NULL: the mouse is over none

// How a bar is to be drawn now.
struct ScrollBarLook
{
    bool bHot = false, bPressed = false;
    int nThumbOffset = 0; // the drag's, else the position's
};
ScrollBarLook GetScrollBarLook(HWND hWnd, int nBar, const ScrollBar& bar);
// The position the dragged thumb stands for; the given one while none is dragged.
int GetTrackPosition(HWND hWnd, int nBar, int nPos);

} // namespace toolkit
