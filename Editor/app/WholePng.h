// Whether a PNG file is whole.
#pragma once

class QIODevice;

namespace editor
{

// Every chunk is there with the right checksum, up to the last one. The decoder complains aloud, on the terminal, of a
// file that is not, and nothing can be told it to keep quiet: such a file is better not given to it. Reads the device
// once, from its start, and leaves its position as it was; costs a small part of what decoding does.
bool IsWholePng(QIODevice& device);

} // namespace editor
