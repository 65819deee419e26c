// SPDX-License-Identifier: MIT
// Neither memory nor the time of a refresh grows with rows that are not shown.
#include "LongListTest.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace
{
/// The shortest of a few refreshes: others use the machine, too.
double RefreshSeconds()
{
    double shortest = 1e9;
    for (int i = 0; i < 4; ++i)
    {
        const auto start = std::chrono::steady_clock::now();
        CeGuiMainFrame::GetInstance()->RefreshPropertyDlg();
        shortest = std::min(shortest, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    return shortest;
}

/// The process's resident memory.
long ResidentMegabytes()
{
    long pages = 0;
    if (std::FILE* file = std::fopen("/proc/self/statm", "r"))
    {
        if (std::fscanf(file, "%*d %ld", &pages) != 1)
        {
            pages = 0;
        }
        std::fclose(file);
    }
    return pages * 4096 / (1024 * 1024);
}
} // namespace

TEST_F(LongListTest, memory_does_not_grow_with_the_rows)
{
    // What a shorter list has left.
    DeleteFileW(ListFile());
    // The host's copy of the rows is its own and there before.
    Rows rows = NumberedRows(100000);
    Frame().setPropertyData(rows);
    const long before = ResidentMegabytes();
    ASSERT_GT(before, 0);
    Open(rows);
    Frame().RefreshPropertyDlg();
    Drag(100);
    Drag(1000);
    // One picture of it all would take 2,281.
    EXPECT_LT(ResidentMegabytes() - before, 100);
    WIN32_FIND_DATAW found;
    const HANDLE find = FindFirstFileW(SkinDir() + L"PropertyImage_0*", &found);
    ASSERT_NE(find, INVALID_HANDLE_VALUE);
    do
    {
        EXPECT_LT(found.nFileSizeLow, 2u * 1024 * 1024) << Utf8(found.cFileName);
    } while (FindNextFileW(find, &found));
    FindClose(find);
}

TEST_F(LongListTest, a_refresh_takes_no_longer_per_row_with_more_rows)
{
    Open({});
    double formerSeconds = 0;
    int former = 0;
    // Up to 700 rows are one picture here, which is drawn whole.
    for (const int rows : {100, 700, 1000, 10000, 100000})
    {
        Refresh(NumberedRows(rows));
        const double seconds = RefreshSeconds();
        if (former > 0)
        {
            EXPECT_LT(seconds / rows, formerSeconds / former * 2) << rows << " rows after " << former;
        }
        formerSeconds = seconds;
        former = rows;
    }
}

TEST_F(LongListTest, ten_rows_take_no_longer_than_a_hundred)
{
    Open(NumberedRows(100));
    const double hundred = RefreshSeconds();
    Refresh(NumberedRows(10));
    EXPECT_LT(RefreshSeconds(), hundred * 1.5);
}
