// SPDX-License-Identifier: MIT
// Every operation in every state that a host can bring the interface into.
#include "EveryOperation.h"

#include "support/HostedFrame.h"

#include <NxOsgCeGui/TitleDialog.h>

#include <functional>
#include <utility>

namespace
{
using Operation = std::pair<const char*, std::function<void(CeGuiMainFrame&)>>;

CeGuiMainFrame::PropertyRows Rows()
{
    return {{L"name", L"value"}, {L"length", L"12 m"}};
}

const std::vector<Operation>& Operations()
{
    using F = CeGuiMainFrame;
    static const std::vector<Operation> operations = {
        {"SetSceneTitle", [](F& f) { f.SetSceneTitle(L"title"); }},
        {"GetSceneTitle", [](F& f) { EXPECT_EQ(Utf8(f.GetSceneTitle()), "title"); }},
        {"SetSceneTitleColor", [](F& f) { f.SetSceneTitleColor(5); }},
        {"GetSceneTitleColor", [](F& f) { EXPECT_EQ(f.GetSceneTitleColor(), 5u); }},
        {"SetSceneTitleFontStyle", [](F& f) { f.SetSceneTitleFontStyle(L"Noto Sans CJK SC"); }},
        {"GetSceneTitleFontStyle", [](F& f) { EXPECT_EQ(Utf8(f.GetSceneTitleFontStyle()), "Noto Sans CJK SC"); }},
        {"SetSceneTitleFontHeight", [](F& f) { f.SetSceneTitleFontHeight(18.5f); }},
        {"GetSceneTitleFontHeight", [](F& f) { EXPECT_EQ(f.GetSceneTitleFontHeight(), 18.5f); }},
        {"SetStartPageTitle", [](F& f) { f.SetStartPageTitle(L"start"); }},
        {"GetStartPageTitle", [](F& f) { EXPECT_EQ(Utf8(f.GetStartPageTitle()), "start"); }},
        {"SetStartPageTitleColor", [](F& f) { f.SetStartPageTitleColor(9); }},
        {"GetStartPageTitleColor", [](F& f) { EXPECT_EQ(f.GetStartPageTitleColor(), 9u); }},
        {"RefreshButton", [](F& f) { EXPECT_TRUE(f.RefreshButton(GUI_BTN_ALL)); }},
        {"IsDisplySystemMouse",
         [](F& f)
         {
             f.SetDisplySystemMouse(true);
             EXPECT_TRUE(f.IsDisplySystemMouse());
             f.SetDisplySystemMouse(false);
             EXPECT_FALSE(f.IsDisplySystemMouse());
         }},
        {"OnTimer", [](F& f) { f.OnTimer(2022); }},
        {"OnTimer of another timer", [](F& f) { f.OnTimer(1); }},
        {"OnMouseMove", [](F& f) { f.OnMouseMove(0, CPoint(3, 300)); }},
        {"OnMouseMove below", [](F& f) { f.OnMouseMove(0, CPoint(300, 590)); }},
        {"UpdateEvent", [](F& f) { f.UpdateEvent(); }},
        {"window size",
         [](F& f)
         {
             UINT width = 0;
             UINT height = 0;
             f.SetWindowSize(801, 601);
             f.GetWindowSize(width, height);
             EXPECT_EQ(width, 801u);
             EXPECT_EQ(height, 601u);
             f.SetWindowSize(800, 600);
         }},
        {"GetHwnd", [](F& f) { f.GetHwnd(); }},
        {"GetMousePoint", [](F& f) { f.GetMousePoint(); }},
        {"EnablePopupMenu", [](F& f) { f.EnablePopupMenu(true); }},
        {"AddBtnMousePoint",
         [](F& f)
         {
             f.SetAddBtnMousePoint(CPoint(4, 5));
             EXPECT_EQ(f.GetAddBtnMousePoint(), CPoint(4, 5));
         }},
        {"IsOpenPropertyDlg", [](F& f) { EXPECT_FALSE(f.IsOpenPropertyDlg()); }},
        {"IsShowLeftToolBar", [](F& f) { EXPECT_TRUE(f.IsShowLeftToolBar()); }},
        {"IsFullScene", [](F& f) { EXPECT_FALSE(f.IsFullScene()); }},
        {"AddBtnIndex without records", [](F& f) { EXPECT_FALSE(f.AddBtnIndex()); }},
        {"SubBtnIndex without records", [](F& f) { EXPECT_FALSE(f.SubBtnIndex()); }},
        {"SetBtnIndex without records",
         [](F& f)
         {
             f.SetBtnIndex(3);
             EXPECT_EQ(f.GetBtnIndex(), -1);
         }},
        {"GetBtnProperty of no index", [](F& f) { EXPECT_EQ(f.GetBtnProperty(0), nullptr); }},
        {"SetCtrlBtnInfo",
         [](F& f)
         {
             std::vector<BTN_UNIT> records(3);
             records[1].name = L"b";
             f.SetCtrlBtnInfo(records);
             EXPECT_EQ(f.GetCtrlBtnInfo().size(), 3u);
         }},
        {"GetBtnProperty", [](F& f) { EXPECT_EQ(f.GetBtnProperty(L"b", 0), &f.GetCtrlBtnInfo()[1]); }},
        {"AddBtnIndex", [](F& f) { EXPECT_TRUE(f.AddBtnIndex()); }},
        {"SubBtnIndex", [](F& f) { EXPECT_FALSE(f.SubBtnIndex()); }},
        {"SetBtnIndex",
         [](F& f)
         {
             f.SetBtnIndex(2);
             EXPECT_EQ(f.GetBtnIndex(), 2);
         }},
        {"SetEditBtnProperty", [](F& f) { EXPECT_FALSE(f.SetEditBtnProperty(L"b", BTN_UNIT())); }},
        {"SetEditBtnMoveState", [](F& f) { EXPECT_TRUE(f.SetEditBtnMoveState(L"b", true)); }},
        {"DeleteButton",
         [](F& f)
         {
             f.DeleteButton(L"");
             EXPECT_EQ(f.GetCtrlBtnInfo().size(), 2u);
         }},
        {"ClearAllCtrlBtn", [](F& f) { f.ClearAllCtrlBtn(); }},
        {"page parameters",
         [](F& f)
         {
             STAPAGE page = f.GetStaPageParameter();
             page.titleSize = 77;
             f.SetStaPageParameter(page);
             EXPECT_EQ(f.GetStaPageParameter().titleSize, 77);
             EXPECT_NE(&f.GetStaPageParameter(), &page);
         }},
        {"property rows",
         [](F& f)
         {
             F::PropertyRows rows = Rows();
             f.setPropertyData(rows);
             F::PropertyRows copy;
             f.getPropertyData(copy);
             EXPECT_TRUE(copy == rows);
         }},
        {"target rows",
         [](F& f)
         {
             F::PropertyRows rows = Rows();
             f.setTargetData(rows);
             EXPECT_TRUE(f.getTargetData() == rows);
         }},
        {"PropertyRowCount", [](F& f) { EXPECT_EQ(f.PropertyRowCount(), 2); }},
        {"PropertyRowName",
         [](F& f)
         {
             EXPECT_EQ(Utf8(f.PropertyRowName(1)), "length");
             EXPECT_EQ(Utf8(f.PropertyRowName(-1)), "");
             EXPECT_EQ(Utf8(f.PropertyRowName(2)), "");
         }},
        {"OpenPropertyDlg",
         [](F& f)
         {
             f.OpenPropertyDlg(nullptr, true);
             EXPECT_TRUE(f.IsOpenPropertyDlg());
         }},
        {"RefreshPropertyDlg", [](F& f) { f.RefreshPropertyDlg(); }},
        {"IsNeedRefreshPropertyDlg", [](F& f) { EXPECT_FALSE(f.IsNeedRefreshPropertyDlg(CPoint(5000, 0))); }},
        {"ClosePropertyDlg",
         [](F& f)
         {
             f.ClosePropertyDlg();
             EXPECT_TRUE(f.IsOpenPropertyDlg());
         }},
        {"OpenPropertyDlg to close",
         [](F& f)
         {
             f.OpenPropertyDlg(nullptr, false);
             EXPECT_FALSE(f.IsOpenPropertyDlg());
         }},
        {"RefreshPropertyDlg of the closed panel", [](F& f) { EXPECT_FALSE(f.RefreshPropertyDlg()); }},
        {"DestroyTooltipWindow without one", [](F& f) { f.DestroyTooltipWindow(); }},
        {"CreateTooltipWindow", [](F& f) { f.CreateTooltipWindow(10, 100, L"tooltip"); }},
        {"CreateTooltipWindow without a text", [](F& f) { f.CreateTooltipWindow(10, 100, L""); }},
        {"DestroyTooltipWindow", [](F& f) { f.DestroyTooltipWindow(); }},
        {"ClearStaPageParameter",
         [](F& f)
         {
             f.ClearStaPageParameter();
             EXPECT_NE(f.GetStaPageParameter().titleSize, 77);
         }},
        {"EnableSlideOut",
         [](F& f)
         {
             f.EnableSlideOut(true);
             EXPECT_TRUE(f.IsSlideOutEnabled());
             f.EnableSlideOut(false);
             EXPECT_FALSE(f.IsSlideOutEnabled());
         }},
        {"MakeContextCurrent", [](F& f) { f.MakeContextCurrent(); }},
        {"GetUser", [](F& f) { EXPECT_EQ(f.GetUser(), GUI_USER_FULL); }},
        {"GetGUINode", [](F& f) { EXPECT_EQ(f.GetGUINode().valid(), f.IsInit()); }},
        {"GetEditWindowName", [](F& f) { EXPECT_EQ(Utf8(f.GetEditWindowName()), ""); }},
        {"CreateToolBar", [](F& f) { f.CreateToolBar(); }},
        {"OnToolBarRCList", [](F& f) { f.OnToolBarRCList(nullptr); }},
        {"OnToolBarRCList again", [](F& f) { f.OnToolBarRCList(nullptr); }},
        {"ChangeTitleText", [](F& f) { f.ChangeTitleText(L"changed", 7, L"Noto Sans CJK SC", 12); }},
        {"ChangeTitleText to nothing", [](F& f) { f.ChangeTitleText(L"", 7, L"Noto Sans CJK SC", 12); }},
        {"CreateTitle", [](F& f) { f.CreateTitle(L"picture", 7); }},
        {"OnToolBarFullScene",
         [](F& f)
         {
             f.OnToolBarFullScene(true);
             EXPECT_TRUE(f.IsFullScene());
         }},
        {"OnToolBarFullScene off",
         [](F& f)
         {
             f.OnToolBarFullScene(false);
             EXPECT_FALSE(f.IsFullScene());
         }},
        {"SetRenderOrder",
         [](F& f)
         {
             f.SetRenderOrder(7);
             if (f.IsInit())
             {
                 EXPECT_EQ(dynamic_cast<osg::Camera&>(*f.GetGUINode()).getRenderOrderNum(), 7);
             }
             f.SetRenderOrder(0);
         }},
        {"NotifyHost", [](F& f) { f.NotifyHost(2, 0); }},
        {"ClearTitleSet",
         [](F& f)
         {
             f.ClearTitleSet();
             EXPECT_EQ(f.GetSceneTitleColor(), 0xE1C8C5u);
         }},
        {"DestoryAllToolBar", [](F& f) { f.DestoryAllToolBar(); }},
        {"DestoryAllToolBar again", [](F& f) { f.DestoryAllToolBar(); }},
        {"ClearAllWindows", [](F& f) { f.ClearAllWindows(); }},
    };
    return operations;
}

} // namespace

