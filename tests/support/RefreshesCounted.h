// SPDX-License-Identifier: MIT
#pragma once

#include "GTest.h"

#include <NxOsgCeGui/CeGuiMainFrame.h>

#include <algorithm>

/// Counts the refreshes that the frame asks itself for, as a class derived from it would: by a table of its own in which that
/// one operation is another.
class RefreshesCounted
{
public:
    RefreshesCounted() : table_(*reinterpret_cast<void***>(CeGuiMainFrame::GetInstance()))
    {
        std::copy(table_ - Head, table_ + Slots, copy_);
        copy_[Head + RefreshSlot] = reinterpret_cast<void*>(&Count);
        *reinterpret_cast<void***>(CeGuiMainFrame::GetInstance()) = copy_ + Head;
        count = 0;
    }
    ~RefreshesCounted() { *reinterpret_cast<void***>(CeGuiMainFrame::GetInstance()) = table_; }
    RefreshesCounted(const RefreshesCounted&) = delete;
    RefreshesCounted& operator=(const RefreshesCounted&) = delete;

    inline static int count = 0;

private:
    static constexpr int Head = 2; ///< offset and type before the first operation
    static constexpr int Slots = 16;
    static constexpr int RefreshSlot = 14;
    static bool Count(CeGuiMainFrame*, GUIBTNTYPE type)
    {
        EXPECT_EQ(type, GUI_BTN_ALL);
        ++count;
        return true;
    }
    void** table_;
    void* copy_[Head + Slots];
};
