// The editor's archives: the active atoms written into one, and objects read out of one.
#include "Editor/archive/ArchiveReader.h"
#include "Editor/archive/ArchiveWriter.h"
#include "Editor/archive/ArchivedAtom.h"
#include "Editor/disk/FileText.h"
#include "Editor/model/Member.h"
#include "Editor/services/AtomEditor.h"
#include "Editor/services/UnsavedPhases.h"
#include "Toolkit/base/Exception.h"
#include "Toolkit/exchange/ClipboardFormat.h"

namespace editor
{
namespace
{

struct Writing
{
    ArchiveWriter writer;
    std::string error;
    int nAtoms = 0;
};

std::string WriteAtom(ArchiveWriter& writer, IAtom* pAtom)
{
    const CMember* const pMember = CMember::Of(pAtom);
    if (!pMember)
        return "An object of another editor cannot be carried.";
    const std::string path = pMember->Path();
    const std::string origin = pMember->PathInLibrary();
    if (!CStubRef<IImageLink>::From(pAtom))
        return writer.AddPath(path, origin);
    return origin.empty() ? pMember->ShownName() + ": lies outside the library"
                          : writer.AddLink(pMember->Name(), path, origin);
}

BOOL WriteActivePair(IAtom* pAtom, IAtomContainer*, void* pContext)
{
    auto& writing = *static_cast<Writing*>(pContext);
    if (const CMember* const pMember = CMember::Of(pAtom); pMember && writing.nAtoms == 0)
        writing.writer.SetReplacement(
            [unsaved = pMember->UnsavedPhases()](const auto&... file) { return TextWithUnsaved(unsaved, file...); });
    writing.error = WriteAtom(writing.writer, pAtom);
    ++writing.nAtoms;
    return writing.error.empty();
}

std::string_view BytesOf(IArchive& archive)
{
    const DWORD dwLength = archive.GetLength();
    const void* const pData = archive.GetData();
    return pData ? std::string_view(static_cast<const char*>(pData), dwLength) : std::string_view();
}

// FALSE when the callback refused one. `failure` becomes the first object's that no container took.
BOOL HandOut(RecordReader reader, IArchive& archive, ARCHIVEATOMPROC callback, void* pContext, std::string& failure)
{
    BOOL bAccepted = TRUE;
    for (ArchiveRecord record; bAccepted && reader.Next(record);) {
        const auto pAtom = CStubRef<CArchivedAtom>::Adopt(new CArchivedAtom(&archive, record));
        if (!pContext)
            pAtom->AddRef(); // the callback's
        bAccepted = callback(pAtom.Get(), pContext);
        if (failure.empty())
            failure = pAtom->Failure();
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
        Writing writing{ArchiveWriter(*archive), {}, 0};
        if (m_bLeavingOut)
            writing.writer.AllowLeavingOut();
        if (EnumActivePairs(&WriteActivePair, &writing) && writing.nAtoms > 0)
            writing.error = writing.writer.Finish();
        else if (writing.error.empty())
            writing.error = "Nothing is selected.";
        if (!writing.error.empty())
            Empty(*archive);
        m_bCanLeaveOut = !writing.error.empty() && writing.writer.LacksConsent();
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
        const std::string_view records = OpenArchive(BytesOf(*archive), trouble);
        if (!trouble.empty())
            return NoteArchiveError("The objects cannot be read: " + trouble + '.');
        std::string failure;
        const BOOL bAccepted = HandOut(RecordReader(records), *archive, callback, context, failure);
        return NoteArchiveError(std::move(failure)) && bAccepted;
    } catch (CMemoryException& exception) {
        return NoteArchiveError(exception.GetErrorMessage());
    }
}

CLIPFORMAT CAtomEditor::GetClipboardFormat()
{
    return RegisterClipboardFormat("application/x-views-atoms");
}

BOOL CAtomEditor::NoteArchiveError(std::string line)
{
    m_archiveError = std::move(line);
    return m_archiveError.empty();
}

} // namespace editor
