// SPDX-License-Identifier: MIT
#include "../support/GTest.h"
#include "../support/Spoiling.h"
#include "TemporaryImage.h"
#include "Utf8.h"

#include <atlimage.h>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <vector>

namespace
{
BYTE* PixelOf(CImage& image, int x, int y)
{
    return static_cast<BYTE*>(image.GetBits()) + y * image.GetPitch() + x * image.GetBPP() / 8;
}

// Every pixel another colour, and every alpha from none to full.
void Paint(CImage& image)
{
    for (int y = 0; y < image.GetHeight(); ++y)
    {
        for (int x = 0; x < image.GetWidth(); ++x)
        {
            BYTE* pixel = PixelOf(image, x, y);
            pixel[0] = static_cast<BYTE>(x * 16);
            pixel[1] = static_cast<BYTE>(y * 30);
            pixel[2] = static_cast<BYTE>(x + y);
            if (image.GetBPP() == 32)
            {
                pixel[3] = static_cast<BYTE>(x * 17);
            }
        }
    }
}

int WorstDifference(CImage& left, CImage& right, int channels)
{
    int worst = 0;
    for (int y = 0; y < left.GetHeight(); ++y)
    {
        for (int x = 0; x < left.GetWidth(); ++x)
        {
            for (int channel = 0; channel < channels; ++channel)
            {
                worst = std::max(worst, std::abs(PixelOf(left, x, y)[channel] - PixelOf(right, x, y)[channel]));
            }
        }
    }
    return worst;
}

std::vector<std::uint8_t> FileBytes(const CString& path)
{
    const HANDLE handle = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    std::vector<std::uint8_t> bytes(GetFileSize(handle, nullptr));
    DWORD read = 0;
    ReadFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    CloseHandle(handle);
    EXPECT_EQ(read, bytes.size());
    return bytes;
}

void WriteFileBytes(const CString& path, const std::vector<std::uint8_t>& bytes)
{
    const HANDLE handle = CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(handle);
    ASSERT_EQ(written, bytes.size());
}

const int Width = 16;
const int Height = 8;
} // namespace

TEST(ImageFile, KeepsAlphaUnmultiplied)
{
    for (const wchar_t* extension : {L"png", L"PNG", L"tif", L"bmp", L"dib"})
    {
        for (int height : {Height, -Height})
        {
            SCOPED_TRACE(Utf8(extension) + ", height " + std::to_string(height));
            CImage made;
            ASSERT_TRUE(made.Create(Width, height, 32, CImage::createAlphaChannel));
            Paint(made);
            const TemporaryImage file(extension);
            ASSERT_EQ(made.Save(file.path), S_OK);
            CImage loaded;
            ASSERT_EQ(loaded.Load(file.path), S_OK);
            EXPECT_EQ(loaded.GetWidth(), Width);
            EXPECT_EQ(loaded.GetHeight(), Height);
            ASSERT_EQ(loaded.GetBPP(), 32);
            EXPECT_EQ(WorstDifference(made, loaded, 4), 0);
        }
    }
}

TEST(ImageFile, KeepsOpaquePictures)
{
    struct Row
    {
        const wchar_t* extension;
        int depth;
        int tolerance;
    };
    const Row rows[] = {{L"bmp", 24, 0}, {L"png", 24, 0},  {L"tiff", 24, 0}, {L"bmp", 32, 0},
                        {L"png", 32, 0}, {L"jpg", 24, 40}, {L"jpeg", 32, 40}};
    for (const Row& row : rows)
    {
        for (int height : {Height, -Height})
        {
            SCOPED_TRACE(Utf8(row.extension) + ", " + std::to_string(row.depth) + " bits, height " + std::to_string(height));
            CImage made;
            ASSERT_TRUE(made.Create(Width, height, row.depth));
            Paint(made);
            const TemporaryImage file(row.extension);
            ASSERT_EQ(made.Save(file.path), S_OK);
            CImage loaded;
            ASSERT_EQ(loaded.Load(file.path), S_OK);
            EXPECT_EQ(loaded.GetWidth(), Width);
            EXPECT_EQ(loaded.GetHeight(), Height);
            EXPECT_LE(WorstDifference(made, loaded, 3), row.tolerance);
        }
    }
}

TEST(ImageFile, KeepsThePaletteOfIndexedPictures)
{
    for (const wchar_t* extension : {L"png", L"bmp", L"gif"})
    {
        SCOPED_TRACE(Utf8(extension));
        CImage made;
        ASSERT_TRUE(made.Create(Width, Height, 8));
        const RGBQUAD colours[] = {{1, 2, 3, 0}, {200, 100, 50, 0}, {0, 255, 0, 0}};
        SetDIBColorTable(made.GetDC(), 0, 3, colours);
        made.ReleaseDC();
        *PixelOf(made, 3, 1) = 1;
        *PixelOf(made, 4, 7) = 2;
        const TemporaryImage file(extension);
        ASSERT_EQ(made.Save(file.path), S_OK);
        CImage loaded;
        ASSERT_EQ(loaded.Load(file.path), S_OK);
        const HDC dc = loaded.GetDC();
        EXPECT_EQ(GetPixel(dc, 0, 0), RGB(3, 2, 1));
        EXPECT_EQ(GetPixel(dc, 3, 1), RGB(50, 100, 200));
        EXPECT_EQ(GetPixel(dc, 4, 7), RGB(0, 255, 0));
        loaded.ReleaseDC();
    }
}

