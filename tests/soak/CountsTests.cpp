// SPDX-License-Identifier: MIT
// That the counts notice what is left behind.
#include "Counts.h"

#include "support/GTest.h"

#include <platform/ProcessCounts.h>

using Lines = std::vector<std::string>;

namespace
{
std::vector<Counts> Memories(const std::vector<std::size_t>& values)
{
    std::vector<Counts> times;
    for (const std::size_t value : values)
    {
        times.emplace_back();
        times.back().memory = value;
    }
    return times;
}

std::vector<Counts> Windows(const std::vector<std::size_t>& values)
{
    std::vector<Counts> times;
    for (const std::size_t value : values)
    {
        times.emplace_back();
        times.back().windows = value;
    }
    return times;
}
} // namespace

TEST(SoakCounts, what_stays_or_goes_up_and_down_is_no_growth)
{
    EXPECT_EQ(Growth(Windows({5, 5}), 0), Lines{});
    EXPECT_EQ(Growth(Windows({5, 7, 6, 7}), 0), Lines{});
    EXPECT_EQ(Growth(Windows({9, 5, 5, 5}), 0), Lines{});
}

TEST(SoakCounts, one_more_at_last_is_growth)
{
    EXPECT_EQ(Growth(Windows({5, 6}), 0), Lines{"windows: never over 5 at first, 6 at last"});
    EXPECT_EQ(Growth(Windows({5, 5, 6, 6, 7, 7}), 0), Lines{"windows: never over 6 at first, 7 at last"});
}

TEST(SoakCounts, every_column_is_looked_at)
{
    Counts less;
    Counts more;
    for (std::size_t Counts::*column : {&Counts::gdi, &Counts::user, &Counts::openFiles, &Counts::handles, &Counts::windows,
                                        &Counts::images, &Counts::textures, &Counts::diskFiles, &Counts::memory})
    {
        less.*column = 100;
        more.*column = 200;
    }
    EXPECT_EQ(Growth({less, more}, 0).size(), 9u);
}

TEST(SoakCounts, memory_has_its_allowance)
{
    EXPECT_EQ(Growth(Memories({1000, 1500}), 500), Lines{});
    EXPECT_EQ(Growth(Memories({1000, 1501}), 500), Lines{"memory: never over 1000 at first, 1501 at last"});
}

TEST(SoakCounts, memory_that_is_kept_is_counted)
{
    const std::size_t before = CountProcess().memory;
    const std::vector<char> kept(300000, 'x');
    EXPECT_GE(CountProcess().memory, before + kept.size());
}

TEST(SoakCounts, each_kind_of_handle_is_counted)
{
    const ProcessCounts before = CountProcess();
    const HMENU menu = CreatePopupMenu();
    const HWND window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    const HICON icon = CopyIcon(LoadIconW(nullptr, reinterpret_cast<LPCWSTR>(IDI_APPLICATION)));
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    const HDC context = CreateCompatibleDC(nullptr);
    const HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    const ProcessCounts during = CountProcess();
    CloseHandle(event);
    DeleteDC(context);
    DeleteObject(brush);
    DestroyIcon(icon);
    DestroyWindow(window);
    DestroyMenu(menu);
    const ProcessCounts after = CountProcess();
    EXPECT_GE(during.user, before.user + 3) << "a menu, a window and an icon";
    EXPECT_GE(during.gdi, before.gdi + 2) << "a brush and a device context";
    EXPECT_GE(during.handles, before.handles + 1);
    EXPECT_GE(during.user, after.user + 3);
    EXPECT_LT(after.handles, during.handles);
}

TEST(SoakCounts, open_files_are_counted)
{
    const std::size_t before = CountProcess().openFiles;
    std::FILE* file = std::fopen("CEGUI.log", "a");
    ASSERT_TRUE(file);
    EXPECT_EQ(CountProcess().openFiles, before + 1);
    std::fclose(file);
    EXPECT_EQ(CountProcess().openFiles, before);
}
