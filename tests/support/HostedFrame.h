// SPDX-License-Identifier: MIT
#pragma once

#include "GTest.h"
#include "Gui.h"

#include <osg/Geode>

#include <sstream>
#include <string>
#include <vector>

using Lines = std::vector<std::string>;
using Codes = std::vector<WPARAM>;

/// Left, top, right and bottom as a text that GoogleTest compares and prints.
std::string Text(const RECT& rect);
std::string Utf8(const CString& text);

/// What is written to standard output while the object lives.
class CapturedOutput
{
public:
    CapturedOutput();
    ~CapturedOutput();
    CapturedOutput(const CapturedOutput&) = delete;
    CapturedOutput& operator=(const CapturedOutput&) = delete;
    std::string Text() const { return text_.str(); }

private:
    std::ostringstream text_;
    std::streambuf* former_;
};

/// The whole frame in a view of 800 x 600 pixels, in one host for all tests, which may close and start it as they like. Each
/// test starts with a frame built anew for the full user without records, the mouse in the middle and no message waiting. A
/// line that the library writes to the log fails the test, unless the test takes it.
class HostedFrame : public testing::Test
{
protected:
    static constexpr int ViewWidth = 800;
    static constexpr int ViewHeight = 600;
    /// A family with Latin and Chinese letters that is there on every machine that runs the tests.
    static constexpr const wchar_t* TitleFont = L"Noto Sans CJK SC";

    void SetUp() override;
    void TearDown() override;

    static GuiHost& Host();
    static CeGuiMainFrame& Frame() { return *CeGuiMainFrame::GetInstance(); }
    static CeGuiDrawable& Drawable();
    /// The interface closed and started again.
    void Restart(GUIUserType userType = GUI_USER_FULL);
    /// The frame built anew by a resize event of the same size.
    static void Rebuild();
    static void MakeCurrent();
    /// @throws std::runtime_error when there is none
    static CEGUI::Window& Window(const char* name);
    static std::string Place(const char* name) { return Text(GuiHost::RectOf(name)); }
    static std::string ImageOf(const char* name, const char* property = "Image");

    /// Lines that the library has written to the log since the test began or took some.
    Lines TakeLog();

    static Pixel Background() { return {51, 102, 153}; }

private:
    std::size_t logSeen_ = 0;
};

/// A picture's pixel, ARGB, laid over another.
Pixel Blend(std::uint32_t argb, Pixel below);
