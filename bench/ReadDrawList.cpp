// SPDX-License-Identifier: MIT
#include "ReadDrawList.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/Renderer.h>
#include <CEGUI/System.h>
#include <CEGUI/Texture.h>
#include <CEGUI/Window.h>
#include <CEGUI/widgets/PushButton.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <stdexcept>

using DrawOrder = std::vector<CEGUI::Window*>;
DrawOrder& DrawOrderOf(CEGUI::Window& window);

// An explicit instantiation may name a protected member: CEGUI tells the order of drawing nowhere else.
template <DrawOrder CEGUI::Window::*Member>
struct DrawOrderReach
{
    friend DrawOrder& DrawOrderOf(CEGUI::Window& window) { return window.*Member; }
};
template struct DrawOrderReach<&CEGUI::Window::d_drawList>;

namespace
{
CEGUI::String TextureOf(const CEGUI::String& image)
{
    return image.substr(0, image.rfind('/'));
}

bench::Picture PixelsOf(CEGUI::Texture& texture)
{
    const CEGUI::Sizef size = texture.getSize();
    bench::Picture picture;
    picture.width = static_cast<int>(size.d_width);
    picture.height = static_cast<int>(size.d_height);
    picture.rgba.resize(static_cast<std::size_t>(picture.width) * picture.height * 4);
    texture.blitToMemory(picture.rgba.data());
    return picture;
}

/// The image that the window shows at present; empty for none.
CEGUI::String ImageOf(CEGUI::Window& window)
{
    if (window.getType() == "TavLook/StaticImage")
    {
        return window.getProperty("Image");
    }
    if (window.getType() == "TavLook/ImageButton")
    {
        const auto& button = static_cast<const CEGUI::PushButton&>(window);
        if (button.isPushed())
        {
            return window.getProperty(button.isHovering() ? "PushedImage" : "NormalImage");
        }
        return window.getProperty(button.isHovering() ? "HoverImage" : "NormalImage");
    }
    if (window.getType() != "DefaultWindow")
    {
        throw std::runtime_error(("not known how to draw a " + window.getType()).c_str());
    }
    return CEGUI::String();
}

class Reader
{
public:
    Reader(int width, int height)
    {
        list_.width = width;
        list_.height = height;
    }

    void Visit(CEGUI::Window& window)
    {
        if (!window.isVisible())
        {
            return;
        }
        const CEGUI::String image = ImageOf(window);
        if (!image.empty())
        {
            Add(window, TextureOf(image));
        }
        for (CEGUI::Window* child : DrawOrderOf(window))
        {
            Visit(*child);
        }
    }

    const bench::DrawList& List() const { return list_; }

private:
    void Add(CEGUI::Window& window, const CEGUI::String& texture)
    {
        const CEGUI::Rectf whole = window.getUnclippedOuterRect().get();
        const CEGUI::Rectf place(std::round(whole.left()), std::round(whole.top()), std::round(whole.right()),
                                 std::round(whole.bottom()));
        const CEGUI::Rectf seen = place.getIntersection(window.getOuterRectClipper());
        if (seen.getWidth() < 1 || seen.getHeight() < 1)
        {
            return;
        }
        const auto u = [&](float x) { return (x - place.left()) / place.getWidth(); };
        const auto v = [&](float y) { return (y - place.top()) / place.getHeight(); };
        list_.quads.push_back({seen.left(), seen.top(), seen.right(), seen.bottom(), u(seen.left()), v(seen.top()),
                               u(seen.right()), v(seen.bottom()), PictureOf(texture)});
    }

    int PictureOf(const CEGUI::String& texture)
    {
        const auto known = pictures_.find(texture);
        if (known != pictures_.end())
        {
            return known->second;
        }
        list_.pictures.push_back(PixelsOf(CEGUI::System::getSingleton().getRenderer()->getTexture(texture)));
        list_.files.emplace_back(texture.c_str());
        return pictures_[texture] = static_cast<int>(list_.pictures.size()) - 1;
    }

    bench::DrawList list_;
    std::map<CEGUI::String, int, CEGUI::StringFastLessCompare> pictures_;
};
} // namespace

bench::DrawList ReadDrawList(int width, int height)
{
    Reader reader(width, height);
    reader.Visit(*CEGUI::System::getSingleton().getDefaultGUIContext().getRootWindow());
    return reader.List();
}

std::vector<NamedPicture> ReadTextures()
{
    CEGUI::Renderer& renderer = *CEGUI::System::getSingleton().getRenderer();
    std::set<std::string> names;
    for (auto image = CEGUI::ImageManager::getSingleton().getIterator(); !image.isAtEnd(); ++image)
    {
        names.insert(TextureOf(image.getCurrentKey()).c_str());
    }
    std::vector<NamedPicture> pictures;
    for (const std::string& name : names)
    {
        const CEGUI::String texture(reinterpret_cast<const CEGUI::utf8*>(name.c_str()));
        if (renderer.isTextureDefined(texture))
        {
            // The skin's imageset is called without its file's extension.
            pictures.push_back({name == "TavLook" ? "TavLook.png" : name, PixelsOf(renderer.getTexture(texture))});
        }
    }
    return pictures;
}
