// SPDX-License-Identifier: MIT
// Which of the installed fonts are listed, with fonts of the names that matter.
#include "FontInstallTest.h"

#include "support/RenamedFont.h"

#include <panels/FontNames.h>

#include <algorithm>

namespace
{
/// A font of a family for this process, while the object lives.
class PrivateFont
{
public:
    explicit PrivateFont(const CString& family) : path_(AppDir() + L"private.ttf")
    {
        EXPECT_TRUE(WriteBytes(path_, RenamedFont(ReadBytes(CString(NX_TEST_FONT)), family)));
        EXPECT_GT(AddFontResourceExW(path_, FR_PRIVATE, nullptr), 0) << Utf8(family);
    }
    ~PrivateFont()
    {
        RemoveFontResourceExW(path_, FR_PRIVATE, nullptr);
        DeleteFileW(path_);
    }
    PrivateFont(const PrivateFont&) = delete;
    PrivateFont& operator=(const PrivateFont&) = delete;

private:
    CString path_;
};

int CALLBACK NoteFace(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM names)
{
    reinterpret_cast<std::vector<CString>*>(names)->push_back(font->lfFaceName);
    return 1;
}

/// What the system itself lists.
bool SystemLists(const CString& family)
{
    std::vector<CString> names;
    LOGFONTW wanted = {};
    wanted.lfCharSet = GB2312_CHARSET;
    const HDC screen = GetDC(nullptr);
    EnumFontFamiliesExW(screen, &wanted, &NoteFace, reinterpret_cast<LPARAM>(&names), 0);
    ReleaseDC(nullptr, screen);
    return std::count(names.begin(), names.end(), family) > 0;
}
} // namespace

class ListedFontTest : public FontInstallTest
{
};

TEST_F(ListedFontTest, a_few_names_are_left_out)
{
    for (const wchar_t* family : {L"Fixedsys", L"System", L"Terminal", L"仿宋_GB2312", L"仿宋_gb2312"})
    {
        const PrivateFont font(family);
        EXPECT_TRUE(SystemLists(family)) << Utf8(family);
        EXPECT_FALSE(IsFontInstalled(family)) << Utf8(family);
    }
}

TEST_F(ListedFontTest, names_that_only_resemble_them_are_listed)
{
    for (const wchar_t* family : {L"fixedsys", L"System2", L"terminal", L"仿宋", L"仿宋_GB18030", L"楷体_GB2312"})
    {
        const PrivateFont font(family);
        EXPECT_TRUE(IsFontInstalled(family)) << Utf8(family);
    }
}

TEST_F(ListedFontTest, vertical_variants_are_left_out)
{
    const PrivateFont font(L"Nx Upright");
    EXPECT_TRUE(SystemLists(L"@Nx Upright"));
    EXPECT_FALSE(IsFontInstalled(L"@Nx Upright"));
    EXPECT_TRUE(IsFontInstalled(L"Nx Upright"));
}
