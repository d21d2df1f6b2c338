#include "Editor/services/Commands.h"

#include "Editor/disk/FileText.h"
#include "Editor/model/Folder.h"
#include "Editor/model/ImageLink.h"
#include "Editor/model/PhaseFollower.h"
#include "Editor/model/PictureMember.h"
#include "Editor/model/RevocableRemoval.h"
#include "Editor/services/ActiveMembers.h"
#include "Editor/services/DroppedFiles.h"
#include "Editor/services/OfferedFiles.h"
#include "HostKit/atoms/Commands.h"
#include "HostKit/atoms/Handler.h"
#include "Toolkit/base/Exception.h"
#include "Toolkit/exchange/DataObject.h"
#include "Views/clipboard/clipboard.h"

#include <algorithm>
#include <set>
#include <utility>

namespace editor
{
namespace
{

constexpr const char* kNothingSelected = "nothing is selected";
constexpr const char* kNoFile = "no file can be made for it";

// Hears which objects come into a container.
class Arrivals final : public hostkit::CHandler
{
public:
    Arrivals(CAtomEditor& editor, IAtomContainer* pContainer, std::vector<CStubRef<IAtom>>& atoms)
        : CHandler(editor), m_pContainer(pContainer), m_atoms(atoms)
    {}

    BOOL OnCreateAtom(IAtom* pAtom, IAtomContainer* pContainer) override
    {
        if (pContainer == m_pContainer)
            m_atoms.push_back(CStubRef<IAtom>::Share(pAtom));
        return TRUE;
    }

private:
    IAtomContainer* const m_pContainer;
    std::vector<CStubRef<IAtom>>& m_atoms;
};

// Objects travel in a file of their own, which the library makes and reads.
std::string NoFile(const char* pszTrouble)
{
    const std::string why = LastErrorText();
    return why.empty() ? pszTrouble : pszTrouble + (": " + why);
}

std::string NameOf(const ActiveMembers& members)
{
    return members.size() == 1 ? '"' + ShownNameOf(members.front().pAtom.Get()) + '"'
                               : std::to_string(members.size()) + " objects";
}

bool IsLine(const ActiveMember& member)
{
    return static_cast<bool>(CStubRef<IImageLink>::From(member.pAtom.Get()));
}

// "2 phases will miss pictures", or nothing.
std::string MissingIn(const ActiveMembers& members, LongWork& work)
{
    std::vector<std::string> paths;
    PhaseFollower* pFollower = nullptr;
    for (const CMember* const pMember : OwnOf<CMember>(members)) {
        if (dynamic_cast<const CImageLink*>(pMember))
            continue;
        paths.push_back(pMember->Path());
        pFollower = pMember->Context().pFollower.get();
    }
    const int nBroken = pFollower ? pFollower->CountBroken(paths, work) : 0;
    return nBroken == 0 ? std::string()
                        : std::to_string(nBroken) + (nBroken == 1 ? " phase" : " phases") + " will miss pictures";
}

} // namespace

std::string Commands::RemoveQuestion(Removal removal) const
{
    const ActiveMembers members = GetActiveMembers(m_editor);
    const std::string what = NameOf(members);
    if (std::all_of(members.begin(), members.end(), IsLine))
        return "Remove " + what + " from the phase?";
    const std::string question =
        removal == Removal::ForGood ? "Remove " + what + " for good?" : "Move " + what + " to the trash?";
    const std::string missing = MissingIn(members, m_editor.GetWork());
    return missing.empty() ? question : question + ' ' + missing + '.';
}

std::string Commands::CutQuestion() const
{
    const ActiveMembers members = GetActiveMembers(m_editor);
    const std::string missing = MissingIn(members, m_editor.GetWork());
    return missing.empty() ? missing : "Cut " + NameOf(members) + "? " + missing + ", until they are pasted.";
}

void Commands::Select(const std::vector<CStubRef<IAtom>>& atoms, IAtomContainer* pContainer)
{
    m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnAtomDeselected, nullptr, pContainer, 0);
    for (const CStubRef<IAtom>& pAtom : atoms)
        m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnAtomSelected, pAtom.Get(), pContainer, 0);
}

std::string Commands::Copy()
try {
    const ActiveMembers members = GetActiveMembers(m_editor);
    if (members.empty())
        return kNothingSelected;
    ::SetLastError(ERROR_SUCCESS);
    if (CopyObjects(FALSE, [&](COleDataSource& source) { OfferCopiedFiles(source, PathsOf(members)); }))
        return {};
    return m_editor.GetArchiveError().empty() ? NoFile(kNoFile) : m_editor.GetArchiveError();
} catch (const CException& e) {
    return e.GetErrorMessage();
}

// What a refused cut puts back are the objects themselves. They are shown in their places again, not behind all others.
std::string Commands::Cut()
try {
    const ActiveMembers members = GetActiveMembers(m_editor);
    if (members.empty())
        return kNothingSelected;
    const History::Step step(&m_editor.GetHistory(), "cut");
    const LongWork::Command command(m_editor.GetWork(), "Cutting", Progress::Unit::Bytes);
    const JointRemoval joint(members);
    ::SetLastError(ERROR_SUCCESS);
    const RevocableRemoval revocable(OwnOf<CMember>(members));
    if (CopyObjects(TRUE, [&](COleDataSource& source) { OfferCopiedFiles(source, revocable.TrashedPaths()); }))
        return {};
    std::string reason = m_editor.WhyStillThere(members);
    if (!reason.empty())
        TellOfChange(members);
    if (!m_editor.GetArchiveError().empty()) // nothing was tried then, or not all came back
        reason += (reason.empty() ? "" : "; ") + m_editor.GetArchiveError();
    return reason.empty() ? NoFile(kNoFile) : reason;
} catch (const CException& e) {
    return e.GetErrorMessage();
}

