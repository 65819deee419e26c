// SPDX-License-Identifier: MIT
// The camera over the scene, the drawable's state and its shader.
#include "support/HostedFrame.h"

#include <NxConfig/SystemUtility.h>

#include <osg/Program>
#include <osg/Uniform>

namespace
{
class HudCamera : public HostedFrame
{
protected:
    static osg::Camera& Camera() { return dynamic_cast<osg::Camera&>(*Frame().GetGUINode()); }
    static const osg::Program* Program()
    {
        return static_cast<const osg::Program*>(Drawable().getStateSet()->getAttribute(osg::StateAttribute::PROGRAM));
    }
    /// Starts the interface anew. @return what went to standard output
    static std::string StartAgain()
    {
        Host().Close();
        CapturedOutput output;
        EXPECT_TRUE(Frame().Init(&Host().Viewer(), GUI_USER_FULL));
        return output.Text();
    }
    static CString Shader(const wchar_t* file) { return AppDir() + L"exeFiles\\shader\\" + file; }
    static CString FallbackDir() { return AppDir() + L"shader\\"; }
    static std::string Source(osg::Shader::Type type)
    {
        for (unsigned int i = 0; Program() && i < Program()->getNumShaders(); ++i)
        {
            if (Program()->getShader(i)->getType() == type)
            {
                return Program()->getShader(i)->getShaderSource();
            }
        }
        return "";
    }
    void TearDown() override
    {
        DeleteFileW(FallbackDir() + L"cegui.vs");
        DeleteFileW(FallbackDir() + L"cegui.fs");
        RemoveDirectoryW(FallbackDir());
        HostedFrame::TearDown();
    }
    static void WriteFallback(const wchar_t* file, const std::string& text)
    {
        CreateDirectoryW(FallbackDir(), nullptr);
        ASSERT_TRUE(WriteBytes(FallbackDir() + file, {text.begin(), text.end()}));
    }
};

const char* const vertexText = "// fall-back\nvoid main() { gl_Position = ftransform(); gl_TexCoord[0] = gl_MultiTexCoord0; "
                               "gl_FrontColor = gl_Color; }\n";
const char* const fragmentText = "// fall-back\nuniform sampler2D diffuseMap;\nvoid main() { gl_FragColor = "
                                 "texture2D(diffuseMap, gl_TexCoord[0].xy) * gl_Color; }\n";
} // namespace

TEST_F(HudCamera, draws_after_the_scene_and_clears_the_depth_only)
{
    EXPECT_EQ(Camera().getName(), "gui_Camera");
    EXPECT_EQ(Camera().getReferenceFrame(), osg::Transform::RELATIVE_RF);
    EXPECT_EQ(Camera().getClearMask(), static_cast<GLbitfield>(GL_DEPTH_BUFFER_BIT));
    EXPECT_EQ(Camera().getRenderOrder(), osg::Camera::POST_RENDER);
    EXPECT_EQ(Camera().getRenderOrderNum(), 0);
    EXPECT_FALSE(Camera().getAllowEventFocus());
    EXPECT_TRUE(Camera().getViewMatrix().isIdentity());
    EXPECT_TRUE(Camera().getProjectionMatrix().isIdentity());
    EXPECT_EQ(Camera().getStateSet()->getMode(GL_LIGHTING),
              static_cast<osg::StateAttribute::GLModeValue>(osg::StateAttribute::OFF | osg::StateAttribute::PROTECTED));
}

TEST_F(HudCamera, has_the_drawable_in_a_geode_as_its_only_child)
{
    ASSERT_EQ(Camera().getNumChildren(), 1u);
    ASSERT_NE(Camera().getChild(0)->asGeode(), nullptr);
    ASSERT_EQ(Camera().getChild(0)->asGeode()->getNumDrawables(), 1u);
    EXPECT_FALSE(Drawable().getCullingActive());
    EXPECT_EQ(Drawable().getStateSet()->getMode(GL_LIGHTING),
              static_cast<osg::StateAttribute::GLModeValue>(osg::StateAttribute::OFF | osg::StateAttribute::PROTECTED));
}