void CallEveryOperation(CeGuiMainFrame& frame)
{
    frame.SetCtrlBtnInfo({});
    frame.SetBtnIndex(-1);
    if (!frame.IsShowLeftToolBar())
    {
        frame.OnToolBarRCList(nullptr);
    }
    for (const Operation& operation : Operations())
    {
        SCOPED_TRACE(operation.first);
        operation.second(frame);
    }
    frame.SetCtrlBtnInfo({});
    frame.SetBtnIndex(-1);
}

namespace
{
/// Title pictures and fonts that are not there may be told in the log: what matters here is that nothing falls over.
class EveryOperation : public HostedFrame
{
protected:
    void TearDown() override
    {
        TakeLog();
        MSG left;
        while (PeekMessageW(&left, reinterpret_cast<HWND>(-1), GUI_HOST_MESSAGE, GUI_HOST_MESSAGE, PM_REMOVE))
        {
        }
        // A frame stands again and answers.
        CeGuiMainFrame& frame = Frame();
        frame.SetSceneTitleFontStyle(TitleFont);
        if (!frame.IsInit())
        {
            Restart();
        }
        Rebuild();
        Host().TakeMessages();
        Host().Click(772, 25);
        EXPECT_EQ(Host().TakeCodes(), Codes{15});
        TakeLog();
        HostedFrame::TearDown();
    }
};
} // namespace

