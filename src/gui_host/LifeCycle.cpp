// SPDX-License-Identifier: MIT
// Start and end of the interface, and its link to the host's viewer and window.
#include <NxOsgCeGui/CeGuiMainFrame.h>

#include "../frame/FrameNames.h"
#include "../panels/TitleEditDialog.h"
#include "../widgets/CallbackScope.h"
#include "../widgets/CeGuiToolBar.h"
#include "../widgets/FailureLog.h"
#include "../widgets/FileImageset.h"
#include "../widgets/FileStamp.h"
#include "../widgets/InputState.h"
#include "../widgets/MessageLoops.h"
#include "../widgets/Names.h"
#include "../widgets/ParsingLocale.h"
#include "../widgets/WholePixels.h"
#include "FontInstallation.h"
#include "SkinResourceProvider.h"

#include <KernelCommonUse/StringConvert.h>

#include <CEGUI/Exceptions.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>

#include <osg/State>
#include <osg/observer_ptr>
#include <osgViewer/api/Win32/GraphicsWindowWin32>

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

namespace
{
/// Holds the face that the title has where the wanted one is not there.
const char* const TitleFontFile = "youyuan.ttf";
const wchar_t* const ToolBarFrame = L"TavBotCtrlFrame";
const wchar_t* const LeftListFrame = L"TavLeftCtrlFrame";

/// Drops the OpenGL objects of the camera and all below it while their context is there, and takes its children away. The
/// viewer's render graph would else keep objects of a context that is gone.
void Empty(osg::Camera& camera, const osg::observer_ptr<osg::State>& drawnWith)
{
    osg::ref_ptr<osg::State> state;
    osg::GraphicsContext* context = drawnWith.lock(state) ? state->getGraphicsContext() : nullptr;
    if (context && context->isRealized() && context->makeCurrent())
    {
        camera.releaseGLObjects(state.get());
    }
    camera.removeChildren(0, camera.getNumChildren());
}

void MakeSingleThreaded(osgViewer::Viewer& viewer)
{
    if (viewer.getThreadingModel() != osgViewer::ViewerBase::SingleThreaded)
    {
        viewer.setThreadingModel(osgViewer::ViewerBase::SingleThreaded);
        LogFailure("viewer made single-threaded", "input, drawing and interface belong to one thread");
    }
}

/// Why CEGUI cannot start in the context of the viewer's camera.
std::string Obstacle(osgViewer::Viewer* viewer)
{
    if (!viewer)
    {
        return "Init was given no viewer";
    }
    const osg::GraphicsContext* context = viewer->getCamera()->getGraphicsContext();
    if (context)
    {
        return context->isRealized() ? "the context of the viewer's camera cannot be made current" : "the viewer is not realized";
    }
    return viewer->getNumSlaves() == 0 ? "the viewer's camera has no graphics context"
                                       : "the viewer's camera has no graphics context; those of slave cameras are not used";
}
} // namespace

