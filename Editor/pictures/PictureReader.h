// What turns a picture file into pixels. The editor decodes no pixels itself.
#pragma once

#include "Toolkit/graphics/Surface.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace editor
{

struct DecodedPicture
{
    toolkit::Surface picture; // empty when the file could not be read
    CSize fullSize;           // of the picture in the file; `picture` may be smaller
    std::string error;        // why there is no picture, without the file's name: "not a PNG picture"
    int frames = 1;           // that the file has; more than one: it is animated
    std::string format{};     // of the file: "PNG"; empty where nobody knows
    int bits = 0;             // of each of its pixels, those of its transparency among them; 0: nobody knows
};

// An animated file, read frame by frame; on one worker thread.
class PictureStream
{
public:
    struct Frame
    {
        toolkit::Surface picture;
        int delay = 100; // milliseconds
    };
    virtual ~PictureStream() = default;
    virtual std::optional<Frame> Next() = 0; // nothing: that was the last one, or no more can be read
};

// Read is called on worker threads, several at a time; Extensions on the user-interface thread. Nobody waits for a
// reading whose picture is not wanted any more: a reader that goes before the program does waits for its own to end.
class PictureReader
{
public:
    virtual ~PictureReader() = default;

    // The file names' extensions it reads, in lower case and without the dot. The same as long as it lives.
    virtual std::vector<std::string> Extensions() const = 0;

    // The picture, turned upright and scaled down, with its proportions kept, to fit into `maxSize`; never
    // scaled up. Of an animated file one frame, counted from 0; the cost grows with those before it. Never throws but
    // for want of memory; whatever the file holds, the answer is a picture or an error.
    virtual DecodedPicture Read(const std::string& path, CSize maxSize, int frame) const = 0;

    // All frames of an animated file, one behind the other, each to fit into `maxSize` like a picture. NULL: this
    // reader cannot, or the file cannot be opened. On any thread.
    virtual std::unique_ptr<PictureStream> Open(const std::string& /*path*/, CSize /*maxSize*/) const
    {
        return nullptr;
    }
};

} // namespace editor
