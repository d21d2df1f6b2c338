// The editor's archives: the active atoms written into one, and objects read out of one.
#include "Editor/archive/ArchiveReader.h"
#include "Editor/archive/ArchiveWriter.h"
#include "Editor/archive/ArchivedAtom.h"
#include "Editor/disk/FileText.h"
#include "Editor/model/ImageLink.h"
#include "Editor/model/PhaseText.h"
#include "Editor/services/AtomEditor.h"
#include "Editor/services/Troubles.h"
#include "Toolkit/base/Exception.h"

#include <algorithm>
#include <optional>

namespace editor
{
namespace
{

// What is to be written: found out on the window's thread, written on any.
struct Object
{
    std::string path, origin;
    std::string line; // a line of a phase, by that name; empty: it is a file or folder
};
// What the user has set of a phase and not saved yet travels with it.
struct UnsavedTiming
{
    std::string path;
    PhaseTiming timing;
};
struct Writing
{
    std::vector<Object> objects;
    std::vector<UnsavedTiming> unsaved;
    std::string error;
};

std::string NoteObject(const CMember* pMember, std::vector<Object>& objects)
{
    if (!pMember)
        return "An object of another editor cannot be carried.";
    objects.push_back({pMember->Path(), pMember->PathInLibrary(), {}});
    if (!dynamic_cast<const CImageLink*>(pMember))
        return {};
    objects.back().line = pMember->Name();
    return objects.back().origin.empty() ? pMember->ShownName() + ": lies outside the library" : std::string();
}

void NoteObjects(const ActiveMembers& members, Writing& writing)
{
    for (const ActiveMember& member : members) {
        const CMember* const pMember = CMember::Of(member.pAtom.Get());
        if (pMember && writing.objects.empty())
            for (const CPhase* const pPhase : pMember->Context().unsaved)
                writing.unsaved.push_back({pPhase->Path(), pPhase->GetTiming()});
        if (writing.error = NoteObject(pMember, writing.objects); !writing.error.empty())
            return;
    }
    if (members.empty())
        writing.error = "Nothing is selected.";
}

// What travels of a file with that name and text: the text with its timing, when it is the file of one of the phases.
// Nothing for every other file. The disk stays as it is.
std::optional<std::string> TextWithUnsaved(const std::vector<UnsavedTiming>& unsaved, std::string_view name,
                                           const FileIdentity& identity, std::string_view text)
{
    if (unsaved.empty() || ExtensionOf(name) != "phase" || !IsPhaseText(text))
        return std::nullopt;
    const auto found =
        std::ranges::find_if(unsaved, [&](const UnsavedTiming& one) { return IsFile(one.path, identity); });
    if (found == unsaved.end())
        return std::nullopt;
    return WithTiming(std::string(text), found->timing);
}

std::string WriteAll(const std::vector<Object>& objects, ArchiveWriter& writer, Meter& meter)
{
    std::uint64_t total = 0;
    for (const Object& object : objects)
        total += object.line.empty() ? BytesBelow(object.path, meter) : 0;
    meter.SetTotal(total);
    writer.SetMeter(&meter);
    for (const Object& object : objects) {
        std::string error = object.line.empty() ? writer.AddPath(object.path, object.origin)
                                                : writer.AddLink(object.line, object.path, object.origin);
        if (!error.empty())
            return error;
    }
    return writer.Finish();
}

std::string_view BytesOf(IArchive& archive)
{
    const DWORD dwLength = archive.GetLength();
    const void* const pData = archive.GetData();
    return pData ? std::string_view(static_cast<const char*>(pData), dwLength) : std::string_view();
}

// FALSE when the callback refused one. `troubles` hears of every object, and why no container took it.
BOOL HandOut(RecordReader reader, IArchive& archive, ARCHIVEATOMPROC callback, void* pContext, Troubles& troubles,
             const LongWork& work)
{
    BOOL bAccepted = TRUE;
    for (ArchiveRecord record; bAccepted && reader.Next(record);) {
        const auto pAtom = CStubRef<CArchivedAtom>::Adopt(new CArchivedAtom(&archive, record));
        if (!pContext)
            pAtom->AddRef(); // the callback's
        bAccepted = callback(pAtom.Get(), pContext);
        troubles.Add(pAtom->Failure());
        if (work.IsCancelled())
            return FALSE;
    }
    return bAccepted;
}

void Empty(IArchive& archive)
{
    archive.Seek(0, 0);
    archive.SetEnd();
}

} // namespace

BOOL CAtomEditor::WriteActiveObjects(IArchive* archive)
{
    m_bCanLeaveOut = false;
    if (!archive)
        return FALSE;
    try {
        const LongWork::Command command(m_work, "Copying", Progress::Unit::Bytes);
        Writing writing;
        ArchiveWriter writer(*archive);
        writer.SetReplacement([&](const auto&... file) { return TextWithUnsaved(writing.unsaved, file...); });
        if (m_bLeavingOut)
            writer.AllowLeavingOut();
        NoteObjects(GetActiveMembers(*this), writing);
        if (writing.error.empty())
            writing.error = Aside(m_work, [&] { return WriteAll(writing.objects, writer, m_work.GetMeter()); });
        if (writing.error.empty() && m_work.IsCancelled())
            writing.error = kCancelled;
        if (!writing.error.empty())
            Empty(*archive);
        m_bCanLeaveOut = !writing.error.empty() && writer.LacksConsent();
        return NoteArchiveError(std::move(writing.error));
    } catch (CMemoryException& exception) {
        Empty(*archive);
        return NoteArchiveError(exception.GetErrorMessage());
    }
}

BOOL CAtomEditor::ReadArchive(ARCHIVEATOMPROC callback, IArchive* archive, void* context)
{
    if (!callback || !archive)
        return FALSE;
    try {
        std::string trouble;
        const std::string_view bytes = BytesOf(*archive);
        if (m_work.GetMeter().Total() == 0)
            m_work.GetMeter().SetTotal(bytes.size());
        const std::string_view records = Aside(m_work, [&] { return OpenArchive(bytes, trouble); });
        if (!trouble.empty())
            return NoteArchiveError("The objects cannot be read: " + trouble + '.');
        Troubles troubles;
        const BOOL bAccepted = HandOut(RecordReader(records), *archive, callback, context, troubles, m_work);
        return NoteArchiveError(troubles.Text()) && bAccepted;
    } catch (CMemoryException& exception) {
        return NoteArchiveError(exception.GetErrorMessage());
    }
}

} // namespace editor