TEST_F(HudCamera, drawable_has_the_program_and_samples_unit_0)
{
    const osg::StateSet& state = *Drawable().getStateSet();
    const osg::StateSet::RefUniformPair* uniform = state.getUniformPair("diffuseMap");
    ASSERT_NE(uniform, nullptr);
    EXPECT_EQ(uniform->first->getType(), osg::Uniform::INT);
    int unit = -1;
    uniform->first->get(unit);
    EXPECT_EQ(unit, 0);
    ASSERT_NE(Program(), nullptr);
    EXPECT_EQ(Program()->getNumShaders(), 2u);
    EXPECT_NE(Source(osg::Shader::VERTEX), "");
    EXPECT_NE(Source(osg::Shader::FRAGMENT), "");
}

TEST_F(HudCamera, loads_the_shaders_of_the_application_even_when_the_fall_backs_are_there)
{
    WriteFallback(L"cegui.vs", vertexText);
    WriteFallback(L"cegui.fs", fragmentText);
    EXPECT_EQ(StartAgain(), "");
    EXPECT_EQ(Source(osg::Shader::VERTEX).find("// fall-back"), std::string::npos);
    EXPECT_EQ(Source(osg::Shader::FRAGMENT).find("// fall-back"), std::string::npos);
}

TEST_F(HudCamera, absent_vertex_shader_is_replaced_by_the_fall_back)
{
    const FileTaken vertex(Shader(L"cegui.vs"));
    WriteFallback(L"cegui.vs", vertexText);
    EXPECT_EQ(StartAgain(), "");
    EXPECT_EQ(Source(osg::Shader::VERTEX).find("// fall-back"), 0u);
    EXPECT_EQ(Source(osg::Shader::FRAGMENT).find("// fall-back"), std::string::npos);
}

TEST_F(HudCamera, absent_fragment_shader_is_replaced_by_the_fall_back_and_the_frame_shows)
{
    const FileTaken fragment(Shader(L"cegui.fs"));
    WriteFallback(L"cegui.fs", fragmentText);
    Host().Close();
    Restart();
    EXPECT_EQ(Source(osg::Shader::FRAGMENT).find("// fall-back"), 0u);
    EXPECT_FALSE(Host().Shoot().At(400, 20) == Background());
}

TEST_F(HudCamera, both_shaders_absent_is_told_in_one_line_and_init_is_true)
{
    const FileTaken vertex(Shader(L"cegui.vs"));
    const FileTaken fragment(Shader(L"cegui.fs"));
    EXPECT_EQ(StartAgain(), " create shader fail!\n");
    EXPECT_TRUE(Frame().IsInit());
    EXPECT_EQ(Program(), nullptr);
    EXPECT_EQ(Drawable().getStateSet()->getUniform("diffuseMap"), nullptr);
}

TEST_F(HudCamera, one_shader_absent_is_enough_for_no_program)
{
    const FileTaken fragment(Shader(L"cegui.fs"));
    EXPECT_EQ(StartAgain(), " create shader fail!\n");
    EXPECT_EQ(Program(), nullptr);
}

TEST_F(HudCamera, without_a_program_the_frame_looks_the_same)
{
    const Screenshot with = Host().Shoot();
    const FileTaken vertex(Shader(L"cegui.vs"));
    const FileTaken fragment(Shader(L"cegui.fs"));
    {
        CapturedOutput output;
        Restart();
    }
    Host().MoveMouse(ViewWidth / 2, ViewHeight / 2);
    const Screenshot without = Host().Shoot();
    int worst = 0;
    for (std::size_t i = 0; i < with.pixels.size(); ++i)
    {
        worst = std::max(worst, Distance(with.pixels[i], without.pixels[i]));
    }
    EXPECT_LE(worst, 2);
}
