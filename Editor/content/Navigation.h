// What of the library is shown, and the ways from there.
#pragma once

#include "Editor/model/Library.h"
#include "Editor/services/AtomEditor.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace editor
{

// The innermost container that is still there, or the member itself when all of them are; NULL for NULL.
CMember* WhatIsLeftOf(CMember* pMember);

// Where the user has been.
class Trail
{
public:
    void Visit(const std::string& path); // what lay forward is forgotten; nothing where one is already
    bool CanGo(int nStep) const;         // -1: back, 1: forward
    // As far as `show` can: where it answers false the place is gone, and forgotten. Was one shown?
    bool Go(int nStep, const std::function<bool(const std::string& path)>& show);

private:
    std::vector<std::string> m_paths;
    std::size_t m_at = 0;
};

// Where the user wants to go it tells the editor, and all views follow; what they follow to it hears by SetShown.
class Navigation
{
public:
    // The editor is borrowed. `cameBack` is called when what one came from has been selected; `say` tells a line.
    Navigation(CAtomEditor& editor, std::function<void()> cameBack, std::function<void(std::string)> say)
        : m_editor(editor), m_cameBack(std::move(cameBack)), m_say(std::move(say))
    {}

    CMember* Shown() const { return m_pShown.Get(); } // a container, or the picture shown in its place; or NULL
    CContainer* ShownContainer() const;               // that, or the one that holds the picture; NULL without either
    std::vector<CMember*> Path() const;               // from the top to what is shown; borrowed

    CLibrary* Library() const { return m_pTop.Get(); }

    CStubRef<CLibrary> SetLibrary(CLibrary* pTop)
    {
        return std::exchange(m_pTop, CStubRef<CLibrary>::Share(pTop));
    } // the former
    void SetShown(CMember* pMember);

    void ReadAside(CMember* pMember) const; // before views ask for its members; they show what they did meanwhile
    void GoTo(CMember* pMember);            // shows it, whatever it is
    void Open(CMember* pMember);            // the same, but what cannot be shown with its own program
    void GoUp();                            // nothing at the top
    void GoToTop() { GoTo(m_pTop.Get()); }
    void GoToPart(int nPart); // of the path
    // Back and forth among what has been shown; `show` gets there, or answers false.
    bool CanGo(int nStep) const { return m_trail.CanGo(nStep); }
    void Go(int nStep, const std::function<bool(const std::string& path)>& show) { m_trail.Go(nStep, show); }
    void LeaveWhatIsGone(); // for the innermost container that is still there

private:
    void GoBackTo(CContainer* pContainer);

    CAtomEditor& m_editor;
    const std::function<void()> m_cameBack;
    const std::function<void(std::string)> m_say;
    CStubRef<CLibrary> m_pTop;
    CStubRef<CMember> m_pShown;
    Trail m_trail;
};

} // namespace editor
