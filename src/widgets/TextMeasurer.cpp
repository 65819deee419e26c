// SPDX-License-Identifier: MIT
#include "TextMeasurer.h"

TextMeasurer::TextMeasurer(const CString& fontName, float pixels, gp::TextRenderingHint hint) : dc_(GetDC(GetDesktopWindow()))
{
    gp::RequireGdiplus();
    if (!dc_ || fontName.IsEmpty())
    {
        return;
    }
    graphics_ = gp::Make<gp::Graphics>([&](gp::GpGraphics** graphics) { return gp::GdipCreateFromHDC(dc_, graphics); });
    // The graphics object is this one's own, so the device context's former settings are not touched.
    gp::SetQuality(graphics_.get(), hint);
    family_ = gp::NewFontFamily(fontName);
    font_ = gp::NewFont(family_.get(), pixels);
    format_ = gp::NewStringFormat();
}

TextMeasurer::~TextMeasurer()
{
    graphics_.reset();
    if (dc_)
    {
        ReleaseDC(GetDesktopWindow(), dc_);
    }
}

gp::RectF TextMeasurer::Box(const CString& text) const
{
    gp::RectF box = {0, 0, 0, 0};
    if (graphics_ && font_ && !text.IsEmpty())
    {
        const gp::RectF unbounded = {0, 0, 0, 0};
        gp::GdipMeasureString(graphics_.get(), text, text.GetLength(), font_.get(), &unbounded, format_.get(), &box, nullptr,
                              nullptr);
    }
    return box;
}
