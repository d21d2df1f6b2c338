// What is remembered from one time to the next.
#include "Editor/FirstFolder.h"
#include "tests/editor/EditorFixture.h"

#include <filesystem>

namespace
{

class SettingsTest : public EditorTest
{
protected:
    SettingsTest()
    {
        m_options.settingsPath = config.At("views/settings");
        StartAnew();
    }
    CRect Place() { return PlaceOnScreen(Frame().m_hWnd); }

    TempFolder config;
};

TEST_F(SettingsTest, TheNextWindowIsAsTheLastOneWasAndNeverLargerThanTheScreen)
{
    folder.Make("Ada/ a.bmp Bo/");
    Open();
    EXPECT_EQ(CRect(0, 0, 640, 480), Place());
    toolkit::InputResize(App().GetMainWindow(), {800, 500});
    toolkit::InputMoved(App().GetMainWindow(), {300, 200});
    desktop.Run();
    Control('2');
    Control(VK_OEM_PLUS);
    Frame().GetViews().TogglePixels();
    Frame().GetViews().SetFoldersFirst(true);
    const HWND hBar = Frame().GetSplitter().m_hWnd;
    desktop.Press(hBar, {3, 200});
    desktop.MoveTo(App().GetMainWindow(), {333, 340});
    desktop.Release(App().GetMainWindow(), {333, 340});

    StartAnew();
    Open();
    EXPECT_EQ(CRect(300, 200, 1100, 700), Place());
    EXPECT_EQ(editor::ListKind::Thumbnails, Frame().GetContent().GetKind());
    EXPECT_EQ("[Ada Bo a.bmp]", Rows());
    EXPECT_EQ(160, Frame().GetContent().GetThumbnailExtent());
    EXPECT_TRUE(Frame().GetContent().ArePixelsShown());
    EXPECT_EQ(300 + 330, PlaceOnScreen(Frame().GetSplitter().m_hWnd).left);

    desktop.SetWorkArea({0, 0, 800, 600});
    StartAnew();
    Open();
    EXPECT_TRUE(Place().left >= 0 && Place().right <= 800 && Place().top > 0 && Place().bottom <= 600);
    CloseApp();
    config.Write("views/settings", "window=1 2 3\nthumbnails=x\nfolder=relative\n=\n\xFF");
    StartAnew();
    Open();
    EXPECT_EQ(CRect(0, 0, 640, 480), Place()) << "what cannot be read counts as not there";
}

TEST_F(SettingsTest, TheTreeIsExpandedAsItWasAndTheLastFolderIsShown)
{
    const auto expanded = [this] {
        Ledger paths;
        for (const std::string& path : Tree().ExpandedPaths(10))
            paths.push_back(path.substr(folder.Path().size()));
        return paths;
    };
    folder.Make("Ada/Poses/Old/ Bo/Props/ Kit/");
    Open();
    Tree().Expand(FindItem("Bo"), TVE_EXPAND);
    DoubleClick("Ada");
    DoubleClick("Poses");
    EXPECT_EQ(Ledger({"", "/Ada", "/Bo"}), expanded());
    std::filesystem::remove_all(folder.At("Bo"));

    m_options.isReturning = true;
    StartAnew();
    Open();
    EXPECT_EQ(Ledger({"", "/Ada"}), expanded());
    EXPECT_EQ("/Ada/Poses/ | [Old] | 1 object", Screen());
    m_options.isReturning = false;
    StartAnew();
    Open();
    EXPECT_EQ("/ | [Ada Kit] | 2 objects", Screen()) << "the folder that was asked for";
}

TEST_F(SettingsTest, TheLastFoldersAreAtHandAndAtFirstACopyOfTheSamples)
{
    const TempFolder other;
    folder.Make("Ada/");
    Open();
    Open(other.Path());
    ChooseFromMenu(0, folder.Path());
    EXPECT_EQ("/ | [Ada] | 1 object", Screen());
    CloseApp();
    const editor::Settings settings = editor::ReadSettings(m_options.settingsPath);
    EXPECT_EQ(Ledger({folder.Path(), other.Path()}), settings.recent);
    EXPECT_EQ(folder.Path(), editor::FirstFolder(settings));
    other.Make("kept/");
    editor::Settings gone;
    gone.recent = {folder.At("none"), other.Path()};
    EXPECT_EQ(other.Path(), editor::FirstFolder(gone));

    StartAnew();
    const std::string samples = editor::FirstFolder({});
    EXPECT_TRUE(samples.ends_with("/views/samples"));
    EXPECT_EQ("", Open(samples));
    EXPECT_GT(Frame().GetList().GetItemCount(), 3);
    CloseApp();
}

} // namespace
