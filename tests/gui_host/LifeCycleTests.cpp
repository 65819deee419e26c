// SPDX-License-Identifier: MIT
// Start, end and start again.
#include "support/HostedFrame.h"
#include "support/NativeGl.h"

#include <widgets/InputState.h>

#include <CEGUI/ImageManager.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>

#include <NxOsgCeGui/TitleDialog.h>

#include <osg/GLExtensions>
#include <osg/GLObjects>
#include <osg/Program>

namespace
{
using LifeCycle = HostedFrame;

bool initialisedAtDestroy = false;
WNDPROC formerProcedure = nullptr;

LRESULT CALLBACK SeeDestroy(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_DESTROY)
    {
        initialisedAtDestroy = CeGuiMainFrame::GetInstance()->IsInit();
    }
    return CallWindowProcW(formerProcedure, window, message, wParam, lParam);
}

bool Shown(GuiHost& host)
{
    return !(host.Shoot().At(400, 20) == Pixel{51, 102, 153});
}
} // namespace

// Run by ctest alone, which expects that the program ends with a failure.
TEST_F(LifeCycle, DISABLED_a_test_that_fails)
{
    FAIL() << "on purpose";
}

TEST_F(LifeCycle, init_sets_what_a_start_sets_and_returns_true)
{
    Frame().SetCtrlBtnInfo(std::vector<BTN_UNIT>(3));
    Frame().SetBtnIndex(2);
    Frame().OnToolBarFullScene(true);
    Frame().SetWindowSize(1, 2);
    Host().Close();
    Host().Viewer().getCamera()->setViewport(new osg::Viewport(0, 0, 639.9, 479.9));
    EXPECT_TRUE(Frame().Init(&Host().Viewer(), static_cast<GUIUserType>(3)));
    UINT width = 0;
    UINT height = 0;
    Frame().GetWindowSize(width, height);
    EXPECT_EQ(width, 639u) << "truncated";
    EXPECT_EQ(height, 479u);
    EXPECT_TRUE(Frame().IsInit());
    EXPECT_EQ(Frame().GetUser(), static_cast<GUIUserType>(3));
    EXPECT_EQ(Frame().GetBtnIndex(), -1);
    EXPECT_FALSE(Frame().IsOpenPropertyDlg());
    EXPECT_FALSE(Frame().IsFullScene());
    EXPECT_TRUE(Frame().IsShowLeftToolBar());
    EXPECT_EQ(Frame().GetCtrlBtnInfo().size(), 3u) << "the records stay";
    Host().Viewer().getCamera()->setViewport(new osg::Viewport(0, 0, ViewWidth, ViewHeight));
}

TEST_F(LifeCycle, init_shows_the_left_list_again)
{
    Frame().OnToolBarRCList(nullptr);
    ASSERT_FALSE(Frame().IsShowLeftToolBar());
    Restart();
    EXPECT_TRUE(Frame().IsShowLeftToolBar());
}

TEST_F(LifeCycle, frame_is_built_by_the_first_resize_and_not_by_init)
{
    Host().Close();
    Host().InitOnly();
    Host().Frames(2);
    EXPECT_EQ(Host().Find("rootSheet"), nullptr);
    Rebuild();
    EXPECT_NE(Host().Find("rootSheet"), nullptr);
}

TEST_F(LifeCycle, init_leaves_the_viewers_context_current)
{
    Host().Close();
    osg::GraphicsContext& context = *Host().Viewer().getCamera()->getGraphicsContext();
    context.releaseContext();
    ASSERT_FALSE(NativeGl::HasContext());
    Frame().Init(&Host().Viewer(), GUI_USER_FULL);
    EXPECT_TRUE(NativeGl::HasContext());
}

TEST_F(LifeCycle, close_takes_the_interface_out_of_the_scene_and_cegui_down)
{
    const osg::ref_ptr<osg::Group> camera = Frame().GetGUINode();
    const osg::observer_ptr<CeGuiDrawable> drawable = &Drawable();
    Frame().CloseGuiSystem();
    EXPECT_EQ(camera->getNumChildren(), 0u);
    EXPECT_FALSE(Frame().GetGUINode().valid());
    EXPECT_FALSE(Frame().IsInit());
    EXPECT_EQ(CEGUI::System::getSingletonPtr(), nullptr);
    EXPECT_EQ(InputState::GetIfThere(), nullptr);
    Host().Root().removeChild(camera);
    EXPECT_EQ(Host().Shoot().At(400, 20), Background());
    // The viewer lets go of what it drew last a few frames later.
    Host().Frames(4);
    EXPECT_FALSE(drawable.valid());
}

