// SPDX-License-Identifier: MIT
#include "TextPicture.h"

#include "FailureLog.h"
#include "Gdiplus.h"
#include "ImageEncoder.h"

#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/SystemUtility.h>

#include <cmath>

namespace
{
/// Full transparency, with the grey that the anti-aliased edges of glyphs blend against.
constexpr gp::ARGB TextBackground = 0x004D4D4A;
constexpr int MeasureTextSizePixels = 16;

/// The desktop's device context.
class DesktopDc
{
public:
    DesktopDc() : dc_(GetDC(GetDesktopWindow())) {}
    ~DesktopDc()
    {
        if (dc_)
        {
            ReleaseDC(GetDesktopWindow(), dc_);
        }
    }
    DesktopDc(const DesktopDc&) = delete;
    DesktopDc& operator=(const DesktopDc&) = delete;
    operator HDC() const { return dc_; }

private:
    HDC dc_;
};

CSize Measure(const CString& fontName, int pixels, const CString& text, gp::TextRenderingHint hint)
{
    if (fontName.IsEmpty() || text.IsEmpty())
    {
        return CSize(0, 0);
    }
    const gp::FontFamily family = gp::NewFontFamily(fontName);
    const gp::Font font = gp::NewFont(family.get(), static_cast<float>(pixels));
    const gp::StringFormat format = gp::NewStringFormat();
    const DesktopDc dc;
    const gp::Graphics graphics = gp::Make<gp::Graphics>([&](gp::GpGraphics** g) { return gp::GdipCreateFromHDC(dc, g); });
    if (!font || !graphics)
    {
        return CSize(0, 0);
    }
    // The graphics object is this function's own, so its former settings go with it.
    gp::SetQuality(graphics.get(), hint);
    const gp::RectF unbounded = {0, 0, 0, 0};
    gp::RectF box = {0, 0, 0, 0};
    gp::GdipMeasureString(graphics.get(), text, text.GetLength(), font.get(), &unbounded, format.get(), &box, nullptr, nullptr);
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
    const gp::Graphics graphics = gp::GraphicsOf(bitmap.get());
    gp::SetQuality(graphics.get(), gp::TextRenderingHintAntiAlias);
    // A fill would leave 0 here: what is fully transparent changes nothing in GDI+'s default compositing.
    gp::GdipGraphicsClear(graphics.get(), TextBackground);
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
