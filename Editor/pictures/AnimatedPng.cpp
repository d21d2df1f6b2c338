#include "Editor/pictures/AnimatedPng.h"

#include <algorithm>
#include <array>

namespace editor
{
namespace
{

constexpr std::uint32_t kMostSide = 1 << 16;         // pixels, of the canvas
constexpr std::uint64_t kMostPacked = 256u << 20;    // bytes, of a frame
constexpr std::uint32_t kMostColors = 4u << 20;      // bytes, of a chunk and of all together
constexpr std::uint32_t kHeader = 13, kControl = 26; // bytes

bool TellsColors(const PngChunk& chunk)
{
    constexpr std::array kKinds = {"PLTE", "tRNS", "gAMA", "cHRM", "sRGB", "iCCP", "sBIT"};
    return std::ranges::any_of(kKinds, [&](const char* pszKind) { return chunk.Is(pszKind); });
}

int DelayOf(const std::uint8_t* fraction)
{
    const std::uint32_t above = fraction[0] << 8 | fraction[1], below = fraction[2] << 8 | fraction[3];
    return static_cast<int>(above * 1000 / (below == 0 ? 100 : below));
}

} // namespace

bool AnimatedPng::Open()
{
    if (!ReadHeader())
        return false;
    while (const std::optional<PngChunk> chunk = m_chunks.Next()) {
        const bool bPicture = chunk->Is("IDAT");
        if (!m_first && (bPicture || chunk->Is("fcTL")))
            m_first = chunk;
        if (bPicture)
            break;
        if (chunk->Is("acTL"))
            m_nPromised = ReadPromise(*chunk);
        if (TellsColors(*chunk) && !ReadColors(*chunk))
            return false;
    }
    if (!m_first || m_nPromised == 0)
        return false;
    Begin();
    return true;
}

bool AnimatedPng::ReadHeader()
{
    const std::optional<PngChunk> chunk = m_chunks.Next();
    if (!chunk || !chunk->Is("IHDR") || chunk->length != kHeader || !m_chunks.Read(*chunk, &m_header))
        return false;
    const std::uint32_t cx = PngNumber(m_header.data()), cy = PngNumber(m_header.data() + 4);
    if (cx == 0 || cy == 0 || cx > kMostSide || cy > kMostSide)
        return false;
    m_size = {static_cast<int>(cx), static_cast<int>(cy)};
    return true;
}

bool AnimatedPng::ReadColors(const PngChunk& chunk)
{
    PngBytes body;
    if (chunk.length > kMostColors || m_colors.size() > kMostColors || !m_chunks.Read(chunk, &body))
        return false;
    AppendPngChunk(m_colors, {chunk.kind.data(), chunk.kind.size()}, body);
    return true;
}

std::uint32_t AnimatedPng::ReadPromise(const PngChunk& chunk) const
{
    PngBytes body;
    return chunk.length == 8 && m_chunks.Read(chunk, &body) ? PngNumber(body.data()) : 0;
}

void AnimatedPng::Begin()
{
    m_chunks.GoTo(*m_first);
    m_nRead = m_nParts = 0;
    m_bSound = true;
}

int AnimatedPng::CountFrames()
{
    Begin();
    while (Read(false)) {
    }
    const std::uint32_t nCount = m_bSound ? m_nRead : 0;
    Begin();
    return static_cast<int>(nCount);
}

std::optional<PngFrame> AnimatedPng::Read(bool bPixels)
{
    const std::optional<PngChunk> control = FindControl();
    if (!control)
        return std::nullopt;
    std::optional<PngFrame> frame = ReadControl(*control);
    PngBytes packed;
    m_bSound = frame && ReadParts(*frame, bPixels ? &packed : nullptr);
    if (!m_bSound)
        return std::nullopt;
    if (bPixels)
        frame->png = MakeFile(frame->place.Size(), packed);
    ++m_nRead;
    return frame;
}

// A picture before the first one is not of the animation.
std::optional<PngChunk> AnimatedPng::FindControl()
{
    if (!m_bSound || m_nRead == m_nPromised)
        return std::nullopt;
    while (const std::optional<PngChunk> chunk = m_chunks.Next()) {
        if (chunk->Is("fcTL"))
            return chunk;
        if (!chunk->Is("IEND"))
            continue;
        m_chunks.GoTo(*chunk);
        break;
    }
    return std::nullopt;
}

std::optional<PngFrame> AnimatedPng::ReadControl(const PngChunk& chunk)
{
    PngBytes body;
    if (chunk.length != kControl || !IsInOrder(chunk) || !m_chunks.Read(chunk, &body))
        return std::nullopt;
    const auto number = [&](std::size_t at) { return std::uint64_t{PngNumber(body.data() + at)}; };
    const std::uint64_t cx = number(4), cy = number(8), x = number(12), y = number(16);
    const std::uint8_t after = body[24], over = body[25];
    if (cx == 0 || cy == 0 || x + cx > static_cast<std::uint64_t>(m_size.cx) ||
        y + cy > static_cast<std::uint64_t>(m_size.cy) || after > 2 || over > 1)
        return std::nullopt;
    const CPoint at(static_cast<int>(x), static_cast<int>(y));
    const CSize size(static_cast<int>(cx), static_cast<int>(cy));
    return PngFrame{{at, size}, DelayOf(body.data() + 20), static_cast<PngFrame::After>(after), over == 1};
}

// Up to the next frame. Nothing is read of what is not asked for but the parts' numbers.
bool AnimatedPng::ReadParts(const PngFrame& frame, PngBytes* packed)
{
    std::uint64_t bytes = 0;
    while (const std::optional<PngChunk> chunk = m_chunks.Next()) {
        if (chunk->Is("fcTL") || chunk->Is("IEND")) {
            m_chunks.GoTo(*chunk);
            return bytes > 0;
        }
        const bool bStill = chunk->Is("IDAT");
        if (!bStill && !chunk->Is("fdAT"))
            continue;
        if (bStill ? frame.place.Size() != m_size : !IsInOrder(*chunk))
            return false;
        const std::uint32_t nNumber = bStill ? 0 : 4; // bytes of it
        bytes += chunk->length - nNumber;
        if (bytes > kMostPacked || (packed && !m_chunks.Read(*chunk, packed, nNumber)))
            return false;
    }
    return false;
}

bool AnimatedPng::IsInOrder(const PngChunk& chunk)
{
    return m_chunks.ReadNumber(chunk) == m_nParts++;
}

PngBytes AnimatedPng::GetStill()
{
    Begin();
    PngBytes packed;
    while (const std::optional<PngChunk> chunk = m_chunks.Next()) {
        if (!packed.empty() && !chunk->Is("IDAT"))
            return MakeFile(m_size, packed);
        if (chunk->Is("IDAT") && (packed.size() + chunk->length > kMostPacked || !m_chunks.Read(*chunk, &packed)))
            break;
    }
    return {};
}

PngBytes AnimatedPng::MakeFile(CSize size, const PngBytes& packed) const
{
    PngBytes header, file;
    AppendPngNumber(header, static_cast<std::uint32_t>(size.cx));
    AppendPngNumber(header, static_cast<std::uint32_t>(size.cy));
    header.insert(header.end(), m_header.begin() + 8, m_header.end());
    AppendPngSignature(file);
    AppendPngChunk(file, "IHDR", header);
    file.insert(file.end(), m_colors.begin(), m_colors.end());
    AppendPngChunk(file, "IDAT", packed);
    AppendPngChunk(file, "IEND", {});
    return file;
}

} // namespace editor
