// SPDX-License-Identifier: MIT
#pragma once

#include <osg/observer_ptr>
#include <osg/ref_ptr>

#include <vector>

namespace osg
{
class GLExtensions;
class State;
} // namespace osg

/// What OpenGL offers in a context, and the objects that the interface has made in it. They are destroyed with this object while
/// the context is current.
struct GlContext
{
    struct Capability
    {
        unsigned int name;
        bool wanted;
        bool found;
    };
    /// A texture target of a unit, which the fixed functions would draw with.
    struct UnitTarget
    {
        unsigned int unit;
        unsigned int target;
        bool found;
    };

    GlContext();
    ~GlContext();
    GlContext(const GlContext&) = delete;
    GlContext& operator=(const GlContext&) = delete;

    /// Asks the state's context, which has to be current. Asks nothing when it is the one that was asked last.
    void Learn(osg::State& state);

    osg::ref_ptr<const osg::GLExtensions> extensions;
    unsigned int ownArray = 0; ///< a vertex-array object and its buffer object, made when they are wanted
    unsigned int ownBuffer = 0;
    unsigned int sampler = 0; ///< reads nearest pixels; none where OpenGL has no samplers
    bool hasSamplers = false;
    bool hasVertexArrayObjects = false;
    bool hasPipelines = false;
    int attributeDepth = 0; ///< of OpenGL's stack
    int clientDepth = 0;
    unsigned int vertexAttributes = 0;
    unsigned int textureCoordinates = 0;
    /// What the interface's picture depends on.
    std::vector<Capability> capabilities;
    std::vector<UnitTarget> unitTargets;

private:
    osg::observer_ptr<osg::State> state_;
};
