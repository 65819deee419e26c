// SPDX-License-Identifier: MIT
// OpenSceneGraph's ways of handing matrices, attributes and arrays to OpenGL, which a host chooses for its whole scene.
#include "UnderState.h"

#include <osg/DisplaySettings>
#include <osg/Geometry>
#include <osg/Notify>
#include <osg/Program>
#include <osg/Sampler>
#include <osg/State>
#include <osg/Texture2D>

#include <fstream>
#include <iterator>
#include <memory>

namespace
{
class Warnings : public osg::NotifyHandler
{
public:
    void notify(osg::NotifySeverity severity, const char* message) override
    {
        if (severity <= osg::WARN)
        {
            text += message;
        }
    }
    std::string text;
};

/// Warnings of OpenSceneGraph while the object lives.
class WarningsTaken
{
public:
    WarningsTaken() : former_(osg::getNotifyHandler()) { osg::setNotifyHandler(warnings_); }
    ~WarningsTaken() { osg::setNotifyHandler(former_); }
    const std::string& Text() const { return warnings_->text; }

private:
    osg::ref_ptr<osg::NotifyHandler> former_;
    osg::ref_ptr<Warnings> warnings_ = new Warnings;
};

osg::State& HostState(GuiHost& host)
{
    return *host.Viewer().getCamera()->getGraphicsContext()->getState();
}

const char* const SceneVertex = "#version 120\nvarying vec4 shade;\nvoid main()\n{\n    shade = gl_Color;\n"
                                "    gl_Position = gl_ModelViewProjectionMatrix * gl_Vertex;\n}\n";
const char* const SceneFragment = "#version 120\nvarying vec4 shade;\nvoid main() { gl_FragColor = shade; }\n";

/// A coloured rectangle in buffer objects under a program, in the middle of the view.
osg::Geode* SceneOfBuffers(bool vertexArrayObject)
{
    osg::Geometry* quad = osg::createTexturedQuadGeometry(osg::Vec3(-10, 0, -10), osg::Vec3(20, 0, 0), osg::Vec3(0, 0, 20));
    osg::Vec4Array* colors = new osg::Vec4Array(osg::Array::BIND_PER_VERTEX);
    colors->assign(4, osg::Vec4(0.2f, 0.9f, 0.4f, 1));
    quad->setColorArray(colors);
    quad->setUseDisplayList(false);
    quad->setUseVertexBufferObjects(true);
    quad->setUseVertexArrayObject(vertexArrayObject);
    osg::Program* program = new osg::Program;
    program->addShader(new osg::Shader(osg::Shader::VERTEX, SceneVertex));
    program->addShader(new osg::Shader(osg::Shader::FRAGMENT, SceneFragment));
    quad->getOrCreateStateSet()->setAttributeAndModes(program);
    osg::Geode* geode = new osg::Geode;
    geode->addDrawable(quad);
    return geode;
}

/// Each mode has a host of its own: OpenSceneGraph does not change one under a context that has drawn.
class SceneMode : public UnderState
{
protected:
    enum
    {
        Uniforms = 1,
        Aliasing = 2,
        SpreadAttributes = 4, ///< at the places of OpenGL's own
        BufferObjects = 8,
        VertexArrayObjects = 16,
        Combinations = 24
    };

    void SetUp() override
    {
        HostedFrame::SetUp();
        Host().Close();
    }
    void TearDown() override
    {
        EndMode();
        Restart();
        UnderState::TearDown();
    }

    static std::string NameOf(int bits)
    {
        return std::string(bits & Uniforms ? "uniforms " : "") + (bits & Aliasing ? "aliasing " : "") +
               (bits & SpreadAttributes ? "spread " : "") + (bits & BufferObjects ? "VBO " : "") +
               (bits & VertexArrayObjects ? "VAO" : "");
    }
    void BeginMode(int bits, osg::Node* scene)
    {
        EndMode();
        osg::DisplaySettings::instance()->setVertexBufferHint(
            (bits & VertexArrayObjects) != 0 ? osg::DisplaySettings::VERTEX_ARRAY_OBJECT
            : (bits & BufferObjects) != 0    ? osg::DisplaySettings::VERTEX_BUFFER_OBJECT
                                             : osg::DisplaySettings::NO_PREFERENCE);
        other_ = std::make_unique<GuiHost>(ViewWidth, ViewHeight, scene);
        // Windows being made warn of what they try in vain.
        warnings_ = std::make_unique<WarningsTaken>();
        osg::State& state = HostState(*other_);
        state.setUseModelViewAndProjectionUniforms((bits & Uniforms) != 0);
        state.resetVertexAttributeAlias((bits & SpreadAttributes) == 0);
        state.setUseVertexAttributeAliasing((bits & Aliasing) != 0);
        osg::Camera& camera = *other_->Viewer().getCamera();
        camera.setViewMatrixAsLookAt(osg::Vec3(0, -200, 0), osg::Vec3(), osg::Vec3(0, 0, 1));
        other_->Start();
        other_->MoveMouse(ViewWidth / 2, ViewHeight / 2);
        other_->Frames(2);
    }
    void EndMode()
    {
        warnings_.reset();
        if (other_)
        {
            // With vertex-array objects its objects have to go before the scene does.
            other_->Viewer().getCamera()->getGraphicsContext()->makeCurrent();
            other_->Frame().GetGUINode()->releaseGLObjects(&HostState(*other_));
            other_.reset();
        }
        osg::DisplaySettings::instance()->setVertexBufferHint(osg::DisplaySettings::NO_PREFERENCE);
    }
    Screenshot ShootIn(int bits)
    {
        BeginMode(bits, SceneOfBuffers((bits & VertexArrayObjects) != 0));
        return other_->Shoot();
    }

