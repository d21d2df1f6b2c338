#include "Toolkit/exchange/ClipboardText.h"

#include "Toolkit/exchange/DataObject.h"
#include "Toolkit/exchange/DataSource.h"

#include <cstring>

void toolkit::PutClipboardText(std::string_view utf8)
{
    const HGLOBAL hText = GlobalAlloc(GHND, utf8.size() + 1);
    if (const GlobalLocker<char> bytes(hText); bytes.Get())
        std::memcpy(bytes.Get(), utf8.data(), utf8.size());
    else
        return;
    auto source = std::make_unique<COleDataSource>();
    source->CacheGlobalData(CF_TEXT, hText);
    source.release()->SetClipboard(); // which owns it from now on
}

std::optional<std::string> toolkit::GetClipboardText()
{
    COleDataObject data;
    if (!data.AttachClipboard())
        return std::nullopt;
    const HGLOBAL hText = data.GetGlobalData(CF_TEXT);
    if (!hText)
        return std::nullopt;
    std::string text;
    if (const GlobalLocker<char> bytes(hText); bytes.Get())
        text.assign(bytes.Get(), strnlen(bytes.Get(), GlobalSize(hText)));
    GlobalFree(hText);
    return text;
}
