// SPDX-License-Identifier: MIT
// Looks whose windows would be made without end, in the formats of both versions of CEGUI.
#include "OldSkinTest.h"

#include <gui_host/LookNesting.h>

#include <CEGUI/Exceptions.h>

namespace
{
const wchar_t* const LookFile = L"TavLook.looknfeel";
const char* const StaticImage = "<WidgetLook name=\"TavLook/StaticImage\">";
const char* const ImageButton = "<WidgetLook name=\"TavLook/ImageButton\">";

std::string TextOf(const std::vector<std::uint8_t>& bytes)
{
    return std::string(bytes.begin(), bytes.end());
}

std::string With(std::string text, const std::string& behind, const std::string& added)
{
    const std::size_t at = text.find(behind);
    EXPECT_NE(at, std::string::npos) << behind;
    return text.insert(at + behind.size(), added);
}

std::string Child(const std::string& type)
{
    return "<Child type=\"" + type +
           "\" nameSuffix=\"__auto_child__\"><Area><Dim type=\"LeftEdge\"><AbsoluteDim value=\"0\" /></Dim>"
           "<Dim type=\"TopEdge\"><AbsoluteDim value=\"0\" /></Dim><Dim type=\"Width\"><AbsoluteDim value=\"9\" /></Dim>"
           "<Dim type=\"Height\"><AbsoluteDim value=\"9\" /></Dim></Area></Child>";
}

class LookNestingTest : public OldSkinTest
{
protected:
    /// Starts with these looks, and expects that they are refused with one line that names file and reason.
    void ExpectRefused(const std::string& looks, const std::string& reason)
    {
        Host().Close();
        Put(LookFile, looks);
        EXPECT_THROW(Host().Start(), CEGUI::Exception);
        const Lines log = TakeLog();
        ASSERT_EQ(log.size(), 1u);
        EXPECT_EQ(log[0], "NxOsgCeGui: skin not loaded: 'TavLook.looknfeel' is refused: " + reason);
    }
    static std::string NewLooks() { return TextOf(ReadBytes(SkinDir() + LookFile)); }
};
} // namespace

TEST_F(LookNestingTest, a_look_that_holds_its_own_type_is_refused)
{
    ExpectRefused(With(NewLooks(), StaticImage, Child("TavLook/StaticImage")), "the look TavLook/StaticImage holds itself");
}

TEST_F(LookNestingTest, looks_that_hold_each_others_types_are_refused)
{
    ExpectRefused(With(With(NewLooks(), StaticImage, Child("TavLook/ImageButton")), ImageButton, Child("TavLook/StaticImage")),
                  "the look TavLook/ImageButton holds itself");
}

TEST_F(LookNestingTest, a_look_that_sets_itself_as_the_look_is_refused)
{
    ExpectRefused(With(NewLooks(), StaticImage, "<Property name=\"LookNFeel\" value=\"TavLook/StaticImage\" />"),
                  "the look TavLook/StaticImage holds itself");
}

TEST_F(LookNestingTest, a_look_for_cegui_0_6_that_holds_its_own_type_is_refused)
{
    PutOldSkin();
    ExpectRefused(With(TextOf(SkinFile(L"old_format/TavLook.looknfeel")), StaticImage, Child("TavLook/StaticImage")),
                  "the look TavLook/StaticImage holds itself");
}

TEST_F(LookNestingTest, a_look_that_holds_another_type_is_used)
{
    Host().Close();
    Put(LookFile, With(NewLooks(), ImageButton, Child("TavLook/StaticImage")));
    Host().Start();
    EXPECT_TRUE(GuiHost::Find("TavTilteCloseButtom"));
    EXPECT_EQ(TakeLog(), Lines{});
}

TEST_F(LookNestingTest, elements_that_are_nested_too_deep_are_refused)
{
    std::string deep;
    for (int i = 0; i < 100000; ++i)
    {
        deep += "<OperatorDim op=\"Add\">";
    }
    for (int i = 0; i < 100000; ++i)
    {
        deep += "</OperatorDim>";
    }
    ExpectRefused(With(NewLooks(), StaticImage, deep), "its elements are more than 100 deep");
}

TEST(LookNesting, types_are_followed_from_file_to_file)
{
    LookNesting nesting;
    EXPECT_EQ(nesting.Add("<Falagard><WidgetLook name=\"A\"><Child type=\"B\"/></WidgetLook></Falagard>"), "");
    EXPECT_EQ(nesting.Add("<Falagard><WidgetLook name=\"C\"><Child type=\"D\"/></WidgetLook></Falagard>"), "");
    EXPECT_EQ(nesting.Add("<GUIScheme><FalagardMapping windowType=\"B\" lookNFeel=\"C\"/></GUIScheme>"), "");
    EXPECT_EQ(nesting.Add("<GUIScheme><WindowAlias alias=\"D\" target=\"E\"/></GUIScheme>"), "");
    EXPECT_EQ(nesting.Add("no XML"), "");
    EXPECT_EQ(nesting.Add("<GUIScheme><FalagardMapping windowType=\"E\" lookNFeel=\"A\"/></GUIScheme>"),
              "the look A holds itself");
}

TEST(LookNesting, a_look_that_is_replaced_no_longer_counts)
{
    LookNesting nesting;
    EXPECT_EQ(nesting.Add("<GUIScheme><FalagardMapping windowType=\"A\" lookNFeel=\"A\"/></GUIScheme>"), "");
    EXPECT_EQ(nesting.Add("<Falagard><WidgetLook name=\"A\"><Child type=\"A\"/></WidgetLook></Falagard>"),
              "the look A holds itself");
    EXPECT_EQ(nesting.Add("<Falagard><WidgetLook name=\"A\"><Child type=\"B\"/></WidgetLook></Falagard>"), "");
}

TEST(LookNesting, an_inherited_look_is_held_as_well)
{
    LookNesting nesting;
    EXPECT_EQ(nesting.Add("<Falagard><WidgetLook name=\"A\" inherits=\"B\"/><WidgetLook name=\"B\"/></Falagard>"), "");
    EXPECT_EQ(nesting.Add("<Falagard><WidgetLook name=\"B\" inherits=\"A\"/></Falagard>"), "the look A holds itself");
}

TEST(LookNesting, looks_nest_as_deep_and_hold_as_many_windows_as_fits_any_skin)
{
    const auto chain = [](int looks, int children)
    {
        std::string scheme = "<GUIScheme>";
        std::string falagard = "<Falagard>";
        for (int i = 0; i < looks; ++i)
        {
            const std::string name = std::to_string(i);
            scheme += "<FalagardMapping windowType=\"" + name + "\" lookNFeel=\"" + name + "\"/>";
            falagard += "<WidgetLook name=\"" + name + "\">";
            for (int child = 0; child < children; ++child)
            {
                falagard += "<Child type=\"" + std::to_string(i + 1) + "\"/>";
            }
            falagard += "</WidgetLook>";
        }
        LookNesting nesting;
        EXPECT_EQ(nesting.Add(scheme + "</GUIScheme>"), "");
        return nesting.Add(falagard + "</Falagard>");
    };
    EXPECT_EQ(chain(40, 1), "");
    EXPECT_NE(chain(60, 1), "");
    EXPECT_NE(chain(100000, 1), "");
    EXPECT_EQ(chain(4, 9), "");
    EXPECT_NE(chain(9, 9), "") << "387 million windows";
}
