// SPDX-License-Identifier: MIT
// Brings GLEW, which has to come before any other OpenGL header.
#include "GuiRenderer.h"

#include <NxOsgCeGui/CeGuiDrawable.h>

#include "../widgets/CallbackScope.h"
#include "../widgets/CeGuiToolBar.h"
#include "../widgets/FailureLog.h"
#include "../widgets/FileImageset.h"
#include "../widgets/GuiImageCodec.h"
#include "../widgets/GuiLog.h"
#include "../widgets/Names.h"
#include "../widgets/ParsingLocale.h"
#include "CeGuiEventHandler.h"
#include "GlobalEvents.h"
#include "SkinResourceProvider.h"

#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/ParamConfig.h>
#include <NxConfig/SystemUtility.h>

#include <CEGUI/Exceptions.h>
#include <CEGUI/Font.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/SchemeManager.h>
#include <CEGUI/ScriptModule.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/falagard/WidgetLookManager.h>

#include <osg/State>

namespace
{
const char* const SkinGroup = "skindir";
const char* const SchemeFile = "TavLookSkin.scheme";
const char* const SkinParameter = "CEGUI_SkinDir";

bool ForgetDestroyedWindow(const CEGUI::EventArgs& args)
{
    CeGuiToolBar::ForgetWindow(static_cast<const CEGUI::WindowEventArgs&>(args).window);
    return true;
}
} // namespace

CeGuiDrawable::CeGuiDrawable()
{
    setSupportsDisplayList(false);
    setEventCallback(new CeGuiEventHandler);
}

CeGuiDrawable::CeGuiDrawable(const CeGuiDrawable& other, const osg::CopyOp& copyop) : osg::Drawable(other, copyop) {}

CeGuiDrawable::~CeGuiDrawable() = default;

CeGuiDrawable& CeGuiDrawable::operator=(const CeGuiDrawable& other)
{
    if (this == &other)
    {
        return *this;
    }
    contextId_ = other.contextId_;
    reserved_ = other.reserved_;
    renderer_ = other.renderer_;
    system_ = other.system_;
    firstFrameDrawn_ = other.firstFrameDrawn_;
    resourceProvider_ = other.resourceProvider_;
    imageCodec_ = other.imageCodec_;
    return *this;
}

osg::Object* CeGuiDrawable::cloneType() const
{
    return new CeGuiDrawable;
}

osg::Object* CeGuiDrawable::clone(const osg::CopyOp& copyop) const
{
    return new CeGuiDrawable(*this, copyop);
}

bool CeGuiDrawable::isSameKindAs(const osg::Object* object) const
{
    return dynamic_cast<const CeGuiDrawable*>(object) != nullptr;
}

const char* CeGuiDrawable::libraryName() const
{
    return "osg";
}

const char* CeGuiDrawable::className() const
{
    return "CeGuiDrawable";
}

void CeGuiDrawable::Init(int contextId)
{
    const ParsingLocale locale;
    try
    {
        SetupCeGui();
        Config();
        InitResource();
    }
    catch (const CEGUI::Exception& failure)
    {
        const auto* provider = static_cast<const SkinResourceProvider*>(resourceProvider_.get());
        std::string told = provider ? provider->Naming(failure.getMessage()) : NameBytes(failure.getMessage());
        if (CParamConfig::getInstance()->getStringParam(SkinParameter).empty())
        {
            told += " (config\\parameters.ini has no " + std::string(SkinParameter) + ")";
        }
        LogRaised("skin not loaded", told, NameBytes(failure.getMessage()));
        throw;
    }
    contextId_ = static_cast<unsigned int>(contextId);
}

