// SPDX-License-Identifier: MIT
#include "TextPicture.h"

#include "../imaging/ImageSizeGuard.h"
#include "FailureLog.h"
#include "Gdiplus.h"
#include "ImageEncoder.h"
#include "TextMeasurer.h"
#include "WholePixels.h"

#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/SystemUtility.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace
{
/// Full transparency, with the grey that the anti-aliased edges of glyphs blend against.
constexpr gp::ARGB TextBackground = 0x004D4D4A;
constexpr int MeasureTextSizePixels = 16;
const char* const NotWritten = "text picture not written";

CSize Measure(const CString& fontName, int pixels, const CString& text, gp::TextRenderingHint hint)
{
    // A text that is higher than any bitmap need not be measured exactly.
    const int highest = static_cast<int>(ImageSizeGuard::LongestSide);
    const gp::RectF box = TextMeasurer(fontName, static_cast<float>(std::min(pixels, highest)), hint).Box(text);
    return CSize(WholePixels(std::ceil(box.Width)), WholePixels(std::ceil(box.Height)));
}

/// @return what failed, for the log; empty when the file was saved
std::string DrawAndSave(const CString& path, UINT width, UINT height, const CString& fontName, UINT fontHeight, COLORREF color,
                        const CString& text)
{
    CLSID encoder;
    if (fontName.IsEmpty() || path.IsEmpty() || !GetEncoderForPath(path, encoder))
    {
        return NotWritten;
    }
    const gp::Bitmap bitmap = gp::NewBitmap(static_cast<int>(width), static_cast<int>(height));
    if (!bitmap)
    {
        return NotWritten + (", no bitmap of " + std::to_string(width)) + " x " + std::to_string(height) + " pixels";
    }
    const gp::FontFamily family = gp::NewFontFamily(fontName);
    const gp::Font font = gp::NewFont(family.get(), static_cast<float>(fontHeight));
    if (!family)
    {
        LogFailure("font family not installed, text left out of " + CString2string(path), CString2string(fontName));
    }
    else if (!font)
    {
        LogFailure("no font of this height, text left out of " + CString2string(path), std::to_string(fontHeight) + " pixels");
    }
    const gp::StringFormat format = gp::NewStringFormat();
    gp::FillExactly(bitmap.get(), TextBackground);
    const gp::Graphics graphics = gp::GraphicsOf(bitmap.get());
    gp::SetQuality(graphics.get(), gp::TextRenderingHintAntiAlias);
    if (font)
    {
        const gp::RectF layout = {0, 0, static_cast<float>(width), static_cast<float>(height)};
        const gp::SolidBrush brush = gp::NewSolidBrush(gp::OpaqueArgb(color));
        gp::GdipDrawString(graphics.get(), text, -1, font.get(), &layout, format.get(), brush.get());
    }
    return SaveBitmap(bitmap.get(), path, encoder) ? std::string() : NotWritten;
}
} // namespace

bool DrawTextToImageFile(const CString& path, UINT width, UINT height, const CString& fontName, UINT fontHeight, COLORREF color,
                         const CString& text)
{
    const std::string failure = DrawAndSave(path, width, height, fontName, fontHeight, color, text);
    if (!failure.empty())
    {
        LogFailure(failure, CString2string(path));
    }
    return failure.empty();
}

CString CreateTextImageFile(UINT width, UINT height, const CString& name, const CString& text, UINT fontHeight,
                            const CString& fontName, COLORREF color)
{
    const CString path = SystemUtility::GetAppPath() + SystemUtility::GetCeguiResRelPath() + name + L".bmp";
    if (!DrawTextToImageFile(path, width, height, fontName, fontHeight, color, text))
    {
        return CString();
    }
    return SystemUtility::GetBaseFileTitle(path) + L".bmp";
}

void MeasureTextSize(RECT& rect, const CString& fontName, const CString& text)
{
    const CSize size = Measure(fontName, MeasureTextSizePixels, text, gp::TextRenderingHintAntiAlias);
    rect = {0, 0, size.cx, size.cy};
}

CSize MeasureTextExtent(const CString& fontName, int fontHeight, const CString& text)
{
    return Measure(fontName, fontHeight, text, gp::TextRenderingHintAntiAliasGridFit);
}
