// How far work on the disk is, and whether it is to go on.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <string>

namespace editor
{

// Counts bytes or objects, as whoever begins sees fit. The thread that works counts, any other may look and cancel.
class Meter
{
public:
    // At most so many bytes between two looks whether to go on. Linux takes several times as long for what is written
    // a gigabyte at once.
    static constexpr std::size_t kPiece = 1 << 20;

    void Begin(std::uint64_t total) // 0: not known yet
    {
        m_done = 0;
        m_total = total;
        m_bCancelled = m_bHeeded = false;
    }
    void SetTotal(std::uint64_t total) { m_total = total; }
    void Did(std::uint64_t amount) { m_done += amount; }
    std::uint64_t Done() const { return m_done; }
    std::uint64_t Total() const { return m_total; }

    void Cancel() { m_bCancelled = true; }
    bool IsAskedToEnd() const { return m_bCancelled; }
    bool IsCancelled() const { return m_bCancelled && (m_bHeeded = true); } // for whoever then ends
    bool HasEndedEarly() const { return m_bHeeded; }

private:
    std::atomic<std::uint64_t> m_done = 0, m_total = 0;
    std::atomic<bool> m_bCancelled = false;
    mutable std::atomic<bool> m_bHeeded = false;
};

// The bytes in a file or in all files below a folder, links not followed; fewer when it is cancelled meanwhile.
std::uint64_t BytesBelow(const std::string& path, const Meter& meter);

} // namespace editor
