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
constexpr int kIconSize = 48;

// A disc of its own colour for each icon, drawn once.
HBITMAP IconBitmap(unsigned number)
{
    static std::vector<HBITMAP> s_icons(kIcons);
    HBITMAP& icon = s_icons[number % kIcons];
    if (icon)
        return icon;

    toolkit::Surface picture({kIconSize, kIconSize});
    for (int y = 0; y < kIconSize; ++y) {
        for (int x = 0; x < kIconSize; ++x) {
            const int dx = 2 * x - kIconSize, dy = 2 * y - kIconSize;
            if (dx * dx + dy * dy < kIconSize * kIconSize)
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
    const HBITMAP icon = IconBitmap(m_number);
    if (nReplace < 0)
        return ImageList_Add(hImageList, icon, nullptr);
    return ImageList_Replace(hImageList, nReplace, icon, nullptr) ? nReplace : -1;
}

Container::Container(unsigned nMembers)
{
    std::vector<unsigned> numbers(nMembers);
    std::iota(numbers.begin(), numbers.end(), 0u);
    std::shuffle(numbers.begin(), numbers.end(), std::mt19937(20));
    m_members.reserve(nMembers);
    for (const unsigned number : numbers)
        m_members.push_back(std::make_unique<Atom>(*this, static_cast<unsigned>(m_members.size()), number));
}

void Container::Append()
{
    const auto number = static_cast<unsigned>(m_members.size());
    m_members.push_back(std::make_unique<Atom>(*this, number, number));
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

BOOL Container::GetContainer(void** ppOut, DWORD)
{
    *ppOut = nullptr;
    return FALSE;
}

void Container::GetAtoms(UINT nFirst, UINT nCount, void** ppOut, DWORD dwInterfaceId)
{
    for (UINT i = 0; i < nCount; ++i) {
        ppOut[i] = nullptr;
        if (nFirst + i < m_members.size())
            m_members[nFirst + i]->GetInterface(dwInterfaceId, &ppOut[i]);
    }
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
