// SPDX-License-Identifier: MIT
// A control button dragged sideways, and what the viewer sees of it.
#include "DragTest.h"

#include <osgGA/GUIEventHandler>

#include <algorithm>

TEST_F(DragTest, a_press_on_a_button_starts_editing_it)
{
    Press();
    EXPECT_TRUE(mouseFlags.buttonEditMode);
    EXPECT_FALSE(mouseFlags.pressConsumed);
    EXPECT_EQ(Edited(), First);
    ReleaseAt(0);
}

TEST_F(DragTest, a_drag_moves_it_sideways_to_the_mouse_in_parts_of_the_view)
{
    Press();
    const CEGUI::UVector2 before = GuiHost::Find(First)->getPosition();
    for (const int by : {1, 5, 40, -30})
    {
        DragBy(by, 13);
        const CEGUI::UVector2 after = GuiHost::Find(First)->getPosition();
        EXPECT_EQ(after.d_x.d_scale, static_cast<float>((start_.x + by) / 800.0)) << by;
        EXPECT_EQ(after.d_x.d_offset, before.d_x.d_offset);
        EXPECT_EQ(after.d_y, before.d_y);
    }
    ReleaseAt(-30);
}

TEST_F(DragTest, the_record_of_the_windows_name_keeps_its_x_in_pixels)
{
    Press();
    DragBy(25);
    const std::vector<BTN_UNIT>& records = Frame().GetCtrlBtnInfo();
    EXPECT_NEAR(records[2].value, start_.x + 25, 1e-3f);
    EXPECT_EQ(records[0].value, -1.0f);
    EXPECT_EQ(records[1].value, -1.0f);
    ReleaseAt(25);
}

TEST_F(DragTest, the_grab_offset_is_added)
{
    Press();
    InputState::Get().grabOffset = -15;
    DragBy(40);
    EXPECT_EQ(X(), static_cast<float>((start_.x + 25) / 800.0));
    InputState::Get().grabOffset = 0;
    ReleaseAt(40);
}

TEST_F(DragTest, the_host_is_asked_for_the_systems_cursor)
{
    Press();
    Frame().SetDisplySystemMouse(false);
    DragBy(5);
    EXPECT_TRUE(Frame().IsDisplySystemMouse());
    ReleaseAt(5);
}

TEST_F(DragTest, ten_pixels_still_choose_the_button_and_eleven_do_not)
{
    const std::pair<int, bool> drags[] = {{0, true}, {10, true}, {-10, true}, {11, false}, {-11, false}, {30, false}};
    for (const auto& [by, chosen] : drags)
    {
        SCOPED_TRACE(by);
        Press();
        if (by != 0)
        {
            DragBy(by);
        }
        EXPECT_EQ(mouseFlags.pressConsumed, !chosen);
        // The window follows with its left edge, so the mouse is brought back onto it before the release.
        const CPoint centre = GuiHost::CentreOf(First);
        Host().Send(WM_LBUTTONUP, 0, MAKELPARAM(std::max<LONG>(centre.x - 50, start_.x + by), start_.y));
        EXPECT_EQ(Host().TakeCodes(), chosen ? std::vector<WPARAM>{17} : std::vector<WPARAM>{});
        EXPECT_FALSE(mouseFlags.pressConsumed);
        EXPECT_FALSE(mouseFlags.buttonEditMode);
        // Back to where it was.
        GuiHost::Find(First)->setPosition(CEGUI::UVector2(CEGUI::UDim(11 / 151.0f, 0), GuiHost::Find(First)->getYPosition()));
        Host().MoveMouse(start_.x, start_.y);
    }
}

TEST_F(DragTest, once_too_far_stays_too_far)
{
    Press();
    DragBy(20);
    DragBy(1);
    EXPECT_TRUE(mouseFlags.pressConsumed);
    ReleaseAt(1);
    EXPECT_EQ(Host().TakeCodes(), std::vector<WPARAM>{});
}

namespace
{
/// Counts the drags that reach the viewer's own handlers.
class DragCounter : public osgGA::GUIEventHandler
{
public:
    bool handle(const osgGA::GUIEventAdapter& ea, osgGA::GUIActionAdapter&, osg::Object*, osg::NodeVisitor*) override
    {
        count += ea.getEventType() == osgGA::GUIEventAdapter::DRAG && !ea.getHandled();
        return false;
    }
    int count = 0;
};
} // namespace

TEST_F(DragTest, the_viewer_sees_no_drag_that_moves_a_button)
{
    const osg::ref_ptr<DragCounter> counter = new DragCounter;
    Host().Viewer().addEventHandler(counter);
    Host().MoveMouse(SceneX, SceneY);
    Host().Press(SceneX, SceneY);
    Host().MoveMouse(SceneX + 5, SceneY);
    Host().Release(SceneX + 5, SceneY);
    EXPECT_EQ(counter->count, 1) << "a drag on the scene is the viewer's";
    SlideIn(50, 300);
    Host().MoveMouse(start_.x, start_.y);
    Press();
    ASSERT_TRUE(mouseFlags.buttonEditMode);
    DragBy(5);
    EXPECT_EQ(counter->count, 1);
    ReleaseAt(5);
    Host().Viewer().removeEventHandler(counter);
}

TEST_F(DragTest, the_viewer_sees_a_drag_whose_button_has_vanished)
{
    const osg::ref_ptr<DragCounter> counter = new DragCounter;
    Host().Viewer().addEventHandler(counter);
    Press();
    Frame().DeleteButton(firstName_);
    DragBy(5);
    EXPECT_EQ(counter->count, 1);
    ReleaseAt(5);
    Host().Viewer().removeEventHandler(counter);
}
