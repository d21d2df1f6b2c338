// What the list control and the tree control have in common: how they tell their owner, its pictures, and the windows
// of a label that is edited in place.
#pragma once

#include "Toolkit/controls/items/LabelField.h"
#include "Toolkit/graphics/ImageList.h"
#include "Toolkit/graphics/SysColors.h"
#include "Toolkit/window/NativeWindow.h"

#include <optional>
#include <string>

namespace toolkit
{

inline constexpr WPARAM kNormalImages = 0; // which image list, in the messages of every such control

class ItemControl : public NativeWindow, public LabelOwner
{
public:
    using NativeWindow::NativeWindow;

    HBRUSH ClassBackground() const override { return reinterpret_cast<HBRUSH>(UINT_PTR{COLOR_WINDOW + 1}); }

    void LabelTyped() override { PlaceLabelField(); }
    void LabelDone(bool taken) override;

protected:
    static bool IsDrag(CPoint from, CPoint to); // rather than an unsteady click

    // Those that notify give false when the window is gone.
    virtual void Measure() = 0;                // takes over the text's and the pictures' size
    [[nodiscard]] virtual bool Relayout() = 0; // the client area, the items or a measure are new
    virtual void PlaceLabelField() = 0;
    [[nodiscard]] virtual bool FinishLabel(bool taken) = 0;

    LRESULT OnCreate(WPARAM, LPARAM);
    LRESULT OnGetImageList(WPARAM wParam, LPARAM);
    LRESULT OnSetImageList(WPARAM wParam, LPARAM lParam);
    LRESULT OnGetEditControl(WPARAM, LPARAM) { return reinterpret_cast<LRESULT>(m_hLabelField); }

    CSize ClientSize() const;
    CSize SizeWithoutBars() const; // what the client area has when no scroll bar is shown
    void DrawImage(HDC hdc, CPoint at, int image, UINT style) const; // ILD_*; nothing for image -1

    // Notifications.
    [[nodiscard]] bool Tell(UINT code, NMHDR& header, LRESULT* pAnswer = nullptr) const;
    [[nodiscard]] bool TellPlain(UINT code, LRESULT* pAnswer = nullptr) const;

    // Editing a label in place.
    //
    // The field shows the text, all of it selected, has its place and the focus. Whose label it is the derived class
    // notes first.
    [[nodiscard]] bool OpenLabelField(const std::string& text, DWORD align);
    // What was typed; the field is gone. Nothing when the window is gone, too.
    std::optional<std::string> CloseLabelField();
    bool HasJustComeBack() const; // the user, to this window
    void StartLabelClock();       // LabelClickDue follows, unless it is stopped
    void StopLabelClock();

    HIMAGELIST m_hImages = nullptr; // the owner's
    HWND m_hLabelField = nullptr;   // while a label is edited
    DWORD m_focusedAt = 0;          // tick
    int m_nWheelRest = 0;           // of the wheel's turn, in the control's steps times WHEEL_DELTA

private:
    HWND m_hLabelClock = nullptr;
};

} // namespace toolkit
