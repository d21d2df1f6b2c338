#include "tests/views/FakeHost.h"

#include "Kernel/Kernel.h"
#include "Toolkit/base/Exception.h"
#include "Toolkit/base/String.h"
#include "Toolkit/exchange/DataSource.h"
#include "Toolkit/menu/Menu.h"
#include "Views/clipboard/TransferFileOwner.h"
#include "Views/clipboard/clipboard.h"
#include "tests/views/FakeArchive.h"

#include <algorithm>
#include <concepts>
#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <sstream>

namespace
{

BOOL CopyName(const std::string& strName, bool bFails, char* pBuffer, DWORD* pLength)
{
    if (!pBuffer) {
        *pLength = static_cast<DWORD>(strName.size()) + 1;
        return FALSE; // no one looks
    }
    if (!bFails)
        std::memcpy(pBuffer, strName.c_str(), std::min<std::size_t>(strName.size() + 1, *pLength));
    return !bFails;
}

FakeAtom* AsFake(IAtom* pAtom)
{
    return dynamic_cast<FakeAtom*>(pAtom);
}

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

std::string NameOf(IAtom* pAtom)
{
    return pAtom ? AsFake(pAtom)->name : "-";
}

void* FakeAtom::Find(DWORD id)
{
    if (id == IID_IAtom)
        return static_cast<IAtom*>(this);
    if (id == IID_IDispAtom && displayName)
        return static_cast<IDispAtom*>(this);
    if (id == IID_IAtomIcon && hasIcon)
        return static_cast<IAtomIcon*>(this);
    if (id == IID_IAtomThumbnail && nFrames > 0)
        return static_cast<IAtomThumbnail*>(this);
    if (id == IID_IImageLink && isLink)
        return static_cast<IImageLink*>(this);
    if (id == IID_ICharacterLibrary && isLibrary)
        return static_cast<ICharacterLibrary*>(this);
    if (id == IID_IMyErrorInfo && (nameFails || displayNameFails))
        return static_cast<IMyErrorInfo*>(this);
    return id == STUB_BASE_INTERFACE_ID ? static_cast<CStubBaseInterface*>(this) : nullptr;
}

BOOL FakeAtom::GetName(char* pBuffer, DWORD* pLength)
{
    if (!pBuffer && nameIsEndless) {
        *pLength = 0xFFFFFFFF;
        return TRUE;
    }
    nNameReads += pBuffer != nullptr;
    const BOOL bRead = CopyName(name, nameFails, pBuffer, pLength);
    if (pBuffer && onAsked)
        onAsked();
    return bRead;
}

BOOL FakeAtom::GetDisplayName(char* pBuffer, DWORD* pLength)
{
    return CopyName(*displayName, displayNameFails, pBuffer, pLength);
}

BOOL FakeAtom::GetContainer(void** ppOut, DWORD dwInterfaceId)
{
    *ppOut = nullptr;
    if (parent)
        parent->GetInterface(dwInterfaceId, ppOut);
    return *ppOut != nullptr;
}

BOOL FakeAtom::GetIcon(ICONREQUEST* pRequest)
{
    Write(Words("icon ", name, " ", pRequest->cx, "x", pRequest->cy));
    if (iconFails)
        return FALSE;
    pRequest->hIcon = CreateIconFromSurface(toolkit::Surface(CSize(pRequest->cx, pRequest->cy), 0xFF00FF00));
    return TRUE;
}

BOOL FakeAtom::Draw(HDC hdc, CRect& rect, DWORD dwReserved, DWORD dwMode, UINT nFrame)
{
    Write(Words("draw ", name, " at ", rect.left, ",", rect.top, "-", rect.right, ",", rect.bottom, " (", dwReserved,
                ", ", dwMode, ", ", nFrame, ")"));
    FillSolidRect(hdc, CRect(rect.left, rect.top, rect.CenterPoint().x, rect.bottom), RGB(0, 0, 255));
    return !thumbFails;
}

int FakeAtom::AddToImageList(HIMAGELIST hImageList, int nReplace)
{
    Write(Words("icon ", name, " at ", nReplace));
    if (iconNeedsTooMuch)
        AfxThrowMemoryException();
    if (iconFails)
        return -1;
    const HICON hIcon = CreateIconFromSurface(toolkit::Surface(CSize(48, 48), 0xFF00FF00));
    const int nImage = ImageList_ReplaceIcon(hImageList, nReplace, hIcon);
    DestroyIcon(hIcon);
    if (onAsked)
        onAsked();
    return nImage;
}

FakeAtom* FakeContainer::Add(FakeAtom* pNew)
{
    pNew->parent = this;
    members.push_back(AtomRef::Adopt(pNew));
    return pNew;
}

AtomRef FakeContainer::Remove(FakeAtom* pMember)
{
    const auto found = std::ranges::find(members, pMember, &AtomRef::Get);
    if (found == members.end())
        return nullptr;
    AtomRef pRemoved = std::move(*found);
    members.erase(found);
    return pRemoved;
}

FakeAtom* FakeContainer::Named(const std::string& strName) const
{
    const auto found = std::ranges::find(members, strName, [](const AtomRef& p) { return p->name; });
    return found == members.end() ? nullptr : found->Get();
}

void FakeContainer::GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD dwInterfaceId)
{
    for (UINT i = 0; i < nCount; ++i) {
        ppOut[i] = nullptr;
        if (nFirst + i < members.size())
            members[nFirst + i]->GetInterface(dwInterfaceId, &ppOut[i]);
    }
}

