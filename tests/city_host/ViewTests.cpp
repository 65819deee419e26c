// SPDX-License-Identifier: MIT
// The views that a user adds beside those of the city.
#include "support/GTest.h"

#include <views/UserViews.h>

#include <KernelCommonUse/StringConvert.h>

TEST(UserViews, remember_where_each_was_taken_from)
{
    host::UserViews views;
    host::CameraPose first;
    first.distance = 100.0;
    host::CameraPose second;
    second.distance = 200.0;
    const BTN_UNIT a = views.Add(first, L"pictures\\", 320);
    const BTN_UNIT b = views.Add(second, L"pictures\\", 0);
    EXPECT_NE(CString2string(a.name), CString2string(b.name));
    EXPECT_EQ(CString2string(a.name).find("TavGuiButton_"), 0u);
    EXPECT_NE(CString2string(a.lastText), CString2string(b.lastText)) << "a picture each";
    EXPECT_EQ(CString2string(a.lastText).find("pictures\\"), 0u);
    EXPECT_FALSE(a.target.IsEmpty()) << "it can be chosen";
    EXPECT_NE(CString2string(a.target), CString2string(a.text)) << "a caption in each language";
    EXPECT_EQ(a.value, 320.0f);
    ASSERT_NE(views.Find(a.name), nullptr);
    EXPECT_EQ(views.Find(a.name)->distance, 100.0);
    EXPECT_EQ(views.Find(b.name)->distance, 200.0);
    EXPECT_EQ(views.Find(L"TavGuiButton_overview"), nullptr);
}

TEST(UserViews, never_give_a_name_twice)
{
    host::UserViews views;
    const BTN_UNIT a = views.Add(host::CameraPose(), L"", 0);
    views.Remove(a.name);
    EXPECT_EQ(views.Find(a.name), nullptr);
    EXPECT_NE(CString2string(views.Add(host::CameraPose(), L"", 0).name), CString2string(a.name));
}
