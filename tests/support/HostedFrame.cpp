// SPDX-License-Identifier: MIT
#include "HostedFrame.h"

#include <KernelCommonUse/StringConvert.h>

#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>

#include <algorithm>
#include <iostream>
#include <memory>
#include <stdexcept>

namespace
{
std::unique_ptr<GuiHost> host;

class HostLifeTime : public testing::Environment
{
public:
    void TearDown() override { host.reset(); }
};

const testing::Environment* const lifeTime = testing::AddGlobalTestEnvironment(new HostLifeTime);

/// Tests click the same point faster than users do; a real double click comes as a message of its own.
void ClickAsFastAsYouLike()
{
    // CEGUI takes 0 for no limit.
    CEGUI::System::getSingleton().getDefaultGUIContext().setMouseButtonMultiClickTimeout(1e-6f);
}
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

CapturedOutput::CapturedOutput() : former_(std::cout.rdbuf(text_.rdbuf())) {}

CapturedOutput::~CapturedOutput()
{
    std::cout.rdbuf(former_);
}

GuiHost& HostedFrame::Host()
{
    if (!host)
    {
        host = std::make_unique<GuiHost>(ViewWidth, ViewHeight);
        // The display reports a new window's place and the mouse over it late, which would come in between a test's own input.
        for (int i = 0; i < 10; ++i)
        {
            Sleep(30);
            host->Frames(1);
        }
    }
    return *host;
}

CeGuiDrawable& HostedFrame::Drawable()
{
    return dynamic_cast<CeGuiDrawable&>(*Frame().GetGUINode()->getChild(0)->asGeode()->getDrawable(0));
}

void HostedFrame::Restart(GUIUserType userType)
{
    Host().Close();
    Host().Start(userType);
    ClickAsFastAsYouLike();
    // The lines of the log count from the last start.
    logSeen_ = 0;
}

void HostedFrame::Rebuild()
{
    ClickAsFastAsYouLike();
    Host().Viewer().getEventQueue()->windowResize(0, 0, Host().Width(), Host().Height());
    Host().Frames(2);
}

void HostedFrame::MakeCurrent()
{
    Host().Viewer().getCamera()->getGraphicsContext()->makeCurrent();
}

CEGUI::Window& HostedFrame::Window(const char* name)
{
    CEGUI::Window* window = GuiHost::Find(name);
    if (!window)
    {
        throw std::runtime_error(std::string("no window named ") + name);
    }
    return *window;
}

std::string HostedFrame::ImageOf(const char* name, const char* property)
{
    return Window(name).getProperty(property).c_str();
}

void HostedFrame::SetUp()
{
    Frame().SetCtrlBtnInfo({});
    Frame().SetBtnIndex(-1);
    Frame().ClearTitleSet();
    Frame().SetSceneTitleFontStyle(TitleFont);
    const bool shown = Frame().IsInit() && Host().Root().containsNode(Frame().GetGUINode());
    if (!shown || Frame().GetUser() != GUI_USER_FULL || !Frame().IsShowLeftToolBar() || Frame().IsFullScene())
    {
        Restart();
    }
    if (Host().Width() != ViewWidth || Host().Height() != ViewHeight)
    {
        Host().Resize(ViewWidth, ViewHeight);
    }
    else
    {
        Rebuild();
    }
    Host().MoveMouse(ViewWidth / 2, ViewHeight / 2);
    Frame().SetDisplySystemMouse(false);
    Host().TakeMessages();
    Host().TakeMainWindowMessages();
    logSeen_ = LogLines().size();
}

void HostedFrame::TearDown()
{
    EXPECT_EQ(TakeLog(), Lines{}) << "lines of the log that no test asked for";
}

Lines HostedFrame::TakeLog()
{
    const Lines all = LogLines();
    const Lines taken(all.begin() + static_cast<std::ptrdiff_t>(std::min(logSeen_, all.size())), all.end());
    logSeen_ = all.size();
    return taken;
}

Pixel Blend(std::uint32_t argb, Pixel below)
{
    const int alpha = static_cast<int>(argb >> 24);
    const auto mix = [&](int shift, int under)
    { return (static_cast<int>(argb >> shift & 255) * alpha + under * (255 - alpha) + 127) / 255; };
    return {mix(16, below.red), mix(8, below.green), mix(0, below.blue)};
}
