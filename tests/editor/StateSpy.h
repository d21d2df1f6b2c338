// A handler that writes down what the editor tells it, and answers and acts as the test says.
#pragma once

#include "Views/host/StateHandler.h"
#include "tests/support/Ledger.h"

#include <functional>

class StateSpy final : public CStateHandler
{
public:
    // Its lines begin with the prefix: "one selecting a.bmp". The library is called "/".
    StateSpy(std::string prefix, LedgerBook& book) : m_prefix(std::move(prefix)), m_book(book) {}

    BOOL OnCreateAtom(IAtom* pAtom, IAtomContainer*) override { return Hear("created", pAtom); }
    BOOL OnDeleteAtom(IAtom* pAtom, IAtomContainer*) override { return Hear("deleted", pAtom); }
    BOOL OnAtomSelecting(IAtom* pAtom, IAtomContainer*) override { return Hear("selecting", pAtom); }
    BOOL OnAtomSelected(IAtom* pAtom, IAtomContainer*) override { return Hear("selected", pAtom); }
    BOOL OnAtomDeselected(IAtom* pAtom, IAtomContainer*) override { return Hear("deselected", pAtom); }
    BOOL OnAtomEntered(IAtom* pAtom, IAtomContainer*) override { return Hear("entered", pAtom); }
    BOOL OnAtomRename(IAtom* pAtom, IAtomContainer*) override { return Hear("rename", pAtom); }
    BOOL OnGetActivePairs(OBJPAIR* pairs, DWORD* pCount) override;

    BOOL answer = TRUE;
    std::function<void()> onHear; // once
    std::vector<IAtom*> active;   // handed out with one empty slot behind them

private:
    BOOL Hear(const std::string& what, IAtom* pAtom);

    const std::string m_prefix;
    LedgerBook& m_book;
};
