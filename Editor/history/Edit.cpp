#include "Editor/history/Edit.h"

#include "Editor/disk/DiskFile.h"
#include "Editor/disk/FileText.h"
#include "Editor/disk/Fingerprint.h"

#include <cerrno>

namespace editor
{
namespace
{

void Name(std::string& name, std::string_view path)
{
    if (name.empty())
        name = BaseName(path);
}

constexpr const char* kChanged = "was changed by another program meanwhile";

} // namespace

PlacingEdit::PlacingEdit(std::string path)
    : m_path(std::move(path)), m_bComing(true), m_fingerprint(FingerprintOf(m_path))
{}

PlacingEdit::PlacingEdit(std::string path, TrashPlace place)
    : m_path(std::move(path)), m_bComing(false), m_place(std::move(place))
{}

std::string PlacingEdit::Remove()
{
    const std::uint64_t now = FingerprintOf(m_path);
    if (now != m_fingerprint)
        return Because(BaseName(m_path), now == 0 ? "is not there any more" : kChanged);
    TrashResult result = MoveToTrash(m_path);
    if (!result.reason.empty())
        return Because(BaseName(m_path), result.reason);
    m_place = std::move(result.place);
    return {};
}

std::string PlacingEdit::Restore()
{
    const int error = TakeFromTrash(m_place, m_path);
    if (error == EEXIST)
        return "there is a \"" + ToShown(BaseName(m_path)) + "\" already";
    if (error != 0)
        return Because(BaseName(m_path), error == ENOENT ? "is not in the trash any more, or its folder has gone"
                                                         : SystemErrorText(error));
    m_fingerprint = FingerprintOf(m_path);
    return {};
}

void PlacingEdit::Tell(Changes& changes) const
{
    changes.containers[FolderOf(m_path)].emplace(BaseName(m_path));
    if (m_bComing == IsMade())
        changes.present.push_back(m_path);
}

void PlacingEdit::CountIn(StepSummary& summary) const
{
    ++(m_bComing ? summary.nCame : summary.nWent);
    Name(summary.object, m_path);
}

void RestoringEdit::CountIn(StepSummary& summary) const
{
    ++summary.nCame;
    Name(summary.object, m_pRemoval->Path());
}

std::string RenamingEdit::Rename(const std::string& from, const std::string& to) const
{
    const int error = RenameInFolder(m_folder, from, to);
    if (error == EEXIST)
        return Because(BaseName(from), "there is a \"" + ToShown(to) + "\" already");
    return error == 0 ? std::string() : Because(BaseName(from), SystemErrorText(error));
}

void RenamingEdit::Tell(Changes& changes) const
{
    const std::string former = m_folder + '/' + m_former, now = m_folder + '/' + m_name;
    changes.containers[m_folder].insert({m_former, m_name});
    changes.present.push_back(IsMade() ? now : former);
    changes.otherNames.emplace_back(IsMade() ? former : now, changes.present.back());
}

void RenamingEdit::CountIn(StepSummary& summary) const
{
    ++summary.nRenamed;
    if (summary.nCame == 1 && summary.object == m_former)
        summary.object = m_name; // what has come is known by the name that it has now
    Name(summary.object, m_former);
}

std::string RewritingEdit::Rewrite(const TextState& from, const TextState& to) const
{
    TextState found;
    int error = ReadText(m_path, from.text.size(), found);
    if (error == EFBIG || (error == 0 && found.text != from.text))
        return Because(BaseName(m_path), kChanged);
    if (error == 0)
        error = WriteText(m_path, to);
    return error == 0 ? std::string() : Because(BaseName(m_path), SystemErrorText(error));
}

void RewritingEdit::Tell(Changes& changes) const
{
    changes.containers[m_path];
}

} // namespace editor
