// The editor of every made-up host: of tests, of the walk and of the benchmarks. It writes nothing down.
#pragma once

#include "Views/host/host.h"
#include "Views/host/inside/HeldPair.h"
#include "tests/kernel/FakeService.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

struct HostOperation
{
    AEStateOperation operation;
    const char* pszName;
};
// All that the editor tells and asks its handlers, in the order of IAEStateHandler.
inline constexpr HostOperation kHostOperations[] = {
    {&IAEStateHandler::PreRenameAtom, "PreRenameAtom"},         {&IAEStateHandler::PreSaveAtom, "PreSaveAtom"},
    {&IAEStateHandler::OnCreateAtom, "OnCreateAtom"},           {&IAEStateHandler::OnDeleteAtom, "OnDeleteAtom"},
    {&IAEStateHandler::OnChangeAtom, "OnChangeAtom"},           {&IAEStateHandler::OnAtomSelected, "OnAtomSelected"},
    {&IAEStateHandler::OnAtomDeselected, "OnAtomDeselected"},   {&IAEStateHandler::OnAtomSelecting, "OnAtomSelecting"},
    {&IAEStateHandler::OnAtomDeselecting, "OnAtomDeselecting"}, {&IAEStateHandler::OnAtomEntered, "OnAtomEntered"},
    {&IAEStateHandler::OnAtomRename, "OnAtomRename"},
};
std::size_t IndexOf(AEStateOperation operation); // in them

std::string BytesOf(IByteStream* pStream);
void SetBytes(IByteStream* pStream, const std::string& bytes);

// What a test sets and sees of an atom, whichever host's.
struct HostTraits
{
    explicit HostTraits(std::string strName) : name(std::move(strName)) {}

    std::string name;
    std::optional<std::string> displayName; // offers IDispAtom
    bool isModified = false;
    bool isContainer = false;
    bool isPhase = false;    // a container of links
    bool isLink = false;     // offers IImageLink
    bool isLibrary = false;  // offers ICharacterLibrary
    bool isBackward = false; // gives positions with the other sign
    bool hasIcon = false;    // offers IAtomIcon
    int nFrames = 0;         // offers IAtomThumbnail when not 0
    int position = 0;        // in its phase
    DWORD permissions = 0;   // for every member

protected:
    virtual ~HostTraits() = default;
};

// Installed as the editor's service for as long as it lives. An archive is the names of its atoms (HostTraits), each
// with a line end.
class HostEditor : public IAtomEditor
{
public:
    HostEditor() = default;
    HostEditor(const HostEditor&) = delete;
    HostEditor& operator=(const HostEditor&) = delete;
    virtual ~HostEditor() = default;

    bool skipsSender = false;
    CStubRef<IAtom> active;
    std::vector<views::HeldPair> pairs; // active, as EnumActivePairs and WriteActiveObjects take them
    bool goesOnAfterRefusal = false;    // EnumActivePairs
    CLIPFORMAT format = 0;
    IAEStateHandler* pSelected = nullptr; // whose atoms are dragged
    HWND hMain = nullptr;
    std::string menu; // the only item of its context menu, with the command 7; none without a text

    int CountHandlers() const { return static_cast<int>(m_pHandlers->size()); }
    int CountReferences() const { return m_nReferences; }

    void AddRef() override { ++m_nReferences; }
    void Release() override { --m_nReferences; }
    void GetInterface(DWORD, void** out) override { *out = nullptr; }
    DWORD RegisterHandler(HWND hWnd, IAEStateHandler* handler) override;
    void UnregisterHandler(DWORD cookie) override;
    // Those who were there when it began, whether their windows are gone meanwhile or not.
    BOOL NotifyHandlers(IAEStateHandler* sender, AEStateOperation operation, IAtom* atom, IAtomContainer* container,
                        DWORD reserved) override;
    void AddPane(DWORD, HWND, LPCSTR, HICON) override {}
    void RemovePane(DWORD, HWND) override {}
    CMenu* CreateContextMenu() override;
    HWND GetMainWindow() override { return hMain; }
    BOOL EnumActivePairs(ACTIVEPAIRPROC callback, void* context) override;
    // Drags what pSelected has active then, as a path handle; nothing when there is no handle to be had.
    DROPEFFECT DoDragDrop(DWORD allowedEffects, DWORD reserved) override;
    BOOL ReadArchive(ARCHIVEATOMPROC callback, IArchive* archive, void* context) override;
    BOOL WriteActiveObjects(IArchive* archive) override;
    CLIPFORMAT GetClipboardFormat() override { return format; }
    void GetActiveAtom(void** out, DWORD interfaceId) override;

protected:
    struct Handler
    {
        DWORD cookie;
        IAEStateHandler* pHandler;
    };
    const std::vector<Handler>& Handlers() const { return *m_pHandlers; }

    virtual IAtom* MakeAtom(const std::string&) { return nullptr; } // with one reference, for what is read
    virtual void OnDrag() {}                                        // when a drag is about to begin
    virtual void OnCalled() {} // when a handler has registered, and before a menu, a drag or what is read
    BOOL ReadNames(const std::string& bytes, ARCHIVEATOMPROC callback, void* context);

    FakeService m_service{"GetAtomEditorSv", std::bind_front(&HostEditor::GiveEditor, this)};

private:
    BOOL GiveEditor(void* pBuffer, DWORD dwSize, DWORD dwExtra);

    std::shared_ptr<const std::vector<Handler>> m_pHandlers = std::make_shared<const std::vector<Handler>>();
    DWORD m_nLastCookie = 100;
    int m_nReferences = 0;
};
