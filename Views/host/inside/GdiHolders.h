// Inside the library: owners of drawing handles.
#pragma once

#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/window/WindowApi.h"

#include <memory>

namespace views
{

struct DeleteBitmapHandle
{
    void operator()(HBITMAP hBitmap) const { ::DeleteBitmap(hBitmap); }
};
using BitmapHolder = std::unique_ptr<HBITMAP__, DeleteBitmapHandle>;

struct DeleteDCHandle
{
    void operator()(HDC hdc) const { ::DeleteDC(hdc); }
};
using MemoryDC = std::unique_ptr<HDC__, DeleteDCHandle>;

struct DestroyIconHandle
{
    void operator()(HICON hIcon) const { ::DestroyIcon(hIcon); }
};
using IconHolder = std::unique_ptr<HICON__, DestroyIconHandle>;

class WindowDC
{
public:
    explicit WindowDC(HWND hWnd) : m_hWnd(hWnd), m_hdc(::GetWindowDC(hWnd)) {}
    ~WindowDC() { ::ReleaseDC(m_hWnd, m_hdc); }
    WindowDC(const WindowDC&) = delete;
    WindowDC& operator=(const WindowDC&) = delete;
    HDC Get() const { return m_hdc; }

private:
    const HWND m_hWnd;
    const HDC m_hdc;
};

} // namespace views
