#include "Editor/services/UnsavedPhases.h"

#include "Editor/archive/ArchiveReader.h"
#include "Editor/model/FileText.h"
#include "Editor/model/PhaseText.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace editor
{
namespace
{

constexpr std::size_t kRecordsLength = 16; // where the header has it
constexpr std::size_t kContentLength = 32; // where a record has it

using Phases = std::vector<const CPhase*>;

// NULL for anything else.
const CPhase* PhaseIn(const ArchiveRecord& record, const Phases& unsaved)
{
    if (record.kind != RecordKind::File || ExtensionOf(record.name) != "phase" || !IsPhaseText(record.content))
        return nullptr;
    const auto found = std::find_if(unsaved.begin(), unsaved.end(),
                                    [&](const CPhase* pPhase) { return IsFile(pPhase->Path(), record.identity); });
    return found == unsaved.end() ? nullptr : *found;
}

bool HoldsAny(std::string_view records, const Phases& unsaved)
{
    RecordReader reader(records);
    for (ArchiveRecord record; reader.Next(record);)
        if (record.kind == RecordKind::Folder ? HoldsAny(record.content, unsaved) : PhaseIn(record, unsaved) != nullptr)
            return true;
    return false;
}

std::string WithUnsaved(std::string_view records, const Phases& unsaved)
{
    std::string all;
    RecordReader reader(records);
    for (ArchiveRecord record; reader.Next(record);) {
        std::string content;
        if (const CPhase* const pPhase = PhaseIn(record, unsaved))
            content = WithTiming(std::string(record.content), pPhase->GetTiming());
        else if (record.kind == RecordKind::Folder)
            content = WithUnsaved(record.content, unsaved);
        else
            content = record.content;
        const std::size_t at = all.size();
        all.append(record.head).append(content);
        PutNumber(all.data() + at + kContentLength, static_cast<std::uint32_t>(content.size()));
    }
    return all;
}

} // namespace

std::string PutUnsaved(IArchive& archive, const std::vector<const CPhase*>& unsaved)
{
    const std::string_view bytes(static_cast<const char*>(archive.GetData()), archive.GetLength());
    if (unsaved.empty() || !HoldsAny(bytes.substr(kHeaderSize), unsaved))
        return {};
    std::string all(bytes.substr(0, kHeaderSize));
    all += WithUnsaved(bytes.substr(kHeaderSize), unsaved);
    if (all.size() > std::numeric_limits<DWORD>::max())
        return "More than 4 GB cannot be carried at once.";
    PutNumber<std::uint64_t>(all.data() + kRecordsLength, all.size() - kHeaderSize);
    PutNumber<std::uint64_t>(all.data() + kSummedHeader, ChecksumOfArchive(all));
    archive.Seek(static_cast<DWORD>(all.size()), 0);
    archive.SetEnd();
    void* const pData = archive.GetData();
    if (!pData || archive.GetLength() != all.size())
        return "There is not enough memory for that much at once.";
    std::memcpy(pData, all.data(), all.size());
    return {};
}

} // namespace editor
