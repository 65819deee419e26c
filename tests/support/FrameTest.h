// SPDX-License-Identifier: MIT
#pragma once

#include "GTest.h"
#include "Gui.h"

#include <widgets/CeGuiToolBar.h>

#include <string>
#include <vector>

using Lines = std::vector<std::string>;

/// Left, top, right and bottom as a text that GoogleTest compares and prints.
std::string Text(const RECT& rect);
std::string Utf8(const CString& text);

/// A record whose entry is to be seen and chosen.
BTN_UNIT Record(const wchar_t* name, int kind = 0, const wchar_t* caption = L"caption", const CString& picture = CString());

/// The whole frame in a view of 800 x 600 pixels. The host is one for all tests of a program; each test begins with a frame
/// just built for the full user, without records, with both bars hidden and the mouse in the middle of the view. A line that
/// the library writes to the log fails the test, unless the test takes it.
class FrameTest : public testing::Test
{
protected:
    static constexpr int ViewWidth = 800;
    static constexpr int ViewHeight = 600;

    void SetUp() override;
    void TearDown() override;

    static GuiHost& Host();
    static CeGuiMainFrame& Frame();
    /// Ends the interface and starts it again.
    /// @param sized whether the view's first size event comes, which builds the frame
    void Restart(GUIUserType userType, bool sized = true);
    /// Builds the frame anew, as every size event does, and leaves the mouse where it was.
    static void Rebuild();
    /// Builds the frame anew with these records.
    static void Show(const std::vector<BTN_UNIT>& records);
    /// Moves the mouse to where the library takes it to be at this point. Its y is the view's height less the viewer's y,
    /// which is 0 in the last row: a pixel more than the window's.
    static void MoveTo(int x, int y);
    /// The same from the middle of the view, which slides a bar in that is there.
    static void SlideIn(int x, int y);

    /// A bar of the frame, by its window's name. There is no public way to it.
    static CeGuiToolBar& Bar(const wchar_t* name);
    static bool HasBar(const wchar_t* name);

    /// A window's rectangle in the view.
    static std::string Place(const char* window);
    /// Whether the window and all that it lies in are shown.
    static bool Visible(const char* window);
    static std::string ImageOf(const char* window, const char* property = "Image");
    /// What is seen at a point with the mouse where it is.
    static Pixel Seen(int x, int y);
    /// How many windows there are.
    static int WindowCount();
    /// How many windows there are of a name.
    static int CountOf(const char* window);
    static void MakeContextCurrent();

    /// Lines that the library has written to the log since the test began or took some.
    Lines TakeLog();

    static Pixel Background() { return {51, 102, 153}; }

private:
    std::size_t logSeen_ = 0;
};

/// Fails with both colours when they differ by more than the rounding of blending.
testing::AssertionResult LooksLike(Pixel seen, Pixel expected, int tolerance = 2);
