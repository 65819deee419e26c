// SPDX-License-Identifier: MIT
#include "GlContext.h"

#include "../../platform/SystemGl.h"
#include "GlNames.h"

#include <osg/GLExtensions>
#include <osg/State>

using namespace GlNames;

GlContext::GlContext() = default;

GlContext::~GlContext()
{
    if (sampler != 0)
    {
        extensions->glDeleteSamplers(1, &sampler);
    }
    if (ownArray != 0)
    {
        extensions->glDeleteVertexArrays(1, &ownArray);
        extensions->glDeleteBuffers(1, &ownBuffer);
    }
}

void GlContext::Learn(osg::State& state)
{
    extensions = state.get<osg::GLExtensions>();
    // A window that was closed and made again has another context, in which there is no sampler yet.
    if (state_.get() == &state && (sampler == 0 || extensions->glIsSampler(sampler)))
    {
        return;
    }
    state_ = &state;
    const float version = extensions->glVersion;
    const auto has = [&](const char* extension, float since)
    { return osg::isGLExtensionOrVersionSupported(state.getContextID(), extension, since); };

    hasVertexArrayObjects = has("GL_ARB_vertex_array_object", 3.0f);
    ownArray = 0;
    sampler = 0;
    hasSamplers = has("GL_ARB_sampler_objects", 3.3f);
    if (hasSamplers)
    {
        extensions->glGenSamplers(1, &sampler);
        extensions->glSamplerParameteri(sampler, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        extensions->glSamplerParameteri(sampler, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
        extensions->glSamplerParameteri(sampler, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
        extensions->glSamplerParameteri(sampler, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    }
    hasPipelines = has("GL_ARB_separate_shader_objects", 4.1f);
    attributeDepth = SystemGl::Get(GL_MAX_ATTRIB_STACK_DEPTH);
    clientDepth = SystemGl::Get(GL_MAX_CLIENT_ATTRIB_STACK_DEPTH);
    vertexAttributes = version >= 2.0f ? static_cast<unsigned int>(SystemGl::Get(MaxVertexAttributes)) : 0;
    textureCoordinates = static_cast<unsigned int>(SystemGl::Get(version >= 2.0f ? MaxTextureCoordinates : MaxTextureUnits));

    capabilities.clear();
    const auto want = [this](unsigned int name, bool wanted) { capabilities.push_back({name, wanted, false}); };
    for (const unsigned int name : {GL_BLEND, GL_SCISSOR_TEST, GL_TEXTURE_2D})
    {
        want(name, true);
    }
    for (const unsigned int name :
         {GL_ALPHA_TEST, GL_COLOR_LOGIC_OP, GL_CULL_FACE, GL_DEPTH_TEST, GL_FOG, GL_LIGHTING, GL_POLYGON_SMOOTH,
          GL_POLYGON_STIPPLE, GL_STENCIL_TEST, GL_TEXTURE_GEN_S, GL_TEXTURE_GEN_T, GL_TEXTURE_GEN_R, GL_TEXTURE_GEN_Q})
    {
        want(name, false);
    }
    for (const unsigned int name : {ColorSum, SampleAlphaToCoverage, SampleAlphaToOne, SampleCoverage})
    {
        want(name, false);
    }
    for (unsigned int plane = 0; plane < static_cast<unsigned int>(SystemGl::Get(GL_MAX_CLIP_PLANES)); ++plane)
    {
        want(ClipDistance0 + plane, false);
    }
    if (version >= 2.0f)
    {
        want(VertexProgramTwoSide, false);
    }
    if (has("GL_ARB_framebuffer_sRGB", 3.0f))
    {
        want(FramebufferSrgb, false);
    }
    if (has("GL_ARB_texture_multisample", 3.2f))
    {
        want(SampleMask, false);
    }

    unitTargets.clear();
    const bool rectangles = has("GL_ARB_texture_rectangle", 3.1f);
    for (unsigned int unit = 0; unit < static_cast<unsigned int>(SystemGl::Get(MaxTextureUnits)); ++unit)
    {
        for (const unsigned int target : {static_cast<unsigned int>(GL_TEXTURE_1D), Texture3D, TextureCubeMap, TextureRectangle})
        {
            if (target != TextureRectangle || rectangles)
            {
                unitTargets.push_back({unit, target, false});
            }
        }
        if (unit != 0)
        {
            unitTargets.push_back({unit, GL_TEXTURE_2D, false});
        }
    }
}
