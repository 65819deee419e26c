// SPDX-License-Identifier: MIT
// A size event builds every window anew, and reads those pictures again that have changed.
#include "support/HostedFrame.h"
#include "support/NativeGl.h"

#include <widgets/FileImageset.h>

#include <KernelCommonUse/StringConvert.h>

#include <CEGUI/EventArgs.h>
#include <CEGUI/Exceptions.h>
#include <CEGUI/Font.h>
#include <CEGUI/GlobalEventSet.h>
#include <CEGUI/Image.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/System.h>
#include <CEGUI/Texture.h>

#include <cstdint>
#include <string>
#include <vector>

namespace
{
const char* const Border = "new_skin/leftborder.png";
const char* const Skin = "TavLook";

class FrameRebuild : public HostedFrame
{
protected:
    static CString Path(const char* file) { return SkinDir() + CString(file); }
    static const CEGUI::Texture* TextureOf(const char* file)
    {
        CEGUI::Renderer& renderer = *CEGUI::System::getSingleton().getRenderer();
        return renderer.isTextureDefined(file) ? &renderer.getTexture(file) : nullptr;
    }
    /// Gives the skin's own picture another size, until it is read from its file again.
    static void MarkSkin()
    {
        MakeCurrent();
        const std::uint32_t pixel = 0;
        CEGUI::System::getSingleton().getRenderer()->getTexture(Skin).loadFromMemory(&pixel, CEGUI::Sizef(1, 1),
                                                                                     CEGUI::Texture::PF_RGBA);
    }
    static bool IsSkinMarked()
    {
        const CEGUI::Texture* texture = TextureOf(Skin);
        return texture && texture->getOriginalDataSize() == CEGUI::Sizef(1, 1);
    }
    static CEGUI::Sizef SizeOf(const char* image) { return CEGUI::ImageManager::getSingleton().get(image).getRenderedSize(); }
    /// Where the left border alone is seen.
    static Pixel Seen() { return Host().Shoot().At(1, 300); }
};
} // namespace

TEST_F(FrameRebuild, a_size_event_keeps_the_textures_of_files_that_are_the_same)
{
    const CEGUI::Texture* before = TextureOf(Border);
    ASSERT_NE(before, nullptr);
    const Pixel seen = Seen();
    Rebuild();
    EXPECT_EQ(TextureOf(Border), before);
    EXPECT_EQ(Seen(), seen);
}

TEST_F(FrameRebuild, a_picture_that_was_changed_is_read_again_also_when_it_has_the_same_length)
{
    const Pixel seen = Seen();
    const std::vector<std::uint8_t> good = ReadBytes(Path(Border));
    {
        // Of the same length: the bytes behind a PNG file's end are nobody's.
        std::vector<std::uint8_t> other = ReadBytes(Path("new_skin/closeH.png"));
        std::vector<std::uint8_t> longer = good;
        const std::size_t length = std::max(other.size(), longer.size());
        other.resize(length);
        longer.resize(length);
        const FileReplaced first(Path(Border), longer);
        Rebuild();
        EXPECT_EQ(Seen(), seen);
        const FileReplaced second(Path(Border), other);
        Rebuild();
        EXPECT_FALSE(Seen() == seen);
    }
    Rebuild();
    EXPECT_EQ(Seen(), seen);
}

TEST_F(FrameRebuild, a_picture_replaced_by_one_of_equal_length_and_time_is_read_again)
{
    constexpr std::uint64_t someTime = 132'000'000'000'000'000;
    std::vector<std::uint8_t> other = ReadBytes(Path("new_skin/closeH.png"));
    std::vector<std::uint8_t> longer = ReadBytes(Path(Border));
    const std::size_t length = std::max(other.size(), longer.size());
    other.resize(length);
    longer.resize(length);
    for (const bool renamed : {false, true})
    {
        SCOPED_TRACE(renamed);
        const FileReplaced first(Path(Border), longer);
        ASSERT_TRUE(SetWrittenAt(Path(Border), someTime));
        Rebuild();
        const Pixel seen = Seen();
        const CString written = renamed ? Path("replacement.png") : Path(Border);
        ASSERT_TRUE(WriteBytes(written, other));
        ASSERT_TRUE(SetWrittenAt(written, someTime));
        ASSERT_TRUE(!renamed || MoveFileExW(written, Path(Border), MOVEFILE_REPLACE_EXISTING));
        Rebuild();
        EXPECT_FALSE(Seen() == seen);
    }
    Rebuild();
}

