// SPDX-License-Identifier: MIT
#include "Sheet.h"

#include <KernelCommonUse/StringConvert.h>

#include <widgets/WindowNames.h>

#include <CEGUI/CoordConverter.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>

#include <cmath>

namespace
{
std::unique_ptr<GuiHost> host;

CEGUI::GUIContext& Gui()
{
    return CEGUI::System::getSingleton().getDefaultGUIContext();
}

class HostLifeTime : public testing::Environment
{
public:
    void TearDown() override { host.reset(); }
};

const testing::Environment* const lifeTime = testing::AddGlobalTestEnvironment(new HostLifeTime);
} // namespace

std::string Text(const RECT& rect)
{
    return std::to_string(rect.left) + "," + std::to_string(rect.top) + " - " + std::to_string(rect.right) + "," +
           std::to_string(rect.bottom);
}

std::string Utf8(const CString& text)
{
    return CString2string(text);
}

void PrintTo(const Pixel& pixel, std::ostream* out)
{
    *out << pixel.red << "," << pixel.green << "," << pixel.blue;
}

GuiHost& SheetTest::Host()
{
    if (!host)
    {
        host = std::make_unique<GuiHost>(ViewWidth, ViewHeight);
        host->InitOnly();
        // Pictures are made between frames here.
        host->Viewer().setReleaseContextAtEndOfFrameHint(false);
        CEGUI::System::getSingleton().notifyDisplaySizeChanged(CEGUI::Sizef(ViewWidth, ViewHeight));
        // Tests click the same point faster than users do.
        Gui().setMouseButtonMultiClickTimeout(1e-6f);
        host->Frames(2);
    }
    return *host;
}

CEGUI::Window& SheetTest::Root()
{
    return *Gui().getRootWindow();
}

void SheetTest::SetUp()
{
    Host().Viewer().getCamera()->getGraphicsContext()->makeCurrent();
    Gui().setRootWindow(WindowNames::Create("DefaultWindow", "sheet"));
    Host().MoveMouse(ViewWidth - 1, ViewHeight - 1);
    Host().Frame().SetDisplySystemMouse(false);
    logSeen_ = LogLines().size();
}

void SheetTest::TearDown()
{
    EXPECT_EQ(TakeLog(), Lines{}) << "lines of the log that no test asked for";
    Host().Frame().ClearAllWindows();
    bars_.clear();
    Host().Frames(1);
}

CeGuiToolBar& SheetTest::NewLooseBar(const RECT& rect, UINT barType, const wchar_t* image, const wchar_t* name)
{
    bars_.push_back(std::make_unique<CeGuiToolBar>(rect, name, image, UINT(ViewWidth), UINT(ViewHeight), barType));
    return *bars_.back();
}

CeGuiToolBar& SheetTest::NewBar(const RECT& rect, UINT barType, const wchar_t* image, const wchar_t* name)
{
    CeGuiToolBar& bar = NewLooseBar(rect, barType, image, name);
    WindowNames::AddChild(Root(), *bar.window);
    return bar;
}

std::string SheetTest::Place(const CEGUI::Window& window)
{
    const CEGUI::Rectf area = window.getUnclippedOuterRect().get();
    const auto whole = [](float value) { return static_cast<LONG>(std::lround(value)); };
    return Text({whole(area.left()), whole(area.top()), whole(area.right()), whole(area.bottom())});
}

std::string SheetTest::ImageOf(const CEGUI::Window& window, const char* property)
{
    return window.getProperty(property).c_str();
}

Pixel SheetTest::Seen(int x, int y)
{
    return Host().Shoot().At(x, y);
}

std::vector<std::string> SheetTest::TakeLog()
{
    const std::vector<std::string> all = LogLines();
    std::vector<std::string> taken(all.begin() + static_cast<std::ptrdiff_t>(logSeen_), all.end());
    logSeen_ = all.size();
    return taken;
}
