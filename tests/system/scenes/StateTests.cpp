// SPDX-License-Identifier: MIT
// States of OpenGL that a scene or a host leaves just before the interface is drawn: the interface looks the same, and all of the
// state is as it was after it.
#include "UnderState.h"

#include "widgets/Pictures.h"

#include <widgets/FileImageset.h>
#include <widgets/WindowNames.h>

#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>

namespace
{
struct State
{
    const char* name;
    std::function<void()> set;
    std::function<void()> unset;
    /// OpenSceneGraph is told to disable all client arrays before the interface is drawn, and they stay so.
    bool arraysDisabled = false;
};

void Nothing() {}

State Capability(const char* name, unsigned int capability)
{
    return {name, [=] { native_glEnable(capability); }, Nothing};
}

/// Objects of OpenGL that live while a state does.
unsigned int names[8];
unsigned int moreNames[8];

void Reset(unsigned int target)
{
    native_glDisable(target);
    native_glBindTexture(target, 0);
}

/// Puts black textures of all kinds on the units 0 to 7 and lets the fixed functions draw with them.
void BindTextures()
{
    const unsigned char black[256] = {};
    native_glGenTextures(8, names);
    native_glGenBuffers(1, moreNames);
    native_glBindBuffer(0x8C2A /* GL_TEXTURE_BUFFER */, moreNames[0]);
    native_glBufferData(0x8C2A, sizeof(black), black, 0x88E4 /* GL_STATIC_DRAW */);
    for (unsigned int unit = 0; unit < 8; ++unit)
    {
        native_glActiveTexture(0x84C0 + unit);
        switch (unit % 4)
        {
        case 0:
            native_glBindTexture(0x806F /* GL_TEXTURE_3D */, names[unit]);
            native_glTexImage3D(0x806F, 0, 0x1908, 2, 2, 2, 0, 0x1908, 0x1401, black);
            native_glTexParameteri(0x806F, 0x2801, 0x2600);
            native_glEnable(0x806F);
            break;
        case 1:
            native_glBindTexture(0x0DE0 /* GL_TEXTURE_1D */, names[unit]);
            native_glTexImage1D(0x0DE0, 0, 0x1908, 4, 0, 0x1908, 0x1401, black);
            native_glTexParameteri(0x0DE0, 0x2801, 0x2600);
            native_glEnable(0x0DE0);
            break;
        case 2:
            native_glBindTexture(0x8513 /* GL_TEXTURE_CUBE_MAP */, names[unit]);
            for (unsigned int face = 0; face < 6; ++face)
            {
                native_glTexImage2D(0x8515 + face, 0, 0x1908, 2, 2, 0, 0x1908, 0x1401, black);
            }
            native_glTexParameteri(0x8513, 0x2801, 0x2600);
            native_glEnable(0x8513);
            break;
        default:
            native_glBindTexture(0x0DE1 /* GL_TEXTURE_2D */, names[unit]);
            native_glTexImage2D(0x0DE1, 0, 0x1908, 2, 2, 0, 0x1908, 0x1401, black);
            native_glTexParameteri(0x0DE1, 0x2801, 0x2600);
            native_glEnable(0x0DE1);
            native_glEnable(0x0C60 /* GL_TEXTURE_GEN_S */);
            native_glBindTexture(0x8C2A /* GL_TEXTURE_BUFFER */, moreNames[1] = names[unit - 3]);
            break;
        }
    }
    native_glActiveTexture(0x84C0);
}

void UnbindTextures()
{
    for (unsigned int unit = 0; unit < 8; ++unit)
    {
        native_glActiveTexture(0x84C0 + unit);
        native_glDisable(0x0C60);
        for (const unsigned int target : {0x0DE0u, 0x0DE1u, 0x806Fu, 0x8513u})
        {
            Reset(target);
        }
    }
    native_glActiveTexture(0x84C0);
    native_glBindBuffer(0x8C2A, 0);
    native_glDeleteTextures(8, names);
    native_glDeleteBuffers(1, moreNames);
}

/// Arrays that end somewhere in memory that is nobody's.
void EnableForeignArrays()
{
    const void* const nowhere = reinterpret_cast<const void*>(16);
    for (unsigned int unit = 0; unit < 8; ++unit)
    {
        native_glClientActiveTexture(0x84C0 + unit);
        native_glTexCoordPointer(4, 0x1406, 0, nowhere);
        native_glEnableClientState(0x8078);
    }
    native_glClientActiveTexture(0x84C5);
    native_glVertexPointer(2, 0x1406, 0, nowhere);
    native_glColorPointer(4, 0x1401, 0, nowhere);
    native_glNormalPointer(0x1406, 0, nowhere);
    for (const unsigned int array : {0x8074u, 0x8075u, 0x8076u})
    {
        native_glEnableClientState(array);
    }
    for (unsigned int index = 1; index < 16; ++index)
    {
        native_glVertexAttribPointer(index, 3, 0x1406, 0, 0, nowhere);
        native_glEnableVertexAttribArray(index);
    }
}

void DisableForeignArrays()
{
    for (unsigned int unit = 0; unit < 8; ++unit)
    {
        native_glClientActiveTexture(0x84C0 + unit);
        native_glDisableClientState(0x8078);
    }
    native_glClientActiveTexture(0x84C0);
    for (const unsigned int array : {0x8074u, 0x8075u, 0x8076u})
    {
        native_glDisableClientState(array);
    }
    for (unsigned int index = 1; index < 16; ++index)
    {
        native_glDisableVertexAttribArray(index);
    }
}

/// @return how often it could be pushed
int Fill(unsigned int depth, unsigned int limit, const std::function<void()>& push)
{
    int now = 0;
    int most = 0;
    native_glGetIntegerv(depth, &now);
    native_glGetIntegerv(limit, &most);
    for (int i = now; i < most; ++i)
    {
        push();
    }
    return most - now;
}

int pushed[4];

void FillStacks()
{
    pushed[0] = Fill(0x0BB0, 0x0D35, [] { native_glPushAttrib(0xFFFFF); });
    pushed[1] = Fill(0x0BB1, 0x0D3B, [] { native_glPushClientAttrib(0xFFFFFFFF); });
    native_glMatrixMode(0x1701);
    pushed[2] = Fill(0x0BA4, 0x0D38, [] { native_glPushMatrix(); });
    native_glMatrixMode(0x1700);
    pushed[3] = Fill(0x0BA3, 0x0D36, [] { native_glPushMatrix(); });
    ASSERT_GT(pushed[0], 0);
    ASSERT_GT(pushed[1], 0);
    // Values that are found when they were saved by no stack.
    native_glEnable(0x0B90);
    native_glStencilFunc(0x0200, 1, 0xFF);
    native_glColorMask(1, 0, 1, 0);
    native_glPolygonMode(0x0408, 0x1B01);
    native_glBlendFunc(0, 1);
    native_glScissor(1, 2, 3, 4);
    native_glTexEnvi(0x2300, 0x2200, 0x1E01);
    EnableForeignArrays();
}

void EmptyStacks()
{
    DisableForeignArrays();
    for (; pushed[3] > 0; --pushed[3])
    {
        native_glPopMatrix();
    }
    native_glMatrixMode(0x1701);
    for (; pushed[2] > 0; --pushed[2])
    {
        native_glPopMatrix();
    }
    native_glMatrixMode(0x1700);
    for (; pushed[1] > 0; --pushed[1])
    {
        native_glPopClientAttrib();
    }
    for (; pushed[0] > 0; --pushed[0])
    {
        native_glPopAttrib();
    }
}

const std::vector<State>& States()
{
    static const std::vector<State> states = {
        {"none", Nothing, Nothing},
        Capability("alpha test", 0x0BC0),
        Capability("clip plane", 0x3000),
        Capability("colour sum", 0x8458),
        Capability("depth test", 0x0B71),
        Capability("fog", 0x0B60),
        Capability("lighting", 0x0B50),
        Capability("polygon smoothing", 0x0B41),
        Capability("sample coverage", 0x80A0),
        Capability("alpha to coverage", 0x809E),
        Capability("sRGB framebuffer", 0x8DB9),
        Capability("two-sided colours", 0x8643),
        {"scissor",
         []
         {
             native_glEnable(0x0C11);
             native_glScissor(10, 10, 20, 20);
         },
         Nothing},
        {"stencil",
         []
         {
             native_glEnable(0x0B90);
             native_glStencilFunc(0x0200 /* GL_NEVER */, 1, 0xFF);
         },
         Nothing},
        {"colour mask", [] { native_glColorMask(1, 0, 0, 0); }, Nothing},
        {"polygon mode", [] { native_glPolygonMode(0x0408, 0x1B01); }, Nothing},
        {"front face and culling",
         []
         {
             native_glFrontFace(0x0900);
             native_glEnable(0x0B44);
             native_glCullFace(0x0408);
         },
         Nothing},
        {"logic operation",
         []
         {
             native_glEnable(0x0BF2);
             native_glLogicOp(0x1500);
         },
         Nothing},
        {"blending",
         []
         {
             native_glDisable(0x0BE2);
             native_glBlendFunc(1, 1);
             native_glBlendEquation(0x800B);
         },
         Nothing},
        {"flat shading", [] { native_glShadeModel(0x1D00); }, Nothing},
        {"texture environment and matrix",
         []
         {
             native_glTexEnvi(0x2300, 0x2200, 0x1E01);
             native_glMatrixMode(0x1702);
             native_glRotatef(90, 0, 0, 1);
         },
         []
         {
             native_glRotatef(-90, 0, 0, 1);
             native_glMatrixMode(0x1700);
         }},
        {"clip control", [] { native_glClipControl(0x8CA2, 0x935F); }, Nothing},
        {"textures on units 0 to 7", BindTextures, UnbindTextures},
        {"active units",
         []
         {
             native_glActiveTexture(0x84C5);
             native_glClientActiveTexture(0x84C6);
         },
         Nothing},
        {"sampler",
         []
         {
             native_glGenSamplers(1, names);
             native_glSamplerParameteri(names[0], 0x2800, 0x2600);
             native_glSamplerParameteri(names[0], 0x2801, 0x2600);
             native_glSamplerParameteri(names[0], 0x2802, 0x812D);
             native_glBindSampler(0, names[0]);
         },
         []
         {
             native_glBindSampler(0, 0);
             native_glDeleteSamplers(1, names);
         }},
        {"program pipeline",
         []
         {
             const char* const source = "void main() { gl_FragColor = vec4(1.0, 0.0, 0.0, 1.0); }";
             native_glGenProgramPipelines(1, names);
             moreNames[0] = native_glCreateShaderProgramv(0x8B30, 1, &source);
             native_glUseProgramStages(names[0], 2, moreNames[0]);
             native_glBindProgramPipeline(names[0]);
         },
         []
         {
             // While a program is in use, some drivers take this for done.
             int program = 0;
             native_glGetIntegerv(0x8B8D, &program);
             native_glUseProgram(0);
             native_glBindProgramPipeline(0);
             native_glUseProgram(static_cast<unsigned int>(program));
             native_glDeleteProgramPipelines(1, names);
             native_glDeleteProgram(moreNames[0]);
         }},
        {"client arrays", EnableForeignArrays, DisableForeignArrays, true},
        {"buffers",
         []
         {
             native_glGenBuffers(3, names);
             native_glBindBuffer(0x8892, names[0]);
             native_glBindBuffer(0x8893, names[1]);
             native_glBindBuffer(0x88EC, names[2]);
         },
         []
         {
             for (const unsigned int target : {0x8892u, 0x8893u, 0x88ECu})
             {
                 native_glBindBuffer(target, 0);
             }
             native_glDeleteBuffers(3, names);
         }},
        {"vertex-array object",
         []
         {
             native_glGenVertexArrays(1, names);
             native_glGenBuffers(2, moreNames);
             native_glBindVertexArray(names[0]);
             native_glBindBuffer(0x8892, moreNames[0]);
             native_glBindBuffer(0x8893, moreNames[1]);
             EnableForeignArrays();
         },
         []
         {
             native_glBindVertexArray(0);
             native_glBindBuffer(0x8892, 0);
             native_glDeleteVertexArrays(1, names);
             native_glDeleteBuffers(2, moreNames);
         }},
        {"pixel storage",
         []
         {
             native_glPixelStorei(0x0CF2, 13);
             native_glPixelStorei(0x0CF4, 3);
             native_glPixelStorei(0x0CF5, 8);
         },
         Nothing},
        {"full stacks", FillStacks, EmptyStacks, true},
    };
    return states;
}

class SceneState : public UnderState
{
protected:
    static void ExpectSameUnderEachState()
    {
        Host().Frames(2);
        const Screenshot plain = Host().Shoot();
        for (const State& state : States())
        {
            SCOPED_TRACE(state.name);
            for (const bool changed : {true, false})
            {
                SCOPED_TRACE(changed ? "all windows queued anew" : "nothing changed");
                if (changed)
                {
                    MarkDirty();
                }
                const Outcome outcome = Draw(state.set, state.unset);
                EXPECT_EQ(Different(outcome.shot, plain), 0);
                EXPECT_EQ(state.arraysDisabled ? ButDisabledArrays(outcome.differences) : outcome.differences, Lines{});
                EXPECT_EQ(outcome.errors, Lines{});
            }
            EXPECT_EQ(Different(Host().Shoot(), plain), 0) << "the next frame";
        }
    }
};
} // namespace

TEST_F(SceneState, differs_in_a_snapshot)
{
    MakeCurrent();
    for (const State& state : States())
    {
        native_glPushAttrib(0xFFFFF);
        native_glPushClientAttrib(0xFFFFFFFF);
        const GlSnapshot before = TakeGlSnapshot();
        state.set();
        EXPECT_EQ(Differences(before, TakeGlSnapshot()).empty(), std::string(state.name) == "none") << state.name;
        state.unset();
        native_glPopClientAttrib();
        native_glPopAttrib();
    }
}

TEST_F(SceneState, under_the_interfaces_program_is_kept_and_not_seen)
{
    ExpectSameUnderEachState();
}

TEST_F(SceneState, under_the_fixed_functions_is_kept_and_not_seen)
{
    const FixedFunctions fixed;
    ExpectSameUnderEachState();
}