BOOL FakeContainer::FindAtomByID(DWORD dwID, void** ppOut, DWORD dwInterfaceId)
{
    const auto found = std::ranges::find(members, dwID, [](const AtomRef& p) { return p->GetID(); });
    if (ppOut)
        *ppOut = nullptr;
    if (ppOut && found != members.end())
        (*found)->GetInterface(dwInterfaceId, ppOut);
    return found != members.end();
}

bool FakeContainer::Does(const std::string& strCall)
{
    Write(name + " " + strCall);
    if (const auto hook = onCall)
        hook(strCall);
    return !refused.contains(strCall);
}

BOOL FakeContainer::FindAtom(const char* pszName, void** ppOut, DWORD dwInterfaceId)
{
    *ppOut = nullptr;
    FakeAtom* const pFound = Does(std::string("finds ") + pszName) ? Named(pszName) : nullptr;
    if (pFound)
        pFound->GetInterface(dwInterfaceId, ppOut);
    return pFound != nullptr;
}

BOOL FakeContainer::AddAtom(IAtom* pSource, DWORD dwReserved, const char* pszName, void** ppOut, DWORD dwInterfaceId)
{
    EXPECT_EQ(0u, dwReserved);
    *ppOut = nullptr;
    if (!Does("adds " + ::NameOf(pSource) + " as " + pszName))
        return FALSE;
    Add(pszName)->GetInterface(dwInterfaceId, ppOut);
    return TRUE;
}

BOOL FakeContainer::RenameAtom(IAtom* pAtom, const char* pszNewName, void** ppOut, DWORD dwInterfaceId)
{
    *ppOut = nullptr;
    if (!Does("renames " + ::NameOf(pAtom) + " to " + pszNewName))
        return FALSE;
    const AtomRef pFormer = Remove(AsFake(pAtom));
    Add(pszNewName)->GetInterface(dwInterfaceId, ppOut);
    return TRUE;
}

BOOL FakeContainer::RemoveAtom(IAtom* pAtom)
{
    return Does("removes " + ::NameOf(pAtom)) && Remove(AsFake(pAtom));
}

DWORD FakeContainer::GetPermissions(IAtom* pAtom)
{
    Does("permits " + ::NameOf(pAtom));
    const auto found = permissionsFor.find(::NameOf(pAtom));
    return found == permissionsFor.end() ? permissions : found->second;
}

