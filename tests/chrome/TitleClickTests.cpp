// SPDX-License-Identifier: MIT
// Clicks on the scene title: which of them ask the host for the title's editing.
#include "support/HostedFrame.h"

#include <CEGUI/InputEvent.h>
#include <CEGUI/Window.h>

namespace
{
class TitleClicks : public HostedFrame
{
protected:
    /// The slot as CEGUI calls it. @return the codes that were posted
    Codes Fire(const CEGUI::String& event, CEGUI::MouseButton button, unsigned int clicks)
    {
        CEGUI::MouseEventArgs args(&Window("TavTilteText"));
        args.button = button;
        args.clickCount = clicks;
        Window("TavTilteText").fireEvent(event, args);
        EXPECT_GT(args.handled, 0u) << event.c_str();
        return Host().TakeCodes();
    }
    static CPoint Title() { return GuiHost::CentreOf("TavTilteText"); }
};
} // namespace

TEST_F(TitleClicks, with_the_right_button_once_post_30)
{
    const CPoint title = Title();
    Frame().EnablePopupMenu(false);
    Host().RightClick(title.x, title.y);
    EXPECT_EQ(Host().TakeCodes(), Codes{30});
}

TEST_F(TitleClicks, with_the_left_button_twice_post_30)
{
    const CPoint title = Title();
    Host().DoubleClick(title.x, title.y);
    EXPECT_EQ(Host().TakeCodes(), Codes{30});
    EXPECT_FALSE(Frame().IsFullScene()) << "the double click is the title's own";
}

TEST_F(TitleClicks, with_the_left_button_once_post_nothing)
{
    const CPoint title = Title();
    Host().Click(title.x, title.y);
    EXPECT_TRUE(Host().TakeMessages().empty());
}

TEST_F(TitleClicks, with_the_right_button_twice_post_for_the_first_click_only)
{
    const CPoint title = Title();
    Frame().EnablePopupMenu(false);
    Host().RightClick(title.x, title.y);
    EXPECT_EQ(Host().TakeCodes(), Codes{30});
    Host().Send(WM_RBUTTONDBLCLK, MK_RBUTTON, MAKELPARAM(title.x, title.y));
    EXPECT_TRUE(Host().TakeMessages().empty());
}

TEST_F(TitleClicks, follow_the_table_of_button_and_click_count)
{
    const struct
    {
        CEGUI::MouseButton button;
        unsigned int clicks;
        bool edits;
    } rows[] = {
        {CEGUI::RightButton, 1, true},   {CEGUI::RightButton, 2, false},  {CEGUI::RightButton, 3, false},
        {CEGUI::LeftButton, 1, false},   {CEGUI::LeftButton, 2, true},    {CEGUI::LeftButton, 3, true},
        {CEGUI::MiddleButton, 1, false}, {CEGUI::MiddleButton, 2, false},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(Fire(CEGUI::Window::EventMouseButtonUp, row.button, row.clicks), row.edits ? Codes{30} : Codes{})
            << "button " << row.button << ", clicks " << row.clicks;
    }
}

TEST_F(TitleClicks, of_a_restricted_user_do_nothing)
{
    Restart(GUI_USER_RESTRICTED);
    const CPoint title = Title();
    Frame().EnablePopupMenu(false);
    Host().RightClick(title.x, title.y);
    Host().DoubleClick(title.x, title.y);
    EXPECT_TRUE(Host().TakeMessages().empty());
    EXPECT_FALSE(Frame().IsFullScene());
}
