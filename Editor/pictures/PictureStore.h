// The pictures that have been read, and those that threads are reading meanwhile.
#pragma once

#include "Editor/pictures/DecodeQueue.h"
#include "Views/host/host.h"

#include <list>
#include <unordered_map>

namespace editor
{

// Pictures are read when they are first wanted, the newest wish first, and kept in memory up to a bound; those
// not wanted for the longest go first. User-interface thread only, with a desktop installed.
class PictureStore
{
public:
    struct Limits
    {
        std::size_t bytes = 64 << 20; // of pictures kept
        std::size_t waiting = 1500;   // more than a view ever caches; who waits longest is sent away
        int threads = 2;
    };
    // Called, from the queue of messages, for each atom whose picture has become ready or has changed; also for one
    // that was sent away: whoever shows it asks again, and that counts as a new wish.
    using Arrived = std::function<void(IAtom* pAtom)>;

    struct Answer
    {
        const toolkit::Surface* pPicture = nullptr;   // valid until the store is used again
        bool bFailed = false;                         // there is none; ErrorOf tells why
        const toolkit::Surface* pMeanwhile = nullptr; // until there is one: the same at another size
        CSize fullSize{};                             // of the one meanwhile
    };

    PictureStore(const PictureReader& reader, Limits limits, Arrived arrived);
    ~PictureStore() { Stop(); }
    PictureStore(const PictureStore&) = delete;
    PictureStore& operator=(const PictureStore&) = delete;

    // The file's picture, scaled down to fit into `size`, in pixels as all sizes here; of an animated file one frame.
    // While it is neither read nor failed, it is put in the queue, and pAtom hears of it.
    Answer Find(const std::string& path, CSize size, IAtom* pAtom, int frame = 0);
    // Pictures of that size for which only atoms wait that nobody sees any more are not read now: their atoms are sent
    // away. Costs a call for each atom that waits.
    void SendAwayUnseen(CSize size, const std::function<bool(IAtom*)>& isSeen);
    // Why the file could not be read; empty when it could, was not tried, or is long forgotten.
    std::string ErrorOf(const std::string& path) const { return Known(path).error; }
    // Of the picture in the file, in pixels; 0 by 0 when it is not known.
    CSize FullSizeOf(const std::string& path) const { return Known(path).fullSize; }
    // "PNG, 32 bits"; empty when it is not known.
    std::string FormatOf(const std::string& path) const { return Known(path).format; }
    int FrameCountOf(const std::string& path) const { return Known(path).frames; } // 0 when it is not known
    // Nothing is being read, also not for those who no longer wait, and no result is on its way.
    bool IsIdle() const { return m_waiting.empty() && m_queue.IsIdle(); }

    // How small pictures are shown: enlarged, each pixel to a square, or as whoever shows them thinks best.
    void SetEnlarging(bool bEnlarging) { m_bEnlarging = bEnlarging; }
    bool IsEnlarging() const { return m_bEnlarging; }
    const PictureReader& GetReader() const { return m_reader; }

    // Files may have changed: they are looked at anew when they are next wanted. What is known serves until then.
    void Recheck();
    void Recheck(const std::string& path);
    // Blocks until there is one, or nothing is under way, or the time is over.
    void WaitForResult(std::chrono::milliseconds most) { m_queue.WaitForResult(most); }
    void Stop(); // nobody hears anything any more; waits for nothing, also not for what the threads have begun

private:
    // One picture at one size.
    struct Variant
    {
        CSize asked;
        int frame;
        toolkit::Surface picture; // empty: this frame cannot be read
    };
    struct Entry
    {
        CSize fullSize;
        int frames = 0;
        std::string format;
        std::string error;
        FileStamp stamp;
        bool bStale = false;
        std::vector<Variant> variants;
        std::list<std::string>::iterator recent;
    };
    using Atoms = std::vector<CStubRef<IAtom>>;
    struct Wish
    {
        CSize size;
        Atoms atoms; // who wait for it
    };

    const Entry& Known(const std::string& path) const; // an empty one for what is not
    static const Variant* FindVariant(const Entry& entry, CSize size, int frame);
    static std::size_t CostOf(const std::string& path, const Entry& entry);
    void Queue(DecodeJob job, IAtom* pAtom);
    Atoms TakeFormerWish(const DecodeJob& job);
    void ForgetLargeWish(const std::string& path, CSize size);
    void SendAwayTheOldest();
    void SendAway(Atoms atoms);
    void PostCollect();
    void Collect();
    bool Keep(DecodeResult& result); // did anything change?
    Entry& Renew(const std::string& path);
    void Trim();
    void Tell(const Atoms& atoms);

    const PictureReader& m_reader;
    const Limits m_limits;
    const Arrived m_arrived;
    bool m_bEnlarging = false;
    std::unordered_map<std::string, Entry> m_entries; // by path
    std::list<std::string> m_recent;                  // paths, the last wanted first
    std::size_t m_nBytes = 0;
    std::unordered_map<std::string, Wish> m_waiting;      // by path, size and frame, see KeyOf
    std::unordered_map<std::string, CSize> m_largeWishes; // by path: the one large size that waits
    Atoms m_sentAway;
    std::shared_ptr<PictureStore*> m_pSelf; // NULL inside once the store has stopped: tasks under way look there
    DecodeQueue m_queue;
};

} // namespace editor