TEST_F(FrameRebuild, a_picture_that_is_gone_is_not_shown_from_memory)
{
    {
        const FileTaken taken(Path(Border));
        Rebuild();
        EXPECT_EQ(TakeLog().size(), 1u);
        EXPECT_EQ(Host().Find("TavTitleBackground"), nullptr);
        EXPECT_EQ(TextureOf("new_skin/bottomborder.png"), nullptr) << "nothing is kept of a frame that failed";
    }
    Rebuild();
    EXPECT_NE(TextureOf(Border), nullptr);
}

TEST_F(FrameRebuild, textures_that_the_new_frame_does_not_show_go)
{
    Rebuild();
    MakeCurrent();
    const int before = NativeGl::LiveTextures();
    std::vector<BTN_UNIT> records(3);
    for (std::size_t i = 0; i < records.size(); ++i)
    {
        records[i].lastText.Format(L"entry %d", static_cast<int>(i));
    }
    Frame().SetCtrlBtnInfo(records);
    Rebuild();
    MakeCurrent();
    EXPECT_GT(NativeGl::LiveTextures(), before);
    Frame().SetCtrlBtnInfo({});
    Rebuild();
    MakeCurrent();
    EXPECT_EQ(NativeGl::LiveTextures(), before);
}

TEST_F(FrameRebuild, clearing_all_windows_leaves_no_texture_of_a_file)
{
    Frame().ClearAllWindows();
    EXPECT_EQ(TextureOf(Border), nullptr);
    Frame().CreateMainFrame();
    EXPECT_NE(TextureOf(Border), nullptr);
}

TEST_F(FrameRebuild, a_size_event_keeps_the_skins_own_imageset_while_its_files_are_the_same)
{
    MarkSkin();
    Rebuild();
    EXPECT_TRUE(IsSkinMarked());
    EXPECT_NE(Host().Find("TavTitleBackground"), nullptr);
    Frame().ClearAllWindows();
    EXPECT_FALSE(IsSkinMarked()) << "without a size event everything is read again";
    Frame().CreateMainFrame();
}

TEST_F(FrameRebuild, the_skins_own_imageset_is_read_again_when_its_picture_has_changed)
{
    MarkSkin();
    {
        const FileReplaced picture(Path("TavLook.png"), ReadBytes(Path(Border)));
        Rebuild();
        EXPECT_FALSE(IsSkinMarked());
        MarkSkin();
    }
    Rebuild();
    EXPECT_FALSE(IsSkinMarked());
}

TEST_F(FrameRebuild, the_skins_own_imageset_is_read_again_when_its_description_has_changed)
{
    const CEGUI::Sizef size = SizeOf("TavLook/White");
    const std::vector<std::uint8_t> bytes = ReadBytes(Path("TavLook.imageset"));
    std::string text(bytes.begin(), bytes.end());
    const std::size_t white = text.find("White");
    ASSERT_NE(white, std::string::npos);
    const std::size_t width = text.find("width=\"", white);
    ASSERT_NE(width, std::string::npos);
    text.insert(width + 7, "1");
    {
        const FileReplaced description(Path("TavLook.imageset"), {text.begin(), text.end()});
        Rebuild();
        EXPECT_GT(SizeOf("TavLook/White").d_width, size.d_width);
    }
    Rebuild();
    EXPECT_EQ(SizeOf("TavLook/White"), size);
}

