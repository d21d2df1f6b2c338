#include "HostKit/atoms/AtomEditor.h"

#include "HostKit/base/ErrorInfo.h"
#include "Toolkit/window/WindowApi.h"

#include <utility>

namespace hostkit
{
namespace
{

// The pairs that a handler gave, with their references.
class ActivePairs
{
public:
    explicit ActivePairs(IAEStateHandler& handler)
    {
        DWORD nCount = 0;
        handler.OnGetActivePairs(nullptr, &nCount);
        m_pairs.resize(nCount);
        if (nCount > 0 && !handler.OnGetActivePairs(m_pairs.data(), &nCount))
            m_pairs.clear();
    }
    ~ActivePairs()
    {
        for (const OBJPAIR& pair : m_pairs) {
            CStubRef<IAtom>::Adopt(pair.pAtom).Release();
            CStubRef<IAtomContainer>::Adopt(pair.pContainer).Release();
        }
    }
    ActivePairs(const ActivePairs&) = delete;
    ActivePairs& operator=(const ActivePairs&) = delete;

    const std::vector<OBJPAIR>& Get() const { return m_pairs; } // some may be empty

private:
    std::vector<OBJPAIR> m_pairs;
};

// Says which atom handlers are being told of as entered, as long as it lives.
class Entering
{
public:
    Entering(IAtom*& pEntering, IAtom* pAtom) : m_pEntering(pEntering), m_pOuter(std::exchange(pEntering, pAtom)) {}
    ~Entering() { m_pEntering = m_pOuter; }
    Entering(const Entering&) = delete;
    Entering& operator=(const Entering&) = delete;

private:
    IAtom*& m_pEntering;
    IAtom* const m_pOuter;
};

} // namespace

CAtomEditor::CAtomEditor(std::string format) : m_format(std::move(format)) {}

CAtomEditor::~CAtomEditor() = default;

void CAtomEditor::GetInterface(DWORD id, void** out)
{
    *out = id == STUB_BASE_INTERFACE_ID ? static_cast<CStubBaseInterface*>(this) : nullptr;
    if (*out)
        AddRef();
    else if (id == IID_IMyErrorInfo && !m_archiveError.empty())
        *out = CErrorInfo::Make(m_archiveError).Detach();
}

void CAtomEditor::AddTop(IAtom* pTop)
{
    m_tops.push_back(CStubRef<IAtom>::Share(pTop));
    NotifyHandlers(nullptr, &IAEStateHandler::OnCreateAtom, pTop, nullptr, 0);
}

void CAtomEditor::RemoveTop(IAtom* pTop)
{
    const auto pHeld = CStubRef<IAtom>::Share(pTop);
    std::erase_if(m_tops, [pTop](const CStubRef<IAtom>& one) { return one.Get() == pTop; });
    NotifyHandlers(nullptr, &IAEStateHandler::OnDeleteAtom, pTop, nullptr, 0);
}

void CAtomEditor::ForgetAtoms()
{
    m_tops.clear();
    m_pActive.Release();
    m_pMoved.reset();
}

BOOL CAtomEditor::Tell(AEStateOperation operation, IAtom* pAtom)
{
    CStubRef<IAtomContainer> pContainer;
    pAtom->GetContainer(pContainer.Receive(), IID_IAtomContainer);
    return NotifyHandlers(nullptr, operation, pAtom, pContainer.Get(), 0);
}

DWORD CAtomEditor::RegisterHandler(HWND hWnd, IAEStateHandler* handler)
{
    const DWORD dwCookie = m_handlers.Register(hWnd, handler);
    for (std::size_t i = 0; i < m_tops.size(); ++i)
        handler->OnCreateAtom(CStubRef<IAtom>::Share(m_tops[i].Get()).Get(), nullptr);
    return dwCookie;
}

void CAtomEditor::UnregisterHandler(DWORD cookie)
{
    m_handlers.Unregister(cookie);
}

BOOL CAtomEditor::NotifyHandlers(IAEStateHandler* sender, AEStateOperation operation, IAtom* atom,
                                 IAtomContainer* container, DWORD)
{
    if (m_nSilent > 0)
        return TRUE;
    // A view may let go of both in the middle.
    const auto pAtom = CStubRef<IAtom>::Share(atom);
    const auto pContainer = CStubRef<IAtomContainer>::Share(container);
    Note(sender, operation, atom, container);
    if (operation == &IAEStateHandler::OnAtomEntered)
        return TellEntered(sender, atom, container);
    IAEStateHandler* const pSource = operation == &IAEStateHandler::OnAtomRename ? FindSelectionSource() : nullptr;
    if (pSource && pSource != sender)
        return pSource->OnAtomRename(atom, container);
    return m_handlers.Call(sender, operation, atom, container);
}

// The tree, when it follows what was entered elsewhere, says that it was entered: everyone has heard of it, or is about
// to.
BOOL CAtomEditor::TellEntered(IAEStateHandler* pSender, IAtom* pAtom, IAtomContainer* pContainer)
{
    if (pAtom && pAtom == m_pEntering)
        return TRUE;
    const Entering entering(m_pEntering, pAtom);
    return m_handlers.Call(pSender, &IAEStateHandler::OnAtomEntered, pAtom, pContainer);
}

void CAtomEditor::AddPane(DWORD kind, HWND hWnd, LPCSTR caption, HICON icon)
{
    if (m_pFrame)
        m_pFrame->AddPane(kind, hWnd, caption, icon);
}

void CAtomEditor::RemovePane(DWORD kind, HWND hWnd)
{
    if (m_pFrame)
        m_pFrame->RemovePane(kind, hWnd);
}

BOOL CAtomEditor::EnumActivePairs(ACTIVEPAIRPROC callback, void* context)
{
    if (m_pMoved && !m_pMoved->bRemoving)
        return EnumMoved(callback, context);
    IAEStateHandler* const pSource = FindSelectionSource();
    if (!pSource)
        return TRUE;
    const ActivePairs pairs(*pSource);
    for (const OBJPAIR& pair : pairs.Get())
        if (pair.pAtom && pair.pContainer && !callback(pair.pAtom, pair.pContainer, context))
            return FALSE;
    return TRUE;
}

void CAtomEditor::GetActiveAtom(void** out, DWORD interfaceId)
{
    *out = nullptr;
    if (m_pActive)
        static_cast<CStubBaseInterface*>(m_pActive.Get())->GetInterface(interfaceId, out);
}

CLIPFORMAT CAtomEditor::GetClipboardFormat()
{
    return RegisterClipboardFormat(m_format.c_str());
}

BOOL CAtomEditor::NoteArchiveError(std::string line)
{
    m_archiveError = std::move(line);
    return m_archiveError.empty();
}

void CAtomEditor::Note(IAEStateHandler* pSender, AEStateOperation operation, IAtom* pAtom, IAtomContainer* pContainer)
{
    const bool bSelected = operation == &IAEStateHandler::OnAtomSelected;
    const bool bLost = operation == &IAEStateHandler::OnAtomDeselected || operation == &IAEStateHandler::OnDeleteAtom;
    if (pSender && bSelected)
        m_pLastSender = pSender;
    if (operation == &IAEStateHandler::OnAtomEntered || (bSelected && pAtom))
        m_pActive = CStubRef<IAtom>::Share(pAtom);
    else if ((bSelected || bLost) && pContainer && (!pAtom || pAtom == m_pActive.Get()))
        m_pActive = CStubRef<IAtom>::Share(pContainer);
}

IAEStateHandler* CAtomEditor::FindSelectionSource()
{
    if (IAEStateHandler* const pFocused = m_handlers.FindByWindow(GetFocus(), GetMainWindow()))
        return pFocused;
    return m_handlers.Contains(m_pLastSender) ? m_pLastSender : nullptr;
}

} // namespace hostkit
