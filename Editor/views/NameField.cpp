#include "Editor/views/NameField.h"

#include "Editor/resources/EditorResources.h"
#include "Editor/services/NameRefusals.h"
#include "Editor/widgets/Look.h"
#include "HostKit/base/ErrorInfo.h"
#include "Toolkit/controls/edit/EditMessages.h"
#include "Toolkit/graphics/SysColors.h"
#include "Views/host/Resources.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace editor
{
namespace
{

constexpr std::size_t kLongestExtension = 5;
constexpr UINT kGoOn = WM_APP + 1;

std::size_t StemLength(std::string_view name)
{
    const std::size_t dot = name.rfind('.');
    if (dot == name.npos || dot == 0)
        return name.size();
    const std::string_view extension = name.substr(dot + 1);
    const auto isPlain = [](unsigned char c) { return std::isalnum(c) != 0; };
    const bool bExtension = !extension.empty() && extension.size() <= kLongestExtension &&
                            std::isalpha(static_cast<unsigned char>(extension[0])) &&
                            std::all_of(extension.begin(), extension.end(), isPlain);
    return bExtension ? dot : name.size();
}

void SelectStem(HWND hField, std::string_view name)
{
    SendMessage(hField, EM_SETSEL, 0, static_cast<LPARAM>(StemLength(name)));
}

} // namespace

BEGIN_MESSAGE_MAP(CFieldTrouble, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

// Below the field or, where there is no room, above it.
void CFieldTrouble::Show(HWND hField, const std::string& reason)
{
    Hide();
    CWnd* const pParent = CWnd::FromHandle(::GetParent(hField));
    CRect field, room;
    ::GetWindowRect(hField, &field);
    CPoint origin;
    ::ClientToScreen(pParent->m_hWnd, &origin);
    field.OffsetRect(-origin.x, -origin.y);
    pParent->GetClientRect(&room);
    const int width = std::min<int>(TextWidth(reason) + 2 * kSpace, room.Width());
    const int left = std::clamp<int>(field.CenterPoint().x - width / 2, 0, room.Width() - width);
    const bool bBelow = field.bottom + field.Height() <= room.bottom;
    const int top = bBelow ? field.bottom : field.top - field.Height();
    CreateEx(0, "", reason.c_str(), WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS,
             CRect(CPoint(left, top), CSize(width, field.Height())), pParent, 0);
}

void CFieldTrouble::OnPaint()
{
    const CPaintDC dc(this);
    CRect text;
    GetClientRect(&text);
    FillSolidRect(dc, text, ErrorColor());
    text.DeflateRect(1, 1);
    FillSolidRect(dc, text, GetSysColor(COLOR_WINDOW));
    text.DeflateRect(kSpace - 1, 0);
    DrawTextLine(dc, text, ::GetWindowText(m_hWnd).View(), ErrorColor());
}

void NameField::After(UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto hField = reinterpret_cast<HWND>(lParam);
    const UINT code = message == WM_COMMAND && hField ? HIWORD(wParam) : 0;
    if (message == kGoOn)
        GoOn();
    else if (code == EN_CHANGE || code == EN_KILLFOCUS || message == WM_SIZE || message == WM_DESTROY)
        m_trouble.Hide();
    if (code != EN_SETFOCUS)
        return;
    const CString name = GetWindowText(hField);
    DWORD dwStart = 0, dwEnd = 0;
    SendMessage(hField, EM_GETSEL, reinterpret_cast<WPARAM>(&dwStart), reinterpret_cast<LPARAM>(&dwEnd));
    if (dwStart == 0 && dwEnd == name.View().size())
        SelectStem(hField, name.View());
}

// The field has not quite gone, and a click may be on its way to what else is to be done.
void NameField::Refused(IAtom* pAtom, LPCSTR pszTyped)
{
    m_reason = NameRefusals::Take();
    if (m_reason.empty())
        return; // told already
    m_pAtom = CStubRef<IAtom>::Share(pAtom);
    m_typed = pszTyped;
    m_view.PostMessage(kGoOn);
}

void NameField::GoOn()
{
    const CStubRef<IAtom> pAtom = std::move(m_pAtom);
    const HWND hField = pAtom ? m_edit(pAtom.Get()) : nullptr;
    if (!pAtom)
        return;
    if (!hField) {
        ShowAtomError(nullptr, IDS_NAME_REFUSED, hostkit::CErrorInfo::Make(m_reason).Get());
        return;
    }
    SetWindowText(hField, m_typed.c_str());
    SelectStem(hField, m_typed);
    m_trouble.Show(hField, m_reason);
}

} // namespace editor