TEST_F(FrameRebuild, an_imageset_that_was_read_in_part_is_read_again_with_the_next_size)
{
    const std::vector<std::uint8_t> bytes = ReadBytes(Path("TavLook.imageset"));
    const std::string text(bytes.begin(), bytes.end());
    const std::string part = text.substr(0, text.find("White")) + "\n";
    {
        const FileReplaced description(Path("TavLook.imageset"), {part.begin(), part.end()});
        Rebuild();
        EXPECT_GE(TakeLog().size(), 1u);
        Rebuild();
        EXPECT_GE(TakeLog().size(), 1u);
    }
    Rebuild();
    EXPECT_TRUE(TakeLog().empty());
    EXPECT_NE(Host().Find("TavTitleBackground"), nullptr);
}

TEST_F(FrameRebuild, pictures_are_found_in_any_spelling_of_their_names)
{
    // Right, wrong and right again in one folder.
    const FileReplaced one(Path("spelling.png"), ReadBytes(Path(Border)));
    const FileReplaced other(Path("another.png"), ReadBytes(Path(Border)));
    MakeCurrent();
    for (const wchar_t* name : {L"spelling.png", L"SPELLING.PNG", L"another.png", L"Another.png", L"NEW_SKIN/LeftBorder.png",
                                L"new_skin/./leftborder.png"})
    {
        EXPECT_EQ(FileImagesets::Create(name).getRenderedSize(), SizeOf("new_skin/leftborder.png/full_image"))
            << CString2string(name);
    }
    // A file of the same name lies in the folder that the last one came from.
    const FileReplaced namesake(Path("leftborder.png"), ReadBytes(Path("TavLook.png")));
    EXPECT_EQ(FileImagesets::Create(L"leftborder.png").getRenderedSize(), CEGUI::Sizef(64, 64));
    EXPECT_THROW(FileImagesets::Create(L"nowhere.png"), CEGUI::Exception);
    TakeLog();
    Rebuild();
}

TEST_F(FrameRebuild, the_log_says_nothing_of_a_size_event_that_succeeds)
{
    const std::size_t before = ReadBytes(L"CEGUI.log").size();
    ASSERT_GT(before, 0u);
    Rebuild();
    Host().Frames(1);
    EXPECT_EQ(ReadBytes(L"CEGUI.log").size(), before);
}

TEST_F(FrameRebuild, changed_sizes_of_fonts_reach_every_one_who_still_asks)
{
    constexpr int windows = 600;
    std::vector<int> told(windows);
    std::vector<CEGUI::Event::Connection> connections;
    connections.reserve(windows);
    CEGUI::GlobalEventSet& events = CEGUI::GlobalEventSet::getSingleton();
    for (int& count : told)
    {
        const auto slot = [&count](const CEGUI::EventArgs&)
        {
            ++count;
            return true;
        };
        connections.push_back(events.subscribeEvent("Font/RenderSizeChanged", CEGUI::SubscriberSlot(slot)));
    }
    CEGUI::EventArgs args;
    const auto change = [&] { events.fireEvent(CEGUI::Font::EventRenderSizeChanged, args, CEGUI::Font::EventNamespace); };
    events.setMutedState(true);
    change();
    EXPECT_EQ(told, std::vector<int>(windows, 0));
    events.setMutedState(false);
    change();
    EXPECT_EQ(told, std::vector<int>(windows, 1));
    for (int i = 0; i < windows; i += 2)
    {
        connections[static_cast<std::size_t>(i)]->disconnect();
    }
    change();
    int seen[3] = {};
    for (const int count : told)
    {
        ++seen[count];
    }
    EXPECT_EQ(seen[1], windows / 2);
    EXPECT_EQ(seen[2], windows / 2);
    for (int i = 1; i < windows; i += 2)
    {
        connections[static_cast<std::size_t>(i)]->disconnect();
    }
}
