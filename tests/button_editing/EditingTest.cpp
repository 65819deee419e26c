// SPDX-License-Identifier: MIT
#include "EditingTest.h"

#include <NxConfig/ParamConfig.h>
#include <NxConfig/SystemUtility.h>

namespace
{
MenuLog* currentLog = nullptr;
}

MenuLog& EditingTest::Log()
{
    return *currentLog;
}

void EditingTest::SetUp()
{
    FrameTest::SetUp();
    InputState::Release();
    mouseFlags = MouseFlags();
    WriteMenu("<menus><menu text=\"Scene\"><item id=\"40201\" text=\"Item\"/></menu></menus>");
    Show({Record(L"TavGuiButton_0"), Record(L"TavGuiButton_1"), Record(L"other")});
    ShowList();
    log_ = std::make_unique<MenuLog>(Host());
    currentLog = log_.get();
}

void EditingTest::TearDown()
{
    log_.reset();
    currentLog = nullptr;
    CParamConfig::getInstance()->reload();
    mouseFlags = MouseFlags();
    FrameTest::TearDown();
}

void EditingTest::RestartRestricted()
{
    Restart(GUI_USER_RESTRICTED);
    Host().MoveMouse(402, 300);
    ShowList();
}

void EditingTest::ShowList()
{
    SlideIn(50, 300);
    Host().TakeMessages();
}

CString EditingTest::MenuFile()
{
    return SystemUtility::GetSysMidPath(nullptr, nullptr) + L"RButtonMenu.xml";
}

void EditingTest::WriteMenu(const std::string& xml)
{
    CreateDirectoryW(SystemUtility::GetSysMidPath(nullptr, nullptr), nullptr);
    ASSERT_TRUE(WriteBytes(MenuFile(), std::vector<std::uint8_t>(xml.begin(), xml.end())));
}

std::string EditingTest::Edited()
{
    return Utf8(Frame().GetEditWindowName());
}

void EditingTest::PressRight(CPoint point)
{
    Host().Send(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(point.x, point.y));
}

void EditingTest::ReleaseRight(CPoint point)
{
    Host().Send(WM_RBUTTONUP, 0, MAKELPARAM(point.x, point.y));
}

void EditingTest::RightClickEntry(const char* entry)
{
    const CPoint centre = GuiHost::CentreOf(entry);
    Host().MoveMouse(centre.x, centre.y);
    PressRight(centre);
    Host().MoveMouse(centre.x + 1, centre.y);
    EXPECT_EQ(std::string(InputState::Get().windowUnderMouse.c_str()), entry)
        << "mouse at " << Frame().GetMousePoint().x << "," << Frame().GetMousePoint().y << ", entry at " << Place(entry);
    ReleaseRight(CPoint(centre.x + 1, centre.y));
}

void EditingTest::RightClickScene()
{
    Host().RightClick(SceneX, SceneY);
}
