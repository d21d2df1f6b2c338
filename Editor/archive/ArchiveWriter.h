// Writing archives: files and folders as they are on the disk at this moment.
#pragma once

#include "Editor/archive/ArchiveFormat.h"
#include "Views/host/host.h"

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace editor
{

// Replaces what the stream holds. The objects come one after the other; Finish makes the whole an archive. Every
// operation answers with nothing when it went well, and else with one line that names the file and the reason: then
// nothing can be added any more and the stream is empty.
//
// Files are read straight into the stream; besides it, memory is taken for the names of one folder at a time and of
// those it is in, and for a note of every folder.
class ArchiveWriter
{
public:
    // Asked about every file, by its name, identity and content: what to carry in place of the content, if anything.
    using Replacement = std::function<std::optional<std::string>(std::string_view name, const FileIdentity& identity,
                                                                 std::string_view content)>;

    explicit ArchiveWriter(IByteStream& stream); // borrowed

    void SetReplacement(Replacement replacement) { m_replacement = std::move(replacement); }

    void SetMeter(Meter* pMeter) { m_pMeter = pMeter; } // borrowed; counts bytes, and cancels
    // From now on what cannot be carried of a folder is left out.
    void AllowLeavingOut() { m_bMayLeaveOut = true; }
    // What could not, a line for each: a pipe, what may not be read, a link to a folder that holds it, one of too many
    // links to folders that are carried already (a few of them hold more than any disk). Unless that is allowed, Finish
    // fails for it.
    const std::vector<std::string>& LeftOut() const { return m_leftOut; }
    bool LacksConsent() const { return m_bLacksConsent; } // did it fail for that?

    // A file or a folder with everything in it, hidden files too. Links are followed; one that leads nowhere is carried
    // as what it is.
    std::string AddPath(const std::string& path, std::string_view origin);
    // A line of a phase, for the picture at that path.
    std::string AddLink(std::string_view name, const std::string& path, std::string_view origin);
    std::string Finish();

private:
    class Entry;

    std::string AddEntry(const Entry& entry, std::string_view origin);
    std::string AddFile(const Entry& entry, std::string_view origin);
    std::string AddFolder(const Entry& entry, std::string_view origin);
    std::string ReplaceContent(std::size_t at, const Entry& entry); // of the file that ends the stream
    std::string AddDeadLink(const Entry& entry, std::string_view origin);
    std::string AddMembers(const Entry& folder);
    std::string TroubleOf(const Entry& entry); // with the entry; empty when it can be carried
    std::string AddHead(RecordKind kind, std::string_view name, const Entry& entry, std::string_view origin);
    void CloseRecord(std::size_t at); // everything behind its head is its content
    std::size_t NextRecord() const { return m_nLength == 0 ? kHeaderSize : m_nLength; }
    std::string Grow(std::size_t bytes); // and see to it that they can be written to
    std::string Fail(std::string line);
    char* Data() { return static_cast<char*>(m_stream.GetData()); }

    IByteStream& m_stream;
    Replacement m_replacement;
    Meter* m_pMeter = nullptr;
    std::size_t m_nLength = 0; // of the stream
    std::uint64_t m_sum = 0;   // of the records that are closed
    std::uint32_t m_nObjects = 0;
    std::vector<FileIdentity> m_within; // the folders that are being written, the outermost first
    std::set<FileIdentity> m_folders;   // all that were
    int m_nRepeated = 0;                // folders that were written more than once
    std::vector<std::string> m_leftOut;
    bool m_bMayLeaveOut = false, m_bLacksConsent = false;
};

} // namespace editor
