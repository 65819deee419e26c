// SPDX-License-Identifier: MIT
// The printed start page against reference pictures, texts included, in a font that the tests bring along.
#include "PictureCompare.h"
#include "StartPageTest.h"

#include <NxConfig/ParamConfig.h>

namespace
{
/// Drawn by one rasteriser from one font: room only for other versions of it, which shade edges of letters differently.
constexpr Tolerance SameText = {40, 0.15};

CString Reference(const wchar_t* name)
{
    return CString(NX_START_PAGE_REFERENCES) + L"/" + name + L".png";
}
} // namespace

class ReferenceTest : public StartPageTest
{
protected:
    void SetUp() override
    {
        ASSERT_GT(AddFontResourceExW(CString(NX_TEST_FONT), FR_PRIVATE, nullptr), 0);
        CParamConfig::getInstance()->setStringParam("Language", "start-page-test");
        ASSERT_EQ(STAPAGE().titleFont, L"Nx Test Text");
    }
    void TearDown() override
    {
        CParamConfig::getInstance()->setStringParam("Language", "zh-CN");
        RemoveFontResourceExW(CString(NX_TEST_FONT), FR_PRIVATE, nullptr);
    }

    void Print(const std::string& title, const std::string& project, const std::string& unit)
    {
        const FileReplaced texts(IniFile(), Bytes("\xEF\xBB\xBF[发布独立程序文字]\n标题=" + title + "\n项目名称=" + project +
                                                  "\n单位名称=" + unit + "\n"));
        DeleteFileW(Printed());
        frame_.ClearStaPageParameter();
    }

    FileReplaced language_{AppDir() + L"languages\\start-page-test.ini", Bytes("[Common]\nLKEY11=Nx Test Text\n")};
};

TEST_F(ReferenceTest, latin_texts)
{
    Print("Riverside Masterplan 2.0", "East Lake District", "Institute of City Planning");
    EXPECT_TRUE(LooksLikeReference(Printed(), Reference(L"latin"), SameText, L"latin"));
}

TEST_F(ReferenceTest, chinese_texts)
{
    Print("东湖片区城市设计发布 2.0", "滨江新城项目仿真效果发布", "某某规划设计集团有限公司");
    EXPECT_TRUE(LooksLikeReference(Printed(), Reference(L"chinese"), SameText, L"chinese"));
}

TEST_F(ReferenceTest, a_project_name_wider_than_the_picture)
{
    Print("Wide", "滨江新城滨江新城滨江新城滨江新城滨江新城滨江新城", "Centred and clipped");
    EXPECT_TRUE(LooksLikeReference(Printed(), Reference(L"wide"), SameText, L"wide"));
}

TEST_F(ReferenceTest, the_comparison_sees_one_other_letter)
{
    Print("Riverside Masterplan 2.1", "East Lake District", "Institute of City Planning");
    EXPECT_FALSE(LooksLikeReference(Printed(), Reference(L"latin"), SameText, L"other-letter"));
}
