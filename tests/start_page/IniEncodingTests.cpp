// SPDX-License-Identifier: MIT
// The ini file of the start page's texts, in each encoding that editors and the system write it in.
#include "StartPageTest.h"

#include <KernelCommonUse/StringConvert.h>

#include <functional>

namespace
{
const wchar_t* const Content = L"; 注释\r\n[其他]\r\n标题=不是这个\r\n[发布独立程序文字]\r\n标题=东湖片区城市设计发布\r\n"
                               L"项目名称 = 滨江新城仿真效果\r\n单位名称=某市规划设计研究院\r\n";

std::string Units(const CString& text, bool bigEndian)
{
    std::string bytes;
    for (int i = 0; i < text.GetLength(); ++i)
    {
        const char low = static_cast<char>(text[i] & 0xFF);
        const char high = static_cast<char>(text[i] >> 8);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

struct Encoding
{
    const char* name;
    std::string (*encode)(const CString& text);
};

void PrintTo(const Encoding& encoding, std::ostream* out)
{
    *out << encoding.name;
}

const Encoding encodings[] = {
    {"ansi_code_page_936", [](const CString& text) { return _w2a(text); }},
    {"utf_8", [](const CString& text) { return CString2string(text); }},
    {"utf_8_with_mark", [](const CString& text) { return "\xEF\xBB\xBF" + CString2string(text); }},
    {"utf_16_little_endian", [](const CString& text) { return "\xFF\xFE" + Units(text, false); }},
    {"utf_16_big_endian", [](const CString& text) { return "\xFE\xFF" + Units(text, true); }},
};
} // namespace

class IniEncodingTest : public StartPageTest, public testing::WithParamInterface<Encoding>
{
};

TEST_P(IniEncodingTest, gives_all_three_texts)
{
    ASSERT_EQ(GetACP(), 936u);
    const FileReplaced ini(IniFile(), Bytes(GetParam().encode(Content)));
    const STAPAGE page;
    EXPECT_EQ(CString2string(page.title), "东湖片区城市设计发布");
    EXPECT_EQ(CString2string(page.projectName), "滨江新城仿真效果");
    EXPECT_EQ(CString2string(page.unitName), "某市规划设计研究院");
}

INSTANTIATE_TEST_SUITE_P(StartPage, IniEncodingTest, testing::ValuesIn(encodings),
                         [](const testing::TestParamInfo<Encoding>& info) { return std::string(info.param.name); });

TEST_F(StartPageTest, without_the_ini_file_the_built_in_texts_come_through_the_ansi_code_page_on_purpose)
{
    const FileTaken ini(IniFile());
    const STAPAGE page;
    EXPECT_EQ(page.title, _a2w("QendraQMV城市设计软件V2.0发布"));
    EXPECT_EQ(page.projectName, _a2w("某某项目仿真效果发布"));
    EXPECT_EQ(page.unitName, _a2w("某某设计集团有限公司"));
}

TEST_F(StartPageTest, a_key_that_is_not_there_keeps_the_built_in_text)
{
    const FileReplaced ini(IniFile(), Bytes("[发布独立程序文字]\n项目名称=滨江新城\n[其他]\n标题=不是这个\n"));
    const STAPAGE page;
    EXPECT_EQ(page.title, _a2w("QendraQMV城市设计软件V2.0发布"));
    EXPECT_EQ(CString2string(page.projectName), "滨江新城");
}