TEST_F(EveryOperation, is_safe_before_init)
{
    Host().Close();
    CallEveryOperation(Frame());
    EXPECT_FALSE(Frame().CreateMainFrame());
    Frame().CloseGuiSystem();
    EXPECT_FALSE(Frame().IsInit());
}

TEST_F(EveryOperation, is_safe_after_init_and_before_the_first_resize)
{
    Host().Close();
    Host().InitOnly();
    CallEveryOperation(Frame());
    Host().Frames(2);
    EXPECT_TRUE(Frame().IsInit());
}

TEST_F(EveryOperation, is_safe_while_the_frame_stands)
{
    CallEveryOperation(Frame());
    Host().Frames(2);
    EXPECT_EQ(Host().Find("rootSheet"), nullptr) << "the last operation takes it away";
}

TEST_F(EveryOperation, is_safe_between_clear_all_windows_and_create_main_frame)
{
    Frame().ClearAllWindows();
    CallEveryOperation(Frame());
    Host().Frames(2);
    EXPECT_TRUE(Frame().CreateMainFrame());
}

TEST_F(EveryOperation, is_safe_after_destory_all_tool_bar)
{
    Frame().DestoryAllToolBar();
    CallEveryOperation(Frame());
    Host().Frames(2);
    EXPECT_TRUE(Frame().CreateMainFrame());
}

