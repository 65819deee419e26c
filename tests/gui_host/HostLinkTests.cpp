// SPDX-License-Identifier: MIT
// What goes between frame and host: settings, timer ticks, mouse moves, and messages.
#include "support/HostedFrame.h"

#include <widgets/InputState.h>

#include <CEGUI/Window.h>

namespace
{
using HostLink = HostedFrame;

/// The messages of the calling thread's own queue.
std::vector<MSG> TakeThreadMessages()
{
    std::vector<MSG> messages;
    MSG message;
    while (PeekMessageW(&message, reinterpret_cast<HWND>(-1), GUI_HOST_MESSAGE, GUI_HOST_MESSAGE, PM_REMOVE))
    {
        messages.push_back(message);
    }
    return messages;
}
} // namespace

TEST_F(HostLink, message_is_the_fifth_hundred_after_wm_user)
{
    EXPECT_EQ(GUI_HOST_MESSAGE, 1524u);
}

TEST_F(HostLink, posts_code_and_value_to_the_viewers_window)
{
    EXPECT_EQ(Frame().GetHwnd(), Host().Window());
    Frame().NotifyHost(1234, 5678);
    MSG message = {};
    ASSERT_TRUE(PeekMessageW(&message, Host().Window(), 1524, 1524, PM_REMOVE));
    EXPECT_EQ(message.hwnd, Host().Window());
    EXPECT_EQ(message.wParam, 1234u);
    EXPECT_EQ(message.lParam, 5678);
    EXPECT_TRUE(TakeThreadMessages().empty());
}

TEST_F(HostLink, posts_to_the_threads_own_queue_when_there_is_no_window)
{
    osg::Camera& camera = *Host().Viewer().getCamera();
    const osg::ref_ptr<osg::GraphicsContext> context = camera.getGraphicsContext();
    TakeThreadMessages();
    camera.setGraphicsContext(nullptr);
    EXPECT_EQ(Frame().GetHwnd(), nullptr);
    Frame().NotifyHost(24, 3);
    camera.setGraphicsContext(context);
    const std::vector<MSG> messages = TakeThreadMessages();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].hwnd, nullptr);
    EXPECT_EQ(messages[0].wParam, 24u);
    EXPECT_EQ(messages[0].lParam, 3);
}

TEST_F(HostLink, has_the_virtual_operations_in_a_base_pointer_of_its_own_kind)
{
    CeGuiMainFrame* frame = CeGuiMainFrame::GetInstance();
    // The slot order is part of the binary interface: destructor none, CloseGuiSystem first.
    void** table = *reinterpret_cast<void***>(frame);
    using SetTitle = void (*)(CeGuiMainFrame*, const CString&);
    using SetColor = void (*)(CeGuiMainFrame*, COLORREF);
    using GetColor = COLORREF (*)(const CeGuiMainFrame*);
    using SetHeight = void (*)(CeGuiMainFrame*, const float&);
    using GetHeight = float (*)(const CeGuiMainFrame*);
    using Refresh = bool (*)(CeGuiMainFrame*, GUIBTNTYPE);
    using Property = BTN_UNIT* (*)(CeGuiMainFrame*, const CString&, int);
    reinterpret_cast<SetTitle>(table[2])(frame, L"by slot 2");
    EXPECT_EQ(Utf8(frame->GetSceneTitle()), "by slot 2");
    reinterpret_cast<SetColor>(table[4])(frame, 44);
    EXPECT_EQ(reinterpret_cast<GetColor>(table[5])(frame), 44u);
    EXPECT_EQ(frame->GetSceneTitleColor(), 44u);
    reinterpret_cast<SetTitle>(table[6])(frame, L"by slot 6");
    EXPECT_EQ(Utf8(frame->GetSceneTitleFontStyle()), "by slot 6");
    reinterpret_cast<SetHeight>(table[8])(frame, 88.5f);
    EXPECT_EQ(reinterpret_cast<GetHeight>(table[9])(frame), 88.5f);
    reinterpret_cast<SetTitle>(table[10])(frame, L"by slot 10");
    EXPECT_EQ(Utf8(frame->GetStartPageTitle()), "by slot 10");
    reinterpret_cast<SetColor>(table[12])(frame, 122);
    EXPECT_EQ(reinterpret_cast<GetColor>(table[13])(frame), 122u);
    EXPECT_TRUE(reinterpret_cast<Refresh>(table[14])(frame, GUI_BTN_ALL));
    frame->SetCtrlBtnInfo(std::vector<BTN_UNIT>(1));
    EXPECT_EQ(reinterpret_cast<Property>(table[15])(frame, L"", 0), &frame->GetCtrlBtnInfo()[0]);
    reinterpret_cast<void (*)(CeGuiMainFrame*)>(table[1])(frame);
    EXPECT_EQ(Host().Find("rootSheet"), nullptr) << "slot 1 clears all windows";
    const osg::ref_ptr<osg::Group> node = frame->GetGUINode();
    reinterpret_cast<void (*)(CeGuiMainFrame*)>(table[0])(frame);
    EXPECT_FALSE(frame->IsInit()) << "slot 0 closes";
    Host().Root().removeChild(node);
    frame->SetStartPageTitle(L"");
    frame->SetStartPageTitleColor(0);
}

