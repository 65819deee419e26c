// SPDX-License-Identifier: MIT
#pragma once

#include "EditingTest.h"

#include <CEGUI/InputEvent.h>
#include <CEGUI/Window.h>

/// Editing switched on as a slot of a host would: by naming the window under the mouse while the press is being injected.
/// The mouse rests on the first button.
class DragTest : public EditingTest
{
protected:
    void SetUp() override
    {
        EditingTest::SetUp();
        // The record of the window's own name is the one that keeps its place.
        Show({Record(L"TavGuiButton_0"), Record(L"TavGuiButton_1"), Record(firstName_.GetString())});
        ShowList();
        start_ = GuiHost::CentreOf(First);
        for (const char* entry : {First, Second})
        {
            const CEGUI::String name = entry;
            GuiHost::Find(entry)->subscribeEvent(CEGUI::Window::EventMouseButtonDown, CEGUI::SubscriberSlot(NameIt{name}));
        }
        Host().MoveMouse(start_.x, start_.y);
    }

    struct NameIt
    {
        CEGUI::String name;
        bool operator()(const CEGUI::EventArgs&) const
        {
            InputState::Get().windowUnderMouse = name;
            return false;
        }
    };

    void Press() { Host().Press(start_.x, start_.y); }
    void DragBy(int x, int y = 0) { Host().MoveMouse(start_.x + x, start_.y + y); }
    void ReleaseAt(int x) { Host().Release(start_.x + x, start_.y); }
    static float X() { return GuiHost::Find(First)->getXPosition().d_scale; }

    const CString firstName_ = L"TavGuiButton_0_P";
    CPoint start_;
};
