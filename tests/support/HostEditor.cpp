#include "tests/support/HostEditor.h"

#include "Toolkit/exchange/DataSource.h"
#include "Toolkit/menu/Menu.h"
#include "Views/clipboard/clipboard.h"

#include <algorithm>
#include <cstring>
#include <sstream>

std::size_t IndexOf(AEStateOperation operation)
{
    const auto found = std::ranges::find(kHostOperations, operation, &HostOperation::operation);
    return static_cast<std::size_t>(found - std::begin(kHostOperations));
}

std::string BytesOf(IByteStream* pStream)
{
    return {static_cast<const char*>(pStream->GetData()), pStream->GetLength()};
}

void SetBytes(IByteStream* pStream, const std::string& bytes)
{
    pStream->Seek(static_cast<DWORD>(bytes.size()), 0);
    pStream->SetEnd();
    std::memcpy(pStream->GetData(), bytes.data(), bytes.size());
}

BOOL HostEditor::GiveEditor(void* pBuffer, DWORD, DWORD)
{
    AddRef();
    IAtomEditor* const pEditor = this;
    std::memcpy(pBuffer, &pEditor, sizeof pEditor);
    return TRUE;
}

DWORD HostEditor::RegisterHandler(HWND, IAEStateHandler* handler)
{
    auto handlers = *m_pHandlers;
    handlers.push_back({++m_nLastCookie, handler});
    m_pHandlers = std::make_shared<const std::vector<Handler>>(std::move(handlers));
    const DWORD cookie = m_nLastCookie;
    OnCalled();
    return cookie;
}

void HostEditor::UnregisterHandler(DWORD cookie)
{
    auto handlers = *m_pHandlers;
    std::erase_if(handlers, [=](const Handler& handler) { return handler.cookie == cookie; });
    m_pHandlers = std::make_shared<const std::vector<Handler>>(std::move(handlers));
}

BOOL HostEditor::NotifyHandlers(IAEStateHandler* sender, AEStateOperation operation, IAtom* atom,
                                IAtomContainer* container, DWORD)
{
    BOOL bAgreed = TRUE;
    const auto pHandlers = m_pHandlers;
    for (const auto& [cookie, pHandler] : *pHandlers) {
        if (pHandler != sender || !skipsSender)
            bAgreed &= (pHandler->*operation)(atom, container) != FALSE;
    }
    return bAgreed;
}

CMenu* HostEditor::CreateContextMenu()
{
    OnCalled();
    if (menu.empty())
        return nullptr;
    auto pMenu = std::make_unique<CMenu>();
    pMenu->CreatePopupMenu();
    pMenu->AppendMenu(MF_STRING, 7, menu.c_str());
    return pMenu.release();
}

BOOL HostEditor::EnumActivePairs(ACTIVEPAIRPROC callback, void* context)
{
    BOOL bAgreed = TRUE;
    for (const views::HeldPair& pair : pairs) {
        bAgreed &= callback(pair.pAtom.Get(), pair.pContainer.Get(), context);
        if (!bAgreed && !goesOnAfterRefusal)
            break;
    }
    return bAgreed;
}

DROPEFFECT HostEditor::DoDragDrop(DWORD allowedEffects, DWORD)
{
    OnCalled();
    DWORD nPairs = 0;
    pSelected->OnGetActivePairs(nullptr, &nPairs);
    std::vector<OBJPAIR> selected(nPairs + 1);
    pSelected->OnGetActivePairs(selected.data(), &nPairs);
    pairs.clear();
    for (const auto& [pAtom, pContainer] : selected)
        if (views::HeldPair held{CStubRef<IAtom>::Adopt(pAtom), CStubRef<IAtomContainer>::Adopt(pContainer)}; held)
            pairs.push_back(std::move(held));
    const auto pArchive = CStubRef<IArchive>::Adopt(ConstructMemoryArchive());
    WriteActiveObjects(pArchive.Get());

    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = HGLOBALFromArchive(pArchive.Get());
    if (!medium.hGlobal)
        return DROPEFFECT_NONE;
    medium.pUnkForRelease = new CTransferFileOwner(medium.hGlobal);
    COleDataSource source;
    source.CacheData(format, &medium);
    OnDrag();
    return source.DoDragDrop(allowedEffects);
}

BOOL HostEditor::ReadArchive(ARCHIVEATOMPROC callback, IArchive* archive, void* context)
{
    OnCalled();
    return ReadNames(BytesOf(archive), callback, context);
}

BOOL HostEditor::ReadNames(const std::string& bytes, ARCHIVEATOMPROC callback, void* context)
{
    std::istringstream names(bytes);
    for (std::string strName; std::getline(names, strName);) {
        auto pAtom = CStubRef<IAtom>::Adopt(MakeAtom(strName));
        IAtom* const pObject = context ? pAtom.Get() : pAtom.Detach(); // the callback's without a context
        if (!callback(pObject, context))
            return FALSE;
    }
    return TRUE;
}

BOOL HostEditor::WriteActiveObjects(IArchive* archive)
{
    std::string strNames;
    for (const views::HeldPair& pair : pairs)
        strNames += dynamic_cast<HostTraits&>(*pair.pAtom.Get()).name + "\n";
    SetBytes(archive, strNames);
    return !pairs.empty();
}

void HostEditor::GetActiveAtom(void** out, DWORD interfaceId)
{
    *out = nullptr;
    if (active)
        static_cast<CStubBaseInterface*>(active.Get())->GetInterface(interfaceId, out);
}
