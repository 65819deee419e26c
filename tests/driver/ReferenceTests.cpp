// SPDX-License-Identifier: MIT
// Pictures against those that were found to be right: what is the same passes, what has changed fails and is written down.
#include "support/GuiDriver.h"
#include "support/HostedFrame.h"
#include "support/driver/Pictures.h"
#include "support/driver/References.h"

#include <CEGUI/Window.h>

namespace
{
const wchar_t* const Reports = L"reports";
/// Drawn from the same files by the same program: room for another rounding of blended colours.
constexpr driver::Tolerance SamePixels = {1, 2.0, 0.1};
/// What the host's tour allows its pictures.
constexpr driver::Tolerance SameSquares = {4, 8.0, 0.5};

bool IsThere(const CString& file)
{
    return GetFileAttributesW(file) != INVALID_FILE_ATTRIBUTES;
}
} // namespace

class DriverReference : public HostedFrame
{
protected:
    void SetUp() override
    {
        HostedFrame::SetUp();
        CreateDirectoryW(Reports, nullptr);
        for (const wchar_t* kind : {L"actual", L"expected", L"difference"})
        {
            DeleteFileW(Report(kind));
        }
        driver_.MoveTo("TavTilteCloseButtom");
        picture_ = driver_.TakePictureOf("TavTilteCloseButtom");
    }

    static CString Report(const wchar_t* kind) { return CString(Reports) + L"\\close-hover-" + kind + L".png"; }
    static CString Folder() { return CString(NX_DRIVER_REFERENCES); }

    GuiDriver driver_{Host()};
    osg::ref_ptr<osg::Image> picture_;
};

TEST_F(DriverReference, a_picture_like_its_reference_passes)
{
    const driver::References references(Folder(), driver::WholePictures, SamePixels);
    const driver::Verdict verdict = references.Check(L"close-hover", *picture_, Reports);
    EXPECT_TRUE(verdict.same) << verdict.text;
    EXPECT_FALSE(IsThere(Report(L"actual"))) << "nothing to look at";
}

TEST_F(DriverReference, another_state_of_the_window_fails_and_is_written_down)
{
    const driver::References references(Folder(), driver::WholePictures, SamePixels);
    driver_.MoveTo(CPoint(400, 300));
    const osg::ref_ptr<osg::Image> other = driver_.TakePictureOf("TavTilteCloseButtom");
    const driver::Verdict verdict = references.Check(L"close-hover", *other, Reports);
    EXPECT_FALSE(verdict.same) << verdict.text;
    const osg::ref_ptr<osg::Image> actual = driver::LoadPictureFile(Report(L"actual"));
    const osg::ref_ptr<osg::Image> expected = driver::LoadPictureFile(Report(L"expected"));
    const osg::ref_ptr<osg::Image> difference = driver::LoadPictureFile(Report(L"difference"));
    EXPECT_EQ(driver::Compare(*actual, *other, 1).most, 0.0);
    EXPECT_EQ(driver::Compare(*expected, *driver::LoadPictureFile(Folder() + L"\\close-hover.png"), 1).most, 0.0);
    EXPECT_EQ(driver::Compare(*difference, *driver::DifferencePicture(*other, *expected), 1).most, 0.0);
}

TEST_F(DriverReference, a_window_moved_by_two_pixels_fails)
{
    const RECT place = GuiHost::RectOf("TavTilteCloseButtom");
    CEGUI::Window& button = Window("TavTilteCloseButtom");
    button.setPosition(button.getPosition() + CEGUI::UVector2(CEGUI::UDim(0.0f, 2.0f), CEGUI::UDim(0.0f, 0.0f)));
    const osg::ref_ptr<osg::Image> moved = driver::Part(*driver_.TakePicture(), place);
    const driver::References references(Folder(), driver::WholePictures, SamePixels);
    EXPECT_FALSE(references.Check(L"close-hover", *moved, Reports).same);
}

TEST_F(DriverReference, a_picture_without_a_reference_fails)
{
    const driver::References references(L"no-such-folder", driver::WholePictures, SamePixels);
    const driver::Verdict verdict = references.Check(L"close-hover", *picture_, Reports);
    EXPECT_FALSE(verdict.same);
    EXPECT_EQ(verdict.text, "has no reference no-such-folder\\close-hover.png");
    EXPECT_TRUE(IsThere(Report(L"actual"))) << "which may become the reference";
}

TEST_F(DriverReference, a_picture_of_another_size_fails)
{
    const driver::References references(Folder(), driver::WholePictures, {1, 255.0, 255.0});
    const osg::ref_ptr<osg::Image> part = driver::Part(*picture_, {0, 0, picture_->s() - 1, picture_->t()});
    const driver::Verdict verdict = references.Check(L"close-hover", *part, Reports);
    EXPECT_FALSE(verdict.same);
    EXPECT_TRUE(IsThere(Report(L"expected")));
    EXPECT_FALSE(IsThere(Report(L"difference"))) << "there is none between two sizes";
}

TEST_F(DriverReference, what_a_jpeg_loses_does_not_count)
{
    const osg::ref_ptr<osg::Image> whole = driver_.TakePicture();
    const driver::References references(L".", driver::HalfSizeJpeg, {1, 0.0, 0.0});
    references.Remake(L"whole", *whole);
    EXPECT_EQ(driver::LoadPictureFile(L"whole.jpg")->s(), ViewWidth / 2);
    const driver::Verdict verdict = references.Check(L"whole", *whole, Reports);
    EXPECT_TRUE(verdict.same) << verdict.text;
}

TEST_F(DriverReference, a_jpeg_of_half_the_size_shows_a_window_moved_by_two_pixels)
{
    const driver::References references(L".", driver::HalfSizeJpeg, SameSquares);
    references.Remake(L"whole", *driver_.TakePicture());
    CEGUI::Window& button = Window("TavTilteCloseButtom");
    button.setPosition(button.getPosition() + CEGUI::UVector2(CEGUI::UDim(0.0f, 2.0f), CEGUI::UDim(0.0f, 0.0f)));
    const driver::Verdict verdict = references.Check(L"whole", *driver_.TakePicture(), Reports);
    EXPECT_FALSE(verdict.same) << verdict.text;
}
