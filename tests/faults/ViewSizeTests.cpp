// SPDX-License-Identifier: MIT
// Views of no size, of next to none, and of another one than their window.
#include "FaultTest.h"

#include <osg/Camera>

#include <utility>

namespace
{
class ViewSizes : public FaultTest
{
protected:
    void SetUp() override
    {
        FaultTest::SetUp();
        good_ = SeenAfterRebuild();
    }
    void ExpectBack()
    {
        View(Width, Height);
        EXPECT_TRUE(SeenAfterRebuild() == good_);
        ExpectAnswers();
        EXPECT_EQ(NewLog(), Lines{});
    }
    static void View(double width, double height)
    {
        Host().Viewer().getCamera()->setViewport(new osg::Viewport(0, 0, width, height));
    }
    /// The size that the frame has.
    static std::pair<int, int> LaidOut()
    {
        UINT width = 0;
        UINT height = 0;
        Frame().GetWindowSize(width, height);
        return {static_cast<int>(width), static_cast<int>(height)};
    }
    /// The size that the viewer's events tell.
    static std::pair<int, int> WindowSize()
    {
        const osgGA::GUIEventAdapter& state = *Host().Viewer().getEventQueue()->getCurrentEventState();
        return {state.getWindowWidth(), state.getWindowHeight()};
    }
    /// A size event of the window, and a user who goes on.
    static void SizeEvent(int width, int height)
    {
        Host().Viewer().getEventQueue()->windowResize(0, 0, width, height);
        Host().Frames(1);
        Frame().OpenPropertyDlg(nullptr, true);
        Frame().OnToolBarFullScene(true);
        Frame().OnToolBarFullScene(false);
        Frame().SetBtnIndex(2);
        Frame().ChangeTitleText(L"title", 0, TitleFont, 16.0f);
        Frame().CreateTooltipWindow(0, 0, L"tooltip");
        Host().MoveMouse(0, 0);
        Host().Wheel(0, 0, 1);
        Host().Frames(1);
        Frame().DestroyTooltipWindow();
        Frame().OpenPropertyDlg(nullptr, false);
        Frame().ClearTitleSet();
        Frame().SetSceneTitleFontStyle(TitleFont);
        Frame().SetBtnIndex(-1);
        Host().MoveMouse(Width / 2, Height / 2);
    }

    std::vector<std::uint8_t> good_;
};
} // namespace

TEST_F(ViewSizes, of_nothing_or_next_to_nothing_are_survived_and_the_next_size_brings_the_frame_back)
{
    // 50, 52 and 92: where a bar's height or place is 0.
    const int sides[] = {0, 1, 50, 52, 92};
    for (const int side : sides)
    {
        for (const auto& [width, height] : {std::pair(side, side), std::pair(Width, side)})
        {
            Fault fault("a view of " + std::to_string(width) + " x " + std::to_string(height));
            View(width, height);
            SizeEvent(width, height);
            // Without a width or a height there is nothing to lay out.
            fault.Bites(width > 0 && height > 0 ? LaidOut() == std::pair(width, height)
                                                : WindowSize() == std::pair(width, height));
            EXPECT_EQ(NewLog(), Lines{});
            ExpectBack();
        }
    }
}

TEST_F(ViewSizes, of_a_real_window_of_nothing_are_survived)
{
    for (const auto& [width, height] : {std::pair(0, 0), std::pair(1, 1), std::pair(0, 300), std::pair(300, 0)})
    {
        Fault fault("a window of " + std::to_string(width) + " x " + std::to_string(height));
        Host().Resize(width, height);
        Host().Frames(2);
        RECT client = {};
        GetClientRect(Host().Window(), &client);
        fault.Bites(client.right == width && client.bottom == height);
        EXPECT_EQ(NewLog(), Lines{});
        Host().Resize(Width, Height);
        Host().MoveMouse(Width / 2, Height / 2);
        ExpectBack();
    }
}

TEST_F(ViewSizes, of_another_size_than_the_window_are_laid_out_by_the_viewport)
{
    for (const auto& [width, height] : {std::pair(300, 200), std::pair(2000, 1500), std::pair(639, 221)})
    {
        Fault fault("a viewport of " + std::to_string(width) + " x " + std::to_string(height) + " in a window of another size");
        View(width + 0.9, height + 0.9);
        SizeEvent(Width, Height);
        fault.Bites(WindowSize() != std::pair(width, height));
        EXPECT_EQ(LaidOut(), std::pair(width, height)) << "truncated";
        EXPECT_EQ(Place("TavTilteCloseButtom"), Text({width - 40, 13, width - 16, 37}));
        EXPECT_EQ(NewLog(), Lines{});
        ExpectBack();
    }
}

TEST_F(ViewSizes, without_a_viewport_are_the_windows)
{
    Fault fault("a camera without a viewport");
    osg::Camera& camera = *Host().Viewer().getCamera();
    camera.setViewport(nullptr);
    Host().Viewer().getEventQueue()->windowResize(0, 0, 500, 210);
    // A frame without a viewport is nothing that OSG draws: only the event is taken.
    Host().Viewer().eventTraversal();
    fault.Bites(LaidOut() == std::pair(500, 210));
    EXPECT_EQ(Place("TavTilteCloseButtom"), Text({500 - 40, 13, 500 - 16, 37}));
    ExpectBack();
}
