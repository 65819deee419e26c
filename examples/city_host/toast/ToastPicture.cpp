// SPDX-License-Identifier: MIT
#include "ToastPicture.h"

#include "Text.h"

#include <algorithm>
#include <cmath>

namespace host
{
namespace
{

// The card, in pixels.
constexpr int CardHeight = 58;
constexpr int SmallestCardWidth = 250;
constexpr int Padding = 12;
constexpr int BadgeSize = 34;
constexpr int TextLeft = Padding + BadgeSize + 12;
constexpr int TitleTop = 10;
constexpr int DetailTop = 32;
constexpr int TitlePixels = 15;
constexpr int DetailPixels = 12;
constexpr int BadgePixels = 14;
constexpr double CardRadius = 10.0;
constexpr double BadgeRadius = 7.0;

struct Color
{
    double red, green, blue; ///< 0 to 255
};

constexpr Color GlassTop = {0x26, 0x2C, 0x37};
constexpr Color GlassBottom = {0x1B, 0x20, 0x28};
constexpr Color AccentTop = {0x5F, 0x97, 0xF5};
constexpr Color AccentBottom = {0x3F, 0x74, 0xD8};
constexpr Color Ink = {0xE6, 0xE8, 0xF4};
constexpr Color DimInk = {0xA3, 0xA8, 0xC2};
constexpr Color White = {255, 255, 255};
constexpr Color Black = {0, 0, 0};
constexpr double GlassAlpha = 0.92;
constexpr double HairlineAlpha = 0.10;
constexpr double ShadowAlpha = 0.38;

Color Mix(const Color& from, const Color& to, double share)
{
    return {from.red + (to.red - from.red) * share, from.green + (to.green - from.green) * share,
            from.blue + (to.blue - from.blue) * share};
}

/// Distance of a pixel's middle from a rounded rectangle's edge, negative inside.
double EdgeDistance(int x, int y, const RECT& rect, double radius)
{
    const double halfWidth = (rect.right - rect.left) * 0.5;
    const double halfHeight = (rect.bottom - rect.top) * 0.5;
    const double dx = std::fabs(x + 0.5 - rect.left - halfWidth) - halfWidth + radius;
    const double dy = std::fabs(y + 0.5 - rect.top - halfHeight) - halfHeight + radius;
    return std::hypot(std::max(dx, 0.0), std::max(dy, 0.0)) + std::min(std::max(dx, dy), 0.0) - radius;
}

double Inside(double edgeDistance)
{
    return std::clamp(0.5 - edgeDistance, 0.0, 1.0);
}

/// An RGBA picture to paint on, row 0 at the top.
class Canvas
{
public:
    Canvas(int width, int height) : image_(new osg::Image)
    {
        image_->allocateImage(width, height, 1, GL_RGBA, GL_UNSIGNED_BYTE);
        std::fill(image_->data(), image_->data() + image_->getTotalSizeInBytes(), static_cast<unsigned char>(0));
    }

    void Blend(int x, int y, const Color& color, double alpha)
    {
        if (x < 0 || y < 0 || x >= image_->s() || y >= image_->t() || alpha <= 0.0)
        {
            return;
        }
        unsigned char* pixel = image_->data(x, image_->t() - 1 - y);
        const double below = pixel[3] / 255.0 * (1.0 - alpha);
        const double together = alpha + below;
        const double channels[] = {color.red, color.green, color.blue};
        for (int i = 0; i < 3; ++i)
        {
            pixel[i] = static_cast<unsigned char>(std::lround((channels[i] * alpha + pixel[i] * below) / together));
        }
        pixel[3] = static_cast<unsigned char>(std::lround(together * 255.0));
    }

    void Write(const TextMask& mask, int left, int top, const Color& color)
    {
        for (int y = 0; y < mask.height; ++y)
        {
            for (int x = 0; x < mask.width; ++x)
            {
                Blend(left + x, top + y, color, mask.coverage[static_cast<std::size_t>(y) * mask.width + x] / 255.0);
            }
        }
    }

    const osg::ref_ptr<osg::Image>& Image() const { return image_; }

private:
    osg::ref_ptr<osg::Image> image_;
};

void PaintGlass(Canvas& canvas, const RECT& card)
{
    const RECT shadow = {card.left, card.top + 3, card.right, card.bottom + 3};
    for (int y = 0; y < card.bottom + ToastShadow; ++y)
    {
        const Color glass = Mix(GlassTop, GlassBottom, static_cast<double>(y - card.top) / CardHeight);
        for (int x = 0; x < card.right + ToastShadow; ++x)
        {
            const double edge = EdgeDistance(x, y, card, CardRadius);
            const double fall = std::clamp(1.0 - EdgeDistance(x, y, shadow, CardRadius) / (ToastShadow - 3), 0.0, 1.0);
            canvas.Blend(x, y, Black, ShadowAlpha * fall * fall * (1.0 - Inside(edge)));
            canvas.Blend(x, y, glass, GlassAlpha * Inside(edge));
            canvas.Blend(x, y, White, HairlineAlpha * (Inside(edge) - Inside(edge + 1.0)));
        }
    }
}

void PaintBadge(Canvas& canvas, const RECT& badge)
{
    for (int y = badge.top; y < badge.bottom; ++y)
    {
        const Color color = Mix(AccentTop, AccentBottom, static_cast<double>(y - badge.top) / BadgeSize);
        for (int x = badge.left; x < badge.right; ++x)
        {
            canvas.Blend(x, y, color, Inside(EdgeDistance(x, y, badge, BadgeRadius)));
        }
    }
}

} // namespace

osg::ref_ptr<osg::Image> DrawToast(const CString& badge, const CString& title, const CString& detail, const CString& family)
{
    const TextMask badgeText = DrawTextMask(badge, family, BadgePixels, true);
    const TextMask titleText = DrawTextMask(title, family, TitlePixels, true);
    const TextMask detailText = DrawTextMask(detail, family, DetailPixels);
    const int width = std::max(SmallestCardWidth, TextLeft + std::max(titleText.width, detailText.width) + Padding + 6);
    Canvas canvas(width + 2 * ToastShadow, CardHeight + 2 * ToastShadow);
    const RECT card = {ToastShadow, ToastShadow, ToastShadow + width, ToastShadow + CardHeight};
    PaintGlass(canvas, card);
    const LONG badgeLeft = card.left + Padding;
    const LONG badgeTop = card.top + (CardHeight - BadgeSize) / 2;
    PaintBadge(canvas, {badgeLeft, badgeTop, badgeLeft + BadgeSize, badgeTop + BadgeSize});
    canvas.Write(badgeText, badgeLeft + (BadgeSize - badgeText.width) / 2, badgeTop + (BadgeSize - badgeText.height) / 2, White);
    // Fonts have their own space above the letters: the lines are placed by their middles.
    canvas.Write(titleText, card.left + TextLeft, card.top + TitleTop + (TitlePixels - titleText.height) / 2 + 1, Ink);
    canvas.Write(detailText, card.left + TextLeft, card.top + DetailTop + (DetailPixels - detailText.height) / 2 + 1, DimInk);
    return canvas.Image();
}

} // namespace host
