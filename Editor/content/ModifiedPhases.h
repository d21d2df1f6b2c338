// The phases whose numbers have been changed since they were saved.
#pragma once

#include "Editor/content/PropertiesPane.h"
#include "Editor/model/Library.h"
#include "Editor/services/AtomEditor.h"

namespace editor
{

class ModifiedPhases
{
public:
    using Phases = CPropertiesPane::Phases;

    explicit ModifiedPhases(CAtomEditor& editor) : m_editor(editor) {} // borrowed

    std::string SaveQuestion() const; // what a user who leaves is asked; empty when nothing is modified

    void Enter(const Phases& phases, int PhaseTiming::*number, int nValue);
    void Add(const Phases& phases); // everyone is told that they have changed
    void Forget(IAtom* pGone);
    // What was there has another path now: those that it is, or holds, keep their numbers.
    void Follow(const std::string& from, const std::string& to, CLibrary& library);
    void ForgetGone();  // all that are no members any more
    std::string Save(); // all; the reason for the first that was not saved

private:
    CAtomEditor& m_editor;
    Phases m_phases; // each once; some may be as they were saved again
};

} // namespace editor
