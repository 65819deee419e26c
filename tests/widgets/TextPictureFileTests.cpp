// SPDX-License-Identifier: MIT
// The files that texts are drawn into, and failures.
#include "Fonts.h"
#include "Sheet.h"

#include <widgets/TextPicture.h>

#include <algorithm>

namespace
{
class TextPictureFile : public SheetTest
{
protected:
    static CString Path(const wchar_t* name) { return SkinDir() + name; }
    static bool Exists(const CString& path) { return GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES; }
};
} // namespace

TEST_F(TextPictureFile, each_extension_writes_its_kind_of_file)
{
    const struct
    {
        const wchar_t* name;
        std::vector<std::uint8_t> start;
    } rows[] = {{L"k.bmp", {'B', 'M'}},
                {L"k.jpeg", {0xFF, 0xD8}},
                {L"k.jpg", {0xFF, 0xD8}},
                {L"k.gif", {'G', 'I', 'F'}},
                {L"k.tiff", {'I', 'I'}},
                {L"k.png", {0x89, 'P', 'N', 'G'}},
                {L"k2.PNG", {0x89, 'P', 'N', 'G'}},
                {L"k2.Bmp", {'B', 'M'}}};
    for (const auto& row : rows)
    {
        SCOPED_TRACE(Utf8(row.name));
        EXPECT_TRUE(DrawTextToImageFile(Path(row.name), 40, 30, Latin, 20, 0, L"x"));
        const std::vector<std::uint8_t> bytes = ReadBytes(Path(row.name));
        ASSERT_GT(bytes.size(), 4u);
        EXPECT_TRUE(std::equal(row.start.begin(), row.start.end(), bytes.begin()));
        EXPECT_EQ(ReadPictureFile(Path(row.name)).width, 40);
        EXPECT_EQ(ReadPictureFile(Path(row.name)).height, 30);
        EXPECT_FALSE(HasUnfinishedFile(SkinDir()));
    }
}

TEST_F(TextPictureFile, refused_calls_write_nothing_and_leave_the_former_file)
{
    const std::vector<std::uint8_t> former = {'f', 'o', 'r', 'm', 'e', 'r'};
    const struct
    {
        const char* why;
        const wchar_t *name, *font;
        UINT width;
    } rows[] = {
        {"no font", L"r.bmp", L"", 40},   {"a tif", L"r.tif", Latin, 40},    {"a TIF", L"r.TIF", Latin, 40},
        {"unknown", L"r.ico", Latin, 40}, {"no extension", L"r", Latin, 40}, {"no width", L"r.bmp", Latin, 0},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.why);
        const CString path = Path(row.name);
        DeleteFileW(path);
        EXPECT_FALSE(DrawTextToImageFile(path, row.width, 30, row.font, 20, 0, L"x"));
        EXPECT_FALSE(Exists(path));
        ASSERT_TRUE(WriteBytes(path, former));
        EXPECT_FALSE(DrawTextToImageFile(path, row.width, 30, row.font, 20, 0, L"x"));
        EXPECT_EQ(ReadBytes(path), former);
        EXPECT_FALSE(HasUnfinishedFile(SkinDir()));
        const std::string size = row.width > 0 ? "" : ", no bitmap of 0 x 30 pixels";
        EXPECT_EQ(TakeLog(), Lines(2, "NxOsgCeGui: text picture not written" + size + ": " + Utf8(path)));
    }
    EXPECT_FALSE(DrawTextToImageFile(L"", 40, 30, Latin, 20, 0, L"x"));
    EXPECT_EQ(TakeLog().size(), 1u);
}

TEST_F(TextPictureFile, folder_that_does_not_exist_fails)
{
    for (const wchar_t* name : {L"no such folder\\a.bmp", L"no such folder\\a.png"})
    {
        EXPECT_FALSE(DrawTextToImageFile(Path(name), 40, 30, Latin, 20, 0, L"x"));
        EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: text picture not written: " + Utf8(Path(name))});
        EXPECT_FALSE(Exists(Path(name)));
    }
    EXPECT_FALSE(Exists(Path(L"no such folder")));
}

TEST_F(TextPictureFile, named_picture_lies_in_the_skin_directory_and_answers_its_bare_name)
{
    const struct
    {
        const wchar_t *name, *file;
        const char* answer;
    } rows[] = {
        {L"named", L"named.bmp", "named.bmp"},
        {L"标题", L"标题.bmp", "标题.bmp"},
        {L"a.b", L"a.b.bmp", "a.b.bmp"},
        // A folder is used, but the answer leaves it out.
        {L"new_skin\\inner", L"new_skin\\inner.bmp", "inner.bmp"},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(Utf8(CreateTextImageFile(50, 20, row.name, L"x", 16, Latin, 0)), row.answer);
        const PictureFile file = ReadPictureFile(Path(row.file));
        EXPECT_EQ(file.width, 50) << row.answer;
        EXPECT_EQ(file.height, 20) << row.answer;
    }
}

