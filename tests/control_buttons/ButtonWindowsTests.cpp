// SPDX-License-Identifier: MIT
// Taking control buttons away: their records, windows and pictures.
#include "support/FrameTest.h"
#include "support/RefreshesCounted.h"
#include "widgets/Pictures.h"

#include <widgets/FileImageset.h>
#include <widgets/WindowNames.h>

#include <CEGUI/Exceptions.h>
#include <CEGUI/Renderer.h>
#include <CEGUI/System.h>
#include <CEGUI/Texture.h>
#include <CEGUI/Window.h>

#include <algorithm>

namespace
{
using Names = std::vector<std::string>;

/// A host's slot that throws while a window is taken out of the root sheet.
class RemovalsRefused
{
public:
    RemovalsRefused()
        : connection_(GuiHost::Find("rootSheet")
                          ->subscribeEvent(CEGUI::Element::EventChildRemoved,
                                           [this](const CEGUI::EventArgs&) -> bool
                                           {
                                               ++count;
                                               throw CEGUI::InvalidRequestException("removal refused");
                                           }))
    {
    }

    int count = 0;

private:
    CEGUI::Event::ScopedConnection connection_;
};

/// A texture that takes no pixels, by a table of operations of its own in which that one is another. Nothing that a host does
/// makes CEGUI's own refuse.
class TextureRefused
{
public:
    explicit TextureRefused(const char* name)
        : texture_(reinterpret_cast<void***>(&CEGUI::System::getSingleton().getRenderer()->getTexture(name))), table_(*texture_)
    {
        std::copy(table_ - Head, table_ + Slots, copy_);
        copy_[Head + LoadFromMemorySlot] = reinterpret_cast<void*>(&Refuse);
        *texture_ = copy_ + Head;
        count = 0;
    }
    ~TextureRefused() { *texture_ = table_; }
    TextureRefused(const TextureRefused&) = delete;
    TextureRefused& operator=(const TextureRefused&) = delete;

    inline static int count = 0;

private:
    static constexpr int Head = 2; ///< offset and type before the first operation
    static constexpr int Slots = 11;
    static constexpr int LoadFromMemorySlot = 7;
    static void Refuse(CEGUI::Texture*, const void*, const CEGUI::Sizef&, CEGUI::Texture::PixelFormat)
    {
        ++count;
        throw CEGUI::InvalidRequestException("texture refused");
    }
    void*** texture_;
    void** table_;
    void* copy_[Head + Slots];
};
} // namespace

class ButtonWindowsTest : public FrameTest
{
protected:
    static Names NamesNow()
    {
        Names names;
        for (const BTN_UNIT& unit : Frame().GetCtrlBtnInfo())
        {
            names.push_back(Utf8(unit.name));
        }
        return names;
    }

    static void AddWindow(const char* name)
    {
        WindowNames::AddChild(*GuiHost::Find("rootSheet"), *WindowNames::Create("DefaultWindow", name));
    }
};

TEST_F(ButtonWindowsTest, deleting_takes_the_first_record_of_that_name)
{
    Frame().SetCtrlBtnInfo({Record(L"a", 1), Record(L"b"), Record(L"a"), Record(L"c")});
    Frame().DeleteButton(L"a");
    EXPECT_EQ(NamesNow(), (Names{"b", "a", "c"}));
    EXPECT_EQ(Frame().GetCtrlBtnInfo()[1].kind, 0) << "the later one of the two is left";
    Frame().DeleteButton(L"c");
    EXPECT_EQ(NamesNow(), (Names{"b", "a"}));
    EXPECT_TRUE(Host().TakeMessages().empty());
}

TEST_F(ButtonWindowsTest, deleting_an_unknown_name_changes_nothing)
{
    Show({Record(L"a")});
    const int windows = WindowCount();
    for (const wchar_t* name : {L"unknown", L"A", L"", L"a/b"})
    {
        Frame().DeleteButton(name);
    }
    EXPECT_EQ(NamesNow(), Names{"a"});
    EXPECT_EQ(WindowCount(), windows);
}