BOOL FakeContainer::ValidateName(CString& strName, DWORD dwReserved)
{
    EXPECT_EQ(0u, dwReserved);
    if (!Does(std::string("validates ") + strName.GetString()))
        return FALSE;
    if (Named(strName.GetString()))
        strName += " (2)";
    return TRUE;
}

int FakeContainer::GetPosition(IImageLink* pLink)
{
    const int nPosition = static_cast<FakeAtom*>(pLink)->position;
    return isBackward ? -nPosition : nPosition;
}

void* FakeContainer::Find(DWORD id)
{
    if (id == IID_IAtomContainer)
        return static_cast<IAtomContainer*>(this);
    if (id == IID_IPhase && isPhase)
        return static_cast<IPhase*>(this);
    if (id == IID_IMyErrorInfo && onCall)
        onCall("errs");
    if (id == IID_IMyErrorInfo && !refused.empty())
        return static_cast<IMyErrorInfo*>(this);
    return FakeAtom::Find(id);
}

void FakeEditor::Install()
{
    m_editorService.Install();
    m_errorService.Install();
}

void FakeEditor::Uninstall()
{
    m_editorService.Uninstall();
    m_errorService.Uninstall();
}

BOOL FakeEditor::GiveEditor(void* pBuffer, DWORD dwSize, DWORD dwExtra)
{
    EXPECT_EQ(sizeof(void*), dwSize);
    EXPECT_EQ(0u, dwExtra);
    AddRef();
    *static_cast<IAtomEditor**>(pBuffer) = this;
    return TRUE;
}

BOOL FakeEditor::ShowError(void* pBuffer, DWORD dwSize, DWORD dwExtra)
{
    EXPECT_EQ(sizeof(ERRORREQUEST), dwSize);
    EXPECT_EQ(0u, dwExtra);
    const auto& request = *static_cast<ERRORREQUEST*>(pBuffer);
    ledger.push_back(Words("error \"", request.pszCaption, "\" of ", ::NameOf(static_cast<FakeAtom*>(request.pError))));
    return TRUE;
}

DWORD FakeEditor::RegisterHandler(HWND, IAEStateHandler* handler)
{
    ledger.push_back(handlerNames[handler] + " registers");
    const DWORD nCookie = ++m_nLastCookie;
    m_handlers[nCookie] = handler;
    if (onJoin)
        onJoin();
    return nCookie;
}

void FakeEditor::UnregisterHandler(DWORD cookie)
{
    ASSERT_TRUE(m_handlers.contains(cookie));
    ledger.push_back(handlerNames[m_handlers[cookie]] + " unregisters");
    m_handlers.erase(cookie);
}

BOOL FakeEditor::NotifyHandlers(IAEStateHandler* sender, AEStateOperation operation, IAtom* atom,
                                IAtomContainer* container, DWORD reserved)
{
    EXPECT_EQ(0u, reserved);
    const std::string strOperation = NameOf(operation);
    const bool bAsks = strOperation.starts_with("Pre") || strOperation.ends_with("ing");
    ledger.push_back(Words(sender ? handlerNames[sender] : "nobody", bAsks ? " asks " : " tells ", strOperation, "(",
                           ::NameOf(atom), " in ", ::NameOf(container), ")"));
    if (const auto hook = onNotify) // a copy: it may take itself away
        hook(operation, atom);

    BOOL bAgreed = !m_vetoes.contains(strOperation) && !m_vetoes.contains(strOperation + ::NameOf(atom));
    for (const auto& [cookie, pHandler] : std::map(m_handlers))
        bAgreed &= (pHandler->*operation)(atom, container) != FALSE;
    return bAgreed;
}

void FakeEditor::AddPane(DWORD kind, HWND, LPCSTR caption, HICON icon)
{
    const bool bHasIcon = GetIconSize(icon) == CSize(16, 16);
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
    BOOL bAgreed = TRUE;
    for (const views::HeldPair& pair : pairs) {
        bAgreed &= callback(pair.pAtom.Get(), pair.pContainer.Get(), context);
        if (!bAgreed && !goesOnAfterRefusal)
            break;
    }
    return bAgreed;
}

