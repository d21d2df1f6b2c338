// An animation in a PNG file, cut apart into pictures.
#pragma once

#include "Editor/pictures/PngChunks.h"
#include "Toolkit/base/Geometry.h"

namespace editor
{

struct PngFrame
{
    enum class After : std::uint8_t
    {
        Keep,
        Clear,  // what it has covered
        Restore // as it was before
    };
    CRect place; // on the canvas, and within it
    int delay;   // milliseconds
    After after;
    bool bOver;     // what is there already shows through it; otherwise it is replaced
    PngBytes png{}; // a whole file with this picture alone
};

// Decoders know one picture to a file, so each frame becomes a file of its own. Frames are read one by one, and only
// one is held. What the file says of lengths, sizes and numbers is not believed; what is packed in it is not looked at.
class AnimatedPng
{
public:
    explicit AnimatedPng(ReadBytes read) : m_chunks(std::move(read)) {}

    bool Open(); // false: it is not animated, or what comes before its pictures is not sound
    CSize GetSize() const { return m_size; }

    // Of its frames; 0: one of them is not sound, as far as one sees without their pixels. Begins again.
    int CountFrames();
    std::optional<PngFrame> Next() { return Read(true); } // nothing: that was the last one, or it is not sound

    // What those see who know nothing of animations; empty when it is not sound. Begins again.
    PngBytes GetStill();

private:
    bool ReadHeader();
    bool ReadColors(const PngChunk& chunk);
    std::uint32_t ReadPromise(const PngChunk& chunk) const;
    void Begin();
    std::optional<PngFrame> Read(bool bPixels);
    std::optional<PngChunk> FindControl();
    std::optional<PngFrame> ReadControl(const PngChunk& chunk);
    bool ReadParts(const PngFrame& frame, PngBytes* packed);
    bool IsInOrder(const PngChunk& chunk);
    PngBytes MakeFile(CSize size, const PngBytes& packed) const;

    PngChunks m_chunks;
    CSize m_size;
    PngBytes m_header;               // the body of the file's own
    PngBytes m_colors;               // the chunks that tell what the pixels mean
    std::optional<PngChunk> m_first; // the first frame or picture
    std::uint32_t m_nPromised = 0;   // frames
    std::uint32_t m_nRead = 0;
    std::uint32_t m_nParts = 0; // numbered ones
    bool m_bSound = true;
};

} // namespace editor
