// SPDX-License-Identifier: MIT
#pragma once

#include "support/FrameTest.h"

#include <CEGUI/Window.h>

#include <utility>

using Rows = CeGuiMainFrame::PropertyRows;

/// Rows "name 0", "value 0", and so on.
Rows NumberedRows(int count);

/// A piece of text so many times.
CString Repeated(const wchar_t* piece, int times);

/// Another language for the object's life.
class LanguageSpoken
{
public:
    explicit LanguageSpoken(const char* language);
    ~LanguageSpoken();
    LanguageSpoken(const LanguageSpoken&) = delete;
    LanguageSpoken& operator=(const LanguageSpoken&) = delete;
};

/// A picture's colour over another.
Pixel Blend(std::uint32_t argb, Pixel below);

/// The frame with the property panel and the tooltip, in a view of 800 x 600 pixels: the panel's frame at 538,50 - 798,598,
/// its list at 538,85 - 798,588. Each test begins with the panel closed, no rows and no tooltip.
class PanelTest : public FrameTest
{
protected:
    static constexpr const char* PanelFrame = "TavBackCtrlFrame";
    static constexpr const char* PanelPicture = "TavBackgroundImage";
    static constexpr const char* ListFrame = "TavPropertyCtrlFrame";
    static constexpr const char* ListPicture = "TavPropertyImage";
    static constexpr const char* Thumb = "right_top_scrollbar";
    static constexpr const char* Tooltip = "tavguitooltipwindow";
    static constexpr int ListTop = 85;
    static constexpr int ListHeight = 503;
    static constexpr int RowHeight = 23;

    void SetUp() override;
    void TearDown() override;

    static CeGuiToolBar& List() { return Bar(L"TavPropertyCtrlFrame"); }
    static void SetRows(Rows rows) { Frame().setPropertyData(rows); }
    /// Opens the panel with these rows.
    static void Open(const Rows& rows);
    /// Gives the open panel these rows.
    static bool Refresh(const Rows& rows);
    static CString PanelFile() { return SkinDir() + L"PropertyFormbackImage_0.bmp"; }
    static CString ListFile() { return SkinDir() + L"PropertyImage_0.bmp"; }
    static CString TemplateFile() { return SkinDir() + L"new_skin\\DlgPropertyTemple.png"; }
    static CString TooltipFile() { return SkinDir() + L"tavtooltipimgfile.bmp"; }
    /// A file's time of last change, to see whether it was written. A written file's is set far back first.
    static void MakeOld(const CString& file);
    static bool IsOld(const CString& file);
};

/// A file that nobody else can open for the object's life.
class FileHeld
{
public:
    explicit FileHeld(const CString& path);
    ~FileHeld();
    FileHeld(const FileHeld&) = delete;
    FileHeld& operator=(const FileHeld&) = delete;

private:
    HANDLE file_;
};

/// One row's picture as it has to be, 260 x 23, drawn by the test itself from the template and with GDI+'s own calls.
PictureFile DrawnRow(const CString& name, const CString& value);

/// The picture of the panel's header with this caption, 260 x 35, drawn in the same way.
PictureFile DrawnHeader(const CString& caption);

/// Compares a stretch of two pictures, at most two off by rounding.
testing::AssertionResult SamePixels(const PictureFile& seen, int seenTop, const PictureFile& expected, int expectedTop,
                                    int height);
