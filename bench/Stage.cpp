// SPDX-License-Identifier: MIT
#include "Stage.h"

#include <widgets/ImageEncoder.h>

#include <city/City.h>
#include <city/Viewpoints.h>

#include <CEGUI/Window.h>

#include <osg/Geode>
#include <osgGA/GUIEventAdapter>
#include <osgGA/GUIEventHandler>

#include <stdexcept>

namespace
{
/// The size of the pictures that hosts make for their views.
constexpr int PictureWidth = 480;
constexpr int PictureHeight = 360;

osg::ref_ptr<osg::Node> Scene(bool withCity)
{
    if (!withCity)
    {
        return nullptr;
    }
    return city::BuildCity(city::kUsualSeed).root;
}

void WritePicture(const CString& path)
{
    gp::RequireGdiplus();
    const gp::Bitmap bitmap = gp::NewBitmap(PictureWidth, PictureHeight);
    for (int y = 0; y < PictureHeight; ++y)
    {
        for (int x = 0; x < PictureWidth; ++x)
        {
            const gp::ARGB color = 0xFF000000u | static_cast<gp::ARGB>(x * 255 / PictureWidth) << 16 |
                                   static_cast<gp::ARGB>(y * 255 / PictureHeight) << 8 | ((x / 16 + y / 16) % 2 ? 0xC0u : 0x40u);
            gp::GdipBitmapSetPixel(bitmap.get(), x, y, color);
        }
    }
    CLSID encoder;
    if (!GetEncoderForPath(path, encoder) || !SaveBitmap(bitmap.get(), path, encoder))
    {
        throw std::runtime_error("the picture for the list's entries cannot be written");
    }
}
} // namespace

Stage::Stage(bool withCity)
{
    const osg::ref_ptr<osg::Node> scene = Scene(withCity);
    host_ = std::make_unique<GuiHost>(Width, Height, scene);
    if (withCity)
    {
        host_->Viewer().setLightingMode(osg::View::NO_LIGHT);
        host_->Viewer().getCamera()->setViewMatrix(city::ViewMatrix(city::Viewpoints().front()));
    }
    host_->Viewer().setReleaseContextAtEndOfFrameHint(false);
}

CeGuiDrawable& Stage::Drawable()
{
    return dynamic_cast<CeGuiDrawable&>(*Frame().GetGUINode()->getChild(0)->asGeode()->getDrawable(0));
}

const CString& Stage::EntryPicture()
{
    if (entryPicture_.IsEmpty())
    {
        entryPicture_ = AppDir() + L"entry.jpg";
        WritePicture(entryPicture_);
    }
    return entryPicture_;
}

void Stage::Fill(int entries, int rows)
{
    Frame().SetBtnIndex(-1);
    Frame().SetCtrlBtnInfo(RecordsOf(entries, EntryPicture()));
    CeGuiMainFrame::PropertyRows properties = PropertyRowsOf(rows);
    Frame().setPropertyData(properties);
    if (Frame().IsOpenPropertyDlg() != (rows > 0))
    {
        Frame().OpenPropertyDlg(nullptr, rows > 0);
    }
    HandleResize();
    host_->Frames(3);
}

void Stage::ShowEverything(int entries, int rows)
{
    Fill(entries, rows);
    host_->MoveMouse(700, 300);
    host_->MoveMouse(701, 301);
    host_->MoveMouse(60, 400);
    // The list keeps the tool bar as it was when it slid in; both are seen together only while one is on its way out.
    GuiHost::Find("TavBotCtrlFrame")->show();
    Frame().CreateTooltipWindow(600, 300, L"提示：中心广场写字楼");
    host_->Frames(3);
    for (const char* window : {"TavTitleBackground", "TavBotCtrlFrame", "TavLeftCtrlFrame"})
    {
        if (!GuiHost::Find(window) || !GuiHost::Find(window)->isEffectiveVisible())
        {
            throw std::runtime_error(std::string("not shown: ") + window);
        }
    }
    if (rows > 0 && !(GuiHost::Find("TavPropertyCtrlFrame") && GuiHost::Find("TavPropertyCtrlFrame")->isEffectiveVisible()))
    {
        throw std::runtime_error("the property panel is not shown");
    }
}

bool Stage::Handle(osgGA::GUIEventAdapter& event)
{
    auto& handler = dynamic_cast<osgGA::GUIEventHandler&>(*Drawable().getEventCallback());
    return handler.handle(event, host_->Viewer(), &Drawable(), nullptr);
}

void Stage::HandleResize()
{
    const osg::ref_ptr<osgGA::GUIEventAdapter> event = new osgGA::GUIEventAdapter;
    event->setEventType(osgGA::GUIEventAdapter::RESIZE);
    event->setWindowRectangle(0, 0, Width, Height);
    Handle(*event);
}

CeGuiMainFrame::PropertyRows PropertyRowsOf(int count)
{
    CeGuiMainFrame::PropertyRows rows;
    for (int i = 0; i < count; ++i)
    {
        CString name;
        name.Format(L"名称%d", i);
        CString value;
        value.Format(i % 4 == 3 ? L"a value that is too long for its place in the panel, number %d, and so is cut" : L"value %d",
                     i);
        rows.emplace_back(name, value);
    }
    return rows;
}

std::vector<BTN_UNIT> RecordsOf(int count, const CString& picture)
{
    std::vector<BTN_UNIT> records;
    for (int i = 0; i < count; ++i)
    {
        BTN_UNIT record;
        record.name.Format(L"view%d", i);
        record.target.Format(L"View %d", i);
        record.kind = i % 5 == 0 ? 1 : 0;
        record.lastText = picture;
        records.push_back(record);
    }
    return records;
}