bool CeGuiMainFrame::Init(osgViewer::Viewer* viewer, GUIUserType userType)
{
    // A second start without an end in between: CEGUI exists once in a process.
    CloseGuiSystem();
    viewer_ = viewer;
    userType_ = userType;
    if (viewer)
    {
        MakeSingleThreaded(*viewer);
    }
    CreateGuiDrawable();
    try
    {
        const osg::observer_ptr<CeGuiDrawable> started = drawable_;
        CallbackScope::Run(CallbackScope::Request::Start,
                           [this, started]
                           {
                               if (drawable_ && drawable_ == started.get())
                               {
                                   InitGuiDrawable();
                               }
                           });
    }
    catch (...)
    {
        drawable_ = nullptr;
        hudCamera_ = nullptr;
        throw;
    }
    if (viewer && viewer->getCamera()->getViewport())
    {
        const osg::Viewport& viewport = *viewer->getCamera()->getViewport();
        SetWindowSize(static_cast<UINT>(std::max(0, WholePixels(viewport.width()))),
                      static_cast<UINT>(std::max(0, WholePixels(viewport.height()))));
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
    if (!drawable_)
    {
        return;
    }
    if (!MakeContextCurrent())
    {
        LogFailure("interface not started before a size event finds a context", Obstacle(viewer_.get()));
        return;
    }
    osg::State& state = *viewer_->getCamera()->getGraphicsContext()->getState();
    // The end of CEGUI unloads its XML parser, and with it the code of an exception that the parser has made: the host gets
    // one of the library's own.
    std::optional<CEGUI::String> failure;
    try
    {
        drawable_->Init(static_cast<int>(state.getContextID()));
        guiState_ = &state;
    }
    catch (const CEGUI::Exception& raised)
    {
        failure = raised.getMessage();
    }
    catch (...)
    {
        drawable_->Finish();
        throw;
    }
    if (failure)
    {
        drawable_->Finish();
        throw CEGUI::FileIOException(*failure);
    }
}

bool CeGuiMainFrame::HasGui() const
{
    return drawable_ && drawable_->IsInitialised();
}

bool CeGuiMainFrame::LivesElsewhere(const osg::GraphicsContext& context) const
{
    return CEGUI::System::getSingletonPtr() && guiState_.get() != context.getState();
}

bool CeGuiMainFrame::StartGui()
{
    const osgViewer::GraphicsWindow* window = ViewerWindow();
    const bool realized = window && window->isRealized();
    if (HasGui() && !(realized && LivesElsewhere(*window)))
    {
        return true;
    }
    if (!drawable_ || !realized)
    {
        return false;
    }
    try
    {
        if (HasGui())
        {
            // The host has closed its viewer's window and made another one.
            FinishGui(*drawable_);
        }
        InitGuiDrawable();
    }
    catch (const CEGUI::Exception& failure)
    {
        LogPassing("interface not started", NameBytes(failure.getMessage()));
    }
    return HasGui();
}

void CeGuiMainFrame::FinishGui(CeGuiDrawable& drawable)
{
    osg::ref_ptr<osg::State> own;
    osg::GraphicsContext* context = guiState_.lock(own) ? own->getGraphicsContext() : nullptr;
    if (!context || !context->isRealized() || !context->makeCurrent())
    {
        // CEGUI's textures are gone with their context. No context may be current whose textures would be taken for them.
        if (osgViewer::GraphicsWindow* present = ViewerWindow())
        {
            present->releaseContext();
        }
    }
    drawable.Finish();
    guiState_ = nullptr;
}

void CeGuiMainFrame::CloseGuiSystem()
{
    if (!initialised_)
    {
        return;
    }
    initialised_ = false;
    const bool traversed = CallbackScope::IsActive();
    const osg::ref_ptr<CeGuiDrawable> drawable = std::exchange(drawable_, nullptr);
    const osg::ref_ptr<osg::Camera> camera = std::exchange(hudCamera_, nullptr);
    drawable->retired_ = true;
    CallbackScope::Run(CallbackScope::Request::Close,
                       [this, drawable, camera, traversed] { TearDown(drawable, camera, traversed); });
    if (userType_ == GUI_USER_FULL)
    {
        CloseTitleEditDialog();
    }
}

void CeGuiMainFrame::TearDown(osg::ref_ptr<CeGuiDrawable> drawable, osg::ref_ptr<osg::Camera> camera, bool traversed)
{
    const osg::observer_ptr<osg::State> drawnWith = guiState_;
    if (traversed)
    {
        // The viewer's traversal goes on over the camera and what is below it.
        MessageLoops::Post([camera, drawnWith] { Empty(*camera, drawnWith); });
    }
    else
    {
        Empty(*camera, drawnWith);
    }
    FinishGui(*drawable);
    frameTable_.clear();
    bars_.clear();
    titleTextItem_ = -1;
    InputState::Release();
}

void CeGuiMainFrame::ClearAllWindows()
{
    CallbackScope::Run(CallbackScope::Request::Clear, [this] { ClearFrame(); });
}

void CeGuiMainFrame::ClearFrame()
{
    if (!HasGui() || !StartGui() || !MakeContextCurrent())
    {
        return;
    }
    CEGUI::System& system = CEGUI::System::getSingleton();
    if (!FileImagesets::TextureReuse::IsWanted())
    {
        // Whoever asks for it outside of a size event wants what the files hold now.
        ReadAllAnew();
    }
    const ParsingLocale locale;
    system.removeAllEvents();
    CeGuiToolBar::ForgetAllWindows();
    CEGUI::WindowManager::getSingleton().destroyAllWindows();
    SkinResourceProvider& skin = *static_cast<SkinResourceProvider*>(system.getResourceProvider());
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

void CeGuiMainFrame::SizeView(int width, int height)
{
    StartGui();
    CEGUI::System* system = CEGUI::System::getSingletonPtr();
    if (!system)
    {
        return;
    }
    system->notifyDisplaySizeChanged(CEGUI::Sizef(static_cast<float>(width), static_cast<float>(height)));
    SetWindowSize(static_cast<UINT>(width), static_cast<UINT>(height));
    const FileImagesets::TextureReuse reuse;
    ClearFrame();
    BuildFrame();
    system->getDefaultGUIContext().markAsDirty();
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

bool CeGuiMainFrame::IsOfOtherContext(const osgGA::GUIEventAdapter& event) const
{
    const osg::GraphicsContext* context = event.getGraphicsContext();
    return context && viewer_.valid() && context != viewer_->getCamera()->getGraphicsContext();
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
    const CallbackScope scope;
    for (const auto& [name, bar] : frameTable_)
    {
        bar->OnHideTimer(nIDEvent);
    }
}

void CeGuiMainFrame::OnMouseMove(UINT, CPoint point)
{
    const CallbackScope scope;
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
