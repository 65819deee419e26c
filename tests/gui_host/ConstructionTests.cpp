// SPDX-License-Identifier: MIT
// The instance as its construction leaves it, before any host has started it.
#include "support/HostedFrame.h"

#include <panels/FontNames.h>
#include <widgets/InputState.h>
#include <widgets/Module.h>

#include <KernelCommonUse/MultiLanguage.h>

namespace
{
/// Taken before the first test, since the instance lives as long as the process and other tests start it.
struct Construction
{
    bool inputStateBefore = false;
    bool inputStateAfter = false;
    UINT width = 0;
    UINT height = 0;
    bool displayMouse = true;
    bool init = true;
    CString title;
    COLORREF titleColor = 0;
    float titleHeight = 0;
    CString titleFont;
    CString startTitle = L"?";
    COLORREF startColor = 1;
    std::size_t buttons = 1;
    int buttonIndex = 0;
    bool propertyOpen = true;
    bool leftShown = false;
    bool fullScene = true;
    std::size_t propertyRows = 1;
    std::size_t targetRows = 1;
    CPoint addPoint = CPoint(1, 1);
    CPoint mousePoint = CPoint(1, 1);
    CString pageTitle;
    HWND window = reinterpret_cast<HWND>(1);
    bool node = true;
    bool contextMenuAllowed = false;
    std::vector<MSG> notified;
    MouseFlags flags = {true, true, true, true};
};

Construction fresh;

class TakeConstruction : public testing::Environment
{
public:
    void SetUp() override
    {
        // For a test that runs this program again.
        wchar_t font[MAX_PATH] = {};
        if (GetEnvironmentVariableW(L"NX_ADDED_FONT", font, MAX_PATH))
        {
            ASSERT_GT(AddFontResourceExW(font, FR_PRIVATE, nullptr), 0);
        }
        fresh.inputStateBefore = InputState::GetIfThere() != nullptr;
        CeGuiMainFrame& frame = *CeGuiMainFrame::GetInstance();
        fresh.inputStateAfter = InputState::GetIfThere() != nullptr;
        frame.GetWindowSize(fresh.width, fresh.height);
        fresh.displayMouse = frame.IsDisplySystemMouse();
        fresh.init = frame.IsInit();
        fresh.title = frame.GetSceneTitle();
        fresh.titleColor = frame.GetSceneTitleColor();
        fresh.titleHeight = frame.GetSceneTitleFontHeight();
        fresh.titleFont = frame.GetSceneTitleFontStyle();
        fresh.startTitle = frame.GetStartPageTitle();
        fresh.startColor = frame.GetStartPageTitleColor();
        fresh.buttons = frame.GetCtrlBtnInfo().size();
        fresh.buttonIndex = frame.GetBtnIndex();
        fresh.propertyOpen = frame.IsOpenPropertyDlg();
        fresh.leftShown = frame.IsShowLeftToolBar();
        fresh.fullScene = frame.IsFullScene();
        CeGuiMainFrame::PropertyRows rows(1);
        frame.getPropertyData(rows);
        fresh.propertyRows = rows.size();
        fresh.targetRows = frame.getTargetData().size();
        fresh.addPoint = frame.GetAddBtnMousePoint();
        fresh.mousePoint = frame.GetMousePoint();
        fresh.pageTitle = frame.GetStaPageParameter().title;
        fresh.window = frame.GetHwnd();
        fresh.node = frame.GetGUINode().valid();
        fresh.contextMenuAllowed = InputState::Get().contextMenuAllowed;
        fresh.flags = mouseFlags;
        frame.NotifyHost(GUI_CMD_ROAM, 6);
        MSG message;
        while (PeekMessageW(&message, reinterpret_cast<HWND>(-1), GUI_HOST_MESSAGE, GUI_HOST_MESSAGE, PM_REMOVE))
        {
            fresh.notified.push_back(message);
        }
    }
};

const testing::Environment* const takeConstruction = testing::AddGlobalTestEnvironment(new TakeConstruction);
} // namespace

