// SPDX-License-Identifier: MIT
#include <CEGUI/RendererModules/OpenGL/GLRenderer.h>

#include "BareCegui.h"

#include <CEGUI/CEGUI.h>

namespace bench
{
namespace
{
const char* const Group = "bench";

bool IsPng(const std::string& file)
{
    return file.size() > 4 && file.compare(file.size() - 4, 4, ".png") == 0;
}
} // namespace

BareCegui::BareCegui(const std::string& skinFolder, const std::vector<std::string>& files, const std::vector<Picture>& pictures)
{
    CEGUI::Exception::setStdErrEnabled(false);
    CEGUI::OpenGLRenderer& renderer = CEGUI::OpenGLRenderer::create();
    renderer.enableExtraStateSettings(true);
    CEGUI::System& system = CEGUI::System::create(renderer, nullptr, nullptr, nullptr, nullptr, "", "bare.log");
    static_cast<CEGUI::DefaultResourceProvider*>(system.getResourceProvider())->setResourceGroupDirectory(Group, skinFolder);
    CEGUI::Font::setDefaultResourceGroup(Group);
    CEGUI::Scheme::setDefaultResourceGroup(Group);
    CEGUI::ImageManager::setImagesetDefaultResourceGroup(Group);
    CEGUI::WidgetLookManager::setDefaultResourceGroup(Group);
    CEGUI::WindowManager::setDefaultResourceGroup(Group);
    CEGUI::SchemeManager::getSingleton().createFromFile("TavLookSkin.scheme");
    for (std::size_t i = 0; i < files.size(); ++i)
    {
        if (IsPng(files[i]))
        {
            CEGUI::ImageManager::getSingleton().addFromImageFile(files[i], files[i]);
        }
        else
        {
            // Its own codec does not read bitmap files.
            const CEGUI::Sizef size(static_cast<float>(pictures[i].width), static_cast<float>(pictures[i].height));
            renderer.createTexture(files[i]).loadFromMemory(pictures[i].rgba.data(), size, CEGUI::Texture::PF_RGBA);
        }
    }
    system.renderAllGUIContexts();
}

BareCegui::~BareCegui()
{
    auto* renderer = static_cast<CEGUI::OpenGLRenderer*>(CEGUI::System::getSingleton().getRenderer());
    CEGUI::System::destroy();
    renderer->destroyAllTextures();
    CEGUI::OpenGLRenderer::destroy(*renderer);
}
} // namespace bench
