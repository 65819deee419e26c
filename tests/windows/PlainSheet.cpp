// SPDX-License-Identifier: MIT
// The fixture of the bars' tests for those that need no bar.
#include "widgets/Sheet.h"

#include <KernelCommonUse/StringConvert.h>

std::string Text(const RECT& rect)
{
    return std::to_string(rect.left) + "," + std::to_string(rect.top) + " - " + std::to_string(rect.right) + "," +
           std::to_string(rect.bottom);
}

std::string Utf8(const CString& text)
{
    return CString2string(text);
}

void SheetTest::SetUp()
{
    logSeen_ = LogLines().size();
}

void SheetTest::TearDown()
{
    EXPECT_EQ(TakeLog(), Lines{}) << "lines of the log that no test asked for";
}

std::vector<std::string> SheetTest::TakeLog()
{
    const std::vector<std::string> all = LogLines();
    std::vector<std::string> taken(all.begin() + static_cast<std::ptrdiff_t>(logSeen_), all.end());
    logSeen_ = all.size();
    return taken;
}
