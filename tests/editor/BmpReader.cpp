#include "tests/editor/BmpReader.h"

#include "Toolkit/graphics/Scale.h"
#include "tests/support/BmpFile.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

BmpReader::~BmpReader()
{
    AllowAll();
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [&] { return m_nEnded == m_nBegun; });
}

void BmpReader::Hold()
{
    const std::lock_guard lock(m_mutex);
    m_nAllowed = 0;
}

void BmpReader::Allow(int nReads)
{
    const std::lock_guard lock(m_mutex);
    m_nAllowed += nReads;
    m_changed.notify_all();
}

void BmpReader::AllowAll()
{
    Allow(1 << 20);
}

void BmpReader::WaitForReads(int nBegun) const
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [&] { return m_nBegun >= nBegun; });
}

Ledger BmpReader::TakeReads()
{
    const std::lock_guard lock(m_mutex);
    return m_reads.TakeLedger();
}

editor::DecodedPicture BmpReader::Read(const std::string& path, CSize maxSize, int frame) const
{
    Pass(path);
    auto picture = ReadNow(path, maxSize, frame);
    const std::lock_guard lock(m_mutex);
    ++m_nEnded;
    m_changed.notify_all();
    return picture;
}

editor::DecodedPicture BmpReader::ReadNow(const std::string& path, CSize maxSize, int frame) const
{
    std::ifstream stream(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    auto picture = DecodeBmp(bytes);
    if (!picture)
        return {{}, {}, "not a BMP picture"};
    CSize own = picture->Bounds().Size();
    int frames = 1;
    if (std::filesystem::path(path).filename().string().starts_with("film")) {
        frames = std::exchange(own.cy, own.cx) / own.cx;
        picture = toolkit::Crop(*picture, CRect(CPoint(0, frame * own.cy), own));
    }
    if (frame >= frames)
        return {{}, {}, "there is no such frame", frames};
    const CSize fitted = toolkit::FitInto(own, {std::min(own.cx, maxSize.cx), std::min(own.cy, maxSize.cy)});
    return {toolkit::ScaleSurface(*picture, fitted), own, {}, frames};
}

void BmpReader::Pass(const std::string& path) const
{
    std::unique_lock lock(m_mutex);
    m_reads.Write(std::filesystem::path(path).filename().string());
    ++m_nBegun;
    m_changed.notify_all();
    m_changed.wait(lock, [&] { return m_nAllowed > 0; });
    --m_nAllowed;
}
