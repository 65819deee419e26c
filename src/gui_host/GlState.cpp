// SPDX-License-Identifier: MIT
#include "GlState.h"

#include "GlNames.h"

#include <osg/GLExtensions>
#include <osg/State>
#include <osg/Uniform>
#include <osg/VertexArrayState>

#include <algorithm>
#include <cstddef>

namespace
{
using namespace GlNames;
constexpr float Identity[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
} // namespace

GlState::GlState() = default;

GlState::~GlState()
{
    if (sampler_ != 0)
    {
        extensions_->glDeleteSamplers(1, &sampler_);
    }
    if (ownArray_ != 0)
    {
        extensions_->glDeleteVertexArrays(1, &ownArray_);
        extensions_->glDeleteBuffers(1, &ownBuffer_);
    }
}

void GlState::LearnContext(osg::State& state)
{
    extensions_ = state.get<osg::GLExtensions>();
    // A window that was closed and made again has another context, in which there is no sampler yet.
    if (contextState_.get() == &state && (sampler_ == 0 || extensions_->glIsSampler(sampler_)))
    {
        return;
    }
    contextState_ = &state;
    const float version = extensions_->glVersion;
    const auto has = [&](const char* extension, float since)
    { return osg::isGLExtensionOrVersionSupported(state.getContextID(), extension, since); };

    hasVertexArrayObjects_ = has("GL_ARB_vertex_array_object", 3.0f);
    ownArray_ = 0;
    sampler_ = 0;
    hasSamplers_ = has("GL_ARB_sampler_objects", 3.3f);
    if (hasSamplers_)
    {
        extensions_->glGenSamplers(1, &sampler_);
        extensions_->glSamplerParameteri(sampler_, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        extensions_->glSamplerParameteri(sampler_, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
        extensions_->glSamplerParameteri(sampler_, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
        extensions_->glSamplerParameteri(sampler_, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    }
    hasPipelines_ = has("GL_ARB_separate_shader_objects", 4.1f);
    attributeDepth_ = SystemGl::Get(GL_MAX_ATTRIB_STACK_DEPTH);
    clientDepth_ = SystemGl::Get(GL_MAX_CLIENT_ATTRIB_STACK_DEPTH);
    vertexAttributes_ = version >= 2.0f ? static_cast<unsigned int>(SystemGl::Get(MaxVertexAttributes)) : 0;
    textureCoordinates_ = static_cast<unsigned int>(SystemGl::Get(version >= 2.0f ? MaxTextureCoordinates : MaxTextureUnits));

    capabilities_.clear();
    const auto want = [this](unsigned int name, bool wanted) { capabilities_.push_back({name, wanted, false}); };
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

    unitTargets_.clear();
    const bool rectangles = has("GL_ARB_texture_rectangle", 3.1f);
    for (unsigned int unit = 0; unit < static_cast<unsigned int>(SystemGl::Get(MaxTextureUnits)); ++unit)
    {
        for (const unsigned int target : {static_cast<unsigned int>(GL_TEXTURE_1D), Texture3D, TextureCubeMap, TextureRectangle})
        {
            if (target != TextureRectangle || rectangles)
            {
                unitTargets_.push_back({unit, target, false});
            }
        }
        if (unit != 0)
        {
            unitTargets_.push_back({unit, GL_TEXTURE_2D, false});
        }
    }
}

void GlState::Begin(osg::State& state)
{
    LearnContext(state);
    state_ = &state;
    set_ = false;
    unit_ = SystemGl::Get(ActiveTexture);
    clientUnit_ = SystemGl::Get(ClientActiveTexture);
    trackedUnit_ = state.getActiveTextureUnit();
    trackedClientUnit_ = state.getClientActiveTextureUnit();
    vertexArray_ = hasVertexArrayObjects_ ? SystemGl::Get(VertexArrayBinding) : 0;
    const osg::VertexArrayState* tracked = state.getCurrentVertexArrayState();
    if (tracked && hasVertexArrayObjects_ && static_cast<int>(tracked->getVertexArrayObject()) != vertexArray_)
    {
        extensions_->glBindVertexArray(tracked->getVertexArrayObject());
    }
}

void GlState::Set()
{
    set_ = true;
    nearest_ = false;
    // OpenSceneGraph need not know of the units that are active.
    extensions_->glActiveTexture(Texture0);
    extensions_->glClientActiveTexture(Texture0);
    program_ = extensions_->glUseProgram ? SystemGl::Get(CurrentProgram) : 0;
    fixed_ = program_ == 0;
    drawBuffer_ = extensions_->glBindFramebuffer ? SystemGl::Get(DrawFramebufferBinding) : 0;
    readBuffer_ = extensions_->glBindFramebuffer ? SystemGl::Get(ReadFramebufferBinding) : 0;
    boundSampler_ = hasSamplers_ ? SystemGl::Get(SamplerBinding) : 0;
    if (boundSampler_ != 0)
    {
        extensions_->glBindSampler(0, 0);
    }
    SetArrays();
    SystemGl::Get(GL_MODELVIEW_MATRIX, modelView_);
    SystemGl::Get(GL_PROJECTION_MATRIX, projection_);
    SystemGl::Get(GL_TEXTURE_MATRIX, texture_);
    values_.matrixMode = SystemGl::Get(GL_MATRIX_MODE);
    // Not every driver saves this one with the others.
    colorSum_ = SystemGl::IsEnabled(ColorSum);
    pushed_ = SystemGl::Get(GL_ATTRIB_STACK_DEPTH) < attributeDepth_;
    if (pushed_)
    {
        SystemGl::PushState();
    }
    else
    {
        SaveValues();
    }
    for (const Capability& capability : capabilities_)
    {
        SystemGl::Enable(capability.name, capability.wanted);
    }
    if (fixed_)
    {
        SetFixedFunctions();
    }
    SystemGl::PolygonMode(GL_FILL, GL_FILL);
    SystemGl::ShadeModel(GL_SMOOTH);
    SystemGl::ColorMask(true, true, true, true);
    SystemGl::TextureMode(GL_MODULATE);
    extensions_->glBlendEquation(FunctionAdd);
    if (extensions_->glClipControl)
    {
        extensions_->glClipControl(LowerLeft, NegativeOneToOne);
    }
    SystemGl::LoadMatrix(GL_TEXTURE, Identity);
    UseModelMatrix(Identity);
}

void GlState::SetArrays()
{
    arrayBuffer_ = SystemGl::Get(ArrayBufferBinding);
    clientPushed_ = SystemGl::Get(GL_CLIENT_ATTRIB_STACK_DEPTH) < clientDepth_;
    if (UsesOwnArray())
    {
        // The arrays that are in use cannot be saved, so others are used, which have to lie in a buffer object.
        if (ownArray_ == 0)
        {
            extensions_->glGenVertexArrays(1, &ownArray_);
            extensions_->glGenBuffers(1, &ownBuffer_);
        }
        extensions_->glBindVertexArray(ownArray_);
    }
    else
    {
        if (hasVertexArrayObjects_)
        {
            // Arrays in memory are allowed in OpenGL's own vertex-array object alone.
            extensions_->glBindVertexArray(0);
        }
        if (clientPushed_)
        {
            SystemGl::PushClientState();
        }
        DisableFoundArrays();
    }
    // A buffer object left bound would turn arrays in memory into offsets.
    extensions_->glBindBuffer(ArrayBuffer, UsesOwnArray() ? ownBuffer_ : 0);
    SystemGl::EnableVertexArrays();
    if (state_->getUseVertexAttributeAliasing())
    {
        extensions_->glEnableVertexAttribArray(state_->getVertexAlias()._location);
        extensions_->glEnableVertexAttribArray(state_->getColorAlias()._location);
        extensions_->glEnableVertexAttribArray(state_->getTexCoordAliasList().front()._location);
    }
}

void GlState::DisableFoundArrays()
{
    for (const unsigned int array : {static_cast<unsigned int>(GL_NORMAL_ARRAY), static_cast<unsigned int>(GL_INDEX_ARRAY),
                                     static_cast<unsigned int>(GL_EDGE_FLAG_ARRAY), SecondaryColorArray, FogCoordinateArray})
    {
        SystemGl::DisableClientArray(array);
    }
    for (unsigned int unit = 1; unit < textureCoordinates_; ++unit)
    {
        extensions_->glClientActiveTexture(Texture0 + unit);
        SystemGl::DisableClientArray(GL_TEXTURE_COORD_ARRAY);
    }
    extensions_->glClientActiveTexture(Texture0);
    for (unsigned int attribute = 0; attribute < vertexAttributes_; ++attribute)
    {
        extensions_->glDisableVertexAttribArray(attribute);
    }
}

void GlState::SetFixedFunctions()
{
    pipeline_ = hasPipelines_ ? SystemGl::Get(ProgramPipelineBinding) : 0;
    if (pipeline_ != 0)
    {
        SystemGl::BindProgramPipeline(0);
    }
    unsigned int active = 0;
    for (const UnitTarget& texture : unitTargets_)
    {
        if (texture.unit != active)
        {
            active = texture.unit;
            extensions_->glActiveTexture(Texture0 + active);
        }
        SystemGl::Enable(texture.target, false);
    }
    extensions_->glActiveTexture(Texture0);
}

void GlState::RestoreArrays()
{
    if (clientPushed_)
    {
        SystemGl::PopClientState();
    }
    extensions_->glBindBuffer(ArrayBuffer, static_cast<unsigned int>(arrayBuffer_));
}

void GlState::End()
{
    if (!state_)
    {
        return;
    }
    osg::State& state = *state_;
    if (set_)
    {
        set_ = false;
        // What hosts' slots have bound while CEGUI drew goes as well.
        if (extensions_->glUseProgram && SystemGl::Get(CurrentProgram) != program_)
        {
            extensions_->glUseProgram(static_cast<unsigned int>(program_));
        }
        if (extensions_->glBindFramebuffer && SystemGl::Get(DrawFramebufferBinding) != drawBuffer_)
        {
            extensions_->glBindFramebuffer(DrawFramebuffer, static_cast<unsigned int>(drawBuffer_));
        }
        if (extensions_->glBindFramebuffer && SystemGl::Get(ReadFramebufferBinding) != readBuffer_)
        {
            extensions_->glBindFramebuffer(ReadFramebuffer, static_cast<unsigned int>(readBuffer_));
        }
        extensions_->glActiveTexture(Texture0);
        SystemGl::LoadMatrix(GL_TEXTURE, texture_);
        SystemGl::LoadMatrix(GL_PROJECTION, projection_);
        SystemGl::LoadMatrix(GL_MODELVIEW, modelView_);
        if (pushed_)
        {
            SystemGl::PopState();
        }
        else
        {
            RestoreValues();
        }
        SystemGl::Enable(ColorSum, colorSum_);
        extensions_->glActiveTexture(Texture0);
        if (hasSamplers_)
        {
            extensions_->glBindSampler(0, static_cast<unsigned int>(boundSampler_));
        }
        if (fixed_ && pipeline_ != 0)
        {
            SystemGl::BindProgramPipeline(static_cast<unsigned int>(pipeline_));
        }
        RestoreArrays();
        SystemGl::UseStack(static_cast<unsigned int>(values_.matrixMode));
        if (state.getUseModelViewAndProjectionUniforms())
        {
            state.getModelViewMatrixUniform()->set(state.getModelViewMatrix());
            state.getProjectionMatrixUniform()->set(state.getProjectionMatrix());
            state.updateModelViewAndProjectionMatrixUniforms();
            state.applyModelViewAndProjectionUniformsIfRequired();
        }
    }
    if (hasVertexArrayObjects_)
    {
        extensions_->glBindVertexArray(static_cast<unsigned int>(vertexArray_));
    }
    state.setActiveTextureUnit(trackedUnit_);
    state.setClientActiveTextureUnit(trackedClientUnit_);
    extensions_->glActiveTexture(static_cast<unsigned int>(unit_));
    extensions_->glClientActiveTexture(static_cast<unsigned int>(clientUnit_));
    state_ = nullptr;
}

void GlState::UseProjection(const float* matrix)
{
    SystemGl::LoadMatrix(GL_PROJECTION, matrix);
    usedProjection_.set(matrix);
}

void GlState::UseModelMatrix(const float* matrix)
{
    SystemGl::LoadMatrix(GL_MODELVIEW, matrix);
    if (state_ && state_->getUseModelViewAndProjectionUniforms())
    {
        const osg::Matrixf model(matrix);
        state_->getModelViewMatrixUniform()->set(model);
        state_->getProjectionMatrixUniform()->set(usedProjection_);
        state_->getModelViewProjectionMatrixUniform()->set(model * usedProjection_);
        state_->applyModelViewAndProjectionUniformsIfRequired();
    }
}

void GlState::UseVertices(const SystemGl::Vertex* vertices, std::size_t count)
{
    const void* first = vertices;
    if (state_ && UsesOwnArray())
    {
        extensions_->glBufferData(ArrayBuffer, static_cast<GLsizeiptr>(count * sizeof(SystemGl::Vertex)), vertices, StreamDraw);
        first = nullptr;
    }
    SystemGl::UseVertices(first);
    if (state_ && state_->getUseVertexAttributeAliasing())
    {
        const auto use = [&](unsigned int location, int size, std::size_t offset)
        {
            extensions_->glVertexAttribPointer(location, size, GL_FLOAT, GL_FALSE, sizeof(SystemGl::Vertex),
                                               static_cast<const char*>(first) + offset);
        };
        use(state_->getVertexAlias()._location, 3, offsetof(SystemGl::Vertex, position));
        use(state_->getColorAlias()._location, 4, offsetof(SystemGl::Vertex, color));
        use(state_->getTexCoordAliasList().front()._location, 2, offsetof(SystemGl::Vertex, texture));
    }
}

void GlState::ReadNearestPixels(bool nearest)
{
    if (nearest != nearest_ && sampler_ != 0)
    {
        nearest_ = nearest;
        extensions_->glBindSampler(0, nearest ? sampler_ : 0);
    }
}