TEST(ImageFile, TakesTheEncoderByFormatOrExtension)
{
    const GUID png = {0xb96b3caf, 0x0728, 0x11d3, {0x9d, 0x7b, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
    CImage made;
    ASSERT_TRUE(made.Create(Width, Height, 24));
    const TemporaryImage file(L"data");
    EXPECT_EQ(made.Save(file.path), E_FAIL);
    EXPECT_EQ(made.Save(file.path, png), S_OK);
    CImage loaded;
    EXPECT_EQ(loaded.Load(file.path), S_OK);
    EXPECT_EQ(made.Save(file.path, IID_IUnknown), E_FAIL);
    EXPECT_EQ(made.Save(L"Z:\\no\\such\\folder.png\\name"), E_FAIL);
    EXPECT_EQ(made.Save(L"Z:\\no\\such\\folder\\name.png"), E_FAIL);
    EXPECT_EQ(made.Save(nullptr), E_FAIL);
}

TEST(ImageFile, LeavesThePictureWhenAFileCannotBeRead)
{
    CImage image;
    ASSERT_TRUE(image.Create(2, 2, 24));
    EXPECT_EQ(image.Load(L"Z:\\no such file.png"), E_FAIL);
    EXPECT_EQ(image.Load(static_cast<LPCWSTR>(nullptr)), E_FAIL);
    EXPECT_EQ(image.Load(static_cast<IStream*>(nullptr)), E_FAIL);
    const TemporaryImage file(L"png");
    const HANDLE handle = CreateFileW(file.path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(handle, "no picture", 10, &written, nullptr);
    CloseHandle(handle);
    EXPECT_EQ(image.Load(file.path), E_FAIL);
    EXPECT_EQ(image.GetWidth(), 2);
}

TEST(ImageFile, DamagedTiffFilesAreRefusedOrRead)
{
    for (const wchar_t* file : damagedTiffFiles)
    {
        SCOPED_TRACE(Utf8(file));
        CImage loaded;
        const HRESULT result = loaded.Load(CString(NX_CORPUS) + file);
        EXPECT_EQ(result == S_OK, !loaded.IsNull());
    }
}

TEST(ImageFile, MoreThanABitmapMayHaveIsRefused)
{
    // 16384 x 8192 pixels of a bit each, in 16 KB.
    const TemporaryImage file(L"png");
    WriteFileBytes(file.path, FileBytes(CString(NX_CORPUS) + L"\\picture\\larger_than_allowed.png"));
    CImage image;
    EXPECT_EQ(image.Load(file.path), E_FAIL);
    EXPECT_FALSE(image.Create(16384, 8192, 32));
    EXPECT_FALSE(image.Create(40000, 40000, 32));
    EXPECT_FALSE(image.Create(715827882, 1, 24));
    EXPECT_FALSE(image.Create(32768, INT_MIN, 32));
    EXPECT_TRUE(image.Create(1, 32768, 32));
    EXPECT_FALSE(image.Create(1, 32769, 32));
}

TEST(ImageFile, IsLetGoWhenItCannotBeRead)
{
    CImage made;
    ASSERT_TRUE(made.Create(Width, Height, 24));
    const TemporaryImage file(L"bmp");
    ASSERT_EQ(made.Save(file.path), S_OK);
    // What is left of the picture is its header.
    const HANDLE handle = CreateFileW(file.path, GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    SetFilePointer(handle, 54, nullptr, FILE_BEGIN);
    SetEndOfFile(handle);
    CloseHandle(handle);
    CImage image;
    EXPECT_EQ(image.Load(file.path), E_FAIL);
    EXPECT_TRUE(DeleteFileW(file.path));
}

TEST(ImageFile, IsReadFromAStream)
{
    CImage made;
    ASSERT_TRUE(made.Create(Width, Height, 32, CImage::createAlphaChannel));
    Paint(made);
    const TemporaryImage file(L"png");
    ASSERT_EQ(made.Save(file.path), S_OK);
    const HANDLE handle = CreateFileW(file.path, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(handle, INVALID_HANDLE_VALUE);
    const DWORD size = GetFileSize(handle, nullptr);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    DWORD read = 0;
    ReadFile(handle, GlobalLock(memory), size, &read, nullptr);
    GlobalUnlock(memory);
    CloseHandle(handle);
    IStream* stream = nullptr;
    ASSERT_EQ(CreateStreamOnHGlobal(memory, TRUE, &stream), S_OK);
    {
        CImage loaded;
        ASSERT_EQ(loaded.Load(stream), S_OK);
        EXPECT_EQ(WorstDifference(made, loaded, 4), 0);
    }
    EXPECT_EQ(stream->Release(), 0u);
}
