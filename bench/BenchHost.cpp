#include "bench/BenchHost.h"

#include "Kernel/Kernel.h"
#include "Toolkit/graphics/ImageList.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <map>
#include <numeric>
#include <random>

namespace bench
{
namespace
{

constexpr int kIcons = 64;

// A disc of its own colour for each icon, drawn once for each size.
HBITMAP IconBitmap(unsigned number, int size)
{
    static std::map<std::pair<unsigned, int>, HBITMAP> s_icons;
    HBITMAP& icon = s_icons[{number % kIcons, size}];
    if (icon)
        return icon;

    toolkit::Surface picture({size, size});
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const int dx = 2 * x - size, dy = 2 * y - size;
            if (dx * dx + dy * dy < size * size)
                picture.Row(y)[x] = 0xFF000000u | (number * 0x9E3779B1u & 0x7F7F7Fu) | 0x303030u;
        }
    }
    return icon = CreateBitmapFromSurface(std::move(picture));
}

template <class Interface>
void Give(Interface* p, void** out)
{
    static_cast<CStubBaseInterface*>(p)->AddRef();
    *out = p;
}

BOOL GiveName(std::string_view name, char* pBuffer, DWORD* pLength)
{
    if (pBuffer)
        pBuffer[name.copy(pBuffer, name.size())] = '\0';
    *pLength = static_cast<DWORD>(name.size() + 1);
    return TRUE;
}

template <class Members>
void GiveMembers(const Members& members, UINT nFirst, UINT nCount, void** ppOut, DWORD dwInterfaceId)
{
    for (UINT i = 0; i < nCount; ++i) {
        ppOut[i] = nullptr;
        if (nFirst + i < members.size())
            members[nFirst + i]->GetInterface(dwInterfaceId, &ppOut[i]);
    }
}

} // namespace

Atom::Atom(Container& container, unsigned number, unsigned nameNumber) : m_container(container), m_number(number)
{
    std::snprintf(m_name, sizeof m_name, "%s %06u", nameNumber % 3 ? "iTEm" : "Item", nameNumber % 1000000);
}

void Atom::GetInterface(DWORD id, void** out)
{
    *out = nullptr;
    if (id == IID_IAtom)
        Give(static_cast<IAtom*>(this), out);
    else if (id == IID_IAtomIcon)
        Give(static_cast<IAtomIcon*>(this), out);
}

BOOL Atom::GetName(char* pBuffer, DWORD* pLength)
{
    if (pBuffer)
        std::memcpy(pBuffer, m_name, kNameSize);
    *pLength = kNameSize;
    return TRUE;
}

BOOL Atom::GetContainer(void** ppOut, DWORD dwInterfaceId)
{
    m_container.GetInterface(dwInterfaceId, ppOut);
    return *ppOut != nullptr;
}

int Atom::AddToImageList(HIMAGELIST hImageList, int nReplace)
{
    int cx = 0, cy = 0;
    if (!ImageList_GetIconSize(hImageList, &cx, &cy))
        return -1;
    const HBITMAP icon = IconBitmap(m_number, cx);
    if (nReplace < 0)
        return ImageList_Add(hImageList, icon, nullptr);
    return ImageList_Replace(hImageList, nReplace, icon, nullptr) ? nReplace : -1;
}

Container::Container(unsigned nMembers, Library* pLibrary, unsigned number) : m_pLibrary(pLibrary), m_number(number)
{
    std::vector<unsigned> numbers(nMembers);
    std::iota(numbers.begin(), numbers.end(), 0u);
    std::shuffle(numbers.begin(), numbers.end(), std::mt19937(20));
    m_members.reserve(nMembers);
    for (const unsigned nameNumber : numbers)
        Append(nameNumber);
}

void Container::Append()
{
    Append(static_cast<unsigned>(m_members.size()));
}

void Container::Append(unsigned nameNumber)
{
    m_members.push_back(std::make_unique<Atom>(*this, static_cast<unsigned>(m_members.size()), nameNumber));
}

void Container::GetInterface(DWORD id, void** out)
{
    *out = nullptr;
    if (id == IID_IAtom)
        Give(static_cast<IAtom*>(this), out);
    else if (id == IID_IAtomContainer)
        Give(static_cast<IAtomContainer*>(this), out);
    else if (id == IID_ICharacterLibrary)
        Give(static_cast<ICharacterLibrary*>(this), out);
}

