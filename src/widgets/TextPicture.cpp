// SPDX-License-Identifier: MIT
#include "TextPicture.h"

#include "FailureLog.h"
#include "Gdiplus.h"
#include "ImageEncoder.h"
#include "TextMeasurer.h"

#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/SystemUtility.h>

#include <cmath>

namespace
{
/// Full transparency, with the grey that the anti-aliased edges of glyphs blend against.
constexpr gp::ARGB TextBackground = 0x004D4D4A;
constexpr int MeasureTextSizePixels = 16;

CSize Measure(const CString& fontName, int pixels, const CString& text, gp::TextRenderingHint hint)
{
    const gp::RectF box = TextMeasurer(fontName, static_cast<float>(pixels), hint).Box(text);
    return CSize(static_cast<int>(std::ceil(box.Width)), static_cast<int>(std::ceil(box.Height)));
}

bool DrawAndSave(const CString& path, UINT width, UINT height, const CString& fontName, UINT fontHeight, COLORREF color,
                 const CString& text)
{
    CLSID encoder;
    if (fontName.IsEmpty() || path.IsEmpty() || !GetEncoderForPath(path, encoder))
    {
        return false;
    }
    const gp::FontFamily family = gp::NewFontFamily(fontName);
    if (!family)
    {
        LogFailure("font family not installed, text left out of " + CString2string(path), CString2string(fontName));
    }
    const gp::Font font = gp::NewFont(family.get(), static_cast<float>(fontHeight));
    const gp::StringFormat format = gp::NewStringFormat();
    const gp::Bitmap bitmap = gp::NewBitmap(static_cast<int>(width), static_cast<int>(height));
    if (!bitmap)
    {
        return false;
    }
    gp::FillExactly(bitmap.get(), TextBackground);
    const gp::Graphics graphics = gp::GraphicsOf(bitmap.get());
    gp::SetQuality(graphics.get(), gp::TextRenderingHintAntiAlias);
    if (font)
    {
        const gp::RectF layout = {0, 0, static_cast<float>(width), static_cast<float>(height)};
        const gp::SolidBrush brush = gp::NewSolidBrush(gp::OpaqueArgb(color));
        gp::GdipDrawString(graphics.get(), text, -1, font.get(), &layout, format.get(), brush.get());
    }
    return SaveBitmap(bitmap.get(), path, encoder);
}
} // namespace

bool DrawTextToImageFile(const CString& path, UINT width, UINT height, const CString& fontName, UINT fontHeight, COLORREF color,
                         const CString& text)
{
    if (DrawAndSave(path, width, height, fontName, fontHeight, color, text))
    {
        return true;
    }
    LogFailure("text picture not written", CString2string(path));
    return false;
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
