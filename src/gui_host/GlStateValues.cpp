// SPDX-License-Identifier: MIT
// What `glPushAttrib` would save, where its stack is full.
#include "GlState.h"

#include "GlNames.h"

#include <osg/GLExtensions>

namespace
{
using namespace GlNames;
} // namespace

void GlState::SaveValues()
{
    for (Capability& capability : capabilities_)
    {
        capability.found = SystemGl::IsEnabled(capability.name);
    }
    if (fixed_)
    {
        for (UnitTarget& texture : unitTargets_)
        {
            extensions_->glActiveTexture(Texture0 + texture.unit);
            texture.found = SystemGl::IsEnabled(texture.target);
        }
        extensions_->glActiveTexture(Texture0);
    }
    SystemGl::Get(GL_POLYGON_MODE, values_.polygonMode);
    values_.shadeModel = SystemGl::Get(GL_SHADE_MODEL);
    SystemGl::Get(GL_COLOR_WRITEMASK, values_.colorMask);
    values_.blendFactors[0] = SystemGl::Get(BlendSourceRgb);
    values_.blendFactors[1] = SystemGl::Get(BlendDestinationRgb);
    values_.blendFactors[2] = SystemGl::Get(BlendSourceAlpha);
    values_.blendFactors[3] = SystemGl::Get(BlendDestinationAlpha);
    values_.blendEquations[0] = SystemGl::Get(BlendEquationRgb);
    values_.blendEquations[1] = SystemGl::Get(BlendEquationAlpha);
    SystemGl::Get(GL_SCISSOR_BOX, values_.scissor);
    SystemGl::Get(GL_VIEWPORT, values_.viewport);
    values_.texture = SystemGl::Get(GL_TEXTURE_BINDING_2D);
    values_.textureMode = SystemGl::TextureMode();
    if (extensions_->glClipControl)
    {
        values_.clipControl[0] = SystemGl::Get(ClipOrigin);
        values_.clipControl[1] = SystemGl::Get(ClipDepthMode);
    }
}

void GlState::RestoreValues()
{
    for (const Capability& capability : capabilities_)
    {
        SystemGl::Enable(capability.name, capability.found);
    }
    if (fixed_)
    {
        for (const UnitTarget& texture : unitTargets_)
        {
            extensions_->glActiveTexture(Texture0 + texture.unit);
            SystemGl::Enable(texture.target, texture.found);
        }
        extensions_->glActiveTexture(Texture0);
    }
    const auto name = [](int value) { return static_cast<unsigned int>(value); };
    const auto on = [](int value) { return value != 0; };
    SystemGl::PolygonMode(name(values_.polygonMode[0]), name(values_.polygonMode[1]));
    SystemGl::ShadeModel(name(values_.shadeModel));
    SystemGl::ColorMask(on(values_.colorMask[0]), on(values_.colorMask[1]), on(values_.colorMask[2]), on(values_.colorMask[3]));
    extensions_->glBlendFuncSeparate(name(values_.blendFactors[0]), name(values_.blendFactors[1]), name(values_.blendFactors[2]),
                                     name(values_.blendFactors[3]));
    extensions_->glBlendEquationSeparate(name(values_.blendEquations[0]), name(values_.blendEquations[1]));
    SystemGl::Scissor(values_.scissor[0], values_.scissor[1], values_.scissor[2], values_.scissor[3]);
    SystemGl::Viewport(values_.viewport[0], values_.viewport[1], values_.viewport[2], values_.viewport[3]);
    SystemGl::BindTexture(name(values_.texture));
    SystemGl::TextureMode(values_.textureMode);
    if (extensions_->glClipControl)
    {
        extensions_->glClipControl(name(values_.clipControl[0]), name(values_.clipControl[1]));
    }
}
