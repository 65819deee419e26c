// SPDX-License-Identifier: MIT
// The driver's keys: to the view, to a dialog and to a menu.
#include "SeenInput.h"

#include "support/GuiDriver.h"
#include "support/HostedFrame.h"

#include <NxConfig/SystemUtility.h>

#include <stdexcept>

namespace
{
const char* const TwoEntries = "<menus><menu text=\"Scene\"><item id=\"40201\" text=\"One\"/><item id=\"40202\" text=\"Two\"/>"
                               "</menu></menus>";
}

class DriverKeyboard : public HostedFrame
{
protected:
    void SetUp() override
    {
        HostedFrame::SetUp();
        CreateDirectoryW(SystemUtility::GetSysMidPath(nullptr, nullptr), nullptr);
        const std::string text = TwoEntries;
        ASSERT_TRUE(WriteBytes(SystemUtility::GetSysMidPath(nullptr, nullptr) + L"RButtonMenu.xml",
                               std::vector<std::uint8_t>(text.begin(), text.end())));
        Host().onMainWindowMessage = [this](UINT message, WPARAM wParam, LPARAM)
        {
            if (message == WM_COMMAND)
            {
                commands_.push_back(LOWORD(wParam));
            }
        };
    }
    void TearDown() override
    {
        Host().onMainWindowMessage = nullptr;
        HostedFrame::TearDown();
    }

    GuiDriver driver_{Host()};
    std::vector<int> commands_;
};

TEST_F(DriverKeyboard, a_key_goes_to_the_view)
{
    SeenInput seen(Host());
    driver_.Key(VK_ESCAPE);
    EXPECT_EQ(seen.Take(), Lines{"key 65307"});
    const std::vector<HostMessage> received = driver_.TakeReceived();
    ASSERT_EQ(received.size(), 1u);
    EXPECT_EQ(received[0].code, static_cast<WPARAM>(GUI_CMD_KEY_ESCAPE));
}

TEST_F(DriverKeyboard, types_into_the_dialogs_control_that_has_the_focus)
{
    driver_.DoubleClick("TavTilteText");
    driver_.SelectAllInFocus();
    driver_.Type(L"滨江 2035");
    driver_.KeyToFocus(VK_RETURN);
    EXPECT_EQ(Frame().GetSceneTitle(), L"滨江 2035");
    driver_.TakeReceived();
}

TEST_F(DriverKeyboard, an_entry_of_a_menu_is_chosen)
{
    driver_.RightClickMenu(CPoint(300, 300), 2, VK_RETURN);
    EXPECT_EQ(commands_, std::vector<int>{40202});
    driver_.RightClickMenu(CPoint(300, 300), 1, VK_RETURN);
    EXPECT_EQ(commands_, (std::vector<int>{40202, 40201}));
}

TEST_F(DriverKeyboard, a_menu_is_looked_at_and_left)
{
    int looked = 0;
    driver_.WhileMenuIsOpen([&] { looked += FindWindowW(L"#32768", nullptr) != nullptr; });
    driver_.RightClickMenu(CPoint(300, 300), 1, VK_ESCAPE);
    driver_.WhileMenuIsOpen(nullptr);
    EXPECT_EQ(looked, 1) << "called once, with the menu on the screen";
    EXPECT_EQ(commands_, std::vector<int>{});
}

TEST_F(DriverKeyboard, what_fails_in_the_loop_of_a_menu_fails_after_it)
{
    driver_.WhileMenuIsOpen([] { throw std::runtime_error("seen"); });
    EXPECT_THROW(driver_.RightClickMenu(CPoint(300, 300), 1, VK_ESCAPE), std::runtime_error);
    EXPECT_FALSE(FindWindowW(L"#32768", nullptr)) << "the menu was ended all the same";
}

TEST_F(DriverKeyboard, a_menu_that_does_not_open_is_told)
{
    Frame().EnablePopupMenu(false);
    EXPECT_THROW(driver_.RightClickMenu(CPoint(300, 300), 1, VK_ESCAPE), std::runtime_error);
    Frame().EnablePopupMenu(true);
}
