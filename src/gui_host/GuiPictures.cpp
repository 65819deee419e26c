// SPDX-License-Identifier: MIT
#include "GuiPictures.h"

#include <CEGUI/RenderEffect.h>
#include <CEGUI/RendererModules/OpenGL/GlmPimpl.h>

#include <algorithm>
#include <cmath>

namespace
{
/// Of a pixel; coordinates come from sums of fractions.
constexpr float Tolerance = 1.0f / 64;

bool IsWhole(float pixels)
{
    return std::fabs(pixels - std::round(pixels)) <= Tolerance;
}
} // namespace

void GuiRenderer::Pictures::draw() const
{
    // An effect may put the picture anywhere.
    const bool plain = !turned_ && !d_effect;
    if (!known_ && plain)
    {
        known_ = true;
        Look();
        pixelOnPixel_ = IsPixelOnPixel();
    }
    if (renderer_.queueing_)
    {
        generation_ = renderer_.generation_;
        renderer_.queued_.push_back(this);
    }
    if (plain && !seen_)
    {
        return;
    }
    if (plain && d_blendMode == CEGUI::BM_NORMAL && renderer_.mayWait_)
    {
        Wait();
        return;
    }
    renderer_.queueing_ = false;
    renderer_.DrawWaiting();
    DrawAlone(plain && pixelOnPixel_);
}

void GuiRenderer::Pictures::DrawAlone(bool nearest) const
{
    const float height = renderer_.getActiveViewPort().getHeight();
    SystemGl::Scissor(static_cast<int>(d_clipRect.left()), static_cast<int>(height - d_clipRect.bottom()),
                      static_cast<int>(d_clipRect.getWidth()), static_cast<int>(d_clipRect.getHeight()));
    if (!d_matrixValid)
    {
        updateMatrix();
    }
    renderer_.state_.UseModelMatrix(&d_matrix->d_matrix[0][0]);
    renderer_.setupRenderingBlendMode(d_blendMode);
    const int passes = d_effect ? d_effect->getPassCount() : 1;
    for (int pass = 0; pass < passes; ++pass)
    {
        if (d_effect)
        {
            d_effect->performPreRenderFunctions(pass);
        }
        renderer_.state_.ReadNearestPixels(nearest);
        std::size_t first = 0;
        for (const BatchInfo& batch : d_batches)
        {
            SystemGl::Enable(GL_SCISSOR_TEST, batch.clip);
            SystemGl::BindTexture(batch.texture);
            renderer_.state_.UseVertices(Vertices(first), batch.vertexCount);
            SystemGl::DrawTriangles(0, static_cast<int>(batch.vertexCount));
            first += batch.vertexCount;
        }
        renderer_.state_.ReadNearestPixels(false);
    }
    if (d_effect)
    {
        d_effect->performPostRenderFunctions();
    }
}

void GuiRenderer::Pictures::Wait() const
{
    std::size_t first = 0;
    for (const BatchInfo& batch : d_batches)
    {
        renderer_.waiting_.Add(
            {batch.texture, pixelOnPixel_, batch.clip && !whole_, d_clipRect, 0, static_cast<int>(batch.vertexCount)},
            Vertices(first), d_translation);
        first += batch.vertexCount;
    }
}

void GuiRenderer::Pictures::Look() const
{
    seen_ = !d_vertices.empty();
    whole_ = false;
    if (!seen_ || std::any_of(d_batches.begin(), d_batches.end(), [](const BatchInfo& batch) { return !batch.clip; }))
    {
        return;
    }
    CEGUI::Rectf place(d_vertices[0].position[0], d_vertices[0].position[1], d_vertices[0].position[0],
                       d_vertices[0].position[1]);
    for (const GLVertex& vertex : d_vertices)
    {
        place = CEGUI::Rectf(std::min(place.left(), vertex.position[0]), std::min(place.top(), vertex.position[1]),
                             std::max(place.right(), vertex.position[0]), std::max(place.bottom(), vertex.position[1]));
    }
    place.offset(CEGUI::Vector2f(d_translation.d_x, d_translation.d_y));
    // CEGUI cuts at whole pixels, on either side of the true edge.
    seen_ = place.right() >= d_clipRect.left() - 1 && place.left() <= d_clipRect.right() + 1 &&
            place.bottom() >= d_clipRect.top() - 1 && place.top() <= d_clipRect.bottom() + 1 && d_clipRect.getWidth() > 0 &&
            d_clipRect.getHeight() > 0;
    whole_ = place.left() >= std::ceil(d_clipRect.left()) && place.right() <= std::floor(d_clipRect.right()) &&
             place.top() >= std::ceil(d_clipRect.top()) && place.bottom() <= std::floor(d_clipRect.bottom());
}

bool GuiRenderer::Pictures::IsPixelOnPixel() const
{
    if (d_batches.size() != 1 || textureName_ == 0 || textureName_ != d_batches[0].texture)
    {
        return false;
    }
    const CEGUI::Sizef size = textureSize_;
    const GLVertex& first = d_vertices.front();
    return std::all_of(d_vertices.begin(), d_vertices.end(),
                       [&](const GLVertex& vertex)
                       {
                           const float x = vertex.position[0] - first.position[0];
                           const float y = vertex.position[1] - first.position[1];
                           const float u = (vertex.tex[0] - first.tex[0]) * size.d_width;
                           const float v = (vertex.tex[1] - first.tex[1]) * size.d_height;
                           return IsWhole(vertex.position[0] + d_translation.d_x) &&
                                  IsWhole(vertex.position[1] + d_translation.d_y) && IsWhole(vertex.tex[0] * size.d_width) &&
                                  IsWhole(vertex.tex[1] * size.d_height) && std::fabs(x - u) <= Tolerance &&
                                  std::fabs(y - v) <= Tolerance;
                       });
}