CMenu* FakeEditor::CreateContextMenu()
{
    if (menu.empty())
        return nullptr;
    auto pMenu = std::make_unique<CMenu>();
    pMenu->CreatePopupMenu();
    pMenu->AppendMenu(MF_STRING, 7, menu.c_str());
    return pMenu.release();
}

DROPEFFECT FakeEditor::DoDragDrop(DWORD allowedEffects, DWORD reserved)
{
    EXPECT_EQ(0u, reserved);
    DWORD nPairs = 0;
    pSelected->OnGetActivePairs(nullptr, &nPairs);
    std::vector<OBJPAIR> selected(nPairs);
    pSelected->OnGetActivePairs(selected.data(), &nPairs);
    pairs.clear();
    std::string strNames;
    for (const OBJPAIR& pair : selected) {
        pairs.push_back({CStubRef<IAtom>::Adopt(pair.pAtom), CStubRef<IAtomContainer>::Adopt(pair.pContainer)});
        strNames += " " + ::NameOf(pair.pAtom);
    }
    const auto pArchive = CStubRef<IArchive>::Adopt(ConstructMemoryArchive());
    WriteActiveObjects(pArchive.Get());

    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = HGLOBALFromArchive(pArchive.Get());
    medium.pUnkForRelease = new CTransferFileOwner(medium.hGlobal);
    COleDataSource source;
    source.CacheData(format, &medium);
    ledger.push_back("drags" + strNames);
    const DROPEFFECT effect = source.DoDragDrop(allowedEffects);
    ledger.push_back("dragged: " + std::to_string(effect));
    return effect;
}

BOOL FakeEditor::WriteActiveObjects(IArchive* archive)
{
    std::string strNames;
    for (const views::HeldPair& pair : pairs)
        strNames += ::NameOf(pair.pAtom.Get()) + "\n";
    ledger.push_back("writes " + std::to_string(pairs.size()));
    SetBytes(archive, strNames);
    return !pairs.empty();
}

BOOL FakeEditor::ReadArchive(ARCHIVEATOMPROC callback, IArchive* archive, void* context)
{
    ledger.push_back("reads");
    std::istringstream names(readsOn ? dynamic_cast<FakeArchive&>(*archive).ReadOn() : BytesOf(archive));
    for (std::string strName; std::getline(names, strName);) {
        auto pAtom = AtomRef::Adopt(new FakeAtom(strName));
        FakeAtom* const pObject = context ? pAtom.Get() : pAtom.Detach(); // the callback's without a context
        pObject->nameFails = strName == "nameless";
        if (!callback(pObject, context))
            return FALSE;
    }
    return TRUE;
}

void FakeEditor::GetActiveAtom(void** out, DWORD interfaceId)
{
    *out = nullptr;
    if (active)
        static_cast<CStubBaseInterface*>(active.Get())->GetInterface(interfaceId, out);
}

std::string FakeEditor::NameOf(AEStateOperation operation)
{
    static const std::pair<AEStateOperation, const char*> s_names[] = {
        {&IAEStateHandler::PreRenameAtom, "PreRenameAtom"},
        {&IAEStateHandler::PreSaveAtom, "PreSaveAtom"},
        {&IAEStateHandler::OnCreateAtom, "OnCreateAtom"},
        {&IAEStateHandler::OnDeleteAtom, "OnDeleteAtom"},
        {&IAEStateHandler::OnChangeAtom, "OnChangeAtom"},
        {&IAEStateHandler::OnAtomSelected, "OnAtomSelected"},
        {&IAEStateHandler::OnAtomDeselected, "OnAtomDeselected"},
        {&IAEStateHandler::OnAtomSelecting, "OnAtomSelecting"},
        {&IAEStateHandler::OnAtomDeselecting, "OnAtomDeselecting"},
        {&IAEStateHandler::OnAtomEntered, "OnAtomEntered"},
        {&IAEStateHandler::OnAtomRename, "OnAtomRename"},
    };
    return std::ranges::find(s_names, operation, &std::pair<AEStateOperation, const char*>::first)->second;
}
