// SPDX-License-Identifier: MIT
// The fixture of the frame's tests for those that need no frame: each begins with a title that is set and no interface.
#include "support/FrameTest.h"

#include <KernelCommonUse/StringConvert.h>

#include <memory>
#include <stdexcept>

namespace
{
/// A test that asks for what only a frame has fails.
[[noreturn]] void NoFrame()
{
    throw std::logic_error("there is no frame here");
}

std::unique_ptr<GuiHost> host;

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

BTN_UNIT Record(const wchar_t* name, int kind, const wchar_t* caption, const CString& picture)
{
    BTN_UNIT record;
    record.name = name;
    record.kind = kind;
    record.target = caption;
    record.lastText = picture;
    return record;
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
    if (!host)
    {
        host = std::make_unique<GuiHost>(ViewWidth, ViewHeight);
    }
    host->Frames(1);
    Frame().SetCtrlBtnInfo({});
    Frame().SetBtnIndex(0);
    Frame().SetSceneTitle(L"Title");
    Frame().SetSceneTitleColor(0xE1C8C5);
    Frame().SetSceneTitleFontStyle(L"Noto Sans CJK SC");
    Frame().SetSceneTitleFontHeight(16.0f);
    logSeen_ = LogLines().size();
}

void FrameTest::TearDown()
{
    EXPECT_EQ(TakeLog(), Lines{}) << "lines of the log that no test asked for";
}

Lines FrameTest::TakeLog()
{
    const Lines all = LogLines();
    Lines taken(all.begin() + static_cast<std::ptrdiff_t>(logSeen_), all.end());
    logSeen_ = all.size();
    return taken;
}

void FrameTest::Restart(GUIUserType, bool)
{
    NoFrame();
}

void FrameTest::Rebuild()
{
    NoFrame();
}

void FrameTest::Show(const std::vector<BTN_UNIT>&)
{
    NoFrame();
}

void FrameTest::SlideIn(int, int)
{
    NoFrame();
}

std::string FrameTest::Place(const char*)
{
    NoFrame();
}

bool FrameTest::Visible(const char*)
{
    NoFrame();
}
