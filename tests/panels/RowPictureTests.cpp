// SPDX-License-Identifier: MIT
// The picture of the property list: its height, its row backgrounds, and names and values at their places.
#include "PanelTest.h"

#include <widgets/TextMeasurer.h>

using RowPictureTest = PanelTest;

TEST_F(RowPictureTest, without_rows_all_is_row_background)
{
    Open({});
    const PictureFile list = ReadPictureFile(ListFile());
    const PictureFile empty = DrawnRow(L"", L"");
    const PictureFile source = ReadPictureFile(TemplateFile());
    ASSERT_EQ(list.width, 260);
    ASSERT_EQ(list.height, ListHeight);
    EXPECT_TRUE(SamePixels(empty, 0, source, 38, RowHeight)) << "the reference itself";
    for (int row = 0; row < 21; ++row)
    {
        EXPECT_TRUE(SamePixels(list, row * RowHeight, empty, 0, RowHeight)) << "row " << row;
    }
    EXPECT_TRUE(SamePixels(list, 21 * RowHeight, empty, 0, ListHeight - 21 * RowHeight)) << "patterned down to its end";
}

TEST_F(RowPictureTest, names_and_values_stand_at_their_places)
{
    const Rows rows = {{L"用途", L"住宅"}, {L"Height", L"45.2 m"}, {L"", L"only a value"}, {L"only a name", L""}};
    Open(rows);
    const PictureFile list = ReadPictureFile(ListFile());
    for (std::size_t row = 0; row < rows.size(); ++row)
    {
        EXPECT_TRUE(
            SamePixels(list, static_cast<int>(row) * RowHeight, DrawnRow(rows[row].first, rows[row].second), 0, RowHeight))
            << "row " << row;
    }
    EXPECT_TRUE(SamePixels(list, 4 * RowHeight, DrawnRow(L"", L""), 0, RowHeight)) << "below the last row";
    EXPECT_FALSE(SamePixels(list, 0, DrawnRow(L"", L""), 0, RowHeight)) << "the comparison tells text from none";
}

TEST_F(RowPictureTest, texts_wider_than_their_columns_are_shortened)
{
    const wchar_t* const longText = L"建筑占地面积与总建筑面积以及其他说明";
    Open({{longText, longText}});
    const PictureFile list = ReadPictureFile(ListFile());
    // 80 and 110 pixels hold 5 and 8 characters of 12 pixels and the dots.
    int fitting = 0;
    for (int name = 3; name < 8; ++name)
    {
        for (int value = 5; value < 10; ++value)
        {
            const bool same = bool(SamePixels(
                list, 0, DrawnRow(CString(longText).Left(name) + L"...", CString(longText).Left(value) + L"..."), 0, RowHeight));
            fitting += same;
        }
    }
    EXPECT_EQ(fitting, 1) << "one way of shortening, and with dots";
    EXPECT_FALSE(SamePixels(list, 0, DrawnRow(longText, longText), 0, RowHeight));
}

TEST_F(RowPictureTest, names_have_80_pixels_and_values_110)
{
    const TextMeasurer measurer(L"Noto Sans CJK SC", 12, gp::TextRenderingHintClearTypeGridFit);
    const auto textOfWidth = [&](float above, float upTo)
    {
        for (int wide = 0; wide < 12; ++wide)
        {
            CString text = Repeated(L"W", wide);
            for (int narrow = 0; measurer.Box(text).Width <= upTo; ++narrow)
            {
                if (measurer.Box(text).Width > above)
                {
                    return text;
                }
                text += narrow % 2 ? L"i" : L"t";
            }
        }
        return CString();
    };
    for (const auto& [name, value] : {std::pair(80.0f, 110.0f), std::pair(79.0f, 109.0f)})
    {
        const CString longName = textOfWidth(name, name + 1);
        const CString longValue = textOfWidth(value, value + 1);
        ASSERT_FALSE(longName.IsEmpty() || longValue.IsEmpty());
        Open({{longName, L""}, {L"", longValue}});
        const PictureFile list = ReadPictureFile(ListFile());
        const bool fits = name < 80;
        EXPECT_EQ(bool(SamePixels(list, 0, DrawnRow(longName, L""), 0, RowHeight)), fits) << Utf8(longName);
        EXPECT_EQ(bool(SamePixels(list, RowHeight, DrawnRow(L"", longValue), 0, RowHeight)), fits) << Utf8(longValue);
        Frame().OpenPropertyDlg(nullptr, false);
    }
}

