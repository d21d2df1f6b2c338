// Animated PNG files. Their checksums are made right first, for nothing would ever be found behind a wrong one.
#include "Editor/pictures/AnimatedPng.h"
#include "fuzz/Check.h"

#include <algorithm>

namespace
{

using namespace editor;

ReadBytes BytesOf(const PngBytes& file)
{
    return [&file](std::uint64_t at, std::uint8_t* to, std::size_t length) {
        const bool bThere = at <= file.size() && length <= file.size() - at;
        if (bThere)
            std::copy_n(file.data() + at, length, to);
        return bThere;
    };
}

PngBytes Mended(const PngBytes& file)
{
    PngBytes mended;
    AppendPngSignature(mended);
    PngChunks chunks(BytesOf(file));
    while (const std::optional<PngChunk> chunk = chunks.Next()) {
        const std::size_t end = std::min<std::size_t>(chunk->at + chunk->length, file.size());
        AppendPngChunk(mended, {chunk->kind.data(), 4}, PngBytes(file.data() + chunk->at, file.data() + end));
    }
    return mended;
}

std::string CheckFrame(const PngFrame& frame, CSize canvas)
{
    const CRect& place = frame.place;
    if (place.left < 0 || place.top < 0 || place.IsRectEmpty() || place.right > canvas.cx || place.bottom > canvas.cy)
        return "a frame lies beside the canvas";
    if (frame.delay < 0)
        return "a frame takes less than no time";
    return IsWholePng(BytesOf(frame.png)) ? std::string() : "a frame's file is not whole";
}

} // namespace

std::string fuzz::Check(std::string_view bytes)
{
    const PngBytes file = Mended(PngBytes(bytes.begin(), bytes.end()));
    AnimatedPng animation(BytesOf(file));
    if (!animation.Open())
        return {};
    const int nCount = animation.CountFrames();
    int nRead = 0;
    while (const std::optional<PngFrame> frame = animation.Next()) {
        if (std::string broken = CheckFrame(*frame, animation.GetSize()); !broken.empty())
            return broken;
        ++nRead;
    }
    if (nCount != 0 && nRead != nCount)
        return "there are not as many frames as were counted";
    const PngBytes still = animation.GetStill();
    return still.empty() || IsWholePng(BytesOf(still)) ? std::string() : "the still is not whole";
}
