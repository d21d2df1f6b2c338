// What the benchmarks of the editor's parts share.
#pragma once

#include "Editor/model/Library.h"
#include "Editor/services/AtomEditor.h"
#include "HostKit/Services.h"

namespace bench
{

// What decoding costs is not what is measured.
class NoPictures : public editor::PictureReader
{
public:
    std::vector<std::string> Extensions() const override { return {"png"}; }
    editor::DecodedPicture Read(const std::string&, CSize, int) const override { return {{}, {}, "not read here"}; }
};

// The editor's services without its window.
struct EditorServices
{
    CStubRef<editor::CLibrary> OpenLibrary(const std::string& path)
    {
        const auto pPictures =
            std::make_shared<editor::PictureStore>(reader, editor::PictureStore::Limits(), [](IAtom*) {});
        std::string error;
        return editor::CLibrary::Open(path, reader.Extensions(), pPictures, atomEditor.GetWork(), error);
    }

    const NoPictures reader;
    editor::CAtomEditor atomEditor;
    const hostkit::Services services{atomEditor};
};

} // namespace bench
