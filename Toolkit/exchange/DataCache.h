// Data to be had by format, wherever it comes from. Internal to this room.
#pragma once

#include "Toolkit/desktop/OfferedData.h"
#include "Toolkit/exchange/StgMedium.h"

#include <memory>

namespace toolkit
{

class DataProvider
{
public:
    virtual ~DataProvider() = default;

    virtual bool Offers(CLIPFORMAT format, DWORD tymed) = 0; // in one of these media
    // A copy that the caller owns, without a releaser; TYMED_NULL when there is none.
    virtual STGMEDIUM Get(CLIPFORMAT format, DWORD tymed) = 0;
};

// The media that a data source was given. Data objects and the desktop may hold it longer than the source lives:
// they find it empty then.
class DataCache : public DataProvider, public OfferedData
{
public:
    ~DataCache() override { Empty(); }

    void Put(CLIPFORMAT format, const STGMEDIUM& medium); // takes the medium over; replaces the format's former one
    void Empty();
    void Close();                                 // empty for good: the source is gone
    std::shared_ptr<DataCache> CopyPlain() const; // what is in global memory, without releasers
    bool IsGone() const override { return m_bClosed; }

    bool Offers(CLIPFORMAT format, DWORD tymed) override { return Find(format, tymed) != nullptr; }
    STGMEDIUM Get(CLIPFORMAT format, DWORD tymed) override;
    std::vector<std::string> GetKinds() override;
    std::optional<std::string> Render(std::string_view kind) override;

private:
    struct Entry
    {
        CLIPFORMAT format;
        STGMEDIUM medium;
    };

    const Entry* Find(CLIPFORMAT format, DWORD tymed) const;

    std::vector<Entry> m_entries;
    bool m_bClosed = false;
};

// What another program offers, in global memory.
class ForeignData : public DataProvider
{
public:
    explicit ForeignData(std::shared_ptr<OfferedData> data) : m_data(std::move(data)) {}

    bool Offers(CLIPFORMAT format, DWORD tymed) override;
    STGMEDIUM Get(CLIPFORMAT format, DWORD tymed) override;

private:
    std::optional<std::string> Render(CLIPFORMAT format) const;

    const std::shared_ptr<OfferedData> m_data;
};

std::shared_ptr<DataProvider> ClipboardData(); // this program's or another's; NULL when there is none

HGLOBAL MakeGlobal(std::string_view bytes); // NULL when memory runs out

} // namespace toolkit
