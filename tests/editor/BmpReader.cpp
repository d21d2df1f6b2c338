#include "tests/editor/BmpReader.h"

#include "Toolkit/graphics/Scale.h"
#include "tests/support/BmpFile.h"
#include "tests/support/TempFolder.h"

#include <algorithm>

BmpReader::~BmpReader()
{
    AllowAll();
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [&] { return m_nEnded == m_nBegun; });
}

void BmpReader::Allow(int nReads)
{
    const std::lock_guard lock(m_mutex);
    m_nAllowed = nReads > 0 ? m_nAllowed + nReads : 0;
    m_changed.notify_all();
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
    const std::string name = path.substr(path.rfind('/') + 1);
    std::unique_lock lock(m_mutex);
    m_reads.Write(name);
    ++m_nBegun;
    m_changed.notify_all();
    m_changed.wait(lock, [&] { return m_nAllowed > 0; });
    --m_nAllowed;
    lock.unlock();
    auto picture = Decode(DecodeBmp(TempFolder::ReadFile(path)), name.starts_with("film"), maxSize, frame);
    lock.lock();
    ++m_nEnded;
    m_changed.notify_all();
    return picture;
}

editor::DecodedPicture BmpReader::Decode(std::optional<toolkit::Surface> picture, bool bFilm, CSize maxSize, int frame)
{
    if (!picture)
        return {{}, {}, "not a BMP picture"};
    CSize own = picture->Bounds().Size();
    int frames = 1;
    if (bFilm) {
        frames = std::exchange(own.cy, own.cx) / own.cx;
        picture = toolkit::Crop(*picture, CRect(CPoint(0, frame * own.cy), own));
    }
    if (frame >= frames)
        return {{}, {}, "there is no such frame", frames};
    const CSize fitted = toolkit::FitInto(own, {std::min(own.cx, maxSize.cx), std::min(own.cy, maxSize.cy)});
    return {toolkit::ScaleSurface(*picture, fitted), own, {}, frames};
}

std::unique_ptr<editor::PictureStream> BmpReader::Open(const std::string& path, CSize maxSize) const
{
    struct Film final : editor::PictureStream
    {
        std::optional<Frame> Next() override
        {
            editor::DecodedPicture read = Decode(picture, true, size, nNext++);
            return read.error.empty() ? std::optional(Frame{std::move(read.picture), 100}) : std::nullopt;
        }
        std::optional<toolkit::Surface> picture;
        CSize size;
        int nNext = 0;
    };
    if (path.find("/film") == path.npos)
        return nullptr;
    auto pFilm = std::make_unique<Film>();
    pFilm->picture = DecodeBmp(TempFolder::ReadFile(path));
    pFilm->size = maxSize;
    return pFilm;
}