TEST_F(RowPictureTest, rows_make_the_picture_taller_than_its_place)
{
    const Rows rows = NumberedRows(40);
    Open(rows);
    const PictureFile list = ReadPictureFile(ListFile());
    ASSERT_EQ(list.height, 920);
    for (const int row : {0, 1, 21, 22, 39})
    {
        EXPECT_TRUE(SamePixels(list, row * RowHeight,
                               DrawnRow(rows[static_cast<std::size_t>(row)].first, rows[static_cast<std::size_t>(row)].second), 0,
                               RowHeight))
            << "row " << row;
    }
}

TEST_F(RowPictureTest, a_hundred_rows_are_2300_pixels)
{
    Open(NumberedRows(100));
    EXPECT_EQ(ReadPictureFile(ListFile()).height, 2300);
    EXPECT_EQ(Place(ListPicture), "538,85 - 798,2385");
}

TEST_F(RowPictureTest, exactly_as_many_rows_as_fit)
{
    Open(NumberedRows(21));
    EXPECT_EQ(ReadPictureFile(ListFile()).height, 503);
    Refresh(NumberedRows(22));
    EXPECT_EQ(ReadPictureFile(ListFile()).height, 506);
}

TEST_F(RowPictureTest, every_refresh_draws_the_open_list_anew)
{
    Open(NumberedRows(3));
    MakeOld(ListFile());
    EXPECT_TRUE(Frame().RefreshPropertyDlg());
    EXPECT_FALSE(IsOld(ListFile()));
    EXPECT_TRUE(Refresh({{L"用途", L"办公"}}));
    const PictureFile list = ReadPictureFile(ListFile());
    EXPECT_TRUE(SamePixels(list, 0, DrawnRow(L"用途", L"办公"), 0, RowHeight));
    EXPECT_TRUE(SamePixels(list, RowHeight, DrawnRow(L"", L""), 0, RowHeight));
}

TEST_F(RowPictureTest, what_is_seen_is_the_rows_over_the_scene)
{
    const Rows rows = {{L"用途", L"住宅"}, {L"Height", L"45.2 m"}};
    Open(rows);
    const Screenshot shot = Host().Shoot();
    for (int row = 0; row < 2; ++row)
    {
        const PictureFile drawn = DrawnRow(rows[static_cast<std::size_t>(row)].first, rows[static_cast<std::size_t>(row)].second);
        int differing = 0;
        for (int y = 0; y < RowHeight; ++y)
        {
            for (int x = 0; x < 260; ++x)
            {
                differing +=
                    !LooksLike(shot.At(538 + x, ListTop + row * RowHeight + y), Blend(drawn.Argb(x, y), Background()), 4);
            }
        }
        EXPECT_EQ(differing, 0) << "row " << row;
    }
}

TEST_F(RowPictureTest, the_same_two_files_are_overwritten_on_purpose)
{
    // What longer lists have left.
    DeleteFileW(SkinDir() + L"PropertyImage_0_0.bmp");
    DeleteFileW(SkinDir() + L"PropertyImage_0_1.bmp");
    Open(NumberedRows(3));
    for (int times = 0; times < 3; ++times)
    {
        Frame().OnToolBarFullScene(times % 2 == 0);
        Refresh(NumberedRows(times));
    }
    for (const wchar_t* pattern : {L"PropertyImage_*", L"PropertyFormbackImage_*"})
    {
        WIN32_FIND_DATAW found;
        const HANDLE find = FindFirstFileW(SkinDir() + pattern, &found);
        ASSERT_NE(find, INVALID_HANDLE_VALUE);
        EXPECT_EQ(Utf8(found.cFileName), Utf8(CString(pattern).Left(CString(pattern).GetLength() - 1) + L"0.bmp"));
        EXPECT_FALSE(FindNextFileW(find, &found)) << Utf8(found.cFileName);
        FindClose(find);
    }
}

TEST_F(RowPictureTest, odd_texts_are_drawn_without_harm)
{
    CString huge;
    for (int i = 0; i < 5000; ++i)
    {
        huge += L"很";
    }
    Open({{huge, huge}, {L"a\r\nb", L"c\td"}, {L"\xD83C\xDFD9", L"\xD83C"}, {L"last", L"row"}});
    const PictureFile list = ReadPictureFile(ListFile());
    EXPECT_EQ(list.height, ListHeight);
    EXPECT_TRUE(SamePixels(list, 3 * RowHeight, DrawnRow(L"last", L"row"), 0, RowHeight));
}
