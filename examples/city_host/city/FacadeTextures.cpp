// SPDX-License-Identifier: MIT
#include "FacadeTextures.h"

#include "Canvas.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace city
{
namespace
{

constexpr int kCell = 64; ///< pixels of one bay by one floor
constexpr int kFacadePicture = kCell * kFacadeBays;

/// One bay of one floor. The window's edges are pixels of the cell, from its bottom left.
struct Style
{
    FacadeModule module;
    Colour wall, glass, frame;
    int left, bottom, right, top;
    int mullions; ///< upright bars that divide the window
    int band;     ///< height of the band below the next floor, pixels
    Colour bandColour;
    bool balconies;    ///< in every other bay
    float lightFactor; ///< of the lights at night
    bool lit;          ///< every window of a lit floor, as offices have it
};

// clang-format off: a table
const std::array<Style, static_cast<std::size_t>(kLastFacade) + 1> kStyles = {{
    // cream
    {{3.4, 3.0},
     {.96f, .94f, .90f},
     {.56f, .63f, .69f},
     {.86f, .85f, .82f},
     14,
     16,
     50,
     52,
     1,
     5,
     {.88f, .85f, .80f},
     true,
     1.0f,
     false},
    // brick
    {{3.6, 3.1},
     {.93f, .90f, .87f},
     {.53f, .59f, .64f},
     {.98f, .97f, .95f},
     18,
     14,
     46,
     52,
     1,
     4,
     {.99f, .98f, .96f},
     false,
     1.0f,
     false},
    // white
    {{3.2, 3.0},
     {.97f, .97f, .96f},
     {.56f, .64f, .71f},
     {.80f, .82f, .84f},
     6,
     14,
     58,
     54,
     2,
     6,
     {.82f, .84f, .85f},
     true,
     0.9f,
     false},
    // blue glass
    {{3.0, 4.0},
     {.70f, .77f, .82f},
     {.64f, .73f, .80f},
     {.80f, .86f, .90f},
     2,
     12,
     62,
     62,
     0,
     4,
     {.84f, .89f, .93f},
     false,
     0.75f,
     true},
    // grey glass
    {{3.0, 4.0},
     {.74f, .77f, .78f},
     {.50f, .59f, .63f},
     {.86f, .88f, .88f},
     0,
     20,
     64,
     60,
     1,
     8,
     {.90f, .91f, .90f},
     false,
     0.75f,
     true},
    // stone
    {{3.6, 3.8},
     {.95f, .93f, .89f},
     {.49f, .56f, .62f},
     {.80f, .78f, .74f},
     16,
     8,
     48,
     54,
     1,
     3,
     {.86f, .83f, .78f},
     false,
     0.9f,
     true},
    // shop
    {{6.0, 4.5},
     {.90f, .87f, .83f},
     {.46f, .54f, .58f},
     {.94f, .93f, .90f},
     5,
     4,
     59,
     42,
     2,
     6,
     {.80f, .77f, .72f},
     false,
     1.25f,
     false},
    // old town
    {{3.6, 3.2},
     {.97f, .95f, .91f},
     {.36f, .33f, .30f},
     {.50f, .38f, .28f},
     20,
     14,
     44,
     44,
     2,
     4,
     {.60f, .48f, .38f},
     false,
     1.1f,
     false},
    // fins
    {{2.4, 4.2},
     {.82f, .87f, .91f},
     {.62f, .72f, .80f},
     {.95f, .97f, .98f},
     14,
     8,
     64,
     64,
     0,
     0,
     {.9f, .93f, .95f},
     false,
     0.85f,
     true},
}};
// clang-format on

const Style& StyleOf(Surface facade)
{
    return kStyles[static_cast<std::size_t>(facade)];
}

/// Glass of neighbouring panes differs a little, and it mirrors more sky further up.
Colour Pane(const Style& style, Random& random, int bay, int floor)
{
    const double slow = std::sin(6.283 * (bay + floor) / kFacadeBays) * 0.07;
    const double own = random.Range(-0.10, 0.10) + (random.Chance(0.14) ? 0.16 : 0.0);
    return style.glass * static_cast<float>(1.0 + slow + own);
}

void PaintWindow(Canvas& canvas, const Style& style, Random& random, int x, int y, int bay, int floor)
{
    constexpr int kFrame = 2;
    canvas.Rectangle(x + style.left, y + style.bottom, x + style.right, y + style.top, style.frame);
    const int panes = style.mullions + 1;
    const int width = style.right - style.left;
    for (int i = 0; i < panes; ++i)
    {
        const int x0 = x + style.left + width * i / panes + kFrame;
        const int x1 = x + style.left + width * (i + 1) / panes - kFrame + 1;
        const Colour pane = Pane(style, random, bay, floor);
        canvas.Gradient(x0, y + style.bottom + kFrame, x1, y + style.top - kFrame, pane * 0.88f, pane * 1.10f);
    }
    // The lintel throws a thin shade on the glass.
    for (int row = y + style.top - kFrame - 3; row < y + style.top - kFrame; ++row)
        for (int column = x + style.left + kFrame; column < x + style.right - kFrame; ++column)
            canvas.At(column, row) *= 0.82f;
}

void PaintBalcony(Canvas& canvas, const Style& style, int x, int y)
{
    canvas.Gradient(x + 2, y + 2, x + kCell - 2, y + 24, style.bandColour * 0.90f, style.bandColour * 1.05f);
    canvas.Rectangle(x + 2, y + 22, x + kCell - 2, y + 25, style.wall * 1.02f);
    canvas.Rectangle(x + 2, y - 2, x + kCell - 2, y + 2, style.wall * 0.66f);
}

void PaintSign(Canvas& canvas, Random& random, int x, int y)
{
    static const Colour kSigns[] = {{.72f, .42f, .34f}, {.36f, .50f, .58f}, {.80f, .66f, .40f},
                                    {.46f, .56f, .44f}, {.90f, .88f, .84f}, {.50f, .46f, .52f}};
    canvas.Rectangle(x + 4, y + 44, x + kCell - 4, y + 56, random.Pick(kSigns));
}

} // namespace

FacadeModule ModuleOf(Surface facade)
{
    return StyleOf(facade).module;
}

osg::ref_ptr<osg::Image> PaintFacade(Surface facade)
{
    const Style& style = StyleOf(facade);
    Random random(100u + static_cast<unsigned>(facade));
    Canvas canvas(kFacadePicture, kFacadePicture, style.wall);
    canvas.Clouds(random, 16, 0.025f);
    for (int floor = 0; floor < kFacadeBays; ++floor)
        for (int bay = 0; bay < kFacadeBays; ++bay)
        {
            const int x = bay * kCell;
            const int y = floor * kCell;
            PaintWindow(canvas, style, random, x, y, bay, floor);
            canvas.Rectangle(x, y + kCell - style.band, x + kCell, y + kCell, style.bandColour);
            if (style.band > 0)
                canvas.Rectangle(x, y + kCell - style.band - 2, x + kCell, y + kCell - style.band, style.wall * 0.78f);
            if (style.balconies && (bay == 1 || bay == 2 || bay == 5 || bay == 6))
                PaintBalcony(canvas, style, x, y);
            if (facade == Surface::FacadeShop)
                PaintSign(canvas, random, x, y);
        }
    canvas.Grain(random, 0.015f);
    return canvas.Image();
}

osg::ref_ptr<osg::Image> PaintFacadeLights(Surface facade, double litShare, float strength)
{
    static const Colour kLamps[] = {{1.0f, .78f, .46f}, {1.0f, .85f, .60f}, {1.0f, .72f, .40f}, {.95f, .92f, .82f}};
    static const Colour kOffice[] = {{1.0f, .90f, .70f}, {.86f, .92f, .96f}, {1.0f, .84f, .58f}};
    const Style& style = StyleOf(facade);
    Random random(200u + static_cast<unsigned>(facade));
    Canvas canvas(kFacadePicture, kFacadePicture, Colour());
    for (int floor = 0; floor < kFacadeBays; ++floor)
    {
        const bool busy = random.Chance(0.35);
        for (int bay = 0; bay < kFacadeBays; ++bay)
        {
            const double share = style.lit ? litShare * (busy ? 1.7 : 0.65) : litShare;
            const Colour lamp = style.lit ? random.Pick(kOffice) : random.Pick(kLamps);
            const float bright = strength * style.lightFactor * static_cast<float>(random.Range(0.45, 1.0));
            if (!random.Chance(facade == Surface::FacadeShop ? 0.9 : share))
                continue;
            const int x = bay * kCell;
            const int y = floor * kCell;
            const int panes = style.mullions + 1;
            for (int i = 0; i < panes; ++i)
            {
                const int width = style.right - style.left;
                const int x0 = x + style.left + width * i / panes + 2;
                const int x1 = x + style.left + width * (i + 1) / panes - 1;
                canvas.Gradient(x0, y + style.bottom + 2, x1, y + style.top - 2, lamp * (bright * 0.7f), lamp * bright);
            }
        }
    }
    return canvas.Image();
}

} // namespace city
