// SPDX-License-Identifier: MIT
#include "TooltipPicture.h"

#include "../widgets/FailureLog.h"
#include "../widgets/ImageEncoder.h"
#include "../widgets/TextMeasurer.h"
#include "../widgets/WholePixels.h"

#include <KernelCommonUse/FileOp.h>
#include <KernelCommonUse/MultiLanguage.h>
#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/SystemUtility.h>

#include <algorithm>
#include <cmath>

namespace
{
constexpr int ByteWidth = 6; // pixels
constexpr int SideMargins = 12;
constexpr int Height = 24;
constexpr int Margins = 6; // around a text that needs more than the logical size
constexpr int MaxDrawnLength = 100;
constexpr float FontPixels = 12;
constexpr gp::ARGB OutlineColor = 0xFF9799A8;
constexpr gp::ARGB FillColor = 0xB0717A8C;
constexpr gp::ARGB TextColor = 0xFFF1F1F1;

bool DrawAndSave(const CString& text, int maxWidth, const CString& path)
{
    const CString drawn = text.Left(MaxDrawnLength);
    const CString fontName = CMultiLanguageMgr::GetInstance()->translation("LKEY11", "", "Common");
    CLSID encoder;
    if (fontName.IsEmpty() || drawn.IsEmpty() || !GetEncoderForPath(path, encoder))
    {
        return false;
    }
    const gp::RectF box = TextMeasurer(fontName, FontPixels, gp::TextRenderingHintClearTypeGridFit).Box(drawn);
    const CSize logical = TooltipSize(text);
    const int wanted = box.Width > logical.cx ? WholePixels(box.Width + Margins) : logical.cx;
    const int width = std::min(wanted, maxWidth);
    const int height = box.Height > Height ? WholePixels(box.Height + Margins) : Height;
    const gp::Bitmap bitmap = gp::NewBitmap(width, height);
    if (!bitmap)
    {
        return false;
    }
    {
        const gp::Graphics graphics = gp::GraphicsOf(bitmap.get());
        const gp::Pen outline =
            gp::Make<gp::Pen>([](gp::GpPen** pen) { return gp::GdipCreatePen1(OutlineColor, 1, gp::UnitPixel, pen); });
        gp::GdipDrawRectangleI(graphics.get(), outline.get(), 0, 0, width - 1, height - 1);
        const gp::SolidBrush fill = gp::NewSolidBrush(FillColor);
        gp::GdipFillRectangleI(graphics.get(), fill.get(), 1, 1, width - 2, height - 2);

        gp::SetQuality(graphics.get(), gp::TextRenderingHintClearTypeGridFit);
        const float textWidth = std::ceil(box.Width);
        const gp::RectF place = {(width - textWidth) / 2, (height - std::ceil(box.Height)) / 2, textWidth,
                                 static_cast<float>(height)};
        const gp::FontFamily family = gp::NewFontFamily(fontName);
        const gp::Font font = gp::NewFont(family.get(), FontPixels);
        const gp::StringFormat format = gp::NewStringFormat();
        const gp::SolidBrush brush = gp::NewSolidBrush(TextColor);
        if (font)
        {
            gp::GdipDrawString(graphics.get(), drawn, -1, font.get(), &place, format.get(), brush.get());
        }
    }
    return SaveBitmap(bitmap.get(), path, encoder);
}
} // namespace

CSize TooltipSize(const CString& text)
{
    const double bytes = static_cast<double>(strUtf8ToAnsi(CString2string(text)).size());
    return CSize(WholePixels(ByteWidth * bytes + SideMargins), Height);
}

bool WriteTooltipPicture(const CString& text, int maxWidth)
{
    const CString path = FileOp::GetAppPath() + SystemUtility::GetCeguiResRelPath() + TooltipPictureFile;
    if (DrawAndSave(text, maxWidth, path))
    {
        return true;
    }
    LogFailure("tooltip picture not written", CString2string(path));
    return false;
}
