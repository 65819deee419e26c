// SPDX-License-Identifier: MIT
// The two skins that are shipped.
#include "support/HostedFrame.h"

#include "skin/SkinFolder.h"

#include <NxConfig/ParamConfig.h>
#include <NxConfig/SystemUtility.h>

#include <algorithm>
#include <cmath>

namespace
{
CString Skin(const wchar_t* name)
{
    return AppDir() + SystemUtility::GetResourceRelPath() + L"cegui\\" + name + L"\\";
}

const wchar_t* const skinNames[] = {L"TavLook", L"TavLookLight"};
constexpr Pixel White = {255, 255, 255};
constexpr Pixel Black = {0, 0, 0};
/// Enough to read small text by.
constexpr double Readable = 4.5;

double Linear(int component)
{
    const double value = component / 255.0;
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

/// As the accessibility guidelines for the web define it: 1 to 21.
double Contrast(Pixel a, Pixel b)
{
    const auto luminance = [](Pixel p)
    { return 0.2126 * Linear(p.red) + 0.7152 * Linear(p.green) + 0.0722 * Linear(p.blue) + 0.05; };
    const double first = luminance(a);
    const double second = luminance(b);
    return std::max(first, second) / std::min(first, second);
}

class TwoSkins : public HostedFrame
{
protected:
    void TearDown() override
    {
        CParamConfig::getInstance()->reload();
        HostedFrame::TearDown();
        Restart();
    }
};

TEST_F(TwoSkins, have_the_same_files_and_pictures_of_the_same_sizes)
{
    const host::SkinFiles dark = host::ListSkin(Skin(L"TavLook"));
    const host::SkinFiles light = host::ListSkin(Skin(L"TavLookLight"));
    EXPECT_GT(dark.size(), 50u);
    EXPECT_EQ(light.size(), dark.size());
    for (const auto& [file, stamp] : dark)
    {
        SCOPED_TRACE(Utf8(file));
        ASSERT_EQ(light.count(file), 1u);
        if (host::IsPicture(file))
        {
            const PictureFile darkPicture = ReadPictureFile(Skin(L"TavLook") + file);
            const PictureFile lightPicture = ReadPictureFile(Skin(L"TavLookLight") + file);
            EXPECT_GT(darkPicture.width, 0);
            EXPECT_EQ(lightPicture.width, darkPicture.width);
            EXPECT_EQ(lightPicture.height, darkPicture.height);
        }
    }
}

TEST_F(TwoSkins, build_the_frame_without_a_line_in_the_log_by_the_parameter_alone)
{
    Pixel title[2];
    for (int i = 0; i < 2; ++i)
    {
        SCOPED_TRACE(Utf8(skinNames[i]));
        const std::string parameter = "cegui\\" + Utf8(skinNames[i]) + "\\";
        CParamConfig::getInstance()->setStringParam("CEGUI_SkinDir", parameter);
        EXPECT_EQ(Utf8(SkinDir()), Utf8(Skin(skinNames[i]))) << "text pictures are written there, too";
        BTN_UNIT record;
        record.name = L"view";
        record.target = L"caption";
        Frame().SetCtrlBtnInfo({record});
        Restart();
        Frame().OpenPropertyDlg(nullptr, true);
        Rebuild();
        EXPECT_EQ(TakeLog(), Lines{});
        for (const char* window : {"TavTitleBackground", "TavBotCtrlFrame", "TavLeftCtrlFrame", "view_P"})
        {
            EXPECT_NE(Host().Find(window), nullptr) << window;
        }
        Host().MoveMouse(400, 300);
        title[i] = Host().Shoot().At(400, 20);
    }
    EXPECT_GT(Distance(title[0], title[1]), 50);
}

TEST_F(TwoSkins, let_the_words_be_read_over_any_scene)
{
    struct Row
    {
        const char* words;
        const wchar_t* plate;
        int x;
        int y;
        Pixel ink;
        double contrast;
    };
    const Row rows[] = {
        {"title, in its first colour", L"new_skin\\topBG.png", 30, 25, {197, 200, 225}, 4.2},
        {"panel's head", L"new_skin\\DlgPropertyTemple.png", 130, 18, White, Readable},
        {"panel's row", L"new_skin\\DlgPropertyTemple.png", 130, 50, White, Readable},
        {"caption", L"new_skin\\textBGN.png", 30, 15, White, Readable},
        {"caption of the chosen entry", L"new_skin\\textBGP.png", 30, 15, White, Readable},
    };
    for (const wchar_t* skin : skinNames)
    {
        for (const Row& row : rows)
        {
            const PictureFile plate = ReadPictureFile(Skin(skin) + row.plate);
            for (const Pixel scene : {White, Black})
            {
                EXPECT_GE(Contrast(row.ink, Blend(plate.Argb(row.x, row.y), scene)), row.contrast)
                    << Utf8(skin) << ", " << row.words << ", over " << scene.red;
            }
        }
    }
}

TEST_F(TwoSkins, let_the_icons_be_seen_and_their_states_be_told_apart)
{
    struct Row
    {
        const wchar_t* stem;
        const wchar_t* rest;
        const wchar_t* plate; ///< what lies below
    };
    const Row rows[] = {
        {L"roam", L"N", L"bottomBG.png"},
        {L"property", L"N", L"bottomBG.png"},
        {L"browser", L"N", L"bottomBG.png"},
        {L"new_skin\\full", L"", L"new_skin\\topBG.png"},
        {L"new_skin\\close", L"", L"new_skin\\topBG.png"},
        {L"new_skin\\minimize", L"", L"new_skin\\topBG.png"},
    };
    for (const wchar_t* skin : skinNames)
    {
        for (const Row& row : rows)
        {
            SCOPED_TRACE(Utf8(skin) + " " + Utf8(row.stem));
            const Pixel below = Blend(ReadPictureFile(Skin(skin) + row.plate).Argb(30, 25), White);
            const wchar_t* const states[] = {row.rest, L"H", L"P"};
            std::vector<Pixel> seen[3];
            for (int i = 0; i < 3; ++i)
            {
                const PictureFile picture = ReadPictureFile(Skin(skin) + row.stem + states[i] + L".png");
                ASSERT_GT(picture.width, 0);
                // The plate of the state, left of the icon.
                const Pixel plate = Blend(picture.Argb(3, picture.height / 2), below);
                double best = 0;
                for (int y = 0; y < picture.height; ++y)
                {
                    for (int x = 0; x < picture.width; ++x)
                    {
                        seen[i].push_back(Blend(picture.Argb(x, y), below));
                        const bool inside = x > picture.width / 5 && x < picture.width * 4 / 5 && y > picture.height / 5;
                        best = std::max(best, inside ? Contrast(seen[i].back(), plate) : 0);
                    }
                }
                EXPECT_GE(best, i == 0 ? 4.5 : 2.8) << "icon of state " << i;
            }
            for (const auto& [a, b] : {std::pair(0, 1), std::pair(1, 2), std::pair(0, 2)})
            {
                std::size_t apart = 0;
                for (std::size_t i = 0; i < seen[a].size(); ++i)
                {
                    apart += Distance(seen[a][i], seen[b][i]) > 12;
                }
                EXPECT_GT(apart, seen[a].size() / 2) << "states " << a << " and " << b;
            }
        }
    }
}
} // namespace
