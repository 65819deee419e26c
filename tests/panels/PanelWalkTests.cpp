// SPDX-License-Identifier: MIT
// Whatever is done in whatever order around the property panel: while it is open and the view is large enough it stands where
// it belongs, once, and otherwise it is not seen.
#include "PanelTest.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <random>

class PanelWalkTest : public PanelTest
{
public:
    static constexpr int MinWidth = 240;
    static constexpr int MinHeight = 200;
    static constexpr int Border = 2;
    static constexpr int TitleBar = 50;

    struct Step
    {
        const char* name;
        void (PanelWalkTest::*take)();
    };

    int Any(int lowest, int highest) { return std::uniform_int_distribution<int>(lowest, highest)(random_); }

    void ResizeSmall() { Host().Resize(Any(60, 260), Any(60, 220)); }
    void Resize() { Host().Resize(Any(MinWidth, 1000), Any(MinHeight, 800)); }
    void ResizeToTheLimit() { Host().Resize(MinWidth, MinHeight); }
    void ToggleFullScene() { Frame().OnToolBarFullScene(!Frame().IsFullScene()); }
    void EndAndStart()
    {
        Restart(GUI_USER_FULL);
        MakeContextCurrent();
        Frame().OpenPropertyDlg(nullptr, true);
    }
    void OpenIt() { Frame().OpenPropertyDlg(nullptr, true); }
    void CloseIt() { Frame().OpenPropertyDlg(nullptr, false); }
    void FewRows() { SetRows(NumberedRows(Any(0, 5))); }
    void ManyRows() { SetRows(NumberedRows(Any(20, 80))); }
    void RowsBeyondATexture() { SetRows(NumberedRows(Any(800, 3000))); }
    void BuildAnew() { Rebuild(); }
    void DestroyBarsAndBuildAnew()
    {
        Frame().DestoryAllToolBar();
        Host().Frames(1);
        Rebuild();
    }
    void Hover() { MoveTo(Host().Width() - Any(140, 250), Any(40, Host().Height() - 1)); }
    void TurnTheWheel() { Host().Wheel(Host().Width() - 100, Host().Height() / 2, Any(0, 1) ? 1 : -1); }
    void PullTheThumb()
    {
        const int x = Host().Width() - (Frame().IsFullScene() ? 15 : 17);
        Host().MoveMouse(x, 90);
        Host().Press(x, 90);
        Host().MoveMouse(x, Any(0, Host().Height()));
        Host().Release(x, 90);
    }

    void ExpectInOrder()
    {
        MakeContextCurrent();
        const bool large = Host().Width() >= MinWidth && Host().Height() >= MinHeight;
        const bool shown = Frame().IsOpenPropertyDlg() && large;
        EXPECT_EQ(Frame().RefreshPropertyDlg(), shown);
        Host().Frames(1);
        EXPECT_LE(CountOf(Tooltip), 1);
        for (const char* window : {PanelFrame, PanelPicture, ListFrame, ListPicture})
        {
            EXPECT_LE(CountOf(window), 1) << window;
            EXPECT_TRUE(!shown || CountOf(window) == 1) << window;
        }
        if (!shown)
        {
            EXPECT_FALSE(large && GuiHost::Find(PanelFrame) && Visible(PanelFrame));
            EXPECT_FALSE(large && GuiHost::Find(ListFrame) && Visible(ListFrame));
            return;
        }
        const bool full = Frame().IsFullScene();
        const int right = Host().Width() - (full ? 0 : Border);
        const int top = full ? 0 : TitleBar;
        const int bottom = Host().Height() - (full ? 0 : Border);
        EXPECT_TRUE(Visible(PanelPicture));
        EXPECT_TRUE(Visible(ListPicture));
        ExpectNear(PanelFrame, {right - 260, top, right, bottom});
        ExpectNear(PanelPicture, {right - 260, top, right, bottom});
        ExpectNear(ListFrame, {right - 260, top + 35, right, bottom - 10});
        const int rows = Frame().PropertyRowCount() * RowHeight;
        EXPECT_NEAR(GuiHost::Find(ListPicture)->getPixelSize().d_height, std::max(rows, bottom - 10 - top - 35), 1);
    }

    std::mt19937 random_;

private:
    static void ExpectNear(const char* window, const RECT& place)
    {
        const RECT seen = GuiHost::RectOf(window);
        EXPECT_TRUE(std::abs(seen.left - place.left) <= 1 && std::abs(seen.top - place.top) <= 1 &&
                    std::abs(seen.right - place.right) <= 1 && std::abs(seen.bottom - place.bottom) <= 1)
            << window << " at " << Text(seen) << ", expected at " << Text(place);
    }
};

TEST_F(PanelWalkTest, any_order_of_resizes_full_scenes_ends_starts_rows_and_input)
{
    const Step steps[] = {
        {"small", &PanelWalkTest::ResizeSmall},
        {"resize", &PanelWalkTest::Resize},
        {"limit", &PanelWalkTest::ResizeToTheLimit},
        {"full scene", &PanelWalkTest::ToggleFullScene},
        {"end and start", &PanelWalkTest::EndAndStart},
        {"open", &PanelWalkTest::OpenIt},
        {"close", &PanelWalkTest::CloseIt},
        {"few rows", &PanelWalkTest::FewRows},
        {"many rows", &PanelWalkTest::ManyRows},
        {"rows beyond a texture", &PanelWalkTest::RowsBeyondATexture},
        {"build anew", &PanelWalkTest::BuildAnew},
        {"destroy bars", &PanelWalkTest::DestroyBarsAndBuildAnew},
        {"hover", &PanelWalkTest::Hover},
        {"wheel", &PanelWalkTest::TurnTheWheel},
        {"thumb", &PanelWalkTest::PullTheThumb},
    };
    for (unsigned int walk = 1; walk <= 4; ++walk)
    {
        random_.seed(walk);
        std::string way = "walk " + std::to_string(walk) + ":";
        Open(NumberedRows(3));
        for (int i = 0; i < 40 && !HasFailure(); ++i)
        {
            const Step& step = steps[Any(0, static_cast<int>(std::size(steps)) - 1)];
            way += std::string(" ") + step.name + ",";
            SCOPED_TRACE(way);
            MakeContextCurrent();
            (this->*step.take)();
            ExpectInOrder();
            EXPECT_EQ(TakeLog(), Lines{});
        }
    }
}
