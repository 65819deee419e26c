// SPDX-License-Identifier: MIT
#include "FrameTest.h"

#include <KernelCommonUse/StringConvert.h>

#include <widgets/WindowNames.h>

#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>

#include <algorithm>
#include <map>
#include <memory>

using FrameTable = std::map<CString, CeGuiToolBar*>;
FrameTable& TableOf(CeGuiMainFrame& frame);

// An explicit instantiation may name a private member: so tests see the bars that the frame keeps to itself.
template <FrameTable CeGuiMainFrame::*Member>
struct FrameTableReach
{
    friend FrameTable& TableOf(CeGuiMainFrame& frame) { return frame.*Member; }
};
template struct FrameTableReach<&CeGuiMainFrame::frameTable_>;

namespace
{
std::unique_ptr<GuiHost> host;
int yOffset = 0;

class HostLifeTime : public testing::Environment
{
public:
    void TearDown() override { host.reset(); }
};

const testing::Environment* const lifeTime = testing::AddGlobalTestEnvironment(new HostLifeTime);

void Begin(GUIUserType userType, bool sized)
{
    host->Viewer().setReleaseContextAtEndOfFrameHint(false);
    sized ? host->Start(userType) : host->InitOnly(userType);
    // Tests click the same point faster than users do; a real double click comes as a message of its own.
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

BTN_UNIT Record(const wchar_t* name, int kind, const wchar_t* caption, const CString& picture)
{
    BTN_UNIT record;
    record.name = name;
    record.kind = kind;
    record.target = caption;
    record.lastText = picture;
    return record;
}

testing::AssertionResult LooksLike(Pixel seen, Pixel expected, int tolerance)
{
    if (Distance(seen, expected) <= tolerance)
    {
        return testing::AssertionSuccess();
    }
    const auto text = [](Pixel p)
    { return std::to_string(p.red) + "," + std::to_string(p.green) + "," + std::to_string(p.blue); };
    return testing::AssertionFailure() << "seen " << text(seen) << ", expected " << text(expected);
}

GuiHost& FrameTest::Host()
{
    return *host;
}

CeGuiMainFrame& FrameTest::Frame()
{
    return *CeGuiMainFrame::GetInstance();
}

void FrameTest::SetUp()
{
    CeGuiMainFrame& frame = Frame();
    frame.SetCtrlBtnInfo({});
    frame.SetSceneTitle(L"Title");
    frame.SetSceneTitleColor(0xE1C8C5);
    frame.SetSceneTitleFontStyle(L"Noto Sans CJK SC");
    frame.SetSceneTitleFontHeight(16.0f);
    if (!host)
    {
        host = std::make_unique<GuiHost>(ViewWidth, ViewHeight);
        Begin(GUI_USER_FULL, true);
    }
    else if (!frame.IsInit() || frame.GetUser() != GUI_USER_FULL)
    {
        host->Close();
        Begin(GUI_USER_FULL, true);
    }
    frame.SetBtnIndex(0);
    frame.OnToolBarFullScene(false);
    if (host->Width() != ViewWidth || host->Height() != ViewHeight)
    {
        host->Resize(ViewWidth, ViewHeight);
    }
    Rebuild();
    if (!frame.IsShowLeftToolBar())
    {
        frame.OnToolBarRCList(nullptr);
        Rebuild();
    }
    host->MoveMouse(401, 300);
    host->MoveMouse(400, 300);
    yOffset = frame.GetMousePoint().y - 300;
    host->TakeMessages();
    host->TakeMainWindowMessages();
    MakeContextCurrent();
    logSeen_ = LogLines().size();
}

void FrameTest::TearDown()
{
    EXPECT_EQ(TakeLog(), Lines{}) << "lines of the log that no test asked for";
}

void FrameTest::Restart(GUIUserType userType, bool sized)
{
    host->Close();
    Begin(userType, sized);
    MakeContextCurrent();
    logSeen_ = LogLines().size();
}

void FrameTest::Rebuild()
{
    host->Viewer().getEventQueue()->windowResize(0, 0, host->Width(), host->Height());
    host->Frames(2);
    MakeContextCurrent();
}

void FrameTest::Show(const std::vector<BTN_UNIT>& records)
{
    Frame().SetCtrlBtnInfo(records);
    Rebuild();
    host->MoveMouse(402, 300);
    host->MoveMouse(400, 300);
}

void FrameTest::MoveTo(int x, int y)
{
    host->MoveMouse(x, y - yOffset);
}

void FrameTest::SlideIn(int x, int y)
{
    host->MoveMouse(400, 301);
    host->MoveMouse(400, 300);
    MoveTo(x, y);
}

CeGuiToolBar& FrameTest::Bar(const wchar_t* name)
{
    return *TableOf(Frame()).at(name);
}

bool FrameTest::HasBar(const wchar_t* name)
{
    return TableOf(Frame()).count(name) != 0;
}

std::string FrameTest::Place(const char* window)
{
    return GuiHost::Find(window) ? Text(GuiHost::RectOf(window)) : "no window";
}

bool FrameTest::Visible(const char* window)
{
    const CEGUI::Window* found = GuiHost::Find(window);
    return found && found->isEffectiveVisible();
}

std::string FrameTest::ImageOf(const char* window, const char* property)
{
    const CEGUI::Window* found = GuiHost::Find(window);
    return found ? found->getProperty(property).c_str() : "no window";
}

Pixel FrameTest::Seen(int x, int y)
{
    return host->Shoot().At(x, y);
}

int FrameTest::WindowCount()
{
    int count = 0;
    for (auto window = CEGUI::WindowManager::getSingleton().getIterator(); !window.isAtEnd(); ++window)
    {
        ++count;
    }
    return count;
}

int FrameTest::CountOf(const char* name)
{
    int count = 0;
    for (auto window = CEGUI::WindowManager::getSingleton().getIterator(); !window.isAtEnd(); ++window)
    {
        count += WindowNames::Of(**window) == name;
    }
    return count;
}

void FrameTest::MakeContextCurrent()
{
    host->Viewer().getCamera()->getGraphicsContext()->makeCurrent();
}

Lines FrameTest::TakeLog()
{
    const Lines all = LogLines();
    const std::size_t seen = std::min(logSeen_, all.size());
    Lines taken(all.begin() + static_cast<std::ptrdiff_t>(seen), all.end());
    logSeen_ = all.size();
    return taken;
}
