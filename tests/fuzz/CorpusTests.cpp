// SPDX-License-Identifier: MIT
// Every file of the corpus through its target. Fuzz.exe goes on from there with files of its own.
#include "FuzzTarget.h"

#include "support/GTest.h"
#include "support/Gui.h"

#include <KernelCommonUse/StringConvert.h>

namespace
{
CString CorpusOf(const FuzzTarget& target)
{
    return Utf8ToCString(NX_CORPUS) + L"\\" + Utf8ToCString(target.name) + L"\\";
}

std::vector<CString> FilesIn(const CString& folder)
{
    std::vector<CString> files;
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileW(folder + L"*", &entry);
    for (BOOL more = search != INVALID_HANDLE_VALUE; more; more = FindNextFileW(search, &entry))
    {
        if (!(entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
        {
            files.push_back(entry.cFileName);
        }
    }
    FindClose(search);
    return files;
}

std::string BytesOf(const CString& path)
{
    const std::vector<std::uint8_t> bytes = ReadBytes(path);
    return std::string(bytes.begin(), bytes.end());
}

class FuzzCorpus : public testing::TestWithParam<FuzzTarget>
{
};

TEST_P(FuzzCorpus, holds_for)
{
    const FuzzTarget& target = GetParam();
    const std::vector<CString> files = FilesIn(CorpusOf(target));
    EXPECT_GE(files.size(), 10u);
    for (const CString& file : files)
    {
        SCOPED_TRACE(CString2string(file));
        EXPECT_NO_THROW(target.run(BytesOf(CorpusOf(target) + file)));
    }
}

INSTANTIATE_TEST_SUITE_P(Target, FuzzCorpus, testing::ValuesIn(FuzzTargets()),
                         [](const testing::TestParamInfo<FuzzTarget>& target) { return std::string(target.param.name); });

TEST(Fuzzing, says_what_does_not_hold)
{
    EXPECT_NO_THROW(Require(true, "it holds"));
    EXPECT_THROW(Require(false, "it does not hold"), Finding);
}
} // namespace
