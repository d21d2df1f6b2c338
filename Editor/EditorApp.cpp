#include "Editor/EditorApp.h"

#include "Editor/frame/MainFrame.h"
#include "Editor/player/PhaseFrames.h"
#include "Editor/resources/EditorResources.h"
#include "Editor/services/NameRefusals.h"
#include "HostKit/Services.h"
#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/menu/MessageBox.h"
#include "Toolkit/run/Run.h"

#include <filesystem>

namespace editor
{

// In the order in which they need each other: what is last goes first.
struct EditorApp::Parts
{
    Parts(const PictureReader& pictureReader, Options appOptions)
        : reader(pictureReader),
          options(std::move(appOptions)),
          pPictures(std::make_shared<PictureStore>(reader, PictureStore::Limits(),
                                                   [this](IAtom* pAtom) { TellOfPicture(pAtom); })),
          services(atomEditor)
    {
        AddEditorResources(resources);
        resources.Join();
        AfxSetAppName("Views");
        if (options.isFollowing)
            pWatch = std::make_unique<FolderWatch>([this](const auto& news) {
                if (pFrame && pFrame->GetSafeHwnd())
                    pFrame->GetFollower().OnDiskNews(news);
            });
    }
    ~Parts()
    {
        pFrame.reset();
        atomEditor.ForgetAtoms();
        pPictures->Stop();
    }

    // The window, which is not shown yet, comes when this takes long.
    CStubRef<CLibrary> Read(const std::string& path, std::string& error)
    {
        const LongWork::Command command(atomEditor.GetWork(), "Reading", Progress::Unit::Found);
        CStubRef<CLibrary> pLibrary =
            CLibrary::Open(path, reader.Extensions(), pPictures, atomEditor.GetWork(), error, pWatch.get());
        if (!pLibrary)
            return pLibrary;
        pLibrary->SetHistory(&atomEditor.GetHistory());
        atomEditor.GetHistory().SetMarks(options.markFolder, pLibrary->Path());
        return pLibrary;
    }

    void TellOfPicture(IAtom* pAtom)
    {
        if (const auto* const pWaiter = dynamic_cast<CFrameWaiter*>(pAtom))
            return pWaiter->Arrived();
        atomEditor.Tell(&IAEStateHandler::OnChangeAtom, pAtom);
    }

    // What another window has written meanwhile stays, as far as it is no matter of this one.
    void Remember(const CMainFrame& frame)
    {
        if (options.settingsPath.empty() || !frame.Shown())
            return;
        frame.Remember(settings);
        WriteSettings(options.settingsPath, settings);
    }

    CMainFrame::Outside FrameOutside(std::function<std::string(const std::string&)> openFolder)
    {
        return {.places = {.openFolder = std::move(openFolder),
                           .openWindow = options.openWindow,
                           .askRecent = [this] { return settings.recent; }},
                .ending = [this](const CMainFrame& frame) { Remember(frame); },
                .closed = options.onClosed};
    }

    // Never larger than the screen, and never outside.
    CRect WindowPlace() const
    {
        constexpr int kFrame = 8, kTitle = 32; // about what the desktop puts around a window
        const bool bRemembered = !settings.window.IsRectEmpty() && !options.isSizeNamed;
        CRect place = bRemembered ? settings.window : CRect(CPoint(), options.size);
        CRect area = toolkit::CurrentDesktop().GetWorkArea(place.TopLeft());
        if (area.IsRectEmpty() || options.isSizeNamed)
            return place;
        area.DeflateRect(kFrame, kFrame);
        area.top += kTitle - kFrame;
        const CSize size(std::min(place.Width(), area.Width()), std::min(place.Height(), area.Height()));
        if (!bRemembered)
            return {CPoint(), size};
        return {CPoint(std::clamp<int>(place.left, area.left, area.right - size.cx),
                       std::clamp<int>(place.top, area.top, area.bottom - size.cy)),
                size};
    }

    const PictureReader& reader;
    const Options options;
    Settings settings = ReadSettings(options.settingsPath);
    std::unique_ptr<FolderWatch> pWatch; // or empty
    CResourceModule resources;
    CAtomEditor atomEditor;
    std::shared_ptr<PictureStore> pPictures;
    hostkit::Services services;
    NameRefusals refusals;
    std::unique_ptr<CMainFrame> pFrame;
};

EditorApp::EditorApp(const PictureReader& reader, Options options)
    : m_parts(std::make_unique<Parts>(reader, std::move(options)))
{}

EditorApp::~EditorApp() = default;

std::string EditorApp::OpenFolder(const std::string& path)
{
    std::unique_ptr<CMainFrame>& pFrame = m_parts->pFrame;
    const bool bFirst = !GetMainWindow();
    if (bFirst) {
        pFrame = std::make_unique<CMainFrame>(
            m_parts->atomEditor, *m_parts->pPictures,
            m_parts->FrameOutside([this](const std::string& folder) { return OpenFolder(folder); }));
        if (!pFrame->Create(m_parts->WindowPlace()))
            return "the window cannot be made";
        pFrame->Follow(m_parts->settings);
        AfxSetMainWnd(pFrame.get());
    }
    std::string error;
    const CStubRef<CLibrary> pLibrary = m_parts->Read(path, error);
    if (!pLibrary) {
        if (bFirst)
            pFrame.reset();
        return error;
    }
    pFrame->ShowLibrary(pLibrary.Get());
    if (bFirst && !m_parts->settings.recent.empty() && m_parts->settings.recent.front() == pLibrary->Path())
        pFrame->ShowAsBefore(m_parts->settings, m_parts->options.isReturning);
    m_parts->settings.NoteFolder(pLibrary->Path());
    pFrame->ShowWindow(SW_SHOW);
    m_parts->Remember(*pFrame);
    pFrame->GetList().SetFocus();
    return {};
}

std::string EditorApp::OpenPath(const std::string& path)
{
    std::error_code failure;
    if (!std::filesystem::is_regular_file(path, failure))
        return OpenFolder(path);
    const std::filesystem::path file = std::filesystem::absolute(path, failure);
    std::string error = OpenFolder(file.parent_path().string());
    if (error.empty())
        GetFrame()->GetPlaces().ShowTyped(file.string());
    return error;
}

HWND EditorApp::GetMainWindow() const
{
    return m_parts->pFrame ? m_parts->pFrame->GetSafeHwnd() : nullptr;
}

CMainFrame* EditorApp::GetFrame() const
{
    return GetMainWindow() ? m_parts->pFrame.get() : nullptr;
}

void EditorApp::WaitUntilSettled(const std::function<bool()>& isToEnd)
{
    constexpr std::chrono::milliseconds kLook(50);
    toolkit::RunPendingMessages();
    for (; !m_parts->pPictures->IsIdle() && !isToEnd(); toolkit::RunPendingMessages())
        m_parts->pPictures->WaitForResult(kLook);
}

} // namespace editor