TEST_F(ButtonWindowsTest, deleting_asks_for_a_refresh_also_for_an_unknown_name)
{
    Frame().SetCtrlBtnInfo({Record(L"a")});
    const RefreshesCounted counted;
    Frame().DeleteButton(L"unknown");
    EXPECT_EQ(counted.count, 1);
    EXPECT_EQ(NamesNow(), Names{"a"});
    Frame().DeleteButton(L"a");
    EXPECT_EQ(counted.count, 2);
    EXPECT_EQ(NamesNow(), Names{});
}

TEST_F(ButtonWindowsTest, deleting_destroys_the_window_of_that_very_name)
{
    AddWindow("button");
    Frame().SetCtrlBtnInfo({Record(L"button")});
    Frame().DeleteButton(L"button");
    Host().Frames(2);
    EXPECT_EQ(Place("button"), "no window");
    EXPECT_EQ(NamesNow(), Names{});
}

TEST_F(ButtonWindowsTest, an_entrys_window_carries_a_suffix_and_stays_until_the_next_build)
{
    Show({Record(L"a"), Record(L"b")});
    Frame().DeleteButton(L"a");
    EXPECT_NE(Place("a_P"), "no window");
    Rebuild();
    EXPECT_EQ(Place("a_P"), "no window");
    EXPECT_EQ(Place("b_P"), "11,63 - 137,159");
}

TEST_F(ButtonWindowsTest, an_entrys_window_can_be_deleted_by_its_full_name_and_the_list_goes_on)
{
    Show({Record(L"a"), Record(L"b"), Record(L"c")});
    Frame().DeleteButton(L"b_P");
    EXPECT_EQ(NamesNow(), (Names{"a", "b", "c"})) << "no record of that name";
    Host().Frames(2);
    EXPECT_EQ(Place("b_P"), "no window");
    Frame().SetBtnIndex(1);
    Frame().SetBtnIndex(2);
    EXPECT_EQ(ImageOf("c_P", "NormalImage"), "new_skin/TavGuiButtonImg2_P.bmp/full_image");
    SlideIn(50, 300);
    EXPECT_TRUE(Visible("TavLeftCtrlFrame"));
}

TEST_F(ButtonWindowsTest, clearing_destroys_the_numbered_windows_and_pictures_and_keeps_the_records)
{
    Frame().SetCtrlBtnInfo({Record(L"a"), Record(L"b")});
    for (const char* name : {"TavGuiButton_0", "TavGuiButton_1", "TavGuiButton_2"})
    {
        AddWindow(name);
    }
    const wchar_t* const gone[] = {L"TavGuiButtonImgNor0.bmp", L"TavGuiButtonImgHov0.bmp", L"TavGuiButtonImgPsh1.bmp"};
    const wchar_t* const kept = L"TavGuiButtonImgNor2.bmp";
    for (const wchar_t* file : gone)
    {
        WriteSkinPicture(file, 0xFFFF0000);
        FileImagesets::Create(file);
    }
    WriteSkinPicture(kept, 0xFFFF0000);
    FileImagesets::Create(kept);
    Frame().ClearAllCtrlBtn();
    Host().Frames(2);
    EXPECT_EQ(Place("TavGuiButton_0"), "no window");
    EXPECT_EQ(Place("TavGuiButton_1"), "no window");
    EXPECT_NE(Place("TavGuiButton_2"), "no window") << "beyond the count of the records";
    for (const wchar_t* file : gone)
    {
        EXPECT_FALSE(FileImagesets::IsPresent(file));
        DeleteFileW(SkinDir() + file);
    }
    EXPECT_TRUE(FileImagesets::IsPresent(kept));
    DeleteFileW(SkinDir() + kept);
    EXPECT_EQ(NamesNow(), (Names{"a", "b"}));
}

