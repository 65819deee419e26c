// SPDX-License-Identifier: MIT
#include "../support/GTest.h"
#include "Utf8.h"

#include <atlimage.h>
#include <gdiplus_start.h>

TEST(Image, IsNullAtFirst)
{
    CImage image;
    EXPECT_TRUE(image.IsNull());
    EXPECT_EQ(image.GetWidth(), 0);
    EXPECT_EQ(image.GetBits(), nullptr);
    EXPECT_EQ(image.GetDC(), nullptr);
    EXPECT_EQ(image.Detach(), nullptr);
    EXPECT_EQ(image.Save(L"nothing.png"), E_FAIL);
    image.Destroy();
}

TEST(Image, CreatesEveryDepthBothWaysUp)
{
    struct Row
    {
        int depth;
        int rowSize;
    };
    const Row rows[] = {{1, 4}, {4, 4}, {8, 8}, {16, 12}, {24, 16}, {32, 20}};
    for (const Row& row : rows)
    {
        for (int height : {3, -3})
        {
            SCOPED_TRACE(std::to_string(row.depth) + " bits, height " + std::to_string(height));
            CImage image;
            ASSERT_TRUE(image.Create(5, height, row.depth));
            EXPECT_FALSE(image.IsNull());
            EXPECT_EQ(image.GetWidth(), 5);
            EXPECT_EQ(image.GetHeight(), 3);
            EXPECT_EQ(image.GetBPP(), row.depth);
            EXPECT_EQ(image.GetPitch(), height > 0 ? -row.rowSize : row.rowSize);
            const BYTE* bits = static_cast<const BYTE*>(image.GetBits());
            for (int y = 0; y < 3; ++y)
            {
                for (int x = 0; x < row.rowSize; ++x)
                {
                    ASSERT_EQ(bits[y * image.GetPitch() + x], 0);
                }
            }
        }
    }
}

TEST(Image, RefusesWhatCannotBe)
{
    struct Row
    {
        int width;
        int height;
        int depth;
        DWORD flags;
    };
    const Row rows[] = {{0, 1, 32, 0},
                        {-1, 1, 32, 0},
                        {1, 0, 32, 0},
                        {1, 1, 0, 0},
                        {1, 1, 7, 0},
                        {1, 1, 64, 0},
                        {1, 1, 24, CImage::createAlphaChannel},
                        {100000, 100000, 32, 0},
                        {1, static_cast<int>(0x80000000), 32, 0}};
    for (const Row& row : rows)
    {
        CImage image;
        EXPECT_FALSE(image.Create(row.width, row.height, row.depth, row.flags))
            << row.width << "x" << row.height << "x" << row.depth;
        EXPECT_TRUE(image.IsNull());
    }
}

TEST(Image, IsDrawnIntoByItsDeviceContext)
{
    CImage image;
    ASSERT_TRUE(image.Create(4, 4, 32));
    const HDC dc = image.GetDC();
    ASSERT_NE(dc, nullptr);
    EXPECT_EQ(image.GetDC(), dc);
    SetPixel(dc, 1, 2, RGB(10, 20, 30));
    image.ReleaseDC();
    image.ReleaseDC();
    image.ReleaseDC();
    const BYTE* pixel = static_cast<const BYTE*>(image.GetBits()) + 2 * image.GetPitch() + 4;
    EXPECT_EQ(pixel[0], 30);
    EXPECT_EQ(pixel[1], 20);
    EXPECT_EQ(pixel[2], 10);
    image.GetDC();
    image.Destroy();
    EXPECT_TRUE(image.IsNull());
}

TEST(Image, IsAttachedAndDetached)
{
    CImage first;
    ASSERT_TRUE(first.Create(6, 5, 24));
    const HBITMAP bitmap = first;
    EXPECT_EQ(first.Detach(), bitmap);
    EXPECT_TRUE(first.IsNull());
    CImage second;
    second.Attach(bitmap, CImage::DIBOR_BOTTOMUP);
    EXPECT_EQ(static_cast<HBITMAP>(second), bitmap);
    EXPECT_EQ(second.GetWidth(), 6);
    EXPECT_EQ(second.GetHeight(), 5);
    EXPECT_EQ(second.GetPitch(), -20);
    CImage third;
    third.Attach(CreateBitmap(3, 2, 1, 32, nullptr));
    EXPECT_EQ(third.GetWidth(), 3);
    EXPECT_EQ(third.GetBPP(), 32);
    EXPECT_EQ(third.GetBits(), nullptr);
    EXPECT_EQ(third.GetPitch(), 0);
}

TEST(ImageGdiplus, RunsFromTheFirstUseUntilTheLastImageGoes)
{
    ASSERT_FALSE(IsGdiplusStarted());
    {
        CImage first;
        EXPECT_FALSE(IsGdiplusStarted());
        EXPECT_EQ(first.Load(L"Z:\\no such file.png"), E_FAIL);
        EXPECT_TRUE(IsGdiplusStarted());
        {
            CImage second;
        }
        EXPECT_TRUE(IsGdiplusStarted());
        CImage::ReleaseGDIPlus();
        EXPECT_FALSE(IsGdiplusStarted());
        EXPECT_EQ(first.Load(L"Z:\\no such file.png"), E_FAIL);
        EXPECT_TRUE(IsGdiplusStarted());
    }
    EXPECT_FALSE(IsGdiplusStarted());
}

TEST(ImageGdiplus, IsStartedByTheFilters)
{
    CString filter;
    CSimpleArray<GUID> formats;
    EXPECT_EQ(CImage::GetExporterFilterString(filter, formats), S_OK);
    EXPECT_TRUE(IsGdiplusStarted());
    CImage::ReleaseGDIPlus();
    EXPECT_FALSE(IsGdiplusStarted());
}

TEST(ImageFilters, ListTheFormats)
{
    CString filter;
    CSimpleArray<GUID> formats;
    ASSERT_EQ(CImage::GetImporterFilterString(filter, formats, L"所有图片"), S_OK);
    const std::string text = Utf8(filter);
    EXPECT_EQ(text.find("所有图片|*."), 0u) << text;
    EXPECT_NE(text.find("*.PNG"), std::string::npos) << text;
    EXPECT_NE(text.find("*.ICO"), std::string::npos) << text;
    EXPECT_EQ(text.substr(text.size() - 2), "||");
    ASSERT_GT(formats.GetSize(), 5);
    EXPECT_TRUE(formats[0] == GUID_NULL);

    CString exportFilter;
    CSimpleArray<GUID> exportFormats;
    ASSERT_EQ(CImage::GetExporterFilterString(exportFilter, exportFormats, nullptr,
                                              CImage::excludeDefaultSave | CImage::excludePNG | CImage::excludeOther, L'!'),
              S_OK);
    EXPECT_LT(exportFilter.Find(L"PNG"), 0);
    EXPECT_GE(exportFilter.Find(L"*.BMP"), 0);
    EXPECT_LT(exportFilter.Find(L'|'), 0);
    for (int index = 0; index < exportFormats.GetSize(); ++index)
    {
        EXPECT_FALSE(exportFormats[index] == GUID_NULL);
    }
    CImage::ReleaseGDIPlus();
}
