// A field for a whole number within a range, which may also stand for several numbers that differ.
//
// It takes digits and, where the range has negative numbers, a leading minus; what is pasted is not filtered. A number
// outside the range is pulled to the nearest bound as soon as the text changes, an emptied field is refilled. Each of
// these is a change of the text, too: the parent hears one EN_CHANGE for every one of them, the last one first.
//
// In the mixed-value state it shows "<Different>". Any key empties it, so that it is refilled and the key falls on a
// number that is selected. The host owns the field and deletes it after its window is gone.
#pragma once

#include "Toolkit/controls/edit/Edit.h"
#include "Views/host/Api.h"

class VIEWS_API CDigitalEdit : public CEdit
{
public:
    CDigitalEdit(); // from 0 to 100
    ~CDigitalEdit() override;

    // Swapped when nMin is the greater one. Holds from the next change of the text on; the present one stays.
    void SetRange(int nMin, int nMax);
    void SetValue(int nValue);        // pulled into the range; ends the mixed-value state
    BOOL GetValue(int& nValue) const; // FALSE, and nValue untouched, when the text begins with no number
    void SetDifferent();
    BOOL IsDifferent() const { return m_bDifferent; }

protected:
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg BOOL OnChange();
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    DECLARE_MESSAGE_MAP()

private:
    void ShowNumber(int nValue);
    void SelectAll();
    bool ShowsDifferent() const; // in so many letters

    int m_nMin = 0;
    int m_nMax = 100;
    BOOL m_bDifferent = FALSE;
};
