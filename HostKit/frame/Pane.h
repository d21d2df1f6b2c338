// A pane of the frame: a caption with an icon, and a view below it.
#pragma once

#include "HostKit/frame/Widget.h"
#include "Toolkit/access/Accessible.h"
#include "Toolkit/graphics/Surface.h"

#include <functional>
#include <string>
#include <vector>

namespace hostkit
{

// The parent of its view's window, which somebody else owns. Hidden until something is to be shown.
class HOSTKIT_API CPane : public CWidget, public toolkit::AccessibleParts
{
public:
    struct Choice
    {
        std::string name; // for who cannot see the icon
        toolkit::Surface icon;
    };

    explicit CPane(int margin = 0) : CWidget(WS_CLIPCHILDREN), m_nMargin(margin) {} // pixels left of and above the view
    ~CPane() override { DestroyWindow(); }

    HWND GetView() const { return m_hView; } // NULL while there is none
    void ShowView(HWND hView, std::string caption, toolkit::Surface icon);
    void HideView();

    // Buttons at the caption's right end, one of which is down; the first one at first. `choose` is called when another
    // is pressed.
    void SetChoices(std::vector<Choice> choices, std::function<void(int nChoice)> choose);
    void SetChosen(int nChoice);
    CRect ChoiceRect(int nChoice) const; // client

    // A child window with text, borrowed: in the caption, before the buttons, while it is shown.
    void SetField(CWnd* pField, CSize margin); // between its text and the line around it
    void ShowField(bool bShow);

    std::vector<Part> AccParts() override;
    void AccUse(int nPart) override { Choose(nPart); }

protected:
    void Erase(HDC hdc) override;
    void Draw(HDC hdc) override;

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    void PlaceView();
    CRect FieldRect() const; // with its line
    void DrawChoices(HDC hdc) const;
    void Choose(int nChoice);

    const int m_nMargin;
    HWND m_hView = nullptr;
    std::string m_caption;
    toolkit::Surface m_icon;
    std::vector<Choice> m_choices;
    std::function<void(int)> m_choose;
    int m_nChosen = 0;
    CWnd* m_pField = nullptr;
    CSize m_fieldMargin;
};

} // namespace hostkit
