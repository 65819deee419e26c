// SPDX-License-Identifier: MIT
#include "Contestant.h"

#include <MYGUI/MyGUI.h>
#include <MYGUI/MyGUI_OpenGLPlatform.h>

#include <cmath>
#include <cstring>
#include <fstream>
#include <string>

namespace bench
{
namespace
{
const char* const LayerFile = "BenchLayer.xml";
const char* const Layer = R"(<?xml version="1.0" encoding="UTF-8"?>
<MyGUI type="Layer" version="1.2">
    <Layer name="Main" type="SharedLayer">
        <Property key="Pick" value="false"/>
    </Layer>
</MyGUI>
)";
const char* const SkinFile = "BenchSkin.xml";
// A picture box that is nothing but its picture.
const char* const Skin = R"(<?xml version="1.0" encoding="UTF-8"?>
<MyGUI type="Resource" version="1.1">
    <Resource type="ResourceSkin" name="BenchPicture" size="16 16">
        <BasisSkin type="MainSkin" offset="0 0 16 16" align="Stretch"/>
    </Resource>
</MyGUI>
)";

int Whole(float value)
{
    return static_cast<int>(std::lround(value));
}

/// Its pictures are made here, not read from files.
class NoFiles : public MyGUI::OpenGLImageLoader
{
public:
    void* loadImage(int&, int&, MyGUI::PixelFormat&, const std::string&) override { return nullptr; }
    void saveImage(int, int, MyGUI::PixelFormat, void*, const std::string&) override {}
};

class MyGuiPeer : public Contestant
{
public:
    MyGuiPeer(const DrawList& list, const std::string& folder)
    {
        std::ofstream(folder + "/" + SkinFile) << Skin;
        std::ofstream(folder + "/" + LayerFile) << Layer;
        platform_.initialise(&noFiles_, folder + "/MyGUI.log");
        MyGUI::LogManager::getInstance().setSTDOutputEnabled(false);
        platform_.getDataManagerPtr()->addResourceLocation(folder, false);
        platform_.getRenderManagerPtr()->setViewSize(list.width, list.height);
        gui_.initialise("");
        MyGUI::ResourceManager::getInstance().load(LayerFile);
        MyGUI::ResourceManager::getInstance().load(SkinFile);
        MyGUI::PointerManager::getInstance().setVisible(false);
        for (std::size_t i = 0; i < list.pictures.size(); ++i)
        {
            AddTexture(i, list.pictures[i]);
        }
        for (const Quad& quad : list.quads)
        {
            AddPicture(quad, list.pictures[static_cast<std::size_t>(quad.picture)]);
        }
    }

    ~MyGuiPeer() override
    {
        gui_.shutdown();
        platform_.shutdown();
    }

    void Draw() override { platform_.getRenderManagerPtr()->drawOneFrame(); }

private:
    static std::string NameOf(std::size_t picture) { return "picture" + std::to_string(picture); }

    void AddTexture(std::size_t number, const Picture& picture)
    {
        MyGUI::ITexture* texture = platform_.getRenderManagerPtr()->createTexture(NameOf(number));
        texture->createManual(picture.width, picture.height, MyGUI::TextureUsage::Static | MyGUI::TextureUsage::Write,
                              MyGUI::PixelFormat::R8G8B8A8);
        auto* to = static_cast<std::uint8_t*>(texture->lock(MyGUI::TextureUsage::Write));
        // Its format of that name has blue first in memory.
        for (std::size_t i = 0; i < picture.rgba.size(); i += 4)
        {
            to[i] = picture.rgba[i + 2];
            to[i + 1] = picture.rgba[i + 1];
            to[i + 2] = picture.rgba[i];
            to[i + 3] = picture.rgba[i + 3];
        }
        texture->unlock();
    }

    void AddPicture(const Quad& quad, const Picture& picture)
    {
        const MyGUI::IntCoord place(Whole(quad.left), Whole(quad.top), Whole(quad.right - quad.left),
                                    Whole(quad.bottom - quad.top));
        auto* box = gui_.createWidget<MyGUI::ImageBox>("BenchPicture", place, MyGUI::Align::Default, "Main");
        box->setNeedMouseFocus(false);
        const float width = static_cast<float>(picture.width);
        const float height = static_cast<float>(picture.height);
        const int left = Whole(quad.u0 * width);
        const int top = Whole(quad.v0 * height);
        box->setImageInfo(NameOf(static_cast<std::size_t>(quad.picture)),
                          MyGUI::IntCoord(left, top, Whole(quad.u1 * width) - left, Whole(quad.v1 * height) - top),
                          MyGUI::IntSize(Whole(quad.u1 * width) - left, Whole(quad.v1 * height) - top));
        box->setImageIndex(0);
    }

    NoFiles noFiles_;
    MyGUI::OpenGLPlatform platform_;
    MyGUI::Gui gui_;
};
} // namespace

std::unique_ptr<Contestant> MakeMyGui(const DrawList& list, const char* folder)
{
    return std::make_unique<MyGuiPeer>(list, folder);
}
} // namespace bench
