// SPDX-License-Identifier: MIT
// Resizes in great number: nothing piles up.
#include "support/HostedFrame.h"
#include "support/NativeGl.h"

#include <CEGUI/ImageManager.h>
#include <CEGUI/System.h>
#include <CEGUI/WindowManager.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>

#include <unistd.h>

namespace
{
using ManyResizes = HostedFrame;

/// A resize takes about a tenth of a second, so the full thousand only when NX_TEST_RESIZES asks for it: a picture that leaks
/// with each resize shows in far fewer.
int Resizes()
{
    const char* wanted = std::getenv("NX_TEST_RESIZES");
    return wanted ? std::atoi(wanted) : 120;
}

/// Kilobytes of memory that the process holds.
long ResidentKilobytes()
{
    std::ifstream statm("/proc/self/statm");
    long size = 0;
    long resident = 0;
    statm >> size >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

struct Count
{
    int windows = 0;
    unsigned int images = 0;
    int textures = 0;
};

Count Alive(GuiHost& host)
{
    Count count;
    for (auto window = CEGUI::WindowManager::getSingleton().getIterator(); !window.isAtEnd(); ++window)
    {
        ++count.windows;
    }
    host.Viewer().getCamera()->getGraphicsContext()->makeCurrent();
    count.textures = NativeGl::LiveTextures();
    count.images = CEGUI::ImageManager::getSingleton().getImageCount();
    return count;
}
} // namespace

TEST_F(ManyResizes, hold_no_more_memory_windows_images_or_textures_after_the_last_than_once_settled)
{
    std::vector<BTN_UNIT> records(3);
    for (std::size_t i = 0; i < records.size(); ++i)
    {
        records[i].name.Format(L"record %d", static_cast<int>(i));
        records[i].target = records[i].name;
    }
    Frame().SetCtrlBtnInfo(records);
    osgGA::EventQueue& events = *Host().Viewer().getEventQueue();
    Count early;
    long earlyKilobytes = 0;
    const int resizes = Resizes();
    const int settled = std::min(100, resizes / 2);
    for (int i = 1; i <= resizes; ++i)
    {
        // Small views keep the drawing short; what is made anew is the same in every size.
        const int width = 320 + i % 7;
        const int height = 240 + i % 5;
        Host().Viewer().getCamera()->setViewport(new osg::Viewport(0, 0, width, height));
        events.windowResize(0, 0, width, height);
        Host().Viewer().frame();
        if (i == settled)
        {
            early = Alive(Host());
            earlyKilobytes = ResidentKilobytes();
        }
    }
    EXPECT_LE(ResidentKilobytes(), earlyKilobytes + 2048);
    EXPECT_GT(early.windows, 15);
    const Count late = Alive(Host());
    EXPECT_EQ(late.windows, early.windows);
    EXPECT_EQ(late.images, early.images);
    EXPECT_GT(early.textures, 30);
    EXPECT_EQ(late.textures, early.textures);
    Host().Viewer().getCamera()->setViewport(new osg::Viewport(0, 0, ViewWidth, ViewHeight));
}
