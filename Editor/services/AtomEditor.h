// The atom editor of files: what it carries, and how what it did is taken back.
#pragma once

#include "Editor/history/History.h"
#include "Editor/services/ActiveMembers.h"
#include "HostKit/atoms/AtomEditor.h"

namespace editor
{

// The editor's IMyErrorInfo also tells when a container did not take an object that was read.
class CAtomEditor final : public hostkit::CAtomEditor
{
public:
    CAtomEditor() : hostkit::CAtomEditor("application/x-views-atoms") {}

    static CAtomEditor& Current(); // the one that the services give

    History& GetHistory() { return m_history; } // of what is done to the disk
    LongWork& GetWork() { return m_work; }
    // What a drag of this program carries while it is under way; NULL when there is none.
    std::shared_ptr<const ActiveMembers> GetDragged() const { return m_pDragged.lock(); }

    // Was the last writing refused only for what cannot be carried of a folder? Then it goes on without that while the
    // user's consent to it lives.
    bool CanLeaveOut() const { return m_bCanLeaveOut; }
    class LeavingOut
    {
    public:
        explicit LeavingOut(CAtomEditor& editor) : m_editor(editor) { m_editor.m_bLeavingOut = true; }
        ~LeavingOut() { m_editor.m_bLeavingOut = false; }
        LeavingOut(const LeavingOut&) = delete;
        LeavingOut& operator=(const LeavingOut&) = delete;

    private:
        CAtomEditor& m_editor;
    };

    // All of the archive is checked before its first object is handed out. FALSE, too, when a container did not take an
    // object: who is dropping objects is not to believe that all were taken.
    BOOL ReadArchive(ARCHIVEATOMPROC callback, IArchive* archive, void* context) override;
    // All of the active atoms or nothing: then the archive is empty, and the editor's IMyErrorInfo says why. They are
    // written as the user sees them: what is not saved of a phase is in the archive, and still not on the disk.
    BOOL WriteActiveObjects(IArchive* archive) override;
    std::string WhyStillThere(const ActiveMembers& members) const override;

protected:
    // As a list of the files' URIs: such a drag removes nothing, and proposes a copy.
    void OfferMore(COleDataSource& source, const ActiveMembers& members) override;
    std::shared_ptr<void> BeginDrag() override; // a step
    std::shared_ptr<void> BeginRemoval(const ActiveMembers& members) override;
    void TellOfFailedDrag() override;

private:
    LongWork m_work;
    History m_history{m_work};
    std::weak_ptr<const ActiveMembers> m_pDragged;
    bool m_bCanLeaveOut = false, m_bLeavingOut = false;
};

} // namespace editor
