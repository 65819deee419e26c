// SPDX-License-Identifier: MIT
#pragma once

#include "support/GTest.h"
#include "support/Gui.h"

#include <widgets/CeGuiToolBar.h>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

/// Left, top, right and bottom as a text that GoogleTest compares and prints.
std::string Text(const RECT& rect);
std::string Utf8(const CString& text);
/// How GoogleTest prints a pixel.
void PrintTo(const Pixel& pixel, std::ostream* out);

/// Bars on an empty sheet that covers a view of 400 x 300 pixels, without the frame. The host is one for all tests; windows
/// and pictures are the test's own. A line that the library writes to the log fails the test, unless the test takes it.
class SheetTest : public testing::Test
{
protected:
    static constexpr int ViewWidth = 400;
    static constexpr int ViewHeight = 300;

    void SetUp() override;
    void TearDown() override;

    static GuiHost& Host();
    static CEGUI::Window& Root();
    /// A bar on the sheet.
    CeGuiToolBar& NewBar(const RECT& rect, UINT barType, const wchar_t* image = L"", const wchar_t* name = L"bar");
    /// A bar that lies on nothing.
    CeGuiToolBar& NewLooseBar(const RECT& rect, UINT barType, const wchar_t* image = L"", const wchar_t* name = L"bar");
    /// A window's rectangle in the view.
    static std::string Place(const CEGUI::Window& window);
    /// A window's image property.
    static std::string ImageOf(const CEGUI::Window& window, const char* property = "Image");
    /// What is seen at a point with the mouse where it is.
    static Pixel Seen(int x, int y);

    /// Lines that the library has written to the log since the test began or took some.
    std::vector<std::string> TakeLog();

    static Pixel Background() { return {51, 102, 153}; }

private:
    std::vector<std::unique_ptr<CeGuiToolBar>> bars_;
    std::size_t logSeen_ = 0;
};

using Lines = std::vector<std::string>;