TEST_F(LifeCycle, close_drops_the_drawables_opengl_objects_while_their_context_is_there)
{
    osg::State& state = *Host().Viewer().getCamera()->getGraphicsContext()->getState();
    const osg::ref_ptr<osg::StateSet> stateSet = Drawable().getStateSet();
    const auto* program = static_cast<const osg::Program*>(stateSet->getAttribute(osg::StateAttribute::PROGRAM));
    ASSERT_NE(program, nullptr);
    const unsigned int handle = program->getPCP(state)->getHandle();
    MakeCurrent();
    ASSERT_TRUE(state.get<osg::GLExtensions>()->glIsProgram(handle));
    Frame().CloseGuiSystem();
    MakeCurrent();
    osg::flushAllDeletedGLObjects(state.getContextID());
    EXPECT_FALSE(state.get<osg::GLExtensions>()->glIsProgram(handle));
}

TEST_F(LifeCycle, close_has_ended_before_the_title_dialog_goes)
{
    OpenTitleEditDialog();
    const HWND dialog = FindWindowW(L"#32770", nullptr);
    ASSERT_NE(dialog, nullptr);
    initialisedAtDestroy = true;
    formerProcedure = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(dialog, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&SeeDestroy)));
    Host().Close();
    EXPECT_FALSE(IsWindow(dialog));
    EXPECT_FALSE(initialisedAtDestroy);
}

TEST_F(LifeCycle, close_with_the_camera_still_in_the_scene_draws_nothing_more)
{
    const osg::ref_ptr<osg::Group> camera = Frame().GetGUINode();
    Frame().CloseGuiSystem();
    EXPECT_EQ(Host().Shoot().At(400, 20), Background());
    Host().Root().removeChild(camera);
}

TEST_F(LifeCycle, second_close_does_nothing)
{
    Host().Close();
    InputState::Get().mousePoint = CPoint(7, 8);
    Frame().CloseGuiSystem();
    EXPECT_EQ(Frame().GetMousePoint(), CPoint(7, 8)) << "the input state is not taken away again";
    EXPECT_FALSE(Frame().IsInit());
}

TEST_F(LifeCycle, input_state_is_made_again_on_first_use_after_close)
{
    Frame().EnablePopupMenu(false);
    Host().MoveMouse(10, 200);
    Host().Close();
    EXPECT_EQ(Frame().GetMousePoint(), CPoint(0, 0));
    EXPECT_TRUE(InputState::Get().contextMenuAllowed);
}

TEST_F(LifeCycle, init_after_close_works_with_the_same_viewer)
{
    for (int i = 0; i < 3; ++i)
    {
        Restart();
        EXPECT_TRUE(Shown(Host())) << i;
        Host().Click(772, 25);
        EXPECT_EQ(Host().TakeCodes(), Codes{15}) << i;
    }
}

TEST_F(LifeCycle, second_init_without_a_close_replaces_the_first)
{
    const osg::ref_ptr<osg::Group> first = Frame().GetGUINode();
    EXPECT_TRUE(Frame().Init(&Host().Viewer(), GUI_USER_FULL));
    Host().Root().removeChild(first);
    Host().Root().addChild(Frame().GetGUINode());
    Host().Frames(1);
    Rebuild();
    EXPECT_TRUE(Shown(Host()));
}

TEST_F(LifeCycle, textures_go_from_the_context_that_they_are_in_when_the_viewer_has_another)
{
    osg::Camera& camera = *Host().Viewer().getCamera();
    const osg::ref_ptr<osg::GraphicsContext> context = camera.getGraphicsContext();
    Host().Close();
    context->makeCurrent();
    const int scenes = NativeGl::LiveTextures();
    Restart();
    context->makeCurrent();
    ASSERT_GT(NativeGl::LiveTextures(), scenes);
    const osg::ref_ptr<osg::Group> node = Frame().GetGUINode();
    {
        GuiHost other(320, 240);
        camera.setGraphicsContext(other.Viewer().getCamera()->getGraphicsContext());
        Frame().CloseGuiSystem();
        camera.setGraphicsContext(context);
    }
    Host().Root().removeChild(node);
    context->makeCurrent();
    EXPECT_EQ(NativeGl::LiveTextures(), scenes);
}

