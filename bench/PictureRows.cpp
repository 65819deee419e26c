// SPDX-License-Identifier: MIT
#include "CallCount.h"
#include "OtherRows.h"
#include "native/Contestant.h"

#include <KernelCommonUse/MultiLanguage.h>

#include <panels/Thumbnails.h>
#include <widgets/Gdiplus.h>
#include <widgets/ImageEncoder.h>
#include <widgets/TextMeasurer.h>

#include <cmath>
#include <stdexcept>

namespace
{
CString InterfaceFont()
{
    return CMultiLanguageMgr::GetInstance()->translation("LKEY11", "", "Common");
}

CLSID BmpEncoder()
{
    CLSID encoder = {};
    if (!GetEncoderForPath(L"a.bmp", encoder))
    {
        throw std::runtime_error("GDI+ has no encoder for bitmap files");
    }
    return encoder;
}

void Require(gp::GpStatus status, const char* what)
{
    if (status != gp::Ok)
    {
        throw std::runtime_error(std::string("bare GDI+ failed: ") + what);
    }
}

/// Read as a whole first: GDI+ reads a file in steps that cost as much each.
gp::Bitmap FromFile(const CString& path)
{
    gp::Bitmap bitmap = gp::LoadBitmapFile(path);
    if (!bitmap)
    {
        throw std::runtime_error("bare GDI+ failed: a picture's file");
    }
    return bitmap;
}

/// The calls that one composition cannot do without, each done once: the skin's pictures are decoded once for all buttons, a
/// button's picture once for its two compositions.
class BareThumbnails
{
public:
    BareThumbnails()
        : play_(FromFile(SkinDir() + L"new_skin/videoplay.png")), encoder_(BmpEncoder()),
          measurer_(InterfaceFont(), CaptionPixels, gp::TextRenderingHintAntiAlias), family_(gp::NewFontFamily(InterfaceFont())),
          font_(gp::NewFont(family_.get(), CaptionPixels)), format_(gp::NewStringFormat()), brush_(gp::NewSolidBrush(0xFFFFFFFF))
    {
        for (const wchar_t* state : {L"N", L"P"})
        {
            borders_.push_back(FromFile(SkinDir() + L"new_skin/border" + state + L".png"));
            plates_.push_back(FromFile(SkinDir() + L"new_skin/textBG" + state + L".png"));
        }
    }

