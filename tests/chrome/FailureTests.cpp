// SPDX-License-Identifier: MIT
// A skin with missing or spoilt pictures, and a frame that cannot be built.
#include "support/HostedFrame.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>

#include <memory>

namespace
{
class ChromeFailures : public HostedFrame
{
protected:
    static CString Path(const char* file)
    {
        CString path = SkinDir() + CString(file);
        path.Replace(L'/', L'\\');
        return path;
    }
    /// The lines of the log that name a file.
    int Naming(const Lines& lines, const std::string& file)
    {
        return static_cast<int>(std::count_if(lines.begin(), lines.end(),
                                              [&](const std::string& line) { return line.find(file) != std::string::npos; }));
    }
    static bool Shown() { return !(Host().Shoot().At(400, 20) == Background()); }
};
const char* const pictures[] = {
    "new_skin/topBG.png",
    "new_skin/close.png",
    "new_skin/closeH.png",
    "new_skin/closeP.png",
    "new_skin/minimize.png",
    "new_skin/full.png",
    "new_skin/fullescP.png",
    "new_skin/logo.png",
    "new_skin/leftborder.png",
    "new_skin/rightborder.png",
    "new_skin/bottomborder.png",
    "new_skin/bottomBG.png",
    "roamN.png",
    "new_skin/leftBG.png",
};
} // namespace

TEST_F(ChromeFailures, missing_picture_at_a_resize_is_one_line_and_the_next_resize_mends_it)
{
    for (const char* file : pictures)
    {
        SCOPED_TRACE(file);
        {
            const FileTaken taken(Path(file));
            Rebuild();
            const Lines log = TakeLog();
            EXPECT_EQ(Naming(log, file), 1) << testing::PrintToString(log);
            EXPECT_EQ(log.size(), 1u) << testing::PrintToString(log);
            EXPECT_EQ(Host().Find("TavTitleBackground"), nullptr) << "nothing of a frame that failed stays";
            // The application runs on.
            Host().Click(772, 25);
            Host().MoveMouse(300, 300);
            Host().Frames(1);
            EXPECT_TRUE(Host().TakeMessages().empty());
        }
        Rebuild();
        EXPECT_NE(Host().Find("TavTitleBackground"), nullptr);
        EXPECT_TRUE(Shown());
        EXPECT_EQ(TakeLog(), Lines{});
    }
}

TEST_F(ChromeFailures, every_resize_that_fails_leaves_its_own_line)
{
    {
        const FileTaken taken(Path("new_skin/close.png"));
        const FileTaken other(Path("new_skin/logo.png"));
        for (int i = 0; i < 3; ++i)
        {
            Rebuild();
            EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: picture not loaded: new_skin/close.png"}) << i;
        }
    }
    const FileTaken imageset(Path("TavLook.imageset"));
    for (int i = 0; i < 2; ++i)
    {
        Rebuild();
        const Lines log = TakeLog();
        ASSERT_EQ(log.size(), 1u) << i;
        EXPECT_EQ(Naming(log, "TavLook.imageset"), 1) << log[0];
    }
}

TEST_F(ChromeFailures, of_an_imageset_and_its_picture_the_one_to_mend_is_named)
{
    {
        const FileReplaced picture(Path("TavLook.png"), {'n', 'o', 'n', 'e'});
        Rebuild();
        const Lines log = TakeLog();
        ASSERT_EQ(log.size(), 1u);
        EXPECT_EQ(Naming(log, "TavLook.png"), 1) << log[0];
        EXPECT_EQ(Naming(log, "TavLook.imageset"), 0) << log[0];
    }
    {
        // The picture is read before the end, which is not there.
        const std::vector<std::uint8_t> good = ReadBytes(Path("TavLook.imageset"));
        const std::string text(good.begin(), good.end());
        const std::size_t end = text.rfind("</");
        ASSERT_NE(end, std::string::npos);
        const FileReplaced imageset(Path("TavLook.imageset"),
                                    std::vector<std::uint8_t>(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(end)));
        Rebuild();
        const Lines log = TakeLog();
        ASSERT_EQ(log.size(), 1u);
        EXPECT_EQ(Naming(log, "TavLook.imageset"), 1) << log[0];
        EXPECT_EQ(Naming(log, "TavLook.png"), 0) << log[0];
    }
    Rebuild();
    EXPECT_TRUE(Shown());
}

