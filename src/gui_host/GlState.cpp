// SPDX-License-Identifier: MIT
#include "GlState.h"

#include "GlNames.h"

#include <osg/GLExtensions>
#include <osg/State>
#include <osg/Uniform>
#include <osg/VertexArrayState>

#include <algorithm>
#include <cstddef>

using namespace GlNames;

namespace
{
constexpr float Identity[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
} // namespace

void GlState::Begin(osg::State& state)
{
    context_.Learn(state);
    state_ = &state;
    set_ = false;
    unit_ = SystemGl::Get(ActiveTexture);
    clientUnit_ = SystemGl::Get(ClientActiveTexture);
    trackedUnit_ = state.getActiveTextureUnit();
    trackedClientUnit_ = state.getClientActiveTextureUnit();
    vertexArray_ = context_.hasVertexArrayObjects ? SystemGl::Get(VertexArrayBinding) : 0;
    const osg::VertexArrayState* tracked = state.getCurrentVertexArrayState();
    if (tracked && context_.hasVertexArrayObjects && static_cast<int>(tracked->getVertexArrayObject()) != vertexArray_)
    {
        context_.extensions->glBindVertexArray(tracked->getVertexArrayObject());
    }
}

void GlState::Set()
{
    set_ = true;
    nearest_ = false;
    // OpenSceneGraph need not know of the units that are active.
    context_.extensions->glActiveTexture(Texture0);
    context_.extensions->glClientActiveTexture(Texture0);
    program_ = context_.extensions->glUseProgram ? SystemGl::Get(CurrentProgram) : 0;
    fixed_ = program_ == 0;
    drawBuffer_ = context_.extensions->glBindFramebuffer ? SystemGl::Get(DrawFramebufferBinding) : 0;
    readBuffer_ = context_.extensions->glBindFramebuffer ? SystemGl::Get(ReadFramebufferBinding) : 0;
    boundSampler_ = context_.hasSamplers ? SystemGl::Get(SamplerBinding) : 0;
    if (boundSampler_ != 0)
    {
        context_.extensions->glBindSampler(0, 0);
    }
    SetArrays();
    SystemGl::Get(GL_MODELVIEW_MATRIX, modelView_);
    SystemGl::Get(GL_PROJECTION_MATRIX, projection_);
    SystemGl::Get(GL_TEXTURE_MATRIX, texture_);
    values_.matrixMode = SystemGl::Get(GL_MATRIX_MODE);
    // Not every driver saves this one with the others.
    colorSum_ = SystemGl::IsEnabled(ColorSum);
    pushed_ = SystemGl::Get(GL_ATTRIB_STACK_DEPTH) < context_.attributeDepth;
    if (pushed_)
    {
        SystemGl::PushState();
    }
    else
    {
        SaveValues();
    }
    for (const GlContext::Capability& capability : context_.capabilities)
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
    context_.extensions->glBlendEquation(FunctionAdd);
    if (context_.extensions->glClipControl)
    {
        context_.extensions->glClipControl(LowerLeft, NegativeOneToOne);
    }
    SystemGl::LoadMatrix(GL_TEXTURE, Identity);
    UseModelMatrix(Identity);
}

void GlState::SetArrays()
{
    arrayBuffer_ = SystemGl::Get(ArrayBufferBinding);
    clientPushed_ = SystemGl::Get(GL_CLIENT_ATTRIB_STACK_DEPTH) < context_.clientDepth;
    if (UsesOwnArray())
    {
        // The arrays that are in use cannot be saved, so others are used, which have to lie in a buffer object.
        if (context_.ownArray == 0)
        {
            context_.extensions->glGenVertexArrays(1, &context_.ownArray);
            context_.extensions->glGenBuffers(1, &context_.ownBuffer);
        }
        context_.extensions->glBindVertexArray(context_.ownArray);
    }
    else
    {
        if (context_.hasVertexArrayObjects)
        {
            // Arrays in memory are allowed in OpenGL's own vertex-array object alone.
            context_.extensions->glBindVertexArray(0);
        }
        if (clientPushed_)
        {
            SystemGl::PushClientState();
        }
        DisableFoundArrays();
    }
    // A buffer object left bound would turn arrays in memory into offsets.
    context_.extensions->glBindBuffer(ArrayBuffer, UsesOwnArray() ? context_.ownBuffer : 0);
    SystemGl::EnableVertexArrays();
    if (state_->getUseVertexAttributeAliasing())
    {
        context_.extensions->glEnableVertexAttribArray(state_->getVertexAlias()._location);
        context_.extensions->glEnableVertexAttribArray(state_->getColorAlias()._location);
        context_.extensions->glEnableVertexAttribArray(state_->getTexCoordAliasList().front()._location);
    }
}

void GlState::DisableFoundArrays()
{
    for (const unsigned int array : {static_cast<unsigned int>(GL_NORMAL_ARRAY), static_cast<unsigned int>(GL_INDEX_ARRAY),
                                     static_cast<unsigned int>(GL_EDGE_FLAG_ARRAY), SecondaryColorArray, FogCoordinateArray})
    {
        SystemGl::DisableClientArray(array);
    }
    for (unsigned int unit = 1; unit < context_.textureCoordinates; ++unit)
    {
        context_.extensions->glClientActiveTexture(Texture0 + unit);
        SystemGl::DisableClientArray(GL_TEXTURE_COORD_ARRAY);
    }
    context_.extensions->glClientActiveTexture(Texture0);
    for (unsigned int attribute = 0; attribute < context_.vertexAttributes; ++attribute)
    {
        context_.extensions->glDisableVertexAttribArray(attribute);
    }
}

void GlState::SetFixedFunctions()
{
    pipeline_ = context_.hasPipelines ? SystemGl::Get(ProgramPipelineBinding) : 0;
    if (pipeline_ != 0)
    {
        SystemGl::BindProgramPipeline(0);
    }
    unsigned int active = 0;
    for (const GlContext::UnitTarget& texture : context_.unitTargets)
    {
        if (texture.unit != active)
        {
            active = texture.unit;
            context_.extensions->glActiveTexture(Texture0 + active);
        }
        SystemGl::Enable(texture.target, false);
    }
    context_.extensions->glActiveTexture(Texture0);
}

void GlState::SaveValues()
{
    for (GlContext::Capability& capability : context_.capabilities)
    {
        capability.found = SystemGl::IsEnabled(capability.name);
    }
    if (fixed_)
    {
        for (GlContext::UnitTarget& texture : context_.unitTargets)
        {
            context_.extensions->glActiveTexture(Texture0 + texture.unit);
            texture.found = SystemGl::IsEnabled(texture.target);
        }
        context_.extensions->glActiveTexture(Texture0);
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
    if (context_.extensions->glClipControl)
    {
        values_.clipControl[0] = SystemGl::Get(ClipOrigin);
        values_.clipControl[1] = SystemGl::Get(ClipDepthMode);
    }
}

void GlState::RestoreValues()
{
    for (const GlContext::Capability& capability : context_.capabilities)
    {
        SystemGl::Enable(capability.name, capability.found);
    }
    if (fixed_)
    {
        for (const GlContext::UnitTarget& texture : context_.unitTargets)
        {
            context_.extensions->glActiveTexture(Texture0 + texture.unit);
            SystemGl::Enable(texture.target, texture.found);
        }
        context_.extensions->glActiveTexture(Texture0);
    }
    const auto name = [](int value) { return static_cast<unsigned int>(value); };
    const auto on = [](int value) { return value != 0; };
    SystemGl::PolygonMode(name(values_.polygonMode[0]), name(values_.polygonMode[1]));
    SystemGl::ShadeModel(name(values_.shadeModel));
    SystemGl::ColorMask(on(values_.colorMask[0]), on(values_.colorMask[1]), on(values_.colorMask[2]), on(values_.colorMask[3]));
    context_.extensions->glBlendFuncSeparate(name(values_.blendFactors[0]), name(values_.blendFactors[1]),
                                             name(values_.blendFactors[2]), name(values_.blendFactors[3]));
    context_.extensions->glBlendEquationSeparate(name(values_.blendEquations[0]), name(values_.blendEquations[1]));
    SystemGl::Scissor(values_.scissor[0], values_.scissor[1], values_.scissor[2], values_.scissor[3]);
    SystemGl::Viewport(values_.viewport[0], values_.viewport[1], values_.viewport[2], values_.viewport[3]);
    SystemGl::BindTexture(name(values_.texture));
    SystemGl::TextureMode(values_.textureMode);
    if (context_.extensions->glClipControl)
    {
        context_.extensions->glClipControl(name(values_.clipControl[0]), name(values_.clipControl[1]));
    }
}

void GlState::RestoreArrays()
{
    if (clientPushed_)
    {
        SystemGl::PopClientState();
    }
    context_.extensions->glBindBuffer(ArrayBuffer, static_cast<unsigned int>(arrayBuffer_));
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
        if (context_.extensions->glUseProgram && SystemGl::Get(CurrentProgram) != program_)
        {
            context_.extensions->glUseProgram(static_cast<unsigned int>(program_));
        }
        if (context_.extensions->glBindFramebuffer && SystemGl::Get(DrawFramebufferBinding) != drawBuffer_)
        {
            context_.extensions->glBindFramebuffer(DrawFramebuffer, static_cast<unsigned int>(drawBuffer_));
        }
        if (context_.extensions->glBindFramebuffer && SystemGl::Get(ReadFramebufferBinding) != readBuffer_)
        {
            context_.extensions->glBindFramebuffer(ReadFramebuffer, static_cast<unsigned int>(readBuffer_));
        }
        context_.extensions->glActiveTexture(Texture0);
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
        context_.extensions->glActiveTexture(Texture0);
        if (context_.hasSamplers)
        {
            context_.extensions->glBindSampler(0, static_cast<unsigned int>(boundSampler_));
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
    if (context_.hasVertexArrayObjects)
    {
        context_.extensions->glBindVertexArray(static_cast<unsigned int>(vertexArray_));
    }
    state.setActiveTextureUnit(trackedUnit_);
    state.setClientActiveTextureUnit(trackedClientUnit_);
    context_.extensions->glActiveTexture(static_cast<unsigned int>(unit_));
    context_.extensions->glClientActiveTexture(static_cast<unsigned int>(clientUnit_));
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
        context_.extensions->glBufferData(ArrayBuffer, static_cast<std::ptrdiff_t>(count * sizeof(SystemGl::Vertex)), vertices,
                                          StreamDraw);
        first = nullptr;
    }
    SystemGl::UseVertices(first);
    if (state_ && state_->getUseVertexAttributeAliasing())
    {
        const auto use = [&](unsigned int location, int size, std::size_t offset)
        {
            context_.extensions->glVertexAttribPointer(location, size, GL_FLOAT, GL_FALSE, sizeof(SystemGl::Vertex),
                                                       static_cast<const char*>(first) + offset);
        };
        use(state_->getVertexAlias()._location, 3, offsetof(SystemGl::Vertex, position));
        use(state_->getColorAlias()._location, 4, offsetof(SystemGl::Vertex, color));
        use(state_->getTexCoordAliasList().front()._location, 2, offsetof(SystemGl::Vertex, texture));
    }
}

void GlState::ReadNearestPixels(bool nearest)
{
    if (nearest != nearest_ && context_.sampler != 0)
    {
        nearest_ = nearest;
        context_.extensions->glBindSampler(0, nearest ? context_.sampler : 0);
    }
}
