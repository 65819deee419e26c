// SPDX-License-Identifier: MIT
#pragma once

#include "../../platform/SystemGl.h"
#include "GlContext.h"

#include <osg/Matrixf>

#include <cstddef>

namespace osg
{
class State;
} // namespace osg

/// OpenGL's state while the interface is drawn. Whatever the scene and its host have left, the interface's picture is the same,
/// and everything is put back as it was found: what `osg::State` follows stays true, and so does what it knows nothing of.
class GlState
{
public:
    GlState() = default;
    ~GlState() = default;
    GlState(const GlState&) = delete;
    GlState& operator=(const GlState&) = delete;

    /// Notes what is bound, and binds the vertex-array object that the state takes to be bound. The context has to be current
    /// until `End`.
    void Begin(osg::State& state);
    /// Sets all that the picture depends on, but for blending.
    void Set();
    /// Puts everything back. Nothing without `Begin`.
    void End();
    bool IsBegun() const { return state_ != nullptr; }

    /// Sixteen numbers each, column by column. With the matrices of OpenGL, those that OpenSceneGraph hands to shaders as
    /// uniforms are set when it does.
    void UseProjection(const float* matrix);
    void UseModelMatrix(const float* matrix);
    /// All draws from now on take these.
    void UseVertices(const SystemGl::Vertex* vertices, std::size_t count);
    /// How textures are read until told otherwise: the nearest pixel as it stands, or as each texture says, which is a mixture
    /// of neighbours. Without OpenGL 3.3's samplers it is always the latter.
    void ReadNearestPixels(bool nearest);

private:
    /// What `glPushAttrib` would save, where its stack is full.
    struct Values
    {
        int polygonMode[2];
        int shadeModel;
        int colorMask[4];
        int blendFactors[4];
        int blendEquations[2];
        int scissor[4];
        int viewport[4];
        int texture;
        int textureMode;
        int matrixMode;
        int clipControl[2];
    };

    void SetArrays();
    void DisableFoundArrays();
    bool UsesOwnArray() const { return context_.hasVertexArrayObjects && !clientPushed_; }
    void SetFixedFunctions();
    void SaveValues();
    void RestoreValues();
    void RestoreArrays();

    osg::State* state_ = nullptr; ///< between `Begin` and `End`
    GlContext context_;

    // As found.
    bool set_ = false; ///< since `Set`
    bool pushed_ = false;
    bool clientPushed_ = false;
    bool fixed_ = false; ///< there is no program
    bool colorSum_ = false;
    unsigned int trackedUnit_ = 0;
    unsigned int trackedClientUnit_ = 0;
    int unit_ = 0;
    int clientUnit_ = 0;
    int program_ = 0;
    int pipeline_ = 0;
    int arrayBuffer_ = 0;
    int vertexArray_ = 0;
    int boundSampler_ = 0;
    int drawBuffer_ = 0;
    int readBuffer_ = 0;
    float modelView_[16] = {};
    float projection_[16] = {};
    float texture_[16] = {};
    Values values_ = {};

    bool nearest_ = false;
    osg::Matrixf usedProjection_;
};
