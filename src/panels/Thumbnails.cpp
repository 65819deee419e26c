// SPDX-License-Identifier: MIT
#include "Thumbnails.h"

#include "../widgets/DecodedPicture.h"
#include "../widgets/FailureLog.h"
#include "../widgets/FileStamp.h"
#include "../widgets/ImageEncoder.h"
#include "../widgets/TextPicture.h"

#include <KernelCommonUse/FileOp.h>
#include <KernelCommonUse/MultiLanguage.h>
#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/SystemUtility.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace
{
// Layout on the 126 x 96 canvas, pixels.
constexpr int CanvasWidth = 126;
constexpr int CanvasHeight = 96;
const gp::GpRect PictureRect = {3, 3, 120, 90};
const gp::GpRect PlayMarkRect = {40, 24, 41, 41};
constexpr int PlateRight = 123;
constexpr int PlateBottom = 93;
constexpr int PlateMargin = 7;
constexpr int CaptionRight = 121;
constexpr int CaptionBottom = 91;
constexpr int CaptionMinLeft = 5;
constexpr int CaptionPixels = 16;
constexpr gp::ARGB CaptionColor = 0xFFFFFFFF;
constexpr int VideoKind = 1;

CString ResourceFile(const wchar_t* name)
{
    return SystemUtility::GetAppPath() + SystemUtility::GetCeguiResRelPath() + name;
}

/// All that the two pictures of an entry depend on, and the files as they were written.
struct Composition
{
    CString caption;
    CString font;
    int kind = 0;
    std::vector<FileStamp> inputs;
    std::vector<FileStamp> outputs;
};

bool SameInputs(const Composition& a, const Composition& b)
{
    return a.caption == b.caption && a.font == b.font && a.kind == b.kind && a.inputs == b.inputs;
}

/// By the path of the stem, so that another resource directory has compositions of its own.
std::map<CString, Composition>& KnownCompositions()
{
    static std::map<CString, Composition> known;
    return known;
}

/// The border's picture as a bitmap to draw on, or a blank one.
gp::Bitmap NewCanvas(const CString& borderFile)
{
    if (gp::GpBitmap* const border = DecodedPicture(borderFile))
    {
        UINT width = 0;
        UINT height = 0;
        gp::GdipGetImageWidth(border, &width);
        gp::GdipGetImageHeight(border, &height);
        gp::Bitmap canvas = gp::Make<gp::Bitmap>(
            [&](gp::GpBitmap** copy)
            {
                return gp::GdipCloneBitmapAreaI(0, 0, static_cast<INT>(width), static_cast<INT>(height), PixelFormat32bppARGB,
                                                border, copy);
            });
        if (canvas)
        {
            return canvas;
        }
    }
    return gp::NewBitmap(CanvasWidth, CanvasHeight);
}

/// @param picture null: nothing is drawn, and false returned
bool Draw(gp::GpGraphics* canvas, gp::GpBitmap* picture, const gp::GpRect& rect)
{
    return picture && gp::GdipDrawImageRectI(canvas, picture, rect.X, rect.Y, rect.Width, rect.Height) == gp::Ok;
}

struct Skin
{
    const wchar_t* border;
    const wchar_t* plate;
    const wchar_t* suffix;
};

constexpr Skin skins[] = {
    {L"new_skin/borderN.png", L"new_skin/textBGN.png", L"_N.bmp"},
    {L"new_skin/borderP.png", L"new_skin/textBGP.png", L"_P.bmp"},
};
const wchar_t* const PlayMark = L"new_skin/videoplay.png";
const wchar_t* const Placeholder = L"new_skin/empty.png";

/// The files of an entry's pictures as they are now. Where one is missing the system looks through the whole folder for it.
std::vector<FileStamp> OutputsOf(const CString& path)
{
    std::vector<FileStamp> outputs;
    for (const Skin& skin : skins)
    {
        outputs.push_back(StampOf(path + skin.suffix));
    }
    return outputs;
}

/// @param shown picture's file, for what is said of it
/// @param caption its size
/// @return why the output is not there, for the log; empty when it is
std::string Render(const Composition& inputs, gp::GpBitmap* picture, const CString& shown, const RECT& caption, const Skin& skin,
                   const CString& output)
{
    const auto missing = [](const CString& file) { return CString2string(file) + " is missing or no picture"; };
    const gp::Bitmap canvas = NewCanvas(ResourceFile(skin.border));
    CLSID encoder;
    if (!canvas || !GetEncoderForPath(output, encoder))
    {
        return CString2string(output) + " not drawn";
    }
    {
        const gp::Graphics graphics = gp::GraphicsOf(canvas.get());
        gp::SetQuality(graphics.get(), gp::TextRenderingHintAntiAlias);
        if (!Draw(graphics.get(), picture, PictureRect))
        {
            return missing(shown);
        }
        if (inputs.kind == VideoKind && !Draw(graphics.get(), DecodedPicture(ResourceFile(PlayMark)), PlayMarkRect))
        {
            return missing(ResourceFile(PlayMark));
        }
        const gp::GpRect plate = {PlateRight - PlateMargin - caption.right, PlateBottom - PlateMargin - caption.bottom,
                                  caption.right + PlateMargin, caption.bottom + PlateMargin};
        if (!Draw(graphics.get(), DecodedPicture(ResourceFile(skin.plate)), plate))
        {
            return missing(ResourceFile(skin.plate));
        }
        const gp::FontFamily family = gp::NewFontFamily(inputs.font);
        const gp::Font font = gp::NewFont(family.get(), static_cast<float>(CaptionPixels));
        if (!inputs.caption.IsEmpty() && font)
        {
            // A layout rectangle without a size neither breaks nor clips.
            const gp::RectF place = {static_cast<float>(std::max<int>(CaptionMinLeft, CaptionRight - caption.right)),
                                     static_cast<float>(CaptionBottom - caption.bottom), 0, 0};
            const gp::StringFormat format = gp::NewStringFormat();
            const gp::SolidBrush brush = gp::NewSolidBrush(CaptionColor);
            gp::GdipDrawString(graphics.get(), inputs.caption, -1, font.get(), &place, format.get(), brush.get());
        }
    }
    return SaveBitmap(canvas.get(), output, encoder) ? std::string() : CString2string(output) + " not written";
}
} // namespace