TEST_F(ButtonWindowsTest, clearing_where_there_is_nothing_does_no_harm)
{
    Frame().ClearAllCtrlBtn();
    Show({Record(L"a")});
    const int windows = WindowCount();
    Frame().ClearAllCtrlBtn();
    Frame().ClearAllCtrlBtn();
    EXPECT_EQ(WindowCount(), windows);
    EXPECT_NE(Place("a_P"), "no window");
    Frame().ClearAllWindows();
    Frame().ClearAllCtrlBtn();
    EXPECT_EQ(NamesNow(), Names{"a"});
}

TEST_F(ButtonWindowsTest, a_deletion_without_windows_still_takes_the_record)
{
    Frame().SetCtrlBtnInfo({Record(L"a"), Record(L"b")});
    Frame().ClearAllWindows();
    Frame().DeleteButton(L"a");
    EXPECT_EQ(NamesNow(), Names{"b"});
}

TEST_F(ButtonWindowsTest, a_deletion_ends_at_an_exception_from_cegui)
{
    AddWindow("button");
    Frame().SetCtrlBtnInfo({Record(L"button"), Record(L"b")});
    const RefreshesCounted counted;
    {
        const RemovalsRefused refused;
        EXPECT_NO_THROW(Frame().DeleteButton(L"button"));
        EXPECT_EQ(refused.count, 1);
    }
    EXPECT_EQ(NamesNow(), (Names{"button", "b"})) << "the record stays";
    EXPECT_EQ(counted.count, 0) << "and nothing is refreshed";
    EXPECT_EQ(TakeLog(), Lines{"NxOsgCeGui: control button not deleted (removal refused): button"});
    Frame().DeleteButton(L"button");
    EXPECT_EQ(NamesNow(), Names{"b"});
    EXPECT_EQ(counted.count, 1);
}

TEST_F(ButtonWindowsTest, clearing_goes_on_after_an_exception_from_cegui)
{
    Frame().SetCtrlBtnInfo({Record(L"a"), Record(L"b")});
    AddWindow("TavGuiButton_0");
    AddWindow("TavGuiButton_1");
    const wchar_t* const pictures[] = {L"TavGuiButtonImgNor0.bmp", L"TavGuiButtonImgHov0.bmp", L"TavGuiButtonImgPsh0.bmp",
                                       L"TavGuiButtonImgNor1.bmp", L"TavGuiButtonImgHov1.bmp", L"TavGuiButtonImgPsh1.bmp"};
    for (const wchar_t* file : pictures)
    {
        WriteSkinPicture(file, 0xFFFF0000);
        FileImagesets::Create(file);
    }
    {
        const RemovalsRefused refused;
        const TextureRefused texture("TavGuiButtonImgNor0.bmp");
        EXPECT_NO_THROW(Frame().ClearAllCtrlBtn());
        EXPECT_EQ(refused.count, 2) << "each window was tried";
        EXPECT_EQ(texture.count, 1);
    }
    EXPECT_TRUE(FileImagesets::IsPresent(pictures[0])) << "the one that refused";
    for (const wchar_t* file : pictures)
    {
        EXPECT_EQ(FileImagesets::IsPresent(file), file == pictures[0]) << Utf8(file);
    }
    EXPECT_EQ(TakeLog(), (Lines{"NxOsgCeGui: control button's window not destroyed (removal refused): TavGuiButton_0",
                                "NxOsgCeGui: control button's picture not destroyed (texture refused): TavGuiButtonImgNor0.bmp",
                                "NxOsgCeGui: control button's window not destroyed (removal refused): TavGuiButton_1"}));
    Frame().ClearAllCtrlBtn();
    for (const wchar_t* file : pictures)
    {
        EXPECT_FALSE(FileImagesets::IsPresent(file)) << Utf8(file);
        DeleteFileW(SkinDir() + file);
    }
}
