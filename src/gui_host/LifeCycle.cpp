// SPDX-License-Identifier: MIT
// Start and end of the interface, and its link to the host's viewer and window.
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "../frame/FrameNames.h"
#include "../panels/TitleEditDialog.h"
#include "../widgets/CeGuiToolBar.h"
#include "../widgets/FailureLog.h"
#include "../widgets/FileImageset.h"
#include "../widgets/FileStamp.h"
#include "../widgets/InputState.h"
#include "../widgets/Names.h"
#include "../widgets/ParsingLocale.h"
#include "FontInstallation.h"
#include "SkinResourceProvider.h"

#include <KernelCommonUse/StringConvert.h>

#include <CEGUI/Exceptions.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>

#include <osg/State>
#include <osg/observer_ptr>
#include <osgViewer/api/Win32/GraphicsWindowWin32>

#include <optional>

namespace
{
/// Holds the face that the title has where the wanted one is not there.
const char* const TitleFontFile = "youyuan.ttf";
const wchar_t* const ToolBarFrame = L"TavBotCtrlFrame";
const wchar_t* const LeftListFrame = L"TavLeftCtrlFrame";

/// Of the context that CEGUI has been started in: its textures live there.
osg::observer_ptr<osg::State> startedIn;

/// Whether what CEGUI has made lives in another context than this one: in one that is closed, most likely.
bool LivesElsewhere(const osg::GraphicsContext& context)
{
    return CEGUI::System::getSingletonPtr() && startedIn.get() != context.getState();
}

/// Ends CEGUI in its own context. Where that is gone its textures are gone, too, and no context may be current whose textures
/// would be taken for them.
void Finish(CeGuiDrawable& drawable, osg::GraphicsContext* present)
{
    if (present && LivesElsewhere(*present))
    {
        present->releaseContext();
        osg::ref_ptr<osg::State> own;
        if (startedIn.lock(own) && own->getGraphicsContext() && own->getGraphicsContext()->isRealized())
        {
            own->getGraphicsContext()->makeCurrent();
        }
    }
    drawable.Finish();
    startedIn = nullptr;
}

void ReleaseDrawable(osg::ref_ptr<CeGuiDrawable>& drawable, osg::ref_ptr<osg::Camera>& camera)
{
    drawable->Finish();
    drawable = nullptr;
    camera = nullptr;
}
} // namespace

bool CeGuiMainFrame::Init(osgViewer::Viewer* viewer, GUIUserType userType)
{
    // A second start without an end in between: CEGUI exists once in a process.
    CloseGuiSystem();
    viewer_ = viewer;
    userType_ = userType;
    CreateGuiDrawable();
    // The end of CEGUI unloads its XML parser, and with it the code of an exception that the parser has made: the host gets
    // one of the library's own.
    std::optional<CEGUI::String> failure;
    try
    {
        InitGuiDrawable();
    }
    catch (const CEGUI::Exception& raised)
    {
        failure = raised.getMessage();
    }
    catch (...)
    {
        ReleaseDrawable(drawable_, hudCamera_);
        throw;
    }
    if (failure)
    {
        ReleaseDrawable(drawable_, hudCamera_);
        throw CEGUI::FileIOException(*failure);
    }
    if (viewer && viewer->getCamera()->getViewport())
    {
        const osg::Viewport& viewport = *viewer->getCamera()->getViewport();
        SetWindowSize(static_cast<UINT>(viewport.width()), static_cast<UINT>(viewport.height()));
    }
    currentButton_ = -1;
    propertyDlgOpen_ = false;
    fullScene_ = false;
    // Without it the title is without text; the log says why.
    InstallSystemFont(_w2a(sceneTitleFontStyle_), TitleFontFile);
    initialised_ = true;
    showLeftToolBar_ = true;
    return true;
}

void CeGuiMainFrame::InitGuiDrawable()
{
    if (drawable_ && MakeContextCurrent())
    {
        osg::State& state = *viewer_->getCamera()->getGraphicsContext()->getState();
        drawable_->Init(static_cast<int>(state.getContextID()));
        startedIn = &state;
    }
}