    void Make(const CString& caption, const CString& picture, int kind, const CString& output)
    {
        const gp::Bitmap shown = FromFile(picture);
        const gp::RectF box = measurer_.Box(caption);
        for (std::size_t state = 0; state < borders_.size(); ++state)
        {
            const gp::Bitmap canvas = gp::Make<gp::Bitmap>(
                [&](gp::GpBitmap** copy) {
                    return gp::GdipCloneBitmapAreaI(0, 0, CanvasWidth, CanvasHeight, PixelFormat32bppARGB, borders_[state].get(),
                                                    copy);
                });
            {
                const gp::Graphics graphics = gp::GraphicsOf(canvas.get());
                gp::SetQuality(graphics.get(), gp::TextRenderingHintAntiAlias);
                Require(gp::GdipDrawImageRectI(graphics.get(), shown.get(), 3, 3, 120, 90), "drawing the picture");
                if (kind == 1)
                {
                    Require(gp::GdipDrawImageRectI(graphics.get(), play_.get(), 40, 24, 41, 41), "drawing the play mark");
                }
                const int width = static_cast<int>(std::ceil(box.Width));
                const int height = static_cast<int>(std::ceil(box.Height));
                Require(
                    gp::GdipDrawImageRectI(graphics.get(), plates_[state].get(), 116 - width, 86 - height, width + 7, height + 7),
                    "drawing the plate");
                const gp::RectF place = {static_cast<float>(121 - width), static_cast<float>(91 - height), 0, 0};
                Require(gp::GdipDrawString(graphics.get(), caption, -1, font_.get(), &place, format_.get(), brush_.get()),
                        "drawing the caption");
            }
            Require(gp::GdipSaveImageToFile(canvas.get(), output + (state == 0 ? L"_N.bmp" : L"_P.bmp"), &encoder_, nullptr),
                    "encoding");
        }
    }

private:
    static constexpr int CanvasWidth = 126;
    static constexpr int CanvasHeight = 96;
    static constexpr int CaptionPixels = 16;
    gp::Bitmap play_;
    std::vector<gp::Bitmap> borders_;
    std::vector<gp::Bitmap> plates_;
    CLSID encoder_;
    TextMeasurer measurer_;
    gp::FontFamily family_;
    gp::Font font_;
    gp::StringFormat format_;
    gp::SolidBrush brush_;
};

Duration PerPiece(const Duration& all, int count)
{
    return {all.process / count, all.thread / count, all.wall / count};
}

/// A title that the other side has not just drawn.
CString NextTitle()
{
    static int number = 0;
    CString title;
    title.Format(L"滨江新城总体规划 %d", ++number % 1000);
    return title;
}

constexpr float TitleHeight = 24;
constexpr COLORREF TitleColor = RGB(197, 200, 225);

/// Drawn, encoded into a file, decoded from it, uploaded.
void BareTitle(const CString& title, const CString& path, const CLSID& encoder, std::vector<unsigned int>& textures)
{
    const CString font = InterfaceFont();
    const TextMeasurer measurer(font, TitleHeight, gp::TextRenderingHintAntiAliasGridFit);
    const gp::RectF box = measurer.Box(title);
    const int width = static_cast<int>(std::ceil(box.Width));
    const int height = static_cast<int>(std::ceil(box.Height));
    {
        const gp::FontFamily family = gp::NewFontFamily(font);
        const gp::Font face = gp::NewFont(family.get(), TitleHeight);
        const gp::StringFormat format = gp::NewStringFormat();
        const gp::Bitmap bitmap = gp::NewBitmap(width, height);
        const gp::Graphics graphics = gp::GraphicsOf(bitmap.get());
        gp::SetQuality(graphics.get(), gp::TextRenderingHintAntiAlias);
        const gp::SolidBrush brush = gp::NewSolidBrush(gp::OpaqueArgb(TitleColor));
        const gp::RectF layout = {0, 0, static_cast<float>(width), static_cast<float>(height)};
        Require(gp::GdipDrawString(graphics.get(), title, -1, face.get(), &layout, format.get(), brush.get()),
                "drawing the title");
        Require(gp::GdipSaveImageToFile(bitmap.get(), path, &encoder, nullptr), "encoding the title");
    }
    const gp::Bitmap read = FromFile(path);
    const gp::GpRect all = {0, 0, width, height};
    gp::BitmapData locked = {};
    Require(gp::GdipBitmapLockBits(read.get(), &all, gp::ImageLockModeRead, PixelFormat32bppARGB, &locked), "decoding the title");
    bench::Picture picture;
    picture.width = width;
    picture.height = height;
    const auto* bytes = static_cast<const std::uint8_t*>(locked.Scan0);
    picture.rgba.assign(bytes, bytes + static_cast<std::size_t>(locked.Stride) * height);
    gp::GdipBitmapUnlockBits(read.get(), &locked);
    textures.push_back(bench::UploadTexture(picture));
    bench::FinishDrawing();
}

/// Those of other rows' many entries: the system looks through the folder for each file that is made.
void RemoveThumbnails()
{
    const CString folder = SkinDir() + L"new_skin/";
    WIN32_FIND_DATAW found;
    const HANDLE find = FindFirstFileW(folder + L"TavGuiButtonImg*", &found);
    if (find == INVALID_HANDLE_VALUE)
    {
        return;
    }
    do
    {
        DeleteFileW(folder + found.cFileName);
    } while (FindNextFileW(find, &found));
    FindClose(find);
}
} // namespace

