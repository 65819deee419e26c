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

void ShowFrame(CEGUI::System& system, const DrawList& frame)
{
    CEGUI::WindowManager& windows = CEGUI::WindowManager::getSingleton();
    CEGUI::Window* root = windows.createWindow("DefaultWindow", "root");
    system.notifyDisplaySizeChanged(CEGUI::Sizef(static_cast<float>(frame.width), static_cast<float>(frame.height)));
    system.getDefaultGUIContext().setRootWindow(root);
    for (const Quad& quad : frame.quads)
    {
        CEGUI::Window* window = windows.createWindow("TavLook/StaticImage");
        window->setPosition(CEGUI::UVector2(CEGUI::UDim(0, quad.left), CEGUI::UDim(0, quad.top)));
        window->setSize(CEGUI::USize(CEGUI::UDim(0, quad.right - quad.left), CEGUI::UDim(0, quad.bottom - quad.top)));
        window->setProperty("Image", frame.files[static_cast<std::size_t>(quad.picture)]);
        root->addChild(window);
    }
}
} // namespace

BareCegui::BareCegui(const std::string& skinFolder, const std::vector<std::string>& files, const std::vector<Picture>& pictures,
                     const DrawList& frame)
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
            CEGUI::Texture& texture = renderer.createTexture(files[i]);
            texture.loadFromMemory(pictures[i].rgba.data(), size, CEGUI::Texture::PF_RGBA);
            auto& image = static_cast<CEGUI::BasicImage&>(CEGUI::ImageManager::getSingleton().create("BasicImage", files[i]));
            image.setTexture(&texture);
            image.setArea(CEGUI::Rectf(0, 0, size.d_width, size.d_height));
        }
    }
    ShowFrame(system, frame);
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