TEST(Construction, gives_every_field_its_default)
{
    EXPECT_EQ(fresh.width, 800u);
    EXPECT_EQ(fresh.height, 600u);
    EXPECT_FALSE(fresh.displayMouse);
    EXPECT_FALSE(fresh.init);
    EXPECT_EQ(fresh.titleColor, 0xE1C8C5u);
    EXPECT_EQ(fresh.titleColor, RGB(197, 200, 225));
    EXPECT_EQ(fresh.titleHeight, 16.0f);
    EXPECT_EQ(Utf8(fresh.startTitle), "");
    EXPECT_EQ(fresh.startColor, 0u);
    EXPECT_EQ(fresh.buttons, 0u);
    EXPECT_EQ(fresh.buttonIndex, -1);
    EXPECT_FALSE(fresh.propertyOpen);
    EXPECT_TRUE(fresh.leftShown);
    EXPECT_FALSE(fresh.fullScene);
    EXPECT_EQ(fresh.propertyRows, 0u);
    EXPECT_EQ(fresh.targetRows, 0u);
    EXPECT_EQ(fresh.addPoint, CPoint(0, 0));
    EXPECT_EQ(Utf8(fresh.pageTitle), Utf8(STAPAGE().title));
}

TEST(Construction, takes_the_scene_title_from_the_language_table)
{
    EXPECT_EQ(Utf8(fresh.title), "滨江新城总体规划");
    EXPECT_EQ(Utf8(fresh.title), Utf8(CMultiLanguageMgr::GetInstance()->translation("LKEY0", "", "Common")));
}

TEST(Construction, makes_the_state_of_the_input_bridge_before_any_event_arrives)
{
    EXPECT_FALSE(fresh.inputStateBefore);
    EXPECT_TRUE(fresh.inputStateAfter);
    EXPECT_EQ(fresh.mousePoint, CPoint(0, 0));
    EXPECT_TRUE(fresh.contextMenuAllowed);
}

TEST(Construction, starts_with_all_mouse_flags_off)
{
    EXPECT_FALSE(fresh.flags.buttonEditMode);
    EXPECT_FALSE(fresh.flags.buttonHeld);
    EXPECT_FALSE(fresh.flags.leftButton);
    EXPECT_FALSE(fresh.flags.pressConsumed);
}

TEST(Construction, has_neither_window_nor_camera_before_init)
{
    EXPECT_EQ(fresh.window, nullptr);
    EXPECT_FALSE(fresh.node);
}

TEST(Construction, posts_to_the_threads_own_queue_before_init)
{
    ASSERT_EQ(fresh.notified.size(), 1u);
    EXPECT_EQ(fresh.notified[0].hwnd, nullptr);
    EXPECT_EQ(fresh.notified[0].message, 1524u);
    EXPECT_EQ(fresh.notified[0].wParam, 2u);
    EXPECT_EQ(fresh.notified[0].lParam, 6);
}

TEST(TitleFont, is_segoe_ui_semibold_when_installed_and_you_yuan_when_not)
{
    bool installed = false;
    for (const CString& name : InstalledFontNames())
    {
        installed = installed || name == L"Segoe UI Semibold";
    }
    EXPECT_EQ(Utf8(fresh.titleFont), installed ? "Segoe UI Semibold" : "YouYuan");
}

TEST(TitleFont, is_compared_letter_by_letter)
{
    ASSERT_TRUE(IsFontInstalled(L"Noto Sans CJK SC"));
    EXPECT_FALSE(IsFontInstalled(L"noto sans cjk sc"));
    EXPECT_FALSE(IsFontInstalled(L"Noto Sans CJK"));
    EXPECT_FALSE(IsFontInstalled(L""));
}

TEST(TitleFont, list_leaves_out_vertical_variants_and_bitmap_fonts)
{
    const std::vector<CString> names = InstalledFontNames();
    ASSERT_FALSE(names.empty());
    for (const CString& name : names)
    {
        EXPECT_NE(name.GetAt(0), L'@') << Utf8(name);
        EXPECT_TRUE(name != L"Fixedsys" && name != L"System" && name != L"Terminal") << Utf8(name);
    }
}

TEST(Module, is_loaded_as_a_windows_module_and_dll_main_ran)
{
    const HMODULE module = GetModuleHandleW(L"NxOsgCeGui.dll");
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(ModuleInstance(), module);
}

TEST(Module, has_one_instance_of_the_frame)
{
    EXPECT_EQ(CeGuiMainFrame::GetInstance(), CeGuiMainFrame::GetInstance());
    EXPECT_NE(CeGuiMainFrame::GetInstance(), nullptr);
}
