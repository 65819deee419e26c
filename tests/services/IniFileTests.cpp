// SPDX-License-Identifier: MIT
#include "../support/GTest.h"
#include "TestFolder.h"

#include <KernelCommonUse/IniFile.h>

namespace
{
const std::string Utf8Mark = "\xEF\xBB\xBF";

// Of UTF-8 text whose characters lie in the basic plane.
std::string Utf16(const std::string& utf8, bool bigEndian)
{
    CString wide;
    const int size = static_cast<int>(utf8.size());
    const int count = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.GetBuffer(size), size);
    wide.ReleaseBuffer(count);
    std::string bytes = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (int index = 0; index < count; ++index)
    {
        const char low = static_cast<char>(wide[index] & 0xFF);
        const char high = static_cast<char>(wide[index] >> 8);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

const char Content[] = "; 注释\r\n[发布独立程序文字]\r\n标题 = 滨江新城 \r\nsize=13\r\n";
} // namespace

TEST(IniFile, ReadsEveryEncoding)
{
    struct Row
    {
        const char* name;
        std::string bytes;
        UINT codePage;
    };
    const Row rows[] = {
        {"UTF-8", Content, 0},
        {"UTF-8 with mark", Utf8Mark + Content, 0},
        {"UTF-16 LE", Utf16(Content, false), 0},
        {"UTF-16 BE", Utf16(Content, true), 0},
        {"ANSI 936",
         "[\xB7\xA2\xB2\xBC\xB6\xC0\xC1\xA2\xB3\xCC\xD0\xF2\xCE\xC4\xD7\xD6]\r\n"
         "\xB1\xEA\xCC\xE2=\xB1\xF5\xBD\xAD\xD0\xC2\xB3\xC7\r\nsize=13",
         936},
    };
    for (const Row& row : rows)
    {
        if (row.codePage != 0 && row.codePage != GetACP())
        {
            continue;
        }
        SCOPED_TRACE(row.name);
        TestFolder folder;
        CIniFile file;
        file.SetPath(folder.Write(L"tavmemory.ini", row.bytes));
        EXPECT_EQ(Utf8(file.GetKeyValue(L"发布独立程序文字", L"标题")), "滨江新城");
        EXPECT_EQ(Utf8(file.GetKeyValue(L"发布独立程序文字", L"size")), "13");
        EXPECT_EQ(folder.TakeLog(), std::vector<std::string>());
    }
}

TEST(IniFile, ReadsWesternTextInCodePage1252)
{
    if (GetACP() != 1252)
    {
        GTEST_SKIP() << "needs the code page 1252";
    }
    TestFolder folder;
    CIniFile file;
    file.SetPath(folder.Write(L"a.ini", "[s]\nk=caf\xE9\n"));
    EXPECT_EQ(Utf8(file.GetKeyValue(L"s", L"k")), "café");
}

TEST(IniFile, TakesLinesAsIniFilesDo)
{
    struct Row
    {
        const char* name;
        const char* bytes;
        const wchar_t* section;
        const wchar_t* key;
        const char* expected;
    };
    const Row rows[] = {
        {"blanks around", "[ s ]\n \t k \t= \t v w \t\n", L"s", L"k", "v w"},
        {"equals in the value", "[s]\nk=a=b\n", L"s", L"k", "a=b"},
        {"empty value", "[s]\nk=\n", L"s", L"k", ""},
        {"comment signs in the value", "[s]\nk=a;b#c\n", L"s", L"k", "a;b#c"},
        {"comment line", "[s]\n;k=1\n#k=2\n ;k=3\nk=4", L"s", L"k", "4"},
        {"first of equal keys", "[s]\nk=1\nk=2\n", L"s", L"k", "1"},
        {"section twice", "[s]\na=1\n[t]\na=2\n[s]\nb=3\n", L"s", L"b", "3"},
        {"other section", "[s]\nk=1\n[t]\nk=2\n", L"t", L"k", "2"},
        {"no section", "k=1\n[s]\nk=2\n", L"", L"k", "1"},
        {"case", "[Common]\nLanguage=en\n", L"COMMON", L"language", "en"},
        {"old line ends", "[s]\rk=1\rl=2\r", L"s", L"l", "2"},
        {"text behind the bracket", "[s] ; comment\nk=1\n", L"s", L"k", "1"},
        {"no such key", "[s]\nk=1\n", L"s", L"l", ""},
        {"no such section", "[s]\nk=1\n", L"t", L"k", ""},
        {"empty file", "", L"s", L"k", ""},
        {"mark only", "\xEF\xBB\xBF", L"s", L"k", ""},
        {"half a mark", "\xEF\xBB", L"s", L"k", ""},
        {"full stop in the key", "[s]\nLKEY10266.=v\n", L"s", L"LKEY10266.", "v"},
        {"backslash at the end", "[s]\nk=cegui\\TavLook\\\nl=1\n", L"s", L"k", "cegui\\TavLook\\"},
    };
    for (const Row& row : rows)
    {
        SCOPED_TRACE(row.name);
        TestFolder folder;
        CIniFile file;
        file.SetPath(folder.Write(L"a.ini", row.bytes));
        EXPECT_EQ(Utf8(file.GetKeyValue(row.section, row.key)), row.expected);
    }
}

TEST(IniFile, ReportsMalformedLinesAndKeepsTheRest)
{
    struct Row
    {
        const char* name;
        std::string bytes;
        const char* report;
    };
    const Row rows[] = {
        {"no equals", "[s]\na=1\nnonsense\nb=2\n", ", line 3: no '=' in it; the line is skipped."},
        {"empty key", "[s]\r\na=1\r\n =5\r\nb=2\r\n", ", line 3: an empty key; the line is skipped."},
        {"bracket", "[s]\na=1\n[t\nb=2\n", ", line 3: a section bracket that is not closed; the line is skipped."},
        {"null", Bytes("[s]\na=1\nc=\0x\nb=2\n"), ", line 3: a null in it; the line is skipped."},
        {"UTF-8", Utf8Mark + "[s]\na=1\nc=\xE5\x9F\nb=2\n", ", line 3: not valid UTF-8; the line is skipped."},
        {"overlong", Utf8Mark + "[s]\na=1\nc=\xC0\xAF\nb=2\n", ", line 3: not valid UTF-8; the line is skipped."},
        {"UTF-16", Utf16("[s]\na=1\nc=", false) + Bytes("\x3C\xD8\n\0") + Utf16("b=2\n", false).substr(2),
         ", line 3: not valid UTF-16; the line is skipped."},
        {"UTF-16 null", Utf16("[s]\na=1\nc=", true) + Bytes("\0\0\0\n") + Utf16("b=2\n", true).substr(2),
         ", line 3: a null in it; the line is skipped."},
        {"half a unit", Utf16("[s]\na=1\nb=2\nc=3", false) + "x", ", line 4: not valid UTF-16; the line is skipped."},
        {"in a comment", Utf8Mark + "[s]\na=1\nb=2\n;\xFF\n", ", line 4: not valid UTF-8; the line is skipped."},
    };
    for (const Row& row : rows)
    {
        SCOPED_TRACE(row.name);
        TestFolder folder;
        const CString path = folder.Write(L"bad.ini", row.bytes);
        CIniFile file;
        file.SetPath(path);
        EXPECT_EQ(Utf8(file.GetKeyValue(L"s", L"a")), "1");
        EXPECT_EQ(Utf8(file.GetKeyValue(L"s", L"b")), "2");
        EXPECT_EQ(Utf8(file.GetKeyValue(L"s", L"c")), "");
        EXPECT_EQ(folder.TakeLog(), std::vector<std::string>{Utf8(path) + row.report});
    }
}

TEST(IniFile, ReportsNoMoreThanAHundredMalformedLines)
{
    std::string bytes = "[s]\n";
    for (int line = 0; line < 3000; ++line)
    {
        bytes += "nonsense\n";
    }
    TestFolder folder;
    const CString path = folder.Write(L"nonsense.ini", bytes + "k=1");
    CIniFile file;
    file.SetPath(path);
    EXPECT_EQ(Utf8(file.GetKeyValue(L"s", L"k")), "1");
    const std::vector<std::string> log = folder.TakeLog();
    ASSERT_EQ(log.size(), 101u);
    EXPECT_EQ(log[99], Utf8(path) + ", line 101: no '=' in it; the line is skipped.");
    EXPECT_EQ(log[100], "The file " + Utf8(path) + " has 2900 more lines that are skipped.");
}

TEST(IniFile, ManyLinesTakeNoLongerEachThanFew)
{
    TestFolder folder;
    CIniFile file;
    file.SetPath(folder.Write(L"lines.ini", std::string(2 * 1024 * 1024, '\n') + "[s]\nk=1"));
    const ULONGLONG start = GetTickCount64();
    EXPECT_EQ(Utf8(file.GetKeyValue(L"s", L"k")), "1");
    // To look through the rest of the file for each line took minutes.
    EXPECT_LT(GetTickCount64() - start, 20000u);
}

TEST(IniFile, RefusesFilesOverFourMegabytes)
{
    const std::string head = "[s]\nk=1\n;";
    const std::size_t maximum = 4 * 1024 * 1024;
    TestFolder folder;
    CIniFile file;
    file.SetPath(folder.Write(L"full.ini", head + std::string(maximum - head.size(), 'x')));
    EXPECT_EQ(Utf8(file.GetKeyValue(L"s", L"k")), "1");
    EXPECT_EQ(folder.TakeLog(), std::vector<std::string>());

    const CString path = folder.Write(L"large.ini", head + std::string(maximum - head.size() + 1, 'x'));
    file.SetPath(path);
    EXPECT_EQ(Utf8(file.GetKeyValue(L"s", L"k")), "");
    EXPECT_EQ(Utf8(file.GetKeyValue(L"s", L"k")), "");
    EXPECT_EQ(folder.TakeLog(), std::vector<std::string>{"The file " + Utf8(path) + " is larger than 4 MB and is not read."});
}

TEST(IniFile, IsEmptyWithoutAFileAndReadAgainAfterSetPath)
{
    TestFolder folder;
    CIniFile file;
    EXPECT_EQ(Utf8(file.GetKeyValue(L"s", L"k")), "");
    const CString path = folder.Path() + L"later.ini";
    file.SetPath(path);
    EXPECT_EQ(Utf8(file.GetKeyValue(L"s", L"k")), "");
    folder.Write(L"later.ini", "[s]\nk=1\n");
    EXPECT_EQ(Utf8(file.GetKeyValue(L"s", L"k")), "");
    file.SetPath(path);
    EXPECT_EQ(Utf8(file.GetKeyValue(L"s", L"k")), "1");
    EXPECT_EQ(folder.TakeLog(), std::vector<std::string>());
    file.SetPath(folder.Path());
    EXPECT_EQ(Utf8(file.GetKeyValue(L"s", L"k")), "");
    EXPECT_EQ(folder.TakeLog(), std::vector<std::string>{"The file " + Utf8(folder.Path()) + " cannot be read."});
}
