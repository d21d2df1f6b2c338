// Removals that may have to be taken back.
#pragma once

#include "Editor/disk/Trash.h"
#include "Editor/model/Phase.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace editor
{

// While one lives, what is removed is remembered, and what is then added under its name to the container that it was
// removed from is the removed object itself: with all that it was, out of the trash, where nothing stays behind, or in
// its place among the lines of its phase. Where that cannot be done the object is made anew, as any other. One at a
// time; the library's cut is the use of it, which puts back what it has removed when it is refused in the middle.
class RevocableRemoval
{
public:
    explicit RevocableRemoval(const std::vector<CMember*>& members); // that are about to be removed
    ~RevocableRemoval() { s_pCurrent = nullptr; }
    RevocableRemoval(const RevocableRemoval&) = delete;
    RevocableRemoval& operator=(const RevocableRemoval&) = delete;

    static RevocableRemoval* Current() { return s_pCurrent; } // NULL: removals are for good

    // Around a removal: what can fail, before it; what became of it.
    void Begin(CMember& member, MemberKind kind);
    void End(bool bRemoved, const TrashPlace& place);

    std::vector<std::string> TrashedPaths() const; // where what has gone is now

    // An object that has come back to the container.
    struct Returned
    {
        CStubRef<CMember> pMember; // empty: the container is to be read anew
        DWORD dwID = 0;            // the member's
        MemberKind kind = MemberKind::Link;
        UINT nLine = 0; // in a phase
    };
    std::optional<Returned> BringBack(CContainer& container, std::string_view name);

private:
    struct Removed
    {
        CStubRef<CMember> pMember;
        DWORD dwID;
        MemberKind kind;
        std::string name, path;
        TrashPlace place;   // of a file or folder
        std::size_t nLine;  // of a link, when its phase was whole
        bool bGone = false; // removed, and not back
    };
    struct Whole
    {
        CStubRef<CPhase> pPhase;
        std::string text;
        std::map<const CMember*, std::size_t> lines; // of those that are about to be removed
    };

    bool BringFromTrash(Removed& removed);
    std::optional<Returned> BringToPhase(Removed& removed, CPhase& phase);
    std::string TextNow(const Whole& whole) const; // without the lines that are gone

    static RevocableRemoval* s_pCurrent;

    std::vector<Whole> m_wholes;
    std::vector<Removed> m_removed;
};

} // namespace editor