CString ThumbnailStem(UINT index)
{
    CString stem;
    stem.Format(L"new_skin/TavGuiButtonImg%d", index);
    return stem;
}

CString MakeThumbnail(const CString& caption, const CString& picture, UINT index, int kind)
{
    const CString stem = ThumbnailStem(index);
    const CString path = ResourceFile(stem);
    const CString shown = FileOp::FileExist(picture) ? picture : ResourceFile(Placeholder);
    Composition wanted;
    wanted.caption = caption;
    wanted.font = CMultiLanguageMgr::GetInstance()->translation("LKEY11", "", "Common");
    wanted.kind = kind;
    wanted.inputs = {StampOf(shown), StampOf(ResourceFile(PlayMark))};
    for (const Skin& skin : skins)
    {
        wanted.inputs.push_back(StampOf(ResourceFile(skin.border)));
        wanted.inputs.push_back(StampOf(ResourceFile(skin.plate)));
    }
    Composition& known = KnownCompositions()[path];
    if (SameInputs(known, wanted) && known.outputs == OutputsOf(path))
    {
        return stem;
    }

    known = Composition();
    const gp::Bitmap decoded = gp::LoadBitmapFile(shown);
    RECT captionSize;
    MeasureTextSize(captionSize, wanted.font, caption);
    for (const Skin& skin : skins)
    {
        const std::string failure = Render(wanted, decoded.get(), shown, captionSize, skin, path + skin.suffix);
        if (!failure.empty())
        {
            LogFailure("thumbnail not made of", CString2string(shown) + " (" + failure + ")");
            return CString();
        }
    }
    wanted.outputs = OutputsOf(path);
    known = wanted;
    return stem;
}