void Commands::TellOfChange(const ActiveMembers& members)
{
    std::set<IAtomContainer*> told;
    for (const ActiveMember& member : members)
        if (told.insert(member.pContainer.Get()).second)
            m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnDeleteAtom, nullptr, member.pContainer.Get(), 0);
}

std::string Commands::Remove()
try {
    const ActiveMembers members = GetActiveMembers(m_editor);
    if (members.empty())
        return kNothingSelected;
    const History::Step step(&m_editor.GetHistory(), "deletion");
    const LongWork::Command command(m_editor.GetWork(), "Removing", Progress::Unit::Objects);
    m_editor.GetWork().GetMeter().SetTotal(members.size());
    const JointRemoval joint(members);
    RemoveObjects(FALSE);
    return m_editor.WhyStillThere(members);
} catch (const CException& e) {
    return e.GetErrorMessage();
}

std::string Commands::Paste(CContainer* pTarget, std::vector<CStubRef<IAtom>>& arrived)
try {
    const History::Step step(&m_editor.GetHistory(), "paste");
    const LongWork::Command command(m_editor.GetWork(), "Pasting", Progress::Unit::Bytes);
    auto* const pPhase = dynamic_cast<CPhase*>(pTarget);
    const UINT nFormer = pPhase ? pPhase->GetCount() : 0;
    const Arrivals arrivals(m_editor, pTarget, arrived);
    std::string reason = AreFilesOnClipboard(pTarget) ? PasteClipboardFiles(pTarget) : PasteAtoms(pTarget);
    if (pPhase && arrived.empty()) // of its new frames nobody is told one by one
        for (UINT i = nFormer; i < pPhase->GetCount(); ++i)
            pPhase->GetAtoms(i, 1, arrived.emplace_back().Receive(), IID_IAtom);
    return reason;
} catch (const CException& e) {
    return e.GetErrorMessage();
}

std::string Commands::PasteAtoms(CContainer* pTarget)
{
    ::SetLastError(ERROR_SUCCESS);
    std::string trouble = hostkit::PasteAtoms(m_editor, pTarget);
    return trouble == hostkit::kCannotBeRead ? NoFile(hostkit::kCannotBeRead) : trouble;
}

// A file manager's, where there are no objects of an editor.
bool Commands::AreFilesOnClipboard(CContainer* pTarget) const
{
    COleDataObject data;
    return data.AttachClipboard() && !data.IsDataAvailable(m_editor.GetClipboardFormat()) &&
           (OffersFilesFor(data, pTarget) || OffersPictureFor(data, pTarget));
}

std::string Commands::PasteClipboardFiles(CContainer* pTarget)
{
    COleDataObject data;
    if (!data.AttachClipboard())
        return "there are no files on the clipboard";
    return OffersFilesFor(data, pTarget) ? PasteFiles(data, pTarget) : PastePicture(data, pTarget);
}

std::string Commands::MakeFolder(CContainer* pTarget, std::vector<CStubRef<IAtom>>& arrived)
try {
    const History::Step step(&m_editor.GetHistory(), "new folder");
    const Arrivals arrivals(m_editor, pTarget, arrived);
    return Make(MemberKind::Folder, "New folder", {}, pTarget);
} catch (const CException& e) {
    return e.GetErrorMessage();
}

std::string Commands::MakePhase(CContainer* pTarget, std::vector<CStubRef<IAtom>>& arrived)
try {
    const ActiveMembers members = GetActiveMembers(m_editor);
    const std::vector<CPicture*> pictures = OwnOf<CPicture>(members);
    if (pictures.empty())
        return "no pictures are selected that it could show";
    std::string text;
    for (const CPicture* const pPicture : pictures) {
        int error = 0;
        const std::string line = pPicture->LineIn(pTarget->Path(), error);
        if (line.empty())
            return pPicture->ShownName() + ": " +
                   (error ? SystemErrorText(error) : "no line of a phase can lead to it");
        text += line + '\n';
    }
    const History::Step step(&m_editor.GetHistory(), "new phase");
    const Arrivals arrivals(m_editor, pTarget, arrived);
    return Make(MemberKind::Phase, "New phase.phase", text, pTarget);
} catch (const CException& e) {
    return e.GetErrorMessage();
}

std::string Commands::Make(MemberKind kind, const std::string& name, const std::string& text, CContainer* pTarget)
{
    auto* const pFolder = dynamic_cast<CFolder*>(pTarget);
    if (!pFolder)
        return pTarget->ShownName() + ": not a folder";
    CStubRef<CMember> pMade;
    std::string failure = pFolder->Make(kind, name, text, pMade);
    if (failure.empty())
        m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnCreateAtom, pMade.Get(), pFolder, 0);
    return failure;
}

std::string Commands::Rename(CMember* pMember, const std::string& name)
try {
    const auto pContainer = CStubRef<CContainer>::Share(pMember->Container());
    const std::string former = pMember->ShownName();
    if (!pContainer || !CanRenameObject(pMember, pContainer.Get()))
        return former + ": it cannot be renamed";
    if (!RenameObject(pMember, pContainer.Get(), name.c_str()))
        return ErrorOf(pContainer.Get(), former + ": it cannot be renamed");
    return {};
} catch (const CException& e) {
    return e.GetErrorMessage();
}

} // namespace editor
