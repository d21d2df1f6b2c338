#include "Toolkit/exchange/DataCache.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

void toolkit::DataCache::Put(CLIPFORMAT format, const STGMEDIUM& medium)
{
    m_entries.reserve(m_entries.size() + 1); // the only thing that may fail
    std::erase_if(m_entries,
                  [format](Entry& entry) { return entry.format == format && (ReleaseStgMedium(&entry.medium), true); });
    m_entries.push_back({format, medium});
}

void toolkit::DataCache::Empty()
{
    // A releaser may ask what is here: nothing any more.
    for (Entry& entry : std::exchange(m_entries, {}))
        ReleaseStgMedium(&entry.medium);
}

void toolkit::DataCache::Close()
{
    m_bClosed = true;
    Empty();
}

std::shared_ptr<toolkit::DataCache> toolkit::DataCache::CopyPlain() const
{
    auto copies = std::make_shared<DataCache>();
    copies->m_entries.reserve(m_entries.size()); // so that no copy is lost on its way there
    for (const Entry& entry : m_entries)
        if (entry.medium.tymed == TYMED_HGLOBAL)
            copies->Put(entry.format, CopyMedium(entry.medium));
    return copies;
}

const toolkit::DataCache::Entry* toolkit::DataCache::Find(CLIPFORMAT format, DWORD tymed) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(), [format, tymed](const Entry& entry) {
        return entry.format == format && (entry.medium.tymed & tymed);
    });
    return found == m_entries.end() ? nullptr : &*found;
}

STGMEDIUM toolkit::DataCache::Get(CLIPFORMAT format, DWORD tymed)
{
    const Entry* pEntry = Find(format, tymed);
    return pEntry ? CopyMedium(pEntry->medium) : STGMEDIUM{};
}

std::vector<std::string> toolkit::DataCache::GetKinds()
{
    std::vector<std::string> kinds;
    for (const Entry& entry : m_entries)
        if (entry.medium.tymed == TYMED_HGLOBAL)
            std::ranges::move(KindsOfFormat(entry.format), std::back_inserter(kinds));
    return kinds;
}

std::optional<std::string> toolkit::DataCache::Render(std::string_view kind)
{
    const auto found = std::ranges::find_if(m_entries, [kind](const Entry& entry) {
        const std::vector<std::string> kinds = KindsOfFormat(entry.format);
        return entry.medium.tymed == TYMED_HGLOBAL && std::ranges::find(kinds, kind) != kinds.end();
    });
    if (found == m_entries.end())
        return std::nullopt;
    const HGLOBAL hMem = found->medium.hGlobal;
    const GlobalLocker<const char> bytes(hMem);
    std::string rendered = bytes.Get() ? std::string(bytes.Get(), GlobalSize(hMem)) : std::string();
    if (found->format == CF_TEXT)
        rendered.resize(std::min(rendered.find('\0'), rendered.size()));
    return rendered;
}

bool toolkit::ForeignData::Offers(CLIPFORMAT format, DWORD tymed)
{
    return (tymed & TYMED_HGLOBAL) &&
           std::ranges::any_of(KindsOfFormat(format), [this](const std::string& kind) { return m_data->Has(kind); });
}

STGMEDIUM toolkit::ForeignData::Get(CLIPFORMAT format, DWORD tymed)
{
    auto bytes = tymed & TYMED_HGLOBAL ? Render(format) : std::nullopt;
    if (bytes && format == CF_TEXT)
        bytes->push_back('\0');
    STGMEDIUM medium{};
    medium.hGlobal = bytes ? MakeGlobal(*bytes) : nullptr;
    medium.tymed = medium.hGlobal ? TYMED_HGLOBAL : TYMED_NULL;
    return medium;
}

std::optional<std::string> toolkit::ForeignData::Render(CLIPFORMAT format) const
{
    for (const std::string& kind : KindsOfFormat(format))
        if (auto bytes = m_data->Render(kind))
            return bytes;
    return std::nullopt;
}

HGLOBAL toolkit::MakeGlobal(std::string_view bytes)
{
    const HGLOBAL hMem = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    const GlobalLocker<char> block(hMem);
    if (block.Get())
        std::memcpy(block.Get(), bytes.data(), bytes.size());
    return hMem;
}
