// A handler that writes down what the editor tells it, and answers and acts as the test says.
#pragma once

#include "Editor/model/Member.h"
#include "Views/host/StateHandler.h"
#include "tests/support/Ledger.h"

#include <functional>
#include <utility>

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
    BOOL OnGetActivePairs(OBJPAIR* pairs, DWORD* pCount) override
    {
        if (!pairs)
            *pCount = static_cast<DWORD>(active.size()) + 1;
        for (std::size_t i = 0; pairs && i < active.size(); ++i) {
            pairs[i].pAtom = CStubRef<IAtom>::Share(active[i]).Detach();
            CStubRef<IAtomContainer> pContainer;
            active[i]->GetContainer(pContainer.Receive(), IID_IAtomContainer);
            pairs[i].pContainer = pContainer.Detach();
        }
        return pairs != nullptr;
    }

    BOOL answer = TRUE;
    std::function<void()> onHear; // once
    std::vector<IAtom*> active;   // handed out with one empty slot behind them

private:
    BOOL Hear(const std::string& what, IAtom* pAtom)
    {
        const editor::CMember* const pMember = editor::CMember::Of(pAtom);
        m_book.Write(m_prefix + what + ' ' + (!pMember ? "-" : pMember->Container() ? pMember->ShownName() : "/"));
        if (const auto act = std::exchange(onHear, nullptr))
            act();
        return answer;
    }

    const std::string m_prefix;
    LedgerBook& m_book;
};
