// SPDX-License-Identifier: MIT
// Windows of the frame that a host deletes by name in its own slots, while CEGUI tells of an event.
#include "support/HostedFrame.h"

#include <CEGUI/Window.h>
#include <CEGUI/widgets/PushButton.h>

#include <array>

namespace
{
struct SlotCase
{
    const char* name;
    const char* window;        ///< whose event it is
    const CEGUI::String event; ///< that the user's input raises
    const char* deleted;
    void (*input)(GuiHost& host);
};

void ShowTools(GuiHost& host)
{
    host.MoveMouse(400, 301);
    host.MoveMouse(400, 300);
    host.MoveMouse(110, 550);
}

void ShowList(GuiHost& host)
{
    host.MoveMouse(400, 301);
    host.MoveMouse(400, 300);
    host.MoveMouse(50, 300);
}

const SlotCase cases[] = {
    {"a tool in its click", "TavToolButtom_2", CEGUI::PushButton::EventClicked, "TavToolButtom_2",
     [](GuiHost& host)
     {
         ShowTools(host);
         host.Click(154, 555);
     }},
    {"the tool bar in a tool's click", "TavToolButtom_2", CEGUI::PushButton::EventClicked, "TavBotCtrlFrame",
     [](GuiHost& host)
     {
         ShowTools(host);
         host.Click(154, 555);
     }},
    {"a tool in its press", "TavToolButtom_3", CEGUI::Window::EventMouseButtonDown, "TavToolButtom_3",
     [](GuiHost& host)
     {
         ShowTools(host);
         host.Click(246, 555);
     }},
    {"the tool bar as it is shown", "TavBotCtrlFrame", CEGUI::Window::EventShown, "TavBotCtrlFrame", ShowTools},
    {"the list as it is hidden", "TavLeftCtrlFrame", CEGUI::Window::EventHidden, "TavLeftCtrlFrame",
     [](GuiHost& host)
     {
         ShowList(host);
         host.MoveMouse(400, 300);
     }},
    {"the list as it comes home", "TavLeftCtrlFrame", CEGUI::Element::EventMoved, "TavLeftCtrlFrame",
     [](GuiHost& host)
     {
         CeGuiMainFrame& frame = host.Frame();
         frame.EnableSlideOut(true);
         ShowList(host);
         host.MoveMouse(400, 300);
         frame.OnTimer(2022);
         frame.OnTimer(2022);
         frame.EnableSlideOut(false);
         ShowList(host);
     }},
    {"the tool bar as it is moved", "TavBotCtrlFrame", CEGUI::Element::EventSized, "TavBotCtrlFrame",
     [](GuiHost& host)
     {
         host.Frame().SetWindowSize(1000, 700);
         host.Frame().OnToolBarFullScene(true);
         host.Frame().OnToolBarFullScene(false);
     }},
    {"the list's thumb as it is pressed", "scrollbar", CEGUI::Window::EventMouseButtonDown, "scrollbar",
     [](GuiHost& host)
     {
         ShowList(host);
         host.MoveMouse(147, 100);
         host.Press(147, 100);
         host.MoveMouse(147, 150);
         host.Release(147, 150);
     }},
    {"the list's thumb as it is dragged", "scrollbar", CEGUI::Element::EventMoved, "scrollbar",
     [](GuiHost& host)
     {
         ShowList(host);
         host.MoveMouse(147, 100);
         host.Press(147, 100);
         host.MoveMouse(147, 150);
         host.MoveMouse(147, 200);
         host.Release(147, 200);
     }},
    {"an entry as the list is scrolled", "entry_P", CEGUI::Element::EventMoved, "TavLeftCtrlFrame",
     [](GuiHost& host)
     {
         ShowList(host);
         host.Wheel(50, 300, -1);
     }},
    {"the title bar under the mouse", "TavTitleBackground", CEGUI::Window::EventMouseMove, "TavTitleBackground",
     [](GuiHost& host) { host.MoveMouse(400, 20); }},
    {"the title text as it is clicked", "TavTilteText", CEGUI::Window::EventMouseButtonUp, "TavTilteText",
     [](GuiHost& host) { host.Click(60, 25); }},
    {"a window button as the mouse comes", "TavTilteCloseButtom", CEGUI::Window::EventMouseEntersSurface, "TavTilteCloseButtom",
     [](GuiHost& host) { host.MoveMouse(772, 25); }},
    {"the root sheet under the mouse", "rootSheet", CEGUI::Window::EventMouseMove, "rootSheet",
     [](GuiHost& host) { host.MoveMouse(410, 310); }},
    {"the root sheet at a key", "rootSheet", CEGUI::Window::EventKeyDown, "rootSheet",
     [](GuiHost& host) { host.Key(VK_ESCAPE); }},
    {"the panel's list at the wheel", "TavPropertyImage", CEGUI::Window::EventMouseWheel, "TavPropertyImage",
     [](GuiHost& host) { host.Wheel(600, 300, -1); }},
    {"the panel's list as it is scrolled", "TavPropertyImage", CEGUI::Element::EventMoved, "TavPropertyImage",
     [](GuiHost& host) { host.Wheel(600, 300, -1); }},
    {"the panel's list as it is refreshed", "TavPropertyImage", CEGUI::Element::EventSized, "TavPropertyImage",
     [](GuiHost& host)
     {
         CeGuiMainFrame::PropertyRows rows(60, {L"name", L"value"});
         host.Frame().setPropertyData(rows);
         host.Frame().RefreshPropertyDlg();
     }},
    {"the panel's thumb as it is refreshed", "right_top_scrollbar", CEGUI::Element::EventSized, "right_top_scrollbar",
     [](GuiHost& host)
     {
         CeGuiMainFrame::PropertyRows rows(60, {L"name", L"value"});
         host.Frame().setPropertyData(rows);
         host.Frame().RefreshPropertyDlg();
     }},
    {"the panel's list as its thumb is pressed", "right_top_scrollbar", CEGUI::Window::EventMouseButtonDown,
     "TavPropertyCtrlFrame",
     [](GuiHost& host)
     {
         host.MoveMouse(783, 100);
         host.Click(783, 100);
     }},
};
} // namespace

