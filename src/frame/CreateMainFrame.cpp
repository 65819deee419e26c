// SPDX-License-Identifier: MIT
// The building of the whole frame, and the bars that it is made of.
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "../panels/HoverEvents.h"
#include "../panels/TooltipEvents.h"
#include "../widgets/CallbackScope.h"
#include "../widgets/CeGuiToolBar.h"
#include "../widgets/FailureLog.h"
#include "../widgets/FileImageset.h"
#include "../widgets/GuiResourceProvider.h"
#include "../widgets/Names.h"
#include "../widgets/ParsingLocale.h"
#include "../widgets/WindowNames.h"
#include "FrameNames.h"
#include "RootEvents.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>

#include <utility>

namespace
{
CEGUI::GUIContext& Gui()
{
    return CEGUI::System::getSingleton().getDefaultGUIContext();
}
} // namespace

bool CeGuiMainFrame::CreateMainFrame()
{
    if (CallbackScope::IsActive())
    {
        CallbackScope::Run(CallbackScope::Request::Build, [this] { BuildFrame(); });
        return drawable_.valid();
    }
    const CallbackScope scope;
    return BuildFrame();
}

bool CeGuiMainFrame::BuildFrame()
{
    if (!HasGui())
    {
        return false;
    }
    if (Gui().getRootWindow())
    {
        throw CEGUI::AlreadyExistsException("the frame stands already; ClearAllWindows takes it away");
    }
    const ParsingLocale locale;
    MakeContextCurrent();
    ReleaseBars();
    try
    {
        CreateRootSheet();
        if (!FileImagesets::IsSkinImagesetPresent(FrameNames::SkinImageset))
        {
            LogDropped("frame not built", FrameNames::SkinImageset, FrameNames::NoSkinImageset);
            return false;
        }
        ForgetTold();
        CreateTitleBar();
        CreateBorders();
        CreateBottomToolBar();
        CreateLeftList();
        RestoreFrameState();
        RefreshPropertyDlg();
        Gui().markAsDirty();
        return true;
    }
    catch (const CEGUI::Exception& failure)
    {
        ReleaseFailedFrame();
        const auto& files = *static_cast<GuiResourceProvider*>(CEGUI::System::getSingleton().getResourceProvider());
        LogPassing("frame not built", NameBytes(failure.getMessage()), files.SkinTexts());
        throw;
    }
}

void CeGuiMainFrame::CreateRootSheet()
{
    CEGUI::Window* root = WindowNames::Create("DefaultWindow", FrameNames::RootSheet);
    root->setSize(CEGUI::USize(CEGUI::UDim(1, 0), CEGUI::UDim(1, 0)));
    root->setPosition(CEGUI::UVector2(CEGUI::UDim(0, 0), CEGUI::UDim(0, 0)));
    root->subscribeEvent(CEGUI::Window::EventMouseDoubleClick, CEGUI::SubscriberSlot(&OnRootDoubleClick));
    root->subscribeEvent(CEGUI::Window::EventKeyDown, CEGUI::SubscriberSlot(&OnRootKeyDown));
    root->subscribeEvent(CEGUI::Window::EventMouseMove, CEGUI::SubscriberSlot(&OnRootMouseMove));
    // What no window over the scene uses is the viewer's: CEGUI would count the sheet itself as having used the wheel.
    root->setMousePassThroughEnabled(true);
    Gui().setRootWindow(root);
}

void CeGuiMainFrame::RestoreFrameState()
{
    // What the user has chosen lives here and outlasts the windows: a resize must not take it back.
    if (!showLeftToolBar_)
    {
        showLeftToolBar_ = true;
        OnToolBarRCList(ToolButton(FrameNames::ListTool));
    }
    if (currentButton_ >= 0)
    {
        ChangeLeftBtnState(-1, currentButton_, true);
    }
    EnableSlideOut(slideOut_);
    if (propertyDlgOpen_)
    {
        ShowPropertyTool(ToolButton(FrameNames::PropertyTool));
    }
    if (fullScene_)
    {
        // The panel comes after this, once.
        LayOutForScene();
    }
}

CeGuiToolBar& CeGuiMainFrame::NewBar(const RECT& rect, const CString& name, const CString& imageFile, UINT barType)
{
    bars_.push_back(std::make_unique<CeGuiToolBar>(rect, name, imageFile, windowWidth_, windowHeight_, barType));
    return *bars_.back();
}

void CeGuiMainFrame::EnterBar(CeGuiToolBar& bar)
{
    WindowNames::AddChild(*Gui().getRootWindow(), *bar.window);
    frameTable_[bar.name] = &bar;
}

void CeGuiMainFrame::EnableSlideOut(bool enable)
{
    slideOut_ = enable;
    for (const wchar_t* name : {FrameNames::TitleBar, FrameNames::ToolBar, FrameNames::LeftList})
    {
        if (CeGuiToolBar* bar = FindBar(name))
        {
            bar->SetSlideOnHide(enable);
        }
    }
}

bool CeGuiMainFrame::IsSlideOutEnabled() const
{
    return slideOut_;
}

void CeGuiMainFrame::AddItemEvents(CeGuiToolBar& bar)
{
    bar.itemEvents[CEGUI::Window::EventMouseMove] = OnGuiHover;
    bar.itemEvents[CEGUI::Window::EventMouseEntersSurface] = OnTooltipShow;
    bar.itemEvents[CEGUI::Window::EventMouseLeavesSurface] = OnTooltipHide;
    bar.itemEvents[CEGUI::Window::EventMouseButtonDown] = OnItemPressed;
}

CeGuiToolBar* CeGuiMainFrame::FindBar(const CString& name)
{
    const auto found = frameTable_.find(name);
    return HasGui() && found != frameTable_.end() ? found->second : nullptr;
}

void CeGuiMainFrame::ReleaseBars()
{
    frameTable_.clear();
    bars_.clear();
    titleTextItem_ = -1;
}

void CeGuiMainFrame::ReleaseFailedFrame()
{
    for (const auto& bar : bars_)
    {
        bar->DestroyToolBar();
    }
    ReleaseBars();
    if (CEGUI::Window* root = Gui().getRootWindow())
    {
        Gui().setRootWindow(nullptr);
        WindowNames::Destroy(*root);
    }
    FileImagesets::DestroyFileImagesets();
}

void CeGuiMainFrame::DestoryAllToolBar()
{
    if (!HasGui())
    {
        return;
    }
    const CallbackScope scope;
    // Out of the table first: a host's slot may change it. The bars themselves stay until the next frame is built: this may be
    // running in a slot of one of them.
    const auto destroyed = std::exchange(frameTable_, {});
    for (const auto& [name, bar] : destroyed)
    {
        bar->DestroyToolBar();
    }
}
