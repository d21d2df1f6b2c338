#include "Views/controls/DigitalEdit.h"

#include "Toolkit/base/Numbers.h"

#include <algorithm>
#include <array>

namespace
{
constexpr LPCSTR kDifferent = "<Different>";
constexpr UINT kFirstCharacter = 32; // below it are Backspace, the clipboard keys and their like
} // namespace

BEGIN_MESSAGE_MAP(CDigitalEdit, CEdit)
    ON_WM_CHAR()
    ON_WM_KEYDOWN()
    ON_WM_SETFOCUS()
    ON_CONTROL_REFLECT_EX(EN_CHANGE, OnChange)
    ON_WM_CREATE()
END_MESSAGE_MAP()

CDigitalEdit::CDigitalEdit() = default;
CDigitalEdit::~CDigitalEdit() = default;

void CDigitalEdit::SetRange(int nMin, int nMax)
{
    m_nMin = std::min(nMin, nMax);
    m_nMax = std::max(nMin, nMax);
}

void CDigitalEdit::SetValue(int nValue)
{
    ShowNumber(nValue);
    m_bDifferent = FALSE;
}

BOOL CDigitalEdit::GetValue(int& nValue) const
{
    return StrToIntExA(GetWindowText(), STIF_DEFAULT, &nValue);
}

void CDigitalEdit::SetDifferent()
{
    SetWindowText(kDifferent);
    m_bDifferent = TRUE;
}

void CDigitalEdit::ShowNumber(int nValue)
{
    std::array<char, 33> digits{};
    SetWindowText(_itoa(nValue, digits.data(), 10));
}

void CDigitalEdit::SelectAll()
{
    SetSel(0, -1); // and scrolls to the caret
}

bool CDigitalEdit::ShowsDifferent() const
{
    return GetWindowText() == kDifferent;
}

void CDigitalEdit::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    int nStart = 0, nEnd = 0;
    GetSel(nStart, nEnd);
    const bool bMinus = nChar == '-' && m_nMin < 0 && nStart == 0;
    const bool bDigit = nChar >= '0' && nChar <= '9';
    if (bMinus || bDigit || nChar < kFirstCharacter)
        CEdit::OnChar(nChar, nRepCnt, nFlags);
}

void CDigitalEdit::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (ShowsDifferent())
        SetWindowText(""); // which is refilled at once
    CEdit::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CDigitalEdit::OnSetFocus(CWnd* pOldWnd)
{
    CEdit::OnSetFocus(pOldWnd);
    if (ShowsDifferent())
        SelectAll();
}

// Every text set here comes back here before the call returns, so the state is that of the text this run has read.
BOOL CDigitalEdit::OnChange()
{
    const CString strText = GetWindowText();
    int nValue = 0;
    if (strText.IsEmpty()) {
        ShowNumber(std::max(m_nMin, 0));
        SelectAll();
    } else if (StrToIntExA(strText, STIF_DEFAULT, &nValue)) {
        const int nNearest = std::clamp(nValue, m_nMin, m_nMax);
        if (nNearest != nValue)
            ShowNumber(nNearest);
    }
    m_bDifferent = strText.CompareNoCase(kDifferent) == 0;
    return FALSE; // the parent hears of it, too
}

int CDigitalEdit::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CEdit::OnCreate(lpCreateStruct) == -1)
        return -1;
    m_bDifferent = FALSE;
    return 0;
}
