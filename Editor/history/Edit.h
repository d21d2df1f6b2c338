// One change of the disk that can be taken back and made again.
#pragma once

#include "Editor/disk/TextFile.h"
#include "Editor/disk/Trash.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace editor
{

// What taking back or making again has changed, for those who show it. Paths are absolute.
struct Changes
{
    // Whose members have changed, and which of a folder's have come or gone; no names: they are not known.
    std::map<std::string, std::set<std::string>> containers;
    std::vector<std::string> present;                            // what has come, or bears another name now
    std::vector<std::pair<std::string, std::string>> otherNames; // from, to
    struct Unsaved
    {
        std::string path;
        std::optional<std::string> text; // nothing: it is as it was saved
    };
    std::vector<Unsaved> unsaved; // what is to be kept of files beside what stands in them
};

// What a step consists of, for its name.
struct StepSummary
{
    int nCame = 0, nWent = 0, nRenamed = 0;
    std::string object;          // the first of these
    std::set<std::string> texts; // paths of files whose text has changed
};

// It has been made when it is constructed. Where others have been at work meanwhile nothing is changed, and one line
// names the object and what stands in the way.
class Edit
{
public:
    Edit() = default;
    virtual ~Edit() = default;
    Edit(const Edit&) = delete;
    Edit& operator=(const Edit&) = delete;

    // Empty when it is done, also when it had been done before; else the line.
    std::string Undo() { return m_bMade ? Note(DoUndo(), false) : std::string(); }
    std::string Redo() { return m_bMade ? std::string() : Note(DoRedo(), true); }
    virtual void Tell(Changes& changes) const = 0; // of the last of these
    virtual void CountIn(StepSummary& summary) const = 0;

protected:
    bool IsMade() const { return m_bMade; }
    virtual std::string DoUndo() = 0;
    virtual std::string DoRedo() = 0;

private:
    std::string Note(std::string failure, bool bMade)
    {
        if (failure.empty())
            m_bMade = bMade;
        return failure;
    }

    bool m_bMade = true;
};

// A file or folder has come, or has gone to the trash; what is not there waits in the trash.
class PlacingEdit : public Edit
{
public:
    explicit PlacingEdit(std::string path);          // it has come
    PlacingEdit(std::string path, TrashPlace place); // it has gone

    const std::string& Path() const { return m_path; }
    bool IsComing() const { return m_bComing; } // as it was made first
    bool IsInTrash() const { return !m_bComing && IsMade(); }
    void Tell(Changes& changes) const override;
    void CountIn(StepSummary& summary) const override;

protected:
    std::string DoUndo() override { return m_bComing ? Remove() : Restore(); }
    std::string DoRedo() override { return m_bComing ? Restore() : Remove(); }

private:
    std::string Remove();
    std::string Restore();

    const std::string m_path;
    const bool m_bComing;
    TrashPlace m_place;              // while it is not there
    std::uint64_t m_fingerprint = 0; // while it is, as it came
};

// What a former step has removed is there again.
class RestoringEdit : public Edit
{
public:
    explicit RestoringEdit(std::shared_ptr<PlacingEdit> pRemoval) : m_pRemoval(std::move(pRemoval)) {}

    void Tell(Changes& changes) const override { m_pRemoval->Tell(changes); }
    void CountIn(StepSummary& summary) const override;

protected:
    std::string DoUndo() override { return m_pRemoval->Redo(); }
    std::string DoRedo() override { return m_pRemoval->Undo(); }

private:
    const std::shared_ptr<PlacingEdit> m_pRemoval; // which that step then need not take back
};

// A file or folder has got another name in its folder.
class RenamingEdit : public Edit
{
public:
    RenamingEdit(std::string folder, std::string former, std::string name)
        : m_folder(std::move(folder)), m_former(std::move(former)), m_name(std::move(name))
    {}

    std::string FormerPath() const { return m_folder + '/' + m_former; }
    void Tell(Changes& changes) const override;
    void CountIn(StepSummary& summary) const override;

protected:
    std::string DoUndo() override { return Rename(m_name, m_former); }
    std::string DoRedo() override { return Rename(m_former, m_name); }

private:
    std::string Rename(const std::string& from, const std::string& to) const;

    const std::string m_folder, m_former, m_name;
};

// A file has got another text.
class RewritingEdit : public Edit
{
public:
    RewritingEdit(std::string path, TextState former, TextState now)
        : m_path(std::move(path)), m_former(std::move(former)), m_now(std::move(now))
    {}

    const std::string& Path() const { return m_path; }
    void GoOnTo(TextState now) { m_now = std::move(now); } // rewritten once more
    bool IsFrom(const TextState& state) const { return m_former.text == state.text; }
    void Tell(Changes& changes) const override;
    void CountIn(StepSummary& summary) const override { summary.texts.insert(m_path); }

protected:
    std::string DoUndo() override { return Rewrite(m_now, m_former); }
    std::string DoRedo() override { return Rewrite(m_former, m_now); }

private:
    std::string Rewrite(const TextState& from, const TextState& to) const;

    const std::string m_path;
    const TextState m_former;
    TextState m_now;
};

// What is kept of a file until it is saved has changed; on the disk nothing has.
class UnsavedEdit : public Edit
{
public:
    using Text = std::optional<std::string>; // nothing: it is as it was saved

    UnsavedEdit(std::string path, Text former, Text now)
        : m_path(std::move(path)), m_former(std::move(former)), m_now(std::move(now))
    {}

    void Tell(Changes& changes) const override { changes.unsaved.push_back({m_path, IsMade() ? m_now : m_former}); }
    void CountIn(StepSummary& summary) const override { summary.texts.insert(m_path); }

protected:
    std::string DoUndo() override { return {}; }
    std::string DoRedo() override { return {}; }

private:
    const std::string m_path;
    const Text m_former, m_now;
};

} // namespace editor
