#include "Editor/frame/NameField.h"

#include "Toolkit/base/String.h"
#include "Toolkit/controls/edit/EditMessages.h"
#include "Toolkit/window/WindowApi.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace editor
{
namespace
{

constexpr std::size_t kLongestExtension = 5;

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

} // namespace

void SelectStem(UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto hField = reinterpret_cast<HWND>(lParam);
    if (message != WM_COMMAND || HIWORD(wParam) != EN_SETFOCUS || !hField)
        return;
    const CString name = GetWindowText(hField);
    DWORD dwStart = 0, dwEnd = 0;
    SendMessage(hField, EM_GETSEL, reinterpret_cast<WPARAM>(&dwStart), reinterpret_cast<LPARAM>(&dwEnd));
    if (dwStart == 0 && dwEnd == name.View().size())
        SendMessage(hField, EM_SETSEL, 0, static_cast<LPARAM>(StemLength(name.View())));
}

} // namespace editor