void CeGuiDrawable::SetupCeGui()
{
    // CEGUI writes every exception to its log; on standard error a host's user would see it twice.
    CEGUI::Exception::setStdErrEnabled(false);
    GuiRenderer& renderer = GuiRenderer::Create();
    renderer_ = &renderer;
    // OSG leaves depth test, culling, texture environment and the like as the scene wants them.
    renderer.enableExtraStateSettings(true);
    resourceProvider_ = std::make_shared<SkinResourceProvider>();
    imageCodec_ = std::make_shared<GuiImageCodec>();
    GuiLog::Begin();
    system_ =
        &CEGUI::System::create(*renderer_, resourceProvider_.get(), nullptr, imageCodec_.get(), nullptr, "", GuiLog::FileName);
    renderer.DrawTogether(system_->getDefaultGUIContext());
    // CEGUI's end takes away whichever there is.
    delete CEGUI::GlobalEventSet::getSingletonPtr();
    new GlobalEvents;
    TakeServiceLog();
    CEGUI::WindowManager::getSingleton().subscribeEvent(CEGUI::WindowManager::EventWindowDestroyed,
                                                        CEGUI::SubscriberSlot(&ForgetDestroyedWindow));
    contextId_ = 0;
}

void CeGuiDrawable::Config()
{
    CString skin = L"cegui\\TavLook\\";
    // The parameter replaces the default also when it is missing: the skin directory is a setting, not a guess.
    skin = _a2w(CParamConfig::getInstance()->getStringParam(SkinParameter));
    const CString directory = SystemUtility::GetAppPath() + SystemUtility::GetResourceRelPath() + skin;
    static_cast<CEGUI::DefaultResourceProvider*>(system_->getResourceProvider())
        ->setResourceGroupDirectory(SkinGroup, GuiName(directory));
    CEGUI::Font::setDefaultResourceGroup(SkinGroup);
    CEGUI::Scheme::setDefaultResourceGroup(SkinGroup);
    CEGUI::ImageManager::setImagesetDefaultResourceGroup(SkinGroup);
    CEGUI::WidgetLookManager::setDefaultResourceGroup(SkinGroup);
    CEGUI::WindowManager::setDefaultResourceGroup(SkinGroup);
    CEGUI::ScriptModule::setDefaultResourceGroup(SkinGroup);
}

void CeGuiDrawable::InitResource()
{
    CEGUI::SchemeManager::getSingleton().createFromFile(SchemeFile, "");
    GuiLog::Quieten();
}

void CeGuiDrawable::drawImplementation(osg::RenderInfo& renderInfo) const
{
    osg::State& state = *renderInfo.getState();
    if (state.getContextID() != contextId_ || !IsInitialised())
    {
        return;
    }
    const CallbackScope scope;
    if (!firstFrameDrawn_)
    {
        firstFrameDrawn_ = true;
    }
    else
    {
        const GuiRenderer::Frame frame(*static_cast<GuiRenderer*>(renderer_), renderInfo);
        state.disableAllVertexArrays();
        state.setClientActiveTextureUnit(0);
        state.setActiveTextureUnit(0);
        if (CallbackScope::IsNested())
        {
            // The system's own drawing ends with the release of destroyed windows, whose functions are still on the stack.
            renderer_->beginRendering();
            system_->getDefaultGUIContext().draw();
            renderer_->endRendering();
        }
        else
        {
            system_->renderAllGUIContexts();
        }
    }
    state.checkGLErrors("CEGUIDrawable::drawImplementation");
}

bool CeGuiDrawable::IsInitialised() const
{
    return system_ && system_ == CEGUI::System::getSingletonPtr() && !retired_;
}

void CeGuiDrawable::Finish()
{
    if (system_)
    {
        system_->removeAllEvents();
        CeGuiToolBar::ForgetAllWindows();
        CEGUI::WindowManager::getSingleton().destroyAllWindows();
        CEGUI::WindowManager::getSingleton().cleanDeadPool();
        FileImagesets::DestroyAllImagesets("");
        FileImagesets::TextureReuse::DestroyLeft();
        GuiLog::Reopen();
        CEGUI::System::destroy();
        system_ = nullptr;
        resourceProvider_.reset();
        imageCodec_.reset();
    }
    if (renderer_)
    {
        renderer_->destroyAllTextures();
        CEGUI::OpenGLRenderer::destroy(*renderer_);
        renderer_ = nullptr;
        GuiLog::End();
    }
}