Row ThumbnailRow(Stage& stage)
{
    RemoveThumbnails();
    constexpr int usual = 20;
    const CString picture = stage.EntryPicture();
    int sample = 0;
    const auto captionOf = [&](int button)
    {
        CString caption;
        caption.Format(L"View %d-%d", sample, button);
        return caption;
    };
    const auto own = [&](int buttons)
    {
        ++sample;
        return PerPiece(TimeOf(
                            [&]
                            {
                                for (int i = 0; i < buttons; ++i)
                                {
                                    if (MakeThumbnail(captionOf(i), picture, static_cast<UINT>(i), i % 5 == 0).IsEmpty())
                                    {
                                        throw std::runtime_error("a thumbnail was not made");
                                    }
                                }
                            }),
                        buttons);
    };
    const auto bare = [&]
    {
        ++sample;
        return PerPiece(TimeOf(
                            [&]
                            {
                                BareThumbnails thumbnails;
                                for (int i = 0; i < usual; ++i)
                                {
                                    CString output;
                                    // Beside the interface's own: in a fuller folder each file takes longer to find.
                                    output.Format(L"%snew_skin/bare%d", SkinDir().GetString(), i);
                                    thumbnails.Make(captionOf(i), picture, i % 5 == 0, output);
                                }
                            }),
                        usual);
    };
    const std::vector<Series> series = Alternate({[&] { return own(usual); }, bare});
    Row row = Compare("thumbnail_first", series[0], series[1], 1.2);
    row.what = "first composition of a button's two pictures, 20 buttons; reference: the GDI+ calls that it needs";
    for (const int buttons : {10, 100, 1000})
    {
        row.growth[buttons] = own(buttons).process;
    }
    return row;
}

namespace
{
/// For a panel with so many rows, each value of which is longer than its place.
int MeasurementsOf(Stage& stage, int count, int length)
{
    CeGuiMainFrame::PropertyRows rows;
    for (int i = 0; i < count; ++i)
    {
        rows.emplace_back(L"n", CString(L'w', length));
    }
    stage.Frame().setPropertyData(rows);
    const TextMeasurementCount measurements;
    stage.Frame().RefreshPropertyDlg();
    return measurements.Count();
}
} // namespace

Row PanelRow(Stage& stage)
{
    stage.Fill(0, 100);
    stage.Frame().MakeContextCurrent();
    const std::vector<int> sizes = {10, 100, 1000, 10000, 100000};
    std::vector<std::function<Duration()>> refreshes;
    refreshes.reserve(sizes.size());
    for (const int size : sizes)
    {
        refreshes.push_back(
            [&stage, size]
            {
                CeGuiMainFrame::PropertyRows rows = PropertyRowsOf(size);
                stage.Frame().setPropertyData(rows);
                return PerPiece(TimeOf(
                                    [&]
                                    {
                                        if (!stage.Frame().RefreshPropertyDlg())
                                        {
                                            throw std::runtime_error("the panel was not refreshed");
                                        }
                                        bench::FinishDrawing();
                                    }),
                                size);
            });
    }
    const std::vector<Series> series = Alternate(refreshes);
    Row row = Compare("panel_growth", series[3], series[1], 1.15);
    row.what = "panel refresh, per row, with 10,000 rows; reference: with 100";
    for (std::size_t i = 0; i < sizes.size(); ++i)
    {
        row.growth[sizes[i]] = series[i].Median(&Duration::process);
    }

    // A short name and a long value: two texts a row. Once for the whole list the ellipsis is measured, too.
    constexpr int length = 64;
    constexpr int counted = 100;
    const int once = MeasurementsOf(stage, counted, length);
    const int twice = MeasurementsOf(stage, 2 * counted, length);
    row.extra["measurements_per_row"] = static_cast<double>(twice - once) / counted;
    row.extra["measurements_limit"] = 2 + std::log2(length);
    row.extra["text_length"] = length;
    row.alsoHolds = twice > once && row.extra["measurements_per_row"] <= row.extra["measurements_limit"];
    return row;
}

Row TitleRow(Stage& stage)
{
    stage.Fill(10, 0);
    stage.Frame().MakeContextCurrent();
    const CString font = InterfaceFont();
    const CString path = AppDir() + L"bare_title.bmp";
    const CLSID encoder = BmpEncoder();
    std::vector<unsigned int> textures;
    const auto own = [&]
    {
        const CString title = NextTitle();
        return TimeOf(
            [&]
            {
                stage.Frame().ChangeTitleText(title, TitleColor, font, TitleHeight);
                bench::FinishDrawing();
            });
    };
    const auto bare = [&]
    {
        const CString title = NextTitle();
        return TimeOf([&] { BareTitle(title, path, encoder, textures); });
    };
    const std::vector<Series> series = Alternate({own, bare}, 61);
    bench::DeleteTextures(textures);
    Row row = Compare("title", series[0], series[1], 1.3);
    row.what = "ChangeTitleText to the texture in place; reference: GDI+ drawing, encoding, decoding, and the upload";
    return row;
}
