#include "Toolkit/desktop/MenuItems.h"

#include <string_view>

namespace
{
std::string DescribeItem(const toolkit::MenuItem& item)
{
    if (item.separator)
        return "-";
    std::string text = (item.checked ? "*" : "") + toolkit::PlainMenuText(item.text);
    if (!item.enabled)
        text = "(" + text + ")";
    return item.popup ? text + " > " + toolkit::DescribeMenu(item.items) : text;
}
} // namespace

std::string toolkit::PlainMenuText(const std::string& text)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size() && text[i] != '\t'; ++i) {
        if (text[i] == '&' && i + 1 < text.size() && text[i + 1] != '\t')
            ++i; // the character behind it stands for itself
        plain += text[i];
    }
    return plain;
}

std::string toolkit::DescribeMenu(const std::vector<MenuItem>& items)
{
    std::string line;
    for (const MenuItem& item : items)
        line += (line.empty() ? "" : " | ") + DescribeItem(item);
    return "[" + line + "]";
}

UINT toolkit::FindMenuCommand(const std::vector<MenuItem>& items, std::string_view plainText)
{
    for (const MenuItem& item : items) {
        if (item.separator || !item.enabled)
            continue;
        if (item.popup) {
            if (const UINT command = FindMenuCommand(item.items, plainText))
                return command;
        } else if (PlainMenuText(item.text) == plainText)
            return item.command;
    }
    return 0;
}
