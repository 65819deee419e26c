// SPDX-License-Identifier: MIT
// Which encoder a file's extension gets, and how files are saved.
#include "Pictures.h"
#include "Sheet.h"

#include <widgets/ImageEncoder.h>

#include <algorithm>

TEST(ImageEncoder, extension_is_what_follows_the_last_point_in_lower_case)
{
    const struct
    {
        const wchar_t* path;
        const char* extension;
    } rows[] = {
        {L"a.bmp", "bmp"},
        {L"C:\\pictures\\view.PNG", "png"},
        {L"a.b.JpEg", "jpeg"},
        {L"a.Tif", "tif"},
        {L".x.gif", "gif"},
        {L"a.b", "b"},
        {L"a.", ""},
        {L"ab.", ""},
        {L"a.1", "1"},
        {L"", ""},
        {L"a", ""},
        {L".b", ""},
        {L"..", ""},
        {L".bm", "bm"},
        {L"picture", ""},
        {L"no point at all", ""},
        // The last point counts, wherever it stands.
        {L"v1.2\\picture", "2\\picture"},
        {L"图片.BMP", "bmp"},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(Utf8(GetFileExtension(row.path)), row.extension) << Utf8(row.path);
    }
}

TEST(ImageEncoder, mime_types_of_the_six_extensions)
{
    const struct
    {
        const wchar_t* extension;
        const char* mimeType;
    } rows[] = {{L"bmp", "image/bmp"}, {L"jpeg", "image/jpeg"}, {L"jpg", "image/jpeg"},
                {L"gif", "image/gif"}, {L"tiff", "image/tiff"}, {L"png", "image/png"}};
    for (const auto& row : rows)
    {
        CString mimeType = L"before";
        EXPECT_TRUE(GetMimeTypeByExtension(row.extension, mimeType)) << row.mimeType;
        EXPECT_EQ(Utf8(mimeType), row.mimeType);
    }
}

TEST(ImageEncoder, other_extensions_have_no_mime_type_and_touch_nothing)
{
    // "tif" is left out of the table on purpose, and the table is case-sensitive.
    for (const wchar_t* extension : {L"tif", L"PNG", L"Bmp", L"", L".bmp", L"ico", L"bmp ", L"jpe"})
    {
        CString mimeType = L"before";
        EXPECT_FALSE(GetMimeTypeByExtension(extension, mimeType)) << Utf8(extension);
        EXPECT_EQ(Utf8(mimeType), "before");
    }
}

TEST(ImageEncoder, each_mime_type_of_the_table_has_an_encoder_of_its_own)
{
    std::vector<int> found;
    for (const wchar_t* mimeType : {L"image/bmp", L"image/jpeg", L"image/gif", L"image/tiff", L"image/png"})
    {
        CLSID encoder = {};
        const int index = GetEncoderClsid(mimeType, encoder);
        EXPECT_GE(index, 0) << Utf8(mimeType);
        EXPECT_NE(encoder, CLSID{}) << Utf8(mimeType);
        EXPECT_EQ(std::count(found.begin(), found.end(), index), 0) << Utf8(mimeType);
        found.push_back(index);
    }
}

TEST(ImageEncoder, index_is_the_place_in_the_systems_list)
{
    UINT count = 0;
    UINT bytes = 0;
    ASSERT_EQ(gp::GdipGetImageEncodersSize(&count, &bytes), gp::Ok);
    std::vector<gp::ImageCodecInfo> list(bytes / sizeof(gp::ImageCodecInfo) + 1);
    ASSERT_EQ(gp::GdipGetImageEncoders(count, bytes, list.data()), gp::Ok);
    for (UINT i = 0; i < count; ++i)
    {
        CLSID encoder = {};
        EXPECT_EQ(GetEncoderClsid(list[i].MimeType, encoder), static_cast<int>(i));
        EXPECT_EQ(encoder, list[i].Clsid);
    }
}

TEST(ImageEncoder, unknown_mime_type_has_no_encoder)
{
    for (const wchar_t* mimeType : {L"image/none", L"", L"IMAGE/PNG", L"image/pn", L"image/png "})
    {
        CLSID encoder = {1, 2, 3, {4}};
        EXPECT_EQ(GetEncoderClsid(mimeType, encoder), -1) << Utf8(mimeType);
        EXPECT_EQ(encoder, (CLSID{1, 2, 3, {4}}));
    }
}

TEST(ImageEncoder, upper_case_png_selects_the_png_encoder)
{
    CLSID png = {};
    CLSID found = {};
    ASSERT_GE(GetEncoderClsid(L"image/png", png), 0);
    EXPECT_TRUE(GetEncoderForPath(L"C:\\a\\b.PNG", found));
    EXPECT_EQ(found, png);
    EXPECT_FALSE(GetEncoderForPath(L"C:\\a\\b.tif", found));
    EXPECT_FALSE(GetEncoderForPath(L"C:\\a\\b", found));
}

TEST(ImageEncoder, failed_save_leaves_the_former_file_and_no_part_of_the_new_one)
{
    const gp::Bitmap bitmap = gp::NewBitmap(4, 4);
    for (const wchar_t* name : {L"held.bmp", L"held.png"})
    {
        const CString path = SkinDir() + name;
        const std::vector<std::uint8_t> former = {'f', 'o', 'r', 'm', 'e', 'r'};
        ASSERT_TRUE(WriteBytes(path, former));
        CLSID encoder;
        ASSERT_TRUE(GetEncoderForPath(path, encoder));
        const HANDLE held = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        EXPECT_FALSE(SaveBitmap(bitmap.get(), path, encoder)) << "a file that somebody holds open";
        CloseHandle(held);
        EXPECT_EQ(ReadBytes(path), former);
        EXPECT_FALSE(HasUnfinishedFile(SkinDir()));
        EXPECT_TRUE(SaveBitmap(bitmap.get(), path, encoder));
        EXPECT_EQ(ReadPictureFile(path).width, 4);
        EXPECT_FALSE(HasUnfinishedFile(SkinDir()));
    }
}

TEST(ImageEncoder, a_write_protected_file_stays_and_its_save_fails)
{
    const gp::Bitmap bitmap = gp::NewBitmap(4, 4);
    for (const wchar_t* name : {L"protected.bmp", L"protected.gif", L"protected.png"})
    {
        const CString path = SkinDir() + name;
        const std::vector<std::uint8_t> former = {'f', 'o', 'r', 'm', 'e', 'r'};
        ASSERT_TRUE(WriteBytes(path, former));
        CLSID encoder;
        ASSERT_TRUE(GetEncoderForPath(path, encoder));
        SetFileAttributesW(path, FILE_ATTRIBUTE_READONLY);
        EXPECT_FALSE(SaveBitmap(bitmap.get(), path, encoder));
        EXPECT_EQ(ReadBytes(path), former);
        EXPECT_FALSE(HasUnfinishedFile(SkinDir()));
        SetFileAttributesW(path, FILE_ATTRIBUTE_NORMAL);
        EXPECT_TRUE(SaveBitmap(bitmap.get(), path, encoder));
        EXPECT_EQ(ReadPictureFile(path).width, 4);
    }
}