void CeGuiMainFrame::CloseGuiSystem()
{
    if (!initialised_)
    {
        return;
    }
    if (userType_ == GUI_USER_FULL)
    {
        CloseTitleEditDialog();
    }
    MakeContextCurrent();
    hudCamera_->removeChildren(0, hudCamera_->getNumChildren());
    Finish(*drawable_, ViewerWindow());
    drawable_ = nullptr;
    hudCamera_ = nullptr;
    frameTable_.clear();
    bars_.clear();
    titleTextItem_ = -1;
    InputState::Release();
    initialised_ = false;
}

void CeGuiMainFrame::ClearAllWindows()
{
    osgViewer::GraphicsWindow* window = ViewerWindow();
    if (drawable_ && window && window->isRealized() && LivesElsewhere(*window))
    {
        // The host has closed its viewer's window and made another one.
        Finish(*drawable_, window);
        InitGuiDrawable();
        CEGUI::System::getSingleton().notifyDisplaySizeChanged(
            CEGUI::Sizef(static_cast<float>(windowWidth_), static_cast<float>(windowHeight_)));
    }
    CEGUI::System* system = CEGUI::System::getSingletonPtr();
    if (!system || !MakeContextCurrent())
    {
        return;
    }
    if (!FileImagesets::TextureReuse::IsWanted())
    {
        // Whoever asks for it outside of a size event wants what the files hold now.
        ReadAllAnew();
    }
    const ParsingLocale locale;
    system->removeAllEvents();
    CeGuiToolBar::ForgetAllWindows();
    CEGUI::WindowManager::getSingleton().destroyAllWindows();
    SkinResourceProvider& skin = *static_cast<SkinResourceProvider*>(system->getResourceProvider());
    const bool keepSkin = FileImagesets::TextureReuse::IsWanted() &&
                          FileImagesets::IsSkinImagesetPresent(FrameNames::SkinImageset) && skin.IsImagesetUnchanged();
    FileImagesets::DestroyAllImagesets(keepSkin ? FrameNames::SkinImageset : "");
    if (keepSkin)
    {
        return;
    }
    try
    {
        CEGUI::ImageManager::getSingleton().loadImageset(FrameNames::SkinImagesetFile, "");
        skin.RereadLooks();
    }
    catch (const CEGUI::Exception& failure)
    {
        skin.ForgetImageset();
        // Without it there is no frame, but a host that only wants everything gone has what it wants.
        LogRaised("skin not loaded", skin.Naming(failure.getMessage()), FrameNames::NoSkinImageset);
    }
}

osg::ref_ptr<osg::Group> CeGuiMainFrame::GetGUINode()
{
    return hudCamera_;
}

osgViewer::GraphicsWindow* CeGuiMainFrame::ViewerWindow()
{
    return viewer_.valid() && viewer_->getCamera()
               ? dynamic_cast<osgViewer::GraphicsWindow*>(viewer_->getCamera()->getGraphicsContext())
               : nullptr;
}

bool CeGuiMainFrame::MakeContextCurrent()
{
    osgViewer::GraphicsWindow* context = ViewerWindow();
    // In another context than CEGUI's the pictures of the interface would be mistaken for the scene's.
    return context && context->getState() && !LivesElsewhere(*context) && context->makeCurrent();
}

HWND CeGuiMainFrame::GetHwnd()
{
    const auto* window = dynamic_cast<osgViewer::GraphicsWindowWin32*>(ViewerWindow());
    return window ? window->getHWND() : nullptr;
}

void CeGuiMainFrame::NotifyHost(UINT code, LPARAM value)
{
    PostMessageW(GetHwnd(), GUI_HOST_MESSAGE, code, value);
}

void CeGuiMainFrame::OnTimer(UINT_PTR nIDEvent)
{
    for (const auto& [name, bar] : frameTable_)
    {
        bar->OnHideTimer(nIDEvent);
    }
}

void CeGuiMainFrame::OnMouseMove(UINT, CPoint point)
{
    static const CString toolBar = ToolBarFrame;
    static const CString leftList = LeftListFrame;
    const CeGuiToolBar* left = FindBar(leftList);
    // The two overlap, and the left list wins.
    const bool leftListShown = left && left->window && left->window->isVisible();
    for (const auto& [name, bar] : frameTable_)
    {
        if (!leftListShown || name != toolBar)
        {
            bar->AutoHideByMouse(point);
        }
    }
}
