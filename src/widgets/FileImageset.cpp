// SPDX-License-Identifier: MIT
#include "FileImageset.h"

#include "FailureLog.h"
#include "GuiResourceProvider.h"
#include "Names.h"
#include "PixelUnpack.h"

#include <CEGUI/BasicImage.h>
#include <CEGUI/Exceptions.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/Renderer.h>
#include <CEGUI/System.h>
#include <CEGUI/Texture.h>
#include <CEGUI/Window.h>

#include <cstdint>
#include <map>
#include <set>
#include <vector>

namespace
{
const char* const FullImageName = "full_image";

struct Imageset
{
    CEGUI::BasicImage* image = nullptr;
    CEGUI::Texture* texture = nullptr;
    FileStamp file; ///< from before it was read
    /// False between `Destroy` and the next `Create`: image and texture stay, since windows refer to them, but are blank.
    bool loaded = false;
};

using ImagesetMap = std::map<CEGUI::String, Imageset, CEGUI::StringFastLessCompare>;
ImagesetMap imagesets;
/// Without images.
ImagesetMap left;
int reuses = 0;

CEGUI::Renderer& Renderer()
{
    return *CEGUI::System::getSingleton().getRenderer();
}

void MakeBlank(Imageset& imageset)
{
    const std::uint32_t transparent = 0;
    const PixelUnpack unpack;
    imageset.texture->loadFromMemory(&transparent, CEGUI::Sizef(1, 1), CEGUI::Texture::PF_RGBA);
    imageset.image->setArea(CEGUI::Rectf(0, 0, 1, 1));
    imageset.loaded = false;
}

const GuiResourceProvider& Files()
{
    return *static_cast<GuiResourceProvider*>(CEGUI::System::getSingleton().getResourceProvider());
}

const CEGUI::String& Group()
{
    return CEGUI::ImageManager::getImagesetDefaultResourceGroup();
}

void Show(Imageset& imageset)
{
    const CEGUI::Sizef& size = imageset.texture->getOriginalDataSize();
    imageset.image->setArea(CEGUI::Rectf(0, 0, size.d_width, size.d_height));
    imageset.loaded = true;
}

/// With a texture that was left of the same file, or with an empty one.
Imageset& Add(const CEGUI::String& name)
{
    const auto former = left.find(name);
    Imageset imageset;
    if (former != left.end())
    {
        imageset = former->second;
        left.erase(former);
    }
    else
    {
        imageset.texture = &Renderer().createTexture(name);
    }
    imageset.image =
        static_cast<CEGUI::BasicImage*>(&CEGUI::ImageManager::getSingleton().create("BasicImage", name + "/" + FullImageName));
    imageset.image->setTexture(imageset.texture);
    if (imageset.loaded && Files().Stamp(name, Group()) == imageset.file)
    {
        Show(imageset);
    }
    else
    {
        imageset.loaded = false;
    }
    return imagesets[name] = imageset;
}

void Load(Imageset& imageset, const CEGUI::String& name)
{
    try
    {
        imageset.texture->loadFromFile(name, Group());
        imageset.file = Files().LastRead();
        Show(imageset);
    }
    catch (const CEGUI::Exception& failure)
    {
        LogRaised("picture not loaded", NameBytes(name), NameBytes(failure.getMessage()));
        MakeBlank(imageset);
        throw;
    }
}

Imageset* Find(const CEGUI::String& name)
{
    const auto found = imagesets.find(name);
    return found != imagesets.end() && found->second.loaded ? &found->second : nullptr;
}
} // namespace

namespace FileImagesets
{
CEGUI::Image& Create(const CString& file)
{
    const CEGUI::String name = GuiName(file);
    if (Find(name))
    {
        throw CEGUI::AlreadyExistsException("an imageset named '" + name + "' is there already");
    }
    const auto known = imagesets.find(name);
    Imageset& imageset = known != imagesets.end() ? known->second : Add(name);
    if (!imageset.loaded)
    {
        Load(imageset, name);
    }
    return *imageset.image;
}

bool IsPresent(const CString& file)
{
    return Find(GuiName(file)) != nullptr;
}

CEGUI::Image& Get(const CString& file)
{
    const CEGUI::String name = GuiName(file);
    if (Imageset* imageset = Find(name))
    {
        return *imageset->image;
    }
    throw CEGUI::UnknownObjectException("there is no imageset named '" + name + "'");
}

CEGUI::Image& GetImagesetFromFile(const CString& file)
{
    if (Imageset* imageset = Find(GuiName(file)))
    {
        return *imageset->image;
    }
    return Create(file);
}

void Destroy(const CString& file)
{
    DestroyNamed(GuiName(file));
}

void DestroyNamed(const CEGUI::String& name)
{
    if (Imageset* imageset = Find(name))
    {
        MakeBlank(*imageset);
    }
}

void DestroyFileImagesets()
{
    for (auto& [name, imageset] : imagesets)
    {
        if (imageset.loaded)
        {
            MakeBlank(imageset);
        }
    }
}

void DestroyAllImagesets(const CEGUI::String& kept)
{
    // Not every texture of the renderer: fonts hold some. An imageset's is called like the imageset, which its images' names
    // begin with, or like its only image.
    std::set<CEGUI::String> textures;
    std::vector<CEGUI::String> gone;
    CEGUI::ImageManager& images = CEGUI::ImageManager::getSingleton();
    for (CEGUI::ImageManager::ImageIterator image = images.getIterator(); !image.isAtEnd(); ++image)
    {
        const CEGUI::String name = image.getCurrentKey();
        const CEGUI::String imageset = name.substr(0, name.rfind('/'));
        if (imageset != kept)
        {
            gone.push_back(name);
            textures.insert({name, imageset});
        }
    }
    TextureReuse::DestroyLeft();
    if (TextureReuse::IsWanted())
    {
        for (auto& [name, imageset] : imagesets)
        {
            if (imageset.loaded)
            {
                left[name] = imageset;
                textures.erase(name);
            }
        }
    }
    imagesets.clear();
    for (const CEGUI::String& image : gone)
    {
        images.destroy(image);
    }
    for (const CEGUI::String& texture : textures)
    {
        if (Renderer().isTextureDefined(texture))
        {
            Renderer().destroyTexture(texture);
        }
    }
}

TextureReuse::TextureReuse()
{
    ++reuses;
}

TextureReuse::~TextureReuse()
{
    --reuses;
    DestroyLeft();
}

bool TextureReuse::IsWanted()
{
    return reuses > 0;
}

void TextureReuse::DestroyLeft()
{
    for (const auto& [name, imageset] : left)
    {
        Renderer().destroyTexture(*imageset.texture);
    }
    left.clear();
}

bool IsSkinImagesetPresent(const CEGUI::String& name)
{
    return Renderer().isTextureDefined(name);
}

void Apply(CEGUI::Window& window, const char* property, const CEGUI::Image& image)
{
    window.setProperty(property, CEGUI::PropertyHelper<CEGUI::Image*>::toString(&image));
}

void ApplyToButton(CEGUI::Window& button, const CEGUI::Image& normal, const CEGUI::Image& hover, const CEGUI::Image& pushed)
{
    Apply(button, "NormalImage", normal);
    Apply(button, "HoverImage", hover);
    Apply(button, "PushedImage", pushed);
}
} // namespace FileImagesets
