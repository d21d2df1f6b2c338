// What the list control and the tree control have in common: their owner's pictures, how they scroll, and their labels.
#pragma once

#include "Toolkit/controls/items/LabelEditing.h"
#include "Toolkit/graphics/ImageList.h"
#include "Toolkit/graphics/SysColors.h"

#include <cstdint>

namespace toolkit
{

inline constexpr WPARAM kNormalImages = 0; // which image list, in the messages of every such control

// Notes, as long as it lives, that something is under way.
class UnderWay
{
public:
    explicit UnderWay(int& count) : m_count(count) { ++m_count; }
    ~UnderWay() { --m_count; }
    UnderWay(const UnderWay&) = delete;
    UnderWay& operator=(const UnderWay&) = delete;

private:
    int& m_count;
};

class ItemControl : public NativeWindow, protected LabelHost
{
public:
    ItemControl(HWND hWnd, DWORD editStyle, DWORD labelAlign)
        : NativeWindow(hWnd), m_labels(*this, *this, editStyle, labelAlign)
    {}

    HBRUSH ClassBackground() const override { return reinterpret_cast<HBRUSH>(UINT_PTR{COLOR_WINDOW + 1}); }

    // For its parts.
    LabelEditing& Labels() { return m_labels; }
    HIMAGELIST Images() const { return m_hImages; }
    CSize ImageSize() const; // 0 by 0 without pictures
    CSize ClientSize() const;
    CSize SizeWithoutBars() const;              // what the client area has when no scroll bar is shown
    static bool IsDrag(CPoint from, CPoint to); // rather than an unsteady click
    // Where a scroll bar's message leads; the present position for one that leads nowhere. A bar too short for all
    // positions counts in units of several.
    std::int64_t ScrollTarget(int nBar, WPARAM wParam, std::int64_t position, int line, int page,
                              std::int64_t unit = 1) const;
    int WheelSteps(WPARAM wParam, int perNotch); // what a finer wheel turns less adds up

protected:
    virtual void Measure() = 0;  // takes over the text's and the pictures' size
    virtual void Relayout() = 0; // the client area, the items or a measure are new

    void OnCreate();
    BOOL OnEraseBackground(HDC hdc);
    HIMAGELIST OnGetImageList(WPARAM which) const { return which == kNormalImages ? m_hImages : nullptr; }
    HIMAGELIST OnSetImageList(WPARAM which, HIMAGELIST hImages);
    HWND OnGetEditControl() const { return m_labels.Field(); }
    HWND EditLabel(LPARAM item, bool takesFormer); // the field
    void MeasuresChanged();                        // all anew
    void OnFontChange();

private:
    LabelEditing m_labels;
    HIMAGELIST m_hImages = nullptr; // the owner's
    int m_wheelRest = 0;            // in steps times WHEEL_DELTA
};

} // namespace toolkit
