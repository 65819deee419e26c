// SPDX-License-Identifier: MIT
// That the counts notice what is left behind.
#include "Counts.h"

#include "support/GTest.h"

#include <platform/ProcessCounts.h>

#include <iterator>

using Lines = std::vector<std::string>;

namespace
{
constexpr int Scripts = 5;

/// Samples of one kind of count, the scripts in turn.
std::vector<Sample> Samples(std::size_t Counts::*column, const std::vector<std::size_t>& values)
{
    std::vector<Sample> samples;
    for (const std::size_t value : values)
    {
        samples.push_back({static_cast<int>(samples.size()) % Scripts, Counts()});
        samples.back().counts.*column = value;
    }
    return samples;
}

std::vector<Sample> Windows(const std::vector<std::size_t>& values)
{
    return Samples(&Counts::windows, values);
}

/// So many rounds, of which each script leaves its own number.
std::vector<std::size_t> Steady(int rounds)
{
    std::vector<std::size_t> values;
    for (int i = 0; i < rounds; ++i)
    {
        values.push_back(static_cast<std::size_t>(100 + 7 * (i % Scripts)));
    }
    return values;
}
} // namespace

TEST(SoakCounts, scripts_that_leave_different_numbers_again_and_again_are_no_growth)
{
    EXPECT_EQ(Growth(Windows(Steady(20)), 0), Lines{});
}

TEST(SoakCounts, what_goes_up_and_down_is_no_growth)
{
    std::vector<std::size_t> values = Steady(20);
    values[7] += 9;
    values[13] -= 5;
    values[19] += 30;
    EXPECT_EQ(Growth(Windows(values), 0), Lines{});
}

TEST(SoakCounts, what_comes_once_after_the_first_turn_and_stays_is_no_growth)
{
    std::vector<std::size_t> values = Steady(20);
    for (std::size_t i = Scripts; i < values.size(); ++i)
    {
        values[i] += 3;
    }
    EXPECT_EQ(Growth(Windows(values), 0), Lines{});
}

TEST(SoakCounts, one_object_in_ten_rounds_is_growth_whenever_it_comes)
{
    for (std::size_t first = 0; first < 10; ++first)
    {
        std::vector<std::size_t> values = Steady(20);
        for (std::size_t i = 0; i < values.size(); ++i)
        {
            values[i] += (i + first) / 10;
        }
        EXPECT_EQ(Growth(Windows(values), 0).size(), 1u) << first;
    }
}

TEST(SoakCounts, growth_names_what_grows_and_by_how_much)
{
    std::vector<std::size_t> values = Steady(20);
    for (std::size_t i = 0; i < values.size(); ++i)
    {
        values[i] += 2 * i;
    }
    EXPECT_EQ(Growth(Windows(values), 0), Lines{"windows: 2 more a round"});
}

TEST(SoakCounts, memory_has_its_allowance_and_objects_have_none)
{
    std::vector<std::size_t> values = Steady(20);
    for (std::size_t i = 0; i < values.size(); ++i)
    {
        values[i] += 500 * i;
    }
    EXPECT_EQ(Growth(Samples(&Counts::memory, values), 500), Lines{});
    EXPECT_EQ(Growth(Samples(&Counts::memory, values), 499), Lines{"memory: 500 more a round"});
    EXPECT_EQ(Growth(Samples(&Counts::gdi, values), 500), Lines{"GDI: 500 more a round"});
}

TEST(SoakCounts, a_leak_of_each_kind_is_found_by_itself)
{
    const std::vector<std::vector<Sample>> leaks = WithLeaks(Windows(Steady(20)), 0.1, 1000);
    const char* const names[] = {"GDI", "user", "open files", "handles", "windows", "images", "textures", "disk files", "memory"};
    ASSERT_EQ(leaks.size(), std::size(names));
    for (std::size_t i = 0; i < leaks.size(); ++i)
    {
        const Lines growth = Growth(leaks[i], 999);
        ASSERT_EQ(growth.size(), 1u) << names[i];
        EXPECT_EQ(growth[0].find(names[i]), 0u) << growth[0];
    }
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