TEST_F(TextPictureFile, named_picture_that_fails_answers_nothing)
{
    EXPECT_TRUE(CreateTextImageFile(50, 20, L"refused", L"x", 16, L"", 0).IsEmpty());
    EXPECT_TRUE(CreateTextImageFile(50, 20, L"none\\such", L"x", 16, Latin, 0).IsEmpty());
    EXPECT_TRUE(CreateTextImageFile(50, 20, CString(L'x', 1000), L"x", 16, Latin, 0).IsEmpty());
    EXPECT_EQ(TakeLog().size(), 3u);
    EXPECT_FALSE(Exists(Path(L"refused.bmp")));
}

TEST_F(TextPictureFile, rewritten_text_replaces_the_former_picture)
{
    EXPECT_TRUE(DrawTextToImageFile(Path(L"again.bmp"), 100, 30, Latin, 20, 0, L"first"));
    const std::vector<std::uint8_t> first = ReadBytes(Path(L"again.bmp"));
    EXPECT_TRUE(DrawTextToImageFile(Path(L"again.bmp"), 100, 30, Latin, 20, 0, L"second"));
    const std::vector<std::uint8_t> second = ReadBytes(Path(L"again.bmp"));
    EXPECT_EQ(first.size(), second.size());
    EXPECT_NE(first, second);
}

TEST_F(TextPictureFile, a_name_as_long_as_the_file_system_takes_is_written)
{
    // 254 and 255 bytes with the extension.
    for (const int length : {250, 251})
    {
        const CString name(L'n', length);
        EXPECT_EQ(Utf8(CreateTextImageFile(50, 20, name, L"x", 16, Latin, 0)), Utf8(name + L".bmp"));
        EXPECT_EQ(ReadPictureFile(Path(name + L".bmp")).width, 50) << length;
        DeleteFileW(Path(name + L".bmp"));
    }
}

TEST_F(TextPictureFile, a_write_protected_picture_stays_and_the_failure_is_told)
{
    const CString path = Path(L"protected.bmp");
    const std::vector<std::uint8_t> former = {'f', 'o', 'r', 'm', 'e', 'r'};
    ASSERT_TRUE(WriteBytes(path, former));
    SetFileAttributesW(path, FILE_ATTRIBUTE_READONLY);
    EXPECT_TRUE(CreateTextImageFile(50, 20, L"protected", L"x", 16, Latin, 0).IsEmpty());
    EXPECT_EQ(ReadBytes(path), former);
    EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: text picture not written: " + Utf8(path)});
    SetFileAttributesW(path, FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(Utf8(CreateTextImageFile(50, 20, L"protected", L"x", 16, Latin, 0)), "protected.bmp");
}

TEST_F(TextPictureFile, sizes_that_no_bitmap_has_are_refused_and_leave_the_former_file)
{
    const std::vector<std::uint8_t> former = {'f', 'o', 'r', 'm', 'e', 'r'};
    // A bitmap's bytes in 32 bits: 4 x 40000 x 40000 are 2.1 GB and 4 x 65536 x 16385 are 256 KB.
    const std::pair<UINT, UINT> sizes[] = {{40000, 40000},
                                           {65536, 16385},
                                           {16385, 65536},
                                           {32768, 2049},
                                           {0x80000001u, 3},
                                           {3, 0xFFFFFFFFu},
                                           {0xFFFFFFFFu, 0xFFFFFFFFu}};
    for (const auto& [width, height] : sizes)
    {
        for (const wchar_t* name : {L"size.bmp", L"size.png", L"size.gif"})
        {
            ASSERT_TRUE(WriteBytes(Path(name), former));
            EXPECT_FALSE(DrawTextToImageFile(Path(name), width, height, Latin, 20, 0, L"x")) << width << " x " << height;
            EXPECT_EQ(ReadBytes(Path(name)), former);
            EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: text picture not written, no bitmap of " + std::to_string(width) + " x " +
                                       std::to_string(height) + " pixels: " + Utf8(Path(name))});
        }
    }
}

TEST_F(TextPictureFile, heights_that_no_font_has_leave_the_text_out)
{
    for (const UINT height : {0u, 32769u, 1000000000u, 0xFFFFFFFFu})
    {
        const CString path = Path(L"height.bmp");
        EXPECT_TRUE(DrawTextToImageFile(path, 40, 30, Latin, height, 0xFFFFFF, L"x"));
        const PictureFile picture = ReadPictureFile(path);
        ASSERT_EQ(picture.width, 40);
        EXPECT_EQ(picture.Argb(20, 15), 0x004D4D4Au);
        EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: no font of this height, text left out of " + Utf8(path) + ": " +
                                   std::to_string(height) + " pixels"});
    }
}
