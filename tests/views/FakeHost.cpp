#include "tests/views/FakeHost.h"

#include "Toolkit/graphics/ImageList.h"
#include "tests/support/FakeArchive.h"

#include <concepts>
#include <gtest/gtest.h>

namespace
{

const std::string& Word(const std::string& word)
{
    return word;
}

std::string Word(std::integral auto number)
{
    return std::to_string(number);
}

std::string Words(const auto&... parts) // one after the other
{
    return (Word(parts) + ...);
}

} // namespace

void FakeEditor::Install()
{
    m_service.Install();
    m_errorService.Install();
}

void FakeEditor::Uninstall()
{
    m_service.Uninstall();
    m_errorService.Uninstall();
}

BOOL FakeEditor::ShowError(void* pBuffer, DWORD dwSize, DWORD dwExtra)
{
    EXPECT_EQ(sizeof(ERRORREQUEST), dwSize);
    EXPECT_EQ(0u, dwExtra);
    const auto& request = *static_cast<ERRORREQUEST*>(pBuffer);
    ledger.push_back(Words("error \"", request.pszCaption, "\" of ", NameOf(static_cast<FakeAtom*>(request.pError))));
    return TRUE;
}

DWORD FakeEditor::RegisterHandler(HWND hWnd, IAEStateHandler* handler)
{
    ledger.push_back(handlerNames[handler] + " registers");
    const DWORD nCookie = HostEditor::RegisterHandler(hWnd, handler);
    if (onJoin)
        onJoin();
    return nCookie;
}

void FakeEditor::UnregisterHandler(DWORD cookie)
{
    const auto found = std::ranges::find(Handlers(), cookie, &Handler::cookie);
    ASSERT_TRUE(found != Handlers().end());
    ledger.push_back(handlerNames[found->pHandler] + " unregisters");
    HostEditor::UnregisterHandler(cookie);
}

BOOL FakeEditor::NotifyHandlers(IAEStateHandler* sender, AEStateOperation operation, IAtom* atom,
                                IAtomContainer* container, DWORD reserved)
{
    EXPECT_EQ(0u, reserved);
    const std::string strOperation = kHostOperations[IndexOf(operation)].pszName;
    const bool bAsks = strOperation.starts_with("Pre") || strOperation.ends_with("ing");
    ledger.push_back(Words(sender ? handlerNames[sender] : "nobody", bAsks ? " asks " : " tells ", strOperation, "(",
                           NameOf(atom), " in ", NameOf(container), ")"));
    if (const auto hook = onNotify) // a copy: it may take itself away
        hook(operation, atom);

    const BOOL bAgreed = !m_vetoes.contains(strOperation) && !m_vetoes.contains(strOperation + NameOf(atom));
    return HostEditor::NotifyHandlers(sender, operation, atom, container, reserved) & bAgreed;
}

void FakeEditor::AddPane(DWORD kind, HWND, LPCSTR caption, HICON icon)
{
    const toolkit::Surface* const pIcon = toolkit::IconSurface(icon);
    const bool bHasIcon = pIcon && pIcon->Size() == CSize(16, 16);
    ledger.push_back(Words("pane ", kind, " \"", caption, "\"", bHasIcon ? " with icon" : ""));
    if (onJoin)
        onJoin();
}

void FakeEditor::RemovePane(DWORD kind, HWND)
{
    ledger.push_back("no pane " + std::to_string(kind));
}

BOOL FakeEditor::EnumActivePairs(ACTIVEPAIRPROC callback, void* context)
{
    ledger.push_back("enumerates");
    return HostEditor::EnumActivePairs(callback, context);
}

DROPEFFECT FakeEditor::DoDragDrop(DWORD allowedEffects, DWORD reserved)
{
    EXPECT_EQ(0u, reserved);
    const DROPEFFECT effect = HostEditor::DoDragDrop(allowedEffects, reserved);
    ledger.push_back("dragged: " + std::to_string(effect));
    return effect;
}

void FakeEditor::OnDrag()
{
    std::string strNames;
    for (const views::HeldPair& pair : pairs)
        strNames += " " + NameOf(pair.pAtom.Get());
    ledger.push_back("drags" + strNames);
}

BOOL FakeEditor::WriteActiveObjects(IArchive* archive)
{
    ledger.push_back("writes " + std::to_string(pairs.size()));
    return HostEditor::WriteActiveObjects(archive);
}

BOOL FakeEditor::ReadArchive(ARCHIVEATOMPROC callback, IArchive* archive, void* context)
{
    ledger.push_back("reads");
    return ReadNames(readsOn ? dynamic_cast<FakeArchive&>(*archive).ReadOn() : BytesOf(archive), callback, context);
}

IAtom* FakeEditor::MakeAtom(const std::string& strName)
{
    auto* const pAtom = new FakeAtom(strName);
    pAtom->nameFails = strName == "nameless";
    return pAtom;
}
