// SPDX-License-Identifier: MIT
#pragma once

#include "MenuLog.h"
#include "support/FrameTest.h"

#include <widgets/InputState.h>

#include <memory>

using Menus = std::vector<std::vector<std::string>>;
using Commands = std::vector<UINT>;

/// The frame with three control buttons, the first two of them to be edited: "TavGuiButton_0" and "TavGuiButton_1", whose
/// entries in the left list are "TavGuiButton_0_P" and "TavGuiButton_1_P", and one of another name. The scene's menu is
/// "Scene" with one item. Each test begins with the list shown, flags and names at rest.
class EditingTest : public FrameTest
{
protected:
    static constexpr const char* First = "TavGuiButton_0_P";
    static constexpr const char* Second = "TavGuiButton_1_P";
    static constexpr const char* Other = "other_P";
    /// A point of the bare scene.
    static constexpr int SceneX = 500;
    static constexpr int SceneY = 300;

    void SetUp() override;
    void TearDown() override;

    /// Starts for the other user, with the list shown.
    void RestartRestricted();
    static void ShowList();

    static MenuLog& Log();
    /// What a menu file is read from when no parameter names one.
    static CString MenuFile();
    static void WriteMenu(const std::string& xml);
    static std::string Edited();

    static void PressRight(CPoint point);
    static void ReleaseRight(CPoint point);
    /// A right click on an entry with a mouse move while the button is held, which is what its menu takes.
    static void RightClickEntry(const char* entry);
    static void RightClickScene();

    static Menus SceneMenu() { return {{"40201 Item"}}; }
    static Menus ButtonMenu() { return {{"40098 属性", "40101 添加", "40100 删除"}}; }

private:
    std::unique_ptr<MenuLog> log_;
};