    std::unique_ptr<GuiHost> other_;
    std::unique_ptr<WarningsTaken> warnings_; ///< since the mode's window was made
};
} // namespace

TEST_F(SceneMode, of_each_kind_shows_the_same_interface_and_scene)
{
    const Screenshot plain = ShootIn(0);
    ASSERT_FALSE(plain.At(ViewWidth / 2, ViewHeight / 2) == Background());
    ASSERT_FALSE(plain.At(400, 20) == Background());
    for (int bits = 1; bits < Combinations; ++bits)
    {
        SCOPED_TRACE(NameOf(bits));
        const Screenshot shot = ShootIn(bits);
        EXPECT_EQ(Different(shot, plain), 0);
        EXPECT_EQ(Different(other_->Shoot(), plain), 0) << "a frame in which nothing has changed";
        const Outcome outcome = Draw(
            *other_, [] {}, [] {});
        EXPECT_EQ(ButDisabledArrays(outcome.differences), Lines{});
        EXPECT_EQ(outcome.errors, Lines{});
        EXPECT_EQ(warnings_->Text(), "");
    }
}

TEST_F(SceneMode, of_each_kind_shows_the_same_without_shaders)
{
    const Screenshot plain = ShootIn(0);
    const FileTaken vertex(AppDir() + L"exeFiles\\shader\\cegui.vs");
    for (int bits = 0; bits < Combinations; ++bits)
    {
        SCOPED_TRACE(NameOf(bits));
        CapturedOutput output;
        EXPECT_EQ(Different(ShootIn(bits), plain, 2), 0);
        EXPECT_EQ(output.Text(), " create shader fail!\n");
    }
    EndMode();
}

TEST_F(SceneMode, of_each_kind_compiles_the_shaders_from_glsl_1_20_upwards)
{
    const auto read = [](const char* file)
    {
        std::ifstream stream(std::string("app/exeFiles/shader/") + file);
        return std::string(std::istreambuf_iterator<char>(stream), {});
    };
    const std::string vertex = read("cegui.vs");
    const std::string fragment = read("cegui.fs");
    const std::string version = "#version 120";
    ASSERT_NE(vertex.find(version), std::string::npos);
    ASSERT_NE(fragment.find(version), std::string::npos);
    for (int bits = 0; bits < SpreadAttributes; ++bits)
    {
        BeginMode(bits, nullptr);
        other_->Viewer().getCamera()->getGraphicsContext()->makeCurrent();
        for (const char* const other : {"#version 120", "#version 130", "#version 140", "#version 150 compatibility",
                                        "#version 330 compatibility", "#version 450 compatibility"})
        {
            SCOPED_TRACE(other + (" " + NameOf(bits)));
            const WarningsTaken warnings;
            const auto in = [&](std::string source) { return source.replace(source.find(version), version.size(), other); };
            const osg::ref_ptr<osg::Program> program = new osg::Program;
            program->addShader(new osg::Shader(osg::Shader::VERTEX, in(vertex)));
            program->addShader(new osg::Shader(osg::Shader::FRAGMENT, in(fragment)));
            osg::State& state = HostState(*other_);
            program->compileGLObjects(state);
            EXPECT_TRUE(program->getPCP(state)->isLinked());
            EXPECT_EQ(warnings.Text(), "");
            program->releaseGLObjects(&state);
        }
    }
}

TEST_F(SceneMode, in_which_a_sampler_of_the_scenes_root_stands_on_unit_0_shows_the_same_interface)
{
    const Screenshot plain = ShootIn(0);
    osg::Sampler* sampler = new osg::Sampler;
    sampler->setFilter(osg::Texture::MIN_FILTER, osg::Texture::NEAREST);
    sampler->setFilter(osg::Texture::MAG_FILTER, osg::Texture::NEAREST);
    sampler->setWrap(osg::Texture::WRAP_S, osg::Texture::CLAMP_TO_BORDER);
    sampler->setBorderColor(osg::Vec4d(1, 0, 0, 1));
    osg::StateSet& root = *other_->Root().getOrCreateStateSet();
    root.setTextureAttribute(0, sampler);
    const Screenshot under = (other_->Frames(1), other_->Shoot());
    const Outcome outcome = Draw(
        *other_, [] {}, [] {});
    root.removeTextureAttribute(0, sampler);
    EXPECT_EQ(Different(under, plain), 0);
    EXPECT_EQ(ButDisabledArrays(outcome.differences), Lines{});
    EXPECT_EQ(Different(other_->Shoot(), plain), 0);
}

TEST_F(SceneMode, of_a_shader_of_the_hosts_own_draws_with_it)
{
    const std::string vertex = "void main()\n{\n    gl_Position = ftransform();\n    gl_FrontColor = gl_Color;\n"
                               "    gl_TexCoord[0] = gl_MultiTexCoord0;\n}\n";
    const std::string green = "uniform sampler2D diffuseMap;\nvoid main()\n{\n"
                              "    gl_FragColor = vec4(0, texture2D(diffuseMap, gl_TexCoord[0].xy).a, 0, 1);\n}\n";
    const FileReplaced vertexFile(AppDir() + L"exeFiles\\shader\\cegui.vs", {vertex.begin(), vertex.end()});
    const FileReplaced fragmentFile(AppDir() + L"exeFiles\\shader\\cegui.fs", {green.begin(), green.end()});
    for (int bits = 0; bits < Combinations; ++bits)
    {
        SCOPED_TRACE(NameOf(bits));
        const Pixel seen = ShootIn(bits).At(400, 20);
        EXPECT_EQ(seen.red, 0);
        EXPECT_EQ(seen.blue, 0);
        EXPECT_GT(seen.green, 100);
    }
    EndMode();
}