TEST_F(EveryOperation, is_safe_after_the_close_button)
{
    Host().Click(772, 25);
    CallEveryOperation(Frame());
    Host().Frames(2);
    EXPECT_TRUE(Frame().IsInit());
}

TEST_F(EveryOperation, is_safe_after_a_failed_resize)
{
    {
        const FileTaken picture(SkinDir() + L"new_skin\\logo.png");
        Rebuild();
        ASSERT_EQ(Host().Find("rootSheet"), nullptr);
    }
    CallEveryOperation(Frame());
    Host().Frames(2);
    EXPECT_TRUE(Frame().CreateMainFrame());
}

TEST_F(EveryOperation, is_safe_after_close_gui_system)
{
    Host().Close();
    CallEveryOperation(Frame());
    Frame().CloseGuiSystem();
    EXPECT_FALSE(Frame().CreateMainFrame());
}

TEST_F(EveryOperation, is_safe_when_the_viewer_has_lost_its_window)
{
    osg::Camera& camera = *Host().Viewer().getCamera();
    const osg::ref_ptr<osg::GraphicsContext> context = camera.getGraphicsContext();
    camera.setGraphicsContext(nullptr);
    EXPECT_EQ(Frame().GetHwnd(), nullptr);
    CallEveryOperation(Frame());
    camera.setGraphicsContext(context);
}

TEST_F(EveryOperation, is_safe_while_the_title_is_edited)
{
    OpenTitleEditDialog();
    CallEveryOperation(Frame());
    Host().Frames(2);
    CloseTitleEditDialog();
}

TEST_F(EveryOperation, is_safe_in_a_view_of_one_pixel)
{
    Host().Resize(1, 1);
    CallEveryOperation(Frame());
    Host().Frames(2);
    Host().Resize(ViewWidth, ViewHeight);
}

TEST_F(EveryOperation, is_safe_when_the_viewers_context_is_closed)
{
    Host().Close();
    GuiHost other(320, 240);
    other.Start();
    other.Viewer().getCamera()->getGraphicsContext()->close();
    CallEveryOperation(Frame());
    EXPECT_TRUE(Frame().IsInit());
}

TEST_F(EveryOperation, is_safe_and_raises_nothing_without_the_skins_imageset)
{
    const FileTaken imageset(SkinDir() + L"TavLook.imageset");
    EXPECT_NO_THROW(Frame().ClearAllWindows());
    EXPECT_FALSE(Frame().CreateMainFrame());
    EXPECT_EQ(CountLogLines("TavLook.imageset"), 1) << "once for both";
    CallEveryOperation(Frame());
    Host().Frames(2);
    EXPECT_EQ(Host().Find("TavTitleBackground"), nullptr);
}

TEST_F(EveryOperation, input_is_safe_without_a_frame)
{
    Frame().DestoryAllToolBar();
    Host().Click(772, 25);
    Host().Wheel(50, 300, 1);
    Host().Key(VK_ESCAPE);
    Host().DoubleClick(400, 300);
    Frame().ClearAllWindows();
    Host().Click(772, 25);
    // An open menu would wait for an answer.
    Frame().EnablePopupMenu(false);
    Host().RightClick(400, 300);
    Host().Wheel(50, 300, 1);
    Host().Key(VK_ESCAPE);
    Host().DoubleClick(400, 300);
    EXPECT_EQ(Host().Find("rootSheet"), nullptr);
    Frame().OnToolBarFullScene(false);
}
