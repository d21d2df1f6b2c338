#include "Editor/pictures/PictureStore.h"

#include "Toolkit/message/TaskInbox.h"

#include <algorithm>

namespace editor
{
namespace
{

constexpr std::size_t kOverhead = 300; // of an entry beside its pixels, about
constexpr int kLarge = 256;            // of the variants larger than this each way only the newest is kept

std::string KeyOf(const DecodeJob& job)
{
    return job.path + '\0' + std::to_string(job.size.cx) + 'x' + std::to_string(job.size.cy) + '#' +
           std::to_string(job.frame);
}

std::string FormatText(const DecodedPicture& decoded)
{
    const std::string bits = std::to_string(decoded.bits) + (decoded.bits == 1 ? " bit" : " bits");
    if (decoded.format.empty() || decoded.bits == 0)
        return decoded.format;
    return decoded.format + ", " + bits;
}

bool FitsInto(CSize picture, CSize room)
{
    return picture.cx <= room.cx && picture.cy <= room.cy;
}

bool IsLarge(CSize size)
{
    return size.cx > kLarge || size.cy > kLarge;
}

} // namespace

PictureStore::PictureStore(const PictureReader& reader, Limits limits, Arrived arrived)
    : m_reader(reader),
      m_limits(limits),
      m_arrived(std::move(arrived)),
      m_pSelf(std::make_shared<PictureStore*>(this)),
      m_queue(reader, limits.threads, [this] { PostCollect(); })
{}

PictureStore::Answer PictureStore::Find(const std::string& path, CSize size, IAtom* pAtom, int frame)
{
    const auto at = m_entries.find(path);
    if (at == m_entries.end()) {
        Queue({path, size, frame, {}}, pAtom);
        return {};
    }
    Entry& entry = at->second;
    m_recent.splice(m_recent.begin(), m_recent, entry.recent);
    const Variant* const pVariant = FindVariant(entry, size, frame);
    const bool bFailed = !entry.error.empty() || (pVariant && pVariant->picture.IsEmpty());
    if (entry.bStale || (!pVariant && !bFailed))
        Queue({path, size, frame, pVariant ? entry.stamp : FileStamp()}, pAtom);
    const auto isLike = [&](const Variant& variant) { return variant.frame == frame && !variant.picture.IsEmpty(); };
    const auto other = std::ranges::find_if(entry.variants, isLike);
    if (!pVariant && !bFailed && other != entry.variants.end())
        return {nullptr, false, &other->picture, entry.fullSize};
    return {pVariant && !bFailed ? &pVariant->picture : nullptr, bFailed};
}

const PictureStore::Entry& PictureStore::Known(const std::string& path) const
{
    static const Entry kNone;
    const auto at = m_entries.find(path);
    return at == m_entries.end() ? kNone : at->second;
}

void PictureStore::Recheck()
{
    for (auto& [path, entry] : m_entries)
        entry.bStale = true;
}

void PictureStore::Recheck(const std::string& path)
{
    if (const auto at = m_entries.find(path); at != m_entries.end())
        at->second.bStale = true;
}

void PictureStore::Stop()
{
    *m_pSelf = nullptr;
    m_queue.Stop();
    m_waiting.clear();
    m_sentAway.clear();
}

// A picture that is smaller than what was asked for serves every larger size as well.
const PictureStore::Variant* PictureStore::FindVariant(const Entry& entry, CSize size, int frame)
{
    const auto serves = [&](const Variant& variant) {
        const bool bWhole = variant.picture.Bounds().Size() == entry.fullSize && FitsInto(entry.fullSize, size);
        return variant.frame == frame && (variant.asked == size || bWhole);
    };
    const auto at = std::find_if(entry.variants.begin(), entry.variants.end(), serves);
    return at == entry.variants.end() ? nullptr : &*at;
}

std::size_t PictureStore::CostOf(const std::string& path, const Entry& entry)
{
    std::size_t bytes = kOverhead + 2 * path.size() + entry.error.size();
    for (const Variant& variant : entry.variants)
        bytes += static_cast<std::size_t>(variant.picture.Width()) *
                 static_cast<std::size_t>(variant.picture.Height()) * sizeof(toolkit::Pixel);
    return bytes;
}

void PictureStore::Queue(DecodeJob job, IAtom* pAtom)
{
    if (!*m_pSelf)
        return;
    Atoms former = TakeFormerWish(job);
    const auto [at, isNew] = m_waiting.try_emplace(KeyOf(job));
    at->second.size = job.size;
    Atoms& atoms = at->second.atoms;
    std::move(former.begin(), former.end(), std::back_inserter(atoms));
    if (std::none_of(atoms.begin(), atoms.end(), [pAtom](const auto& p) { return p.Get() == pAtom; }))
        atoms.push_back(CStubRef<IAtom>::Share(pAtom));
    if (!isNew)
        return;
    m_queue.Add(std::move(job));
    SendAwayTheOldest();
}

// Of one picture only the latest large size is worth reading: while a window is sized, one is wished for after the
// other. Answers those who waited for the former size; its result, when it is being read already, finds nobody.
PictureStore::Atoms PictureStore::TakeFormerWish(const DecodeJob& job)
{
    if (!IsLarge(job.size))
        return {};
    const auto [at, isNew] = m_largeWishes.try_emplace(job.path, job.size);
    const CSize former = std::exchange(at->second, job.size);
    if (isNew || former == job.size)
        return {};
    const DecodeJob formerJob{job.path, former, job.frame, {}};
    m_queue.DropIf([&](const DecodeJob& waiting) { return waiting.WantsTheSameAs(formerJob); });
    auto waited = m_waiting.extract(KeyOf(formerJob));
    return waited ? std::move(waited.mapped().atoms) : Atoms();
}

void PictureStore::ForgetLargeWish(const std::string& path, CSize size)
{
    const auto at = m_largeWishes.find(path);
    if (at != m_largeWishes.end() && at->second == size)
        m_largeWishes.erase(at);
}

void PictureStore::SendAwayTheOldest()
{
    const std::optional<DecodeJob> oldest = m_queue.DropOldest(m_limits.waiting);
    if (!oldest)
        return;
    auto waited = m_waiting.extract(KeyOf(*oldest));
    ForgetLargeWish(oldest->path, oldest->size);
    SendAway(std::move(waited.mapped().atoms));
}

// What has begun is read to its end, and kept.
void PictureStore::SendAwayUnseen(CSize size, const std::function<bool(IAtom*)>& isSeen)
{
    const auto isUnseen = [&](const auto& waiting) {
        const Wish& wish = waiting.second;
        return wish.size == size && std::none_of(wish.atoms.begin(), wish.atoms.end(),
                                                 [&](const auto& pAtom) { return isSeen(pAtom.Get()); });
    };
    bool bAny = false;
    for (auto at = m_waiting.begin(); at != m_waiting.end();) {
        if (!isUnseen(*at)) {
            ++at;
            continue;
        }
        SendAway(std::move(at->second.atoms));
        ForgetLargeWish(at->first.substr(0, at->first.find('\0')), size);
        at = m_waiting.erase(at);
        bAny = true;
    }
    if (bAny)
        m_queue.DropIf([&](const DecodeJob& job) { return job.size == size && !m_waiting.contains(KeyOf(job)); });
}

void PictureStore::SendAway(Atoms atoms)
{
    if (m_sentAway.empty())
        PostCollect();
    std::move(atoms.begin(), atoms.end(), std::back_inserter(m_sentAway));
}

// Any thread.
void PictureStore::PostCollect()
{
    toolkit::PostTask([pSelf = m_pSelf] {
        if (*pSelf)
            (*pSelf)->Collect();
    });
}

void PictureStore::Collect()
{
    const std::shared_ptr<PictureStore*> pSelf = m_pSelf;
    const Atoms sentAway = std::exchange(m_sentAway, {});
    std::vector<Atoms> changed;
    for (DecodeResult& result : m_queue.TakeResults()) {
        auto waited = m_waiting.extract(KeyOf(result.job));
        if (!waited && IsLarge(result.job.size))
            continue; // another size is wanted by now
        ForgetLargeWish(result.job.path, result.job.size);
        // Wished for again meanwhile: nobody waits for that any more.
        m_queue.DropIf([&](const DecodeJob& job) { return job.WantsTheSameAs(result.job); });
        if (Keep(result) && waited)
            changed.push_back(std::move(waited.mapped().atoms));
    }
    Trim();
    Tell(sentAway);
    for (const Atoms& atoms : changed)
        if (*pSelf)
            Tell(atoms);
}

bool PictureStore::Keep(DecodeResult& result)
{
    Entry& entry = Renew(result.job.path);
    m_nBytes -= CostOf(result.job.path, entry);
    const bool bSameFile = result.stamp == entry.stamp;
    entry.bStale = false;
    if (!result.unchanged) {
        if (!bSameFile)
            entry.variants.clear();
        if (IsLarge(result.job.size))
            std::erase_if(entry.variants, [](const Variant& variant) { return IsLarge(variant.asked); });
        entry.stamp = result.stamp;
        if (result.job.frame == 0) {
            entry.error = std::move(result.decoded.error);
            entry.fullSize = result.decoded.fullSize;
            entry.frames = result.decoded.frames;
            entry.format = FormatText(result.decoded);
        }
        if (entry.error.empty())
            entry.variants.push_back({result.job.size, result.job.frame, std::move(result.decoded.picture)});
    }
    m_nBytes += CostOf(result.job.path, entry);
    return !result.unchanged;
}

PictureStore::Entry& PictureStore::Renew(const std::string& path)
{
    const auto [at, isNew] = m_entries.try_emplace(path);
    Entry& entry = at->second;
    if (isNew) {
        m_recent.push_front(path);
        entry.recent = m_recent.begin();
        m_nBytes += CostOf(path, entry);
    }
    m_recent.splice(m_recent.begin(), m_recent, entry.recent);
    return entry;
}

// The newest stays, however large it is.
void PictureStore::Trim()
{
    while (m_nBytes > m_limits.bytes && m_recent.size() > 1) {
        const auto at = m_entries.find(m_recent.back());
        m_nBytes -= CostOf(at->first, at->second);
        m_entries.erase(at);
        m_recent.pop_back();
    }
}

void PictureStore::Tell(const Atoms& atoms)
{
    const Arrived arrived = m_arrived; // the store may go meanwhile
    for (const CStubRef<IAtom>& pAtom : atoms)
        arrived(pAtom.Get());
}

} // namespace editor
