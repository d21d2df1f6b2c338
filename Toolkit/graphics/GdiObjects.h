// What stands behind the handles of drawing objects. Internal to the graphics layer.
#pragma once

#include "Toolkit/base/HandleTable.h"
#include "Toolkit/graphics/DeviceContext.h"
#include "Toolkit/graphics/ImageStore.h"

namespace toolkit
{

struct Bitmap
{
    Surface surface;
    HDC hdcSelected = nullptr; // the device context that draws into it
    HDC hdcOwner = nullptr;    // the device context that it was made with and goes with
};

struct Brush
{
    COLORREF color;
};

struct Icon
{
    Surface surface;
};

struct GdiObjects
{
    HandleTable<HBITMAP, Bitmap> bitmaps;
    HandleTable<HBRUSH, Brush> brushes;
    HandleTable<HICON, Icon> icons;
    HandleTable<HDC, DeviceContext> contexts;
    HandleTable<HIMAGELIST, ImageStore> imageLists;
};

// All of the process. Never destroyed, so that a library that is unloaded late still finds what it gives back.
GdiObjects& AllGdiObjects();

// A bitmap on its way to its owner: deleted unless it arrives.
class NewBitmap
{
public:
    explicit NewBitmap(Surface surface)
        : m_hBitmap(AllGdiObjects().bitmaps.Add(std::make_unique<Bitmap>(Bitmap{std::move(surface)})))
    {}
    ~NewBitmap() { AllGdiObjects().bitmaps.Remove(m_hBitmap); }
    NewBitmap(const NewBitmap&) = delete;
    NewBitmap& operator=(const NewBitmap&) = delete;

    Bitmap* Get() const { return AllGdiObjects().bitmaps.Find(m_hBitmap); }
    HBITMAP Release() { return std::exchange(m_hBitmap, nullptr); }

private:
    HBITMAP m_hBitmap;
};

inline DeviceContext* FindContext(HDC hdc)
{
    return AllGdiObjects().contexts.Find(hdc);
}

} // namespace toolkit
