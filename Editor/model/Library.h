// A folder on disk as a character library: the top of a hierarchy.
#pragma once

#include "Editor/model/Folder.h"
#include "Editor/model/LibraryContext.h"

namespace editor
{

class CLibrary : public hostkit::With<CFolder, ICharacterLibrary>
{
public:
    // The library of that folder, with its members read. Empty, and `error` is one line that names the folder and
    // the reason, when there is no such folder or it cannot be read. The work and the watch, of its folders, are
    // borrowed.
    [[nodiscard]] static CStubRef<CLibrary> Open(const std::string& path, const std::vector<std::string>& extensions,
                                                 std::shared_ptr<PictureStore> pPictures, LongWork& work,
                                                 std::string& error, FolderWatch* pWatch = nullptr);

    void SetHistory(History* pHistory); // borrowed

    // What lies at an absolute path; NULL where nothing does. Reads all containers above it.
    CStubRef<CMember> Find(const std::string& path);
    // The container at that path if anybody has asked for it so far; borrowed, else NULL.
    CContainer* FindLive(const std::string& path);

    // The lines of phases that somebody knows and that lead to what was told of, or would if it were there; and the
    // phases that are seen as that.
    std::vector<CStubRef<CMember>> LinksTo(const FolderNews& files) const;

    std::string_view Name() const override { return m_name; }
    std::string Path() const override { return m_context.rootPath; }
    LibraryContext& Context() const override { return m_context; }

private:
    explicit CLibrary(LibraryContext context);

    mutable LibraryContext m_context; // the members number themselves in it
    const std::string m_name;
};

} // namespace editor
