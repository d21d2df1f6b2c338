// A picture reader for tests: BMP files, read when the test allows it. A file whose name begins with "film" is
// animated: its frames are squares, one below the other.
#pragma once

#include "Editor/pictures/PictureReader.h"
#include "tests/support/Ledger.h"

#include <condition_variable>
#include <mutex>
#include <optional>

class BmpReader : public editor::PictureReader
{
public:
    ~BmpReader() override; // waits for what has begun

    // From now on reads wait until they are allowed; they are in the ledger when they begin.
    void Hold() { Allow(0); }
    void Allow(int nReads);
    void AllowAll() { Allow(1 << 20); }
    void WaitForReads(int nBegun) const; // until so many have begun altogether
    Ledger TakeReads();                  // "name", in the order in which they began

    std::vector<std::string> Extensions() const override { return {"bmp", "dib"}; }
    editor::DecodedPicture Read(const std::string& path, CSize maxSize, int frame) const override;
    std::unique_ptr<editor::PictureStream> Open(const std::string& path, CSize maxSize) const override;

private:
    static editor::DecodedPicture Decode(std::optional<toolkit::Surface> picture, bool bFilm, CSize maxSize, int frame);

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_changed;
    mutable LedgerBook m_reads;
    mutable int m_nBegun = 0, m_nEnded = 0;
    mutable int m_nAllowed = 1 << 30;
};
