// SPDX-License-Identifier: MIT
// The interface over scenes whose last drawable leaves OpenGL's client state as it used it: not one pixel of it differs.
#include "support/HostedFrame.h"
#include "support/NativeGl.h"

#include <osg/BufferObject>
#include <osg/Geometry>
#include <osg/Program>
#include <osg/State>

#include <functional>

namespace
{
using ReadState = std::function<int()>;

/// A host's own drawable, which draws nothing.
class HostDrawable : public osg::Drawable
{
public:
    HostDrawable()
    {
        setSupportsDisplayList(false);
        setCullingActive(false);
    }
    osg::Object* cloneType() const override { return nullptr; }
    osg::Object* clone(const osg::CopyOp&) const override { return nullptr; }

protected:
    /// The object of this buffer in this context, with its data uploaded.
    static osg::GLBufferObject* Uploaded(osg::BufferObject& buffer, osg::State& state)
    {
        osg::GLBufferObject* object = buffer.getOrCreateGLBufferObject(state.getContextID());
        if (object->isDirty())
        {
            object->compileBuffer();
        }
        return object;
    }
};

class LeavesVertexBuffer : public HostDrawable
{
public:
    LeavesVertexBuffer() { corners_->setVertexBufferObject(buffer_); }
    void drawImplementation(osg::RenderInfo& info) const override
    {
        osg::State& state = *info.getState();
        state.bindVertexBufferObject(Uploaded(*buffer_, state));
    }

private:
    osg::ref_ptr<osg::Vec3Array> corners_ = new osg::Vec3Array(4);
    osg::ref_ptr<osg::VertexBufferObject> buffer_ = new osg::VertexBufferObject;
};

class LeavesElementBuffer : public HostDrawable
{
public:
    LeavesElementBuffer() { corners_->setElementBufferObject(buffer_); }
    void drawImplementation(osg::RenderInfo& info) const override
    {
        osg::State& state = *info.getState();
        state.bindElementBufferObject(Uploaded(*buffer_, state));
    }

private:
    osg::ref_ptr<osg::DrawElementsUShort> corners_ = new osg::DrawElementsUShort(GL_POINTS, 4);
    osg::ref_ptr<osg::ElementBufferObject> buffer_ = new osg::ElementBufferObject;
};

class LeavesTextureUnits : public HostDrawable
{
public:
    void drawImplementation(osg::RenderInfo& info) const override
    {
        osg::State& state = *info.getState();
        // With an array of its own, whose unit OSG goes through when it disables all.
        state.setTexCoordPointer(2, 2, GL_FLOAT, 0, corners_->getDataPointer());
        state.setActiveTextureUnit(3);
    }

private:
    osg::ref_ptr<osg::Vec2Array> corners_ = new osg::Vec2Array(100000);
};

/// A geometry of OSG's with its corners in the generic array that takes the place of the vertex array. It is too small to be
/// seen.
osg::Drawable* LeavesGenericArray()
{
    osg::Geometry* geometry = new osg::Geometry;
    geometry->setUseDisplayList(false);
    geometry->setUseVertexBufferObjects(false);
    geometry->setCullingActive(false);
    geometry->setVertexAttribArray(0, new osg::Vec3Array(3), osg::Array::BIND_PER_VERTEX);
    geometry->addPrimitiveSet(new osg::DrawArrays(GL_TRIANGLES, 0, 3));
    osg::Program* program = new osg::Program;
    program->addBindAttribLocation("corner", 0);
    program->addShader(new osg::Shader(osg::Shader::VERTEX, "attribute vec3 corner;\nvoid main()\n{\n"
                                                            "    gl_Position = vec4(corner, 1.0);\n}\n"));
    program->addShader(new osg::Shader(osg::Shader::FRAGMENT, "void main()\n{\n    gl_FragColor = vec4(1.0);\n}\n"));
    geometry->getOrCreateStateSet()->setAttributeAndModes(program);
    return geometry;
}

/// Reads a state just before the interface's camera draws.
class ReadBeforeInterface : public osg::Camera::DrawCallback
{
public:
    explicit ReadBeforeInterface(ReadState read) : read_(std::move(read)) {}
    void operator()(osg::RenderInfo&) const override { value = read_(); }
    mutable int value = -1;

private:
    ReadState read_;
};

class LeftBehind : public HostedFrame
{
protected:
    /// Draws frames in which this is the scene's last drawable, and compares them with one without it.
    /// @param leaves whatever is not 0 when the drawable has left behind what it is here for
    static void ExpectSameInterface(osg::Drawable* drawable, ReadState leaves)
    {
        const Screenshot without = Host().Shoot();
        ASSERT_FALSE(without.At(400, 20) == Background()) << "the title bar";
        const osg::ref_ptr<osg::Geode> last = new osg::Geode;
        last->addDrawable(drawable);
        last->setCullingActive(false);
        last->getOrCreateStateSet()->setRenderBinDetails(1000, "RenderBin");
        auto& hud = dynamic_cast<osg::Camera&>(*Frame().GetGUINode());
        const osg::ref_ptr<ReadBeforeInterface> before = new ReadBeforeInterface(std::move(leaves));
        hud.setInitialDrawCallback(before);
        Host().Root().addChild(last);
        Host().Frames(2);
        const Screenshot with = Host().Shoot();
        Host().Root().removeChild(last);
        hud.setInitialDrawCallback(nullptr);
        EXPECT_GT(before->value, 0) << "the drawable has to leave it behind";
        EXPECT_TRUE(with.pixels == without.pixels);
        EXPECT_TRUE(Host().Shoot().pixels == without.pixels) << "and in the frame after it";
    }
};
} // namespace

TEST_F(LeftBehind, vertex_buffer_is_not_taken_for_the_interfaces_vertices)
{
    ExpectSameInterface(new LeavesVertexBuffer, [] { return NativeGl::BoundVertexBuffer(); });
}

TEST_F(LeftBehind, element_buffer_changes_nothing)
{
    ExpectSameInterface(new LeavesElementBuffer, [] { return NativeGl::BoundElementBuffer(); });
}

TEST_F(LeftBehind, generic_vertex_array_does_not_take_the_place_of_the_interfaces_vertices)
{
    ExpectSameInterface(LeavesGenericArray(), [] { return NativeGl::IsGenericArrayEnabled(0); });
}

TEST_F(LeftBehind, texture_units_are_not_those_of_the_interfaces_pictures)
{
    // Without a program it is OpenGL's fixed functions that read the pictures, on a unit that has to be enabled for it.
    Restart();
    osg::StateSet& states = *Drawable().getOrCreateStateSet();
    const osg::ref_ptr<osg::StateAttribute> program = states.getAttribute(osg::StateAttribute::PROGRAM);
    ASSERT_TRUE(program);
    states.removeAttribute(program);
    ExpectSameInterface(new LeavesTextureUnits,
                        [] { return NativeGl::ActiveClientTextureUnit() == 2 && NativeGl::ActiveTextureUnit() == 3; });
    states.setAttributeAndModes(program);
}