class DeletedInSlot : public HostedFrame
{
protected:
    void TearDown() override
    {
        Frame().EnableSlideOut(false);
        Frame().OpenPropertyDlg(nullptr, false);
        Frame().SetCtrlBtnInfo({});
        CeGuiMainFrame::PropertyRows none;
        Frame().setPropertyData(none);
        Rebuild();
        TakeLog();
        HostedFrame::TearDown();
    }

    /// The frame with a list and an open panel that can be scrolled.
    void BeginAnew()
    {
        std::vector<BTN_UNIT> records(8);
        for (BTN_UNIT& record : records)
        {
            record.name = L"entry";
        }
        Frame().SetCtrlBtnInfo(records);
        Frame().OpenPropertyDlg(nullptr, true);
        CeGuiMainFrame::PropertyRows rows(40, {L"name", L"value"});
        Frame().setPropertyData(rows);
        Rebuild();
        Host().MoveMouse(400, 300);
        MakeCurrent();
        Frame().RefreshPropertyDlg();
        Host().Frames(1);
        MakeCurrent();
    }
};

TEST_F(DeletedInSlot, goes_when_the_event_is_over_and_everything_else_goes_on)
{
    for (const SlotCase& slotCase : cases)
    {
        SCOPED_TRACE(slotCase.name);
        BeginAnew();
        ASSERT_NE(GuiHost::Find(slotCase.window), nullptr);
        int calls = 0;
        // The slot's own memory has to last as long as the call does.
        std::array<int*, 4> told = {&calls, &calls, &calls, &calls};
        GuiHost::Find(slotCase.window)
            ->subscribeEvent(slotCase.event,
                             [told, &slotCase](const CEGUI::EventArgs&)
                             {
                                 Frame().DeleteButton(CString(slotCase.deleted));
                                 for (int* count : told)
                                 {
                                     ++*count;
                                 }
                                 return false;
                             });
        slotCase.input(Host());
        EXPECT_EQ(calls, 4) << "once";
        EXPECT_TRUE(slotCase.deleted == std::string("entry_P") || !GuiHost::Find(slotCase.deleted));
        Host().Frames(2);
        MakeCurrent();
        Frame().RefreshPropertyDlg();
        Host().Wheel(600, 300, -1);
        ShowList(Host());
        ShowTools(Host());
        Host().Frames(1);
        BeginAnew();
        EXPECT_NE(GuiHost::Find(slotCase.deleted), nullptr);
    }
}