TEST_F(ChromeFailures, corrupt_picture_at_a_resize_is_one_line_and_the_next_resize_mends_it)
{
    for (const char* file : {"new_skin/topBG.png", "new_skin/close.png", "new_skin/bottomborder.png"})
    {
        SCOPED_TRACE(file);
        const std::vector<std::uint8_t> good = ReadBytes(Path(file));
        std::vector<std::uint8_t> cut(good.begin(), good.begin() + 20);
        using Bytes = std::vector<std::uint8_t>;
        for (const Bytes& bad : {Bytes{'n', 'o', 'n', 'e'}, Bytes{}, cut})
        {
            const FileReplaced replaced(Path(file), bad);
            Rebuild();
            EXPECT_EQ(Naming(TakeLog(), file), 1) << bad.size() << " bytes";
            EXPECT_EQ(Host().Find("TavTitleBackground"), nullptr);
        }
        Rebuild();
        EXPECT_TRUE(Shown());
        EXPECT_EQ(TakeLog(), Lines{});
    }
}

TEST_F(ChromeFailures, create_main_frame_raises_and_releases_what_it_built)
{
    const FileTaken taken(Path("new_skin/bottomborder.png"));
    Frame().ClearAllWindows();
    EXPECT_THROW(Frame().CreateMainFrame(), CEGUI::Exception);
    EXPECT_EQ(Host().Find("rootSheet"), nullptr);
    EXPECT_EQ(Host().Find("TavTitleBackground"), nullptr);
    EXPECT_EQ(Host().Find("TavTilteCloseButtom"), nullptr);
    EXPECT_EQ(CEGUI::System::getSingleton().getDefaultGUIContext().getRootWindow(), nullptr);
    EXPECT_THROW(Frame().CreateMainFrame(), CEGUI::Exception) << "and again, without a name left over in the way";
    EXPECT_FALSE(TakeLog().empty());
    Host().Frames(2);
}

TEST_F(ChromeFailures, create_main_frame_works_at_once_after_it_raised_and_the_file_is_back)
{
    Frame().ClearAllWindows();
    {
        const FileTaken taken(Path("new_skin/logo.png"));
        EXPECT_THROW(Frame().CreateMainFrame(), CEGUI::Exception);
    }
    TakeLog();
    EXPECT_TRUE(Frame().CreateMainFrame());
    EXPECT_TRUE(Shown());
}

TEST_F(ChromeFailures, create_main_frame_raises_already_exists_while_the_frame_stands)
{
    const CEGUI::Window* title = Host().Find("TavTitleBackground");
    EXPECT_THROW(Frame().CreateMainFrame(), CEGUI::AlreadyExistsException);
    EXPECT_EQ(Host().Find("TavTitleBackground"), title) << "the frame that stands is left alone";
    Host().Click(772, 25);
    EXPECT_EQ(Host().TakeCodes(), Codes{15});
    TakeLog();
}

TEST_F(ChromeFailures, create_main_frame_without_the_skins_imageset_is_false)
{
    Frame().ClearAllWindows();
    MakeCurrent();
    CEGUI::System::getSingleton().getRenderer()->destroyTexture("TavLook");
    EXPECT_FALSE(Frame().CreateMainFrame());
    EXPECT_EQ(Host().Find("TavTitleBackground"), nullptr);
    EXPECT_NE(Host().Find("rootSheet"), nullptr) << "what was built before stays";
    EXPECT_EQ(Naming(TakeLog(), "TavLook"), 1);
}

TEST_F(ChromeFailures, create_main_frame_without_a_drawable_is_false)
{
    Host().Close();
    EXPECT_FALSE(Frame().CreateMainFrame());
}

TEST_F(ChromeFailures, missing_skin_imageset_at_a_resize_is_told_and_mended)
{
    {
        const FileTaken taken(Path("TavLook.imageset"));
        Rebuild();
        EXPECT_GE(Naming(TakeLog(), "TavLook.imageset"), 1);
        EXPECT_EQ(Host().Find("TavTitleBackground"), nullptr);
        Host().Click(772, 25);
    }
    Rebuild();
    EXPECT_TRUE(Shown());
    EXPECT_EQ(TakeLog(), Lines{});
}

TEST_F(ChromeFailures, full_scene_state_outlives_a_failed_resize)
{
    Frame().OnToolBarFullScene(true);
    {
        const FileTaken taken(Path("new_skin/close.png"));
        Rebuild();
        TakeLog();
    }
    Rebuild();
    EXPECT_TRUE(Frame().IsFullScene());
    EXPECT_FALSE(Window("TavBottomBorderBackground").isVisible());
}
