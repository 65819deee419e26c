// SPDX-License-Identifier: MIT
// Keys: from the window's messages to the host's commands, row by row.
#include "support/HostedFrame.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/InputEvent.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>

#include <cstring>

namespace
{
class Keys : public HostedFrame
{
protected:
    static CEGUI::Window& Root() { return *CEGUI::System::getSingleton().getDefaultGUIContext().getRootWindow(); }
    void UseRecords(int count)
    {
        std::vector<BTN_UNIT> records(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i)
        {
            records[static_cast<std::size_t>(i)].name.Format(L"record %d", i);
        }
        Frame().SetCtrlBtnInfo(records);
    }
};
} // namespace

TEST_F(Keys, post_their_commands_row_by_row)
{
    const struct
    {
        const char* name;
        UINT key;
        WPARAM code;
    } rows[] = {
        {"Escape", VK_ESCAPE, 24}, {"Space", VK_SPACE, 25}, {"Up", VK_UP, 26},
        {"Down", VK_DOWN, 27},     {"Left", VK_LEFT, 28},   {"Right", VK_RIGHT, 29},
    };
    for (const auto& row : rows)
    {
        Host().Key(row.key);
        const std::vector<HostMessage> messages = Host().TakeMessages();
        ASSERT_EQ(messages.size(), 1u) << row.name;
        EXPECT_EQ(messages[0].code, row.code) << row.name;
        EXPECT_EQ(messages[0].value, 0) << row.name;
    }
}

TEST_F(Keys, page_down_goes_to_the_next_record_and_page_up_to_the_one_before)
{
    UseRecords(3);
    const struct
    {
        UINT key;
        int index;
        bool told;
    } rows[] = {
        {VK_NEXT, 0, true},  {VK_NEXT, 1, true},  {VK_NEXT, 2, true},   {VK_NEXT, 2, false},
        {VK_PRIOR, 1, true}, {VK_PRIOR, 0, true}, {VK_PRIOR, 0, false},
    };
    int step = 0;
    for (const auto& row : rows)
    {
        Host().Key(row.key);
        EXPECT_EQ(Frame().GetBtnIndex(), row.index) << "step " << step;
        const std::vector<HostMessage> messages = Host().TakeMessages();
        ASSERT_EQ(messages.size(), row.told ? 1u : 0u) << "step " << step;
        if (row.told)
        {
            EXPECT_EQ(messages[0].code, 17u);
            EXPECT_EQ(messages[0].value, reinterpret_cast<LPARAM>(&Frame().GetCtrlBtnInfo()[std::size_t(row.index)]));
        }
        ++step;
    }
}

TEST_F(Keys, page_keys_without_records_post_nothing)
{
    Host().Key(VK_NEXT);
    Host().Key(VK_PRIOR);
    EXPECT_TRUE(Host().TakeMessages().empty());
    EXPECT_EQ(Frame().GetBtnIndex(), -1);
}

TEST_F(Keys, others_post_nothing_and_are_unhandled)
{
    std::vector<unsigned int> handled;
    // Subscribed after the frame's own slot, so it sees what that left.
    Root().subscribeEvent(CEGUI::Window::EventKeyDown, CEGUI::Event::Subscriber(
                                                           [&](const CEGUI::EventArgs& args)
                                                           {
                                                               handled.push_back(args.handled);
                                                               return false;
                                                           }));
    for (const UINT key : {UINT('A'), UINT('1'), UINT(VK_RETURN), UINT(VK_TAB), UINT(VK_HOME), UINT(VK_END), UINT(VK_F1),
                           UINT(VK_DELETE), UINT(VK_BACK)})
    {
        Host().Key(key);
    }
    EXPECT_EQ(handled, std::vector<unsigned int>(9, 0u));
    EXPECT_TRUE(Host().TakeMessages().empty());
    Host().Key(VK_ESCAPE);
    ASSERT_EQ(handled.size(), 10u);
    EXPECT_EQ(handled.back(), 1u);
}

TEST_F(Keys, arrive_as_osg_symbols_for_scan_code_and_character)
{
    std::vector<unsigned int> downs;
    std::vector<unsigned int> ups;
    std::vector<unsigned int> characters;
    const auto keep = [](std::vector<unsigned int>& list, bool character)
    {
        return CEGUI::Event::Subscriber(
            [&list, character](const CEGUI::EventArgs& args)
            {
                const auto& key = static_cast<const CEGUI::KeyEventArgs&>(args);
                // As the number that it is: CEGUI's enumeration of scan codes ends before the keys' symbols.
                unsigned int code = key.codepoint;
                if (!character)
                {
                    std::memcpy(&code, &key.scancode, sizeof(code));
                }
                list.push_back(code);
                return false;
            });
    };
    Root().subscribeEvent(CEGUI::Window::EventKeyDown, keep(downs, false));
    Root().subscribeEvent(CEGUI::Window::EventKeyUp, keep(ups, false));
    Root().subscribeEvent(CEGUI::Window::EventCharacterKey, keep(characters, true));
    for (const UINT key :
         {UINT(VK_ESCAPE), UINT(VK_SPACE), UINT(VK_PRIOR), UINT(VK_NEXT), UINT(VK_LEFT), UINT(VK_UP), UINT(VK_RIGHT),
          UINT(VK_DOWN), UINT('A'), UINT('Z'), UINT('0'), UINT('9'), UINT(VK_RETURN), UINT(VK_F1)})
    {
        Host().Key(key);
    }
    const std::vector<unsigned int> symbols = {65307, 32,  65365, 65366, 65361, 65362, 65363,
                                               65364, 'a', 'z',   '0',   '9',   65293, 65470};
    EXPECT_EQ(downs, symbols);
    EXPECT_EQ(ups, symbols);
    EXPECT_EQ(characters, symbols) << "the symbol itself, also of keys that write nothing";
}

TEST_F(Keys, activate_the_root_sheet_first)
{
    Root().deactivate();
    ASSERT_FALSE(Root().isActive());
    Host().Key(VK_ESCAPE);
    EXPECT_TRUE(Root().isActive());
    EXPECT_EQ(Host().TakeCodes(), Codes{24});
}

TEST_F(Keys, work_after_a_click_on_a_button_of_the_frame)
{
    Host().Click(716, 25);
    Host().TakeMessages();
    Host().Key(VK_UP);
    EXPECT_EQ(Host().TakeCodes(), Codes{26});
}
