// The chunks of a PNG file.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace editor
{

// Reads that many bytes at that place of a file; false where not all of them are there.
using ReadBytes = std::function<bool(std::uint64_t at, std::uint8_t* to, std::size_t length)>;
using PngBytes = std::vector<std::uint8_t>;

struct PngChunk
{
    std::array<char, 4> kind;
    std::uint64_t at; // of its body, in the file
    std::uint32_t length;

    bool Is(std::string_view name) const { return name == std::string_view(kind.data(), kind.size()); }
};

std::uint32_t PngNumber(const std::uint8_t* bytes);
void AppendPngNumber(PngBytes& to, std::uint32_t number);
void AppendPngSignature(PngBytes& to);
void AppendPngChunk(PngBytes& to, std::string_view kind, const PngBytes& body);

// Goes through them one behind the other. Takes nothing for granted that a file says.
class PngChunks
{
public:
    explicit PngChunks(ReadBytes read) : m_read(std::move(read)) {}

    std::optional<PngChunk> Next(); // nothing: there is no further head, or this is no PNG file at all
    void GoTo(const PngChunk& chunk) { m_at = chunk.at - kHead; } // Next is that one again

    std::optional<std::uint32_t> ReadNumber(const PngChunk& chunk) const; // its body begins with; unchecked

    // False: it is not all there, or its checksum is another. Puts its body behind what `into` holds, without the
    // first `skipped` bytes; takes no more memory than the file is long.
    bool Read(const PngChunk& chunk, PngBytes* into, std::uint32_t skipped = 0) const;

private:
    static constexpr std::uint64_t kHead = 8; // bytes: length, kind

    const ReadBytes m_read;
    std::uint64_t m_at = 0;
};

// Every chunk is there with the right checksum, up to the last one. The decoder complains aloud, on the terminal, of a
// file that is not, and nothing can be told it to keep quiet: such a file is better not given to it. Reads the file
// once; costs a small part of what decoding does.
bool IsWholePng(ReadBytes read);

} // namespace editor
