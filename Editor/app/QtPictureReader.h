// Reads pictures with Qt's decoders.
#pragma once

#include "Editor/pictures/PictureReader.h"

namespace editor
{

class QtPictureReader : public PictureReader
{
public:
    QtPictureReader(); // user-interface thread, with the QApplication there

    std::vector<std::string> Extensions() const override { return m_extensions; }

    // Tells the format by the content; the name's extension counts only where the content does not tell. Only
    // regular files are read, so that a pipe in the folder holds nobody up. What would take more than
    // kMaxMegabytes to decode is refused.
    DecodedPicture Read(const std::string& path, CSize maxSize, int frame) const override;

    std::unique_ptr<PictureStream> Open(const std::string& path, CSize maxSize) const override;

    static constexpr int kMaxMegabytes = 256;

    static bool IsReading(); // on any thread

private:
    DecodedPicture ReadFile(const std::string& path, CSize maxSize, int frame) const;

    const std::vector<std::string> m_extensions;
};

} // namespace editor
