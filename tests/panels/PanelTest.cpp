// SPDX-License-Identifier: MIT
#include "PanelTest.h"

#include <NxConfig/ParamConfig.h>

#include <widgets/Gdiplus.h>

#include <cstdlib>

Rows NumberedRows(int count)
{
    Rows rows;
    rows.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
    {
        CString name;
        CString value;
        name.Format(L"name %d", i);
        value.Format(L"value %d", i);
        rows.emplace_back(name, value);
    }
    return rows;
}

CString Repeated(const wchar_t* piece, int times)
{
    CString text;
    for (int i = 0; i < times; ++i)
    {
        text += piece;
    }
    return text;
}

LanguageSpoken::LanguageSpoken(const char* language)
{
    CParamConfig::getInstance()->setStringParam("Language", language);
}

LanguageSpoken::~LanguageSpoken()
{
    CParamConfig::getInstance()->reload();
}

Pixel Blend(std::uint32_t argb, Pixel below)
{
    const int alpha = static_cast<int>(argb >> 24);
    const auto mix = [&](int shift, int under)
    { return (static_cast<int>(argb >> shift & 255) * alpha + under * (255 - alpha) + 127) / 255; };
    return {mix(16, below.red), mix(8, below.green), mix(0, below.blue)};
}

FileHeld::FileHeld(const CString& path) : file_(CreateFileW(path, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr))
{
    EXPECT_NE(file_, INVALID_HANDLE_VALUE);
}

FileHeld::~FileHeld()
{
    CloseHandle(file_);
}

void PanelTest::SetUp()
{
    FrameTest::SetUp();
    SetRows({});
}

void PanelTest::TearDown()
{
    Frame().DestroyTooltipWindow();
    Frame().OpenPropertyDlg(nullptr, false);
    FrameTest::TearDown();
}

void PanelTest::Open(const Rows& rows)
{
    SetRows(rows);
    Frame().OpenPropertyDlg(nullptr, true);
    Host().Frames(1);
    MakeContextCurrent();
}

bool PanelTest::Refresh(const Rows& rows)
{
    SetRows(rows);
    const bool shown = Frame().RefreshPropertyDlg();
    Host().Frames(1);
    MakeContextCurrent();
    return shown;
}

namespace
{
// 100 ns each; a day of 2001.
constexpr ULONGLONG OldTime = 126444672000000000ULL;
} // namespace

void PanelTest::MakeOld(const CString& path)
{
    const HANDLE file = CreateFileW(path, FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    const FILETIME time = {static_cast<DWORD>(OldTime), static_cast<DWORD>(OldTime >> 32)};
    EXPECT_TRUE(SetFileTime(file, nullptr, nullptr, &time));
    CloseHandle(file);
}

bool PanelTest::IsOld(const CString& path)
{
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    GetFileAttributesExW(path, GetFileExInfoStandard, &data);
    return (ULONGLONG(data.ftLastWriteTime.dwHighDateTime) << 32 | data.ftLastWriteTime.dwLowDateTime) == OldTime;
}

namespace
{
struct PlacedText
{
    CString text;
    float x;
    float y;
};

/// A slice of the template with texts on it.
PictureFile DrawnSlice(int sourceTop, int height, const std::vector<PlacedText>& texts)
{
    constexpr int width = 260;
    const CString path = SkinDir() + L"new_skin\\DlgPropertyTemple.png";
    const gp::Bitmap source = gp::Make<gp::Bitmap>([&](gp::GpBitmap** b) { return gp::GdipCreateBitmapFromFile(path, b); });
    const gp::Bitmap bitmap = gp::NewBitmap(width, height);
    const gp::Graphics graphics = gp::GraphicsOf(bitmap.get());
    gp::GdipSetTextRenderingHint(graphics.get(), gp::TextRenderingHintClearTypeGridFit);
    gp::GdipSetInterpolationMode(graphics.get(), gp::InterpolationModeHighQualityBicubic);
    gp::GdipSetSmoothingMode(graphics.get(), gp::SmoothingModeAntiAlias);
    gp::GdipDrawImageRectRectI(graphics.get(), source.get(), 0, 0, width, height, 0, sourceTop, width, height, gp::UnitPixel,
                               nullptr, nullptr, nullptr);
    const gp::FontFamily family = gp::NewFontFamily(L"Noto Sans CJK SC");
    const gp::Font font = gp::NewFont(family.get(), 12);
    const gp::StringFormat format = gp::NewStringFormat();
    const gp::SolidBrush brush = gp::NewSolidBrush(0xFFFFFFFF);
    for (const PlacedText& placed : texts)
    {
        const gp::RectF place = {placed.x, placed.y, 0, 0};
        gp::GdipDrawString(graphics.get(), placed.text, -1, font.get(), &place, format.get(), brush.get());
    }
    PictureFile picture;
    picture.width = width;
    picture.height = height;
    for (int y = 0; y < height; ++y)
    {
        for (int x = 0; x < width; ++x)
        {
            gp::ARGB color = 0;
            gp::GdipBitmapGetPixel(bitmap.get(), x, y, &color);
            for (const int shift : {16, 8, 0, 24})
            {
                picture.rgba.push_back(static_cast<std::uint8_t>(color >> shift));
            }
        }
    }
    return picture;
}
} // namespace

PictureFile DrawnRow(const CString& name, const CString& value)
{
    return DrawnSlice(38, 23, {{name, 35, 5}, {value, 140, 5}});
}

PictureFile DrawnHeader(const CString& caption)
{
    return DrawnSlice(0, 35, {{caption, 16, 12}});
}

testing::AssertionResult SamePixels(const PictureFile& seen, int seenTop, const PictureFile& expected, int expectedTop,
                                    int height)
{
    constexpr int tolerance = 2;
    if (seen.width != expected.width || seenTop + height > seen.height || expectedTop + height > expected.height)
    {
        return testing::AssertionFailure() << "a picture of " << seen.width << " x " << seen.height << " against one of "
                                           << expected.width << " x " << expected.height;
    }
    for (int y = 0; y < height; ++y)
    {
        for (int x = 0; x < seen.width; ++x)
        {
            const std::uint32_t is = seen.Argb(x, seenTop + y);
            const std::uint32_t wanted = expected.Argb(x, expectedTop + y);
            for (const int shift : {0, 8, 16, 24})
            {
                if (std::abs(static_cast<int>(is >> shift & 255) - static_cast<int>(wanted >> shift & 255)) > tolerance)
                {
                    return testing::AssertionFailure()
                           << "at " << x << "," << y << " seen 0x" << std::hex << is << ", expected 0x" << wanted;
                }
            }
        }
    }
    return testing::AssertionSuccess();
}