TEST_F(LifeCycle, init_after_close_works_with_another_viewer)
{
    Host().Close();
    {
        GuiHost other(320, 240);
        other.Start();
        EXPECT_EQ(other.Shoot().width, 320);
        EXPECT_FALSE(other.Shoot().At(160, 6) == Background());
        EXPECT_EQ(Frame().GetHwnd(), other.Window());
        other.Click(320 - 28, 25);
        EXPECT_EQ(other.TakeCodes(), Codes{15});
    }
    EXPECT_EQ(Frame().GetHwnd(), nullptr) << "its viewer is gone";
    Restart();
    EXPECT_TRUE(Shown(Host()));
    EXPECT_EQ(Frame().GetHwnd(), Host().Window());
}

TEST_F(LifeCycle, clear_all_windows_leaves_only_the_skins_own_pictures)
{
    MakeCurrent();
    Frame().ClearAllWindows();
    EXPECT_EQ(Host().Find("rootSheet"), nullptr);
    EXPECT_EQ(Host().Find("TavTilteCloseButtom"), nullptr);
    CEGUI::ImageManager& images = CEGUI::ImageManager::getSingleton();
    EXPECT_FALSE(images.isDefined("new_skin/close.png/full_image"));
    EXPECT_TRUE(CEGUI::System::getSingleton().getRenderer()->isTextureDefined("TavLook"));
    EXPECT_EQ(Host().Shoot().At(400, 20), Background());
}

TEST_F(LifeCycle, clear_all_windows_drops_what_is_subscribed_to_the_system)
{
    CEGUI::System& system = CEGUI::System::getSingleton();
    int told = 0;
    system.subscribeEvent(CEGUI::System::EventDisplaySizeChanged,
                          CEGUI::Event::Subscriber([&](const CEGUI::EventArgs&) { return ++told, false; }));
    system.notifyDisplaySizeChanged(CEGUI::Sizef(ViewWidth, ViewHeight));
    ASSERT_EQ(told, 1);
    Frame().ClearAllWindows();
    system.notifyDisplaySizeChanged(CEGUI::Sizef(ViewWidth, ViewHeight));
    EXPECT_EQ(told, 1);
}

TEST_F(LifeCycle, clear_all_windows_makes_the_viewers_context_current_by_itself)
{
    Host().Viewer().getCamera()->getGraphicsContext()->releaseContext();
    Frame().ClearAllWindows();
    EXPECT_TRUE(CEGUI::System::getSingleton().getRenderer()->isTextureDefined("TavLook"));
    EXPECT_TRUE(Frame().CreateMainFrame());
    EXPECT_TRUE(Shown(Host()));
}

TEST_F(LifeCycle, state_of_the_frame_survives_a_resize)
{
    std::vector<BTN_UNIT> records(2);
    records[0].name = L"one";
    records[1].name = L"two";
    Frame().SetCtrlBtnInfo(records);
    Frame().SetBtnIndex(1);
    Frame().SetSceneTitle(L"Other title");
    Frame().SetSceneTitleColor(RGB(1, 2, 3));
    Frame().OnToolBarFullScene(true);
    Frame().OpenPropertyDlg(nullptr, true);
    Frame().OnToolBarRCList(nullptr);
    Frame().EnableSlideOut(true);
    Host().Resize(700, 500);
    EXPECT_EQ(Frame().GetCtrlBtnInfo().size(), 2u);
    EXPECT_EQ(Frame().GetBtnIndex(), 1);
    EXPECT_EQ(Utf8(Frame().GetSceneTitle()), "Other title");
    EXPECT_EQ(Frame().GetSceneTitleColor(), RGB(1, 2, 3));
    EXPECT_TRUE(Frame().IsFullScene());
    EXPECT_FALSE(Window("TavLeftBorderBackground").isVisible());
    EXPECT_TRUE(Frame().IsOpenPropertyDlg());
    EXPECT_TRUE(Window("TavPropertyImage").isEffectiveVisible());
    EXPECT_EQ(Place("TavBackCtrlFrame"), "440,0 - 700,500");
    EXPECT_FALSE(Frame().IsShowLeftToolBar());
    EXPECT_FALSE(Window("TavLeftCtrlFrame").isVisible());
    EXPECT_TRUE(Frame().IsSlideOutEnabled());
    Frame().EnableSlideOut(false);
    Frame().OpenPropertyDlg(nullptr, false);
    Frame().SetSceneTitleColor(0xE1C8C5);
}