BOOL Container::GetName(char* pBuffer, DWORD* pLength)
{
    return GiveName("Container " + std::to_string(m_number), pBuffer, pLength);
}

BOOL Container::GetContainer(void** ppOut, DWORD dwInterfaceId)
{
    *ppOut = nullptr;
    if (m_pLibrary)
        m_pLibrary->GetInterface(dwInterfaceId, ppOut);
    return *ppOut != nullptr;
}

void Container::GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD dwInterfaceId)
{
    GiveMembers(m_members, nFirst, nCount, ppOut, dwInterfaceId);
}

Library::Library(unsigned nContainers, unsigned nAtoms)
{
    for (unsigned i = 0; i < nContainers; ++i)
        m_members.push_back(std::make_unique<Container>(nAtoms / nContainers, this, i));
}

void Library::GetInterface(DWORD id, void** out)
{
    *out = nullptr;
    if (id == IID_IAtom)
        Give(static_cast<IAtom*>(this), out);
    else if (id == IID_IAtomContainer)
        Give(static_cast<IAtomContainer*>(this), out);
    else if (id == IID_ICharacterLibrary)
        Give(static_cast<ICharacterLibrary*>(this), out);
}

BOOL Library::GetName(char* pBuffer, DWORD* pLength)
{
    return GiveName("Library", pBuffer, pLength);
}

BOOL Library::GetContainer(void** ppOut, DWORD)
{
    *ppOut = nullptr;
    return FALSE;
}

void Library::GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD dwInterfaceId)
{
    GiveMembers(m_members, nFirst, nCount, ppOut, dwInterfaceId);
}

namespace
{

class Editor final : public IAtomEditor
{
public:
    void AddRef() override {}
    void Release() override {}
    void GetInterface(DWORD, void** out) override { *out = nullptr; }
    DWORD RegisterHandler(HWND, IAEStateHandler* handler) override
    {
        m_handlers[++m_lastCookie] = handler;
        return m_lastCookie;
    }
    void UnregisterHandler(DWORD cookie) override { m_handlers.erase(cookie); }
    BOOL NotifyHandlers(IAEStateHandler* sender, AEStateOperation operation, IAtom* atom, IAtomContainer* container,
                        DWORD) override
    {
        BOOL accepted = TRUE;
        for (const auto& [cookie, handler] : m_handlers) {
            if (handler != sender)
                accepted &= static_cast<BOOL>((handler->*operation)(atom, container) != FALSE);
        }
        return accepted;
    }
    void AddPane(DWORD, HWND, LPCSTR, HICON) override {}
    void RemovePane(DWORD, HWND) override {}
    CMenu* CreateContextMenu() override { return nullptr; }
    HWND GetMainWindow() override { return nullptr; }
    BOOL EnumActivePairs(ACTIVEPAIRPROC, void*) override { return FALSE; }
    DROPEFFECT DoDragDrop(DWORD, DWORD) override { return 0; }
    BOOL ReadArchive(ARCHIVEATOMPROC, IArchive*, void*) override { return FALSE; }
    BOOL WriteActiveObjects(IArchive*) override { return FALSE; }
    CLIPFORMAT GetClipboardFormat() override { return 0; }
    void GetActiveAtom(void** out, DWORD) override { *out = nullptr; }

private:
    std::map<DWORD, IAEStateHandler*> m_handlers;
    DWORD m_lastCookie = 0;
};

} // namespace

struct EditorService::Provider : SERVICEPROVIDER
{
    static BOOL Serve(SERVICEPROVIDER* pProvider, void* pBuffer, DWORD, DWORD)
    {
        IAtomEditor* pEditor = &static_cast<Provider*>(pProvider)->editor;
        std::memcpy(pBuffer, &pEditor, sizeof pEditor);
        return TRUE;
    }
    static constexpr SERVICETABLE kTable{&Serve};

    Provider() : SERVICEPROVIDER{&kTable} {}
    Editor editor;
};

EditorService::EditorService() : m_provider(std::make_unique<Provider>())
{
    SRVN_InstallProvider("GetAtomEditorSv", m_provider.get());
}

EditorService::~EditorService()
{
    SRVN_InstallProvider("GetAtomEditorSv", nullptr);
}

} // namespace bench