TEST_F(HostLink, title_setters_store_and_redraw_nothing)
{
    const std::string place = Place("TavTilteText");
    const std::string image = ImageOf("TavTilteText");
    const std::vector<std::uint8_t> file = ReadBytes(SkinDir() + L"TavTilteText.bmp");
    ASSERT_FALSE(file.empty());
    Frame().SetSceneTitle(L"A much longer title than the one before it");
    Frame().SetSceneTitleColor(RGB(9, 8, 7));
    Frame().SetSceneTitleFontHeight(40.0f);
    Host().Frames(2);
    EXPECT_EQ(Place("TavTilteText"), place);
    EXPECT_EQ(ImageOf("TavTilteText"), image);
    EXPECT_EQ(ReadBytes(SkinDir() + L"TavTilteText.bmp"), file);
}

TEST_F(HostLink, window_size_is_stored_and_nothing_is_laid_out_again)
{
    const std::string place = Place("TavTilteCloseButtom");
    Frame().SetWindowSize(400, 300);
    Host().Frames(1);
    EXPECT_EQ(Place("TavTilteCloseButtom"), place);
}

TEST_F(HostLink, popup_menu_switch_is_stored_in_the_input_state)
{
    Frame().EnablePopupMenu(false);
    EXPECT_FALSE(InputState::Get().contextMenuAllowed);
    Frame().EnablePopupMenu(true);
    EXPECT_TRUE(InputState::Get().contextMenuAllowed);
}

TEST_F(HostLink, mouse_move_reaches_the_tool_bar_only_while_the_left_list_is_hidden)
{
    const CPoint overToolBar(300, 570);
    CEGUI::Window& tools = Window("TavBotCtrlFrame");
    CEGUI::Window& list = Window("TavLeftCtrlFrame");
    Frame().OnMouseMove(0, CPoint(400, 300));
    ASSERT_FALSE(tools.isVisible());

    list.show();
    Frame().OnMouseMove(0, CPoint(20, 300));
    ASSERT_TRUE(list.isVisible());
    // Still visible while this very call goes through the table: the move hides the list, and does not show the tools.
    Frame().OnMouseMove(0, overToolBar);
    EXPECT_FALSE(tools.isVisible());

    list.hide();
    Frame().OnMouseMove(0, overToolBar);
    EXPECT_TRUE(tools.isVisible());
}

TEST_F(HostLink, mouse_flags_argument_is_ignored)
{
    Frame().OnMouseMove(0, CPoint(400, 300));
    Frame().OnMouseMove(MK_LBUTTON | MK_RBUTTON | MK_SHIFT, CPoint(300, 570));
    EXPECT_TRUE(Window("TavBotCtrlFrame").isVisible());
}

TEST_F(HostLink, full_scene_lets_the_title_bar_slide_in_and_out_by_mouse)
{
    Frame().OnToolBarFullScene(true);
    Frame().OnMouseMove(0, CPoint(400, 300));
    Frame().OnMouseMove(0, CPoint(400, 5));
    EXPECT_TRUE(Window("TavTitleBackground").isVisible());
    Frame().OnMouseMove(0, CPoint(400, 300));
    for (int i = 0; i < 12; ++i)
    {
        Frame().OnTimer(2022);
    }
    EXPECT_FALSE(Window("TavTitleBackground").isVisible());
}

TEST_F(HostLink, timer_ticks_of_2022_reach_every_bar_and_hide_a_sliding_one)
{
    Frame().EnableSlideOut(true);
    Frame().OnToolBarFullScene(true);
    const char* const bars[] = {"TavTitleBackground", "TavLeftCtrlFrame", "TavBotCtrlFrame"};
    for (const char* name : bars)
    {
        SCOPED_TRACE(name);
        CEGUI::Window& bar = Window(name);
        bar.show();
        const std::string shown = Place(name);
        Frame().OnMouseMove(0, CPoint(700, 300));
        Frame().OnTimer(2021);
        EXPECT_EQ(Place(name), shown);
        Frame().OnTimer(2022);
        EXPECT_NE(Place(name), shown);
        for (int i = 0; i < 9; ++i)
        {
            EXPECT_TRUE(bar.isVisible()) << i;
            Frame().OnTimer(2022);
        }
        EXPECT_FALSE(bar.isVisible());
    }
    Frame().EnableSlideOut(false);
}

TEST_F(HostLink, update_event_may_be_called_every_frame)
{
    const Screenshot before = Host().Shoot();
    Frame().UpdateEvent();
    EXPECT_TRUE(Host().Shoot().pixels == before.pixels);
    EXPECT_TRUE(Host().TakeMessages().empty());
}
