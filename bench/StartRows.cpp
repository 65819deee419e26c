// SPDX-License-Identifier: MIT
#include "OtherRows.h"
#include "ReadDrawList.h"
#include "native/Allocations.h"
#include "native/BareCegui.h"

#include <algorithm>
#include <stdexcept>

#include <unistd.h>

namespace
{
/// What the process has from the C library and from Windows' heaps at this moment.
double BytesHeld()
{
    double bytes = static_cast<double>(bench::BytesInUse());
    PROCESS_HEAP_ENTRY entry = {};
    const HANDLE heap = GetProcessHeap();
    HeapLock(heap);
    while (HeapWalk(heap, &entry))
    {
        bytes += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) ? entry.cbData : 0;
    }
    HeapUnlock(heap);
    return bytes;
}

std::string NativeSkinFolder()
{
    char folder[4096];
    if (!getcwd(folder, sizeof folder))
    {
        throw std::runtime_error("no working folder");
    }
    return std::string(folder) + "/app/resource/cegui/TavLook/";
}

/// From `Init` until the frame that it begins with has been drawn.
class FirstDraw : public osg::Drawable::DrawCallback
{
public:
    void drawImplementation(osg::RenderInfo& info, const osg::Drawable* drawable) const override
    {
        bench::FinishDrawing();
        const Duration one = TimeOf(
            [&]
            {
                drawable->drawImplementation(info);
                bench::FinishDrawing();
            });
        total.process += one.process;
        total.thread += one.thread;
        total.wall += one.wall;
    }
    mutable Duration total;
};

Duration Sum(const Duration& a, const Duration& b)
{
    return {a.process + b.process, a.thread + b.thread, a.wall + b.wall};
}

Duration Start(Stage& stage)
{
    const Duration init = TimeOf(
        [&]
        {
            stage.Host().InitOnly(GUI_USER_FULL);
            stage.HandleResize();
            bench::FinishDrawing();
        });
    const osg::ref_ptr<FirstDraw> first = new FirstDraw;
    stage.Drawable().setDrawCallback(first);
    // The first draw is one without CEGUI.
    stage.Host().Viewer().frame();
    stage.Host().Viewer().frame();
    stage.Drawable().setDrawCallback(nullptr);
    return Sum(init, first->total);
}

double Middle(std::vector<double> values, double part)
{
    std::sort(values.begin(), values.end());
    return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}

/// What a started interface holds, each time of a process without one.
std::vector<double> BytesHeldWith(Stage& stage, int buttons, int rows, int rounds)
{
    std::vector<double> held;
    for (int i = 0; i < rounds; ++i)
    {
        stage.Frame().SetCtrlBtnInfo({});
        const double closed = BytesHeld();
        Start(stage);
        stage.Fill(buttons, rows);
        stage.Frame().MakeContextCurrent();
        bench::FinishDrawing();
        held.push_back(BytesHeld() - closed);
        stage.Host().Close();
    }
    return held;
}

Row MemoryRow(Stage& stage)
{
    constexpr int buttons = 100;
    constexpr int rows = 100;
    // The first ones fill what the process keeps for good.
    constexpr int rounds = 31;
    BytesHeldWith(stage, buttons, rows, 2);
    const double residentClosed = static_cast<double>(bench::ResidentBytes());
    const std::vector<double> held = BytesHeldWith(stage, buttons, rows, rounds);
    Start(stage);
    stage.Fill(buttons, rows);
    stage.Frame().MakeContextCurrent();
    double textureBytes = 0;
    for (const NamedPicture& named : ReadTextures())
    {
        textureBytes += 4.0 * named.picture.width * named.picture.height;
    }
    const double resident = static_cast<double>(bench::ResidentBytes()) - residentClosed;
    stage.Host().Close();

    Row memory;
    memory.name = "memory";
    memory.what =
        "what the interface with 100 buttons and 100 rows holds in heaps, textures included; reference: its textures' bytes";
    memory.unit = "KiB";
    memory.measured = Middle(held, 0.5) / 1024;
    memory.reference = textureBytes / 1024;
    memory.limit = 1.5;
    memory.rounds = rounds;
    memory.spread["measured"] = {Middle(held, 0.25) / 1024, Middle(held, 0.75) / 1024};
    memory.extra["resident_growth_of_last_start"] = resident / 1024;
    for (const int count : {10, 100, 1000})
    {
        memory.growth[count] = Middle(BytesHeldWith(stage, count, count, 3), 0.5) / 1024;
    }
    return memory;
}
} // namespace

std::vector<Row> StartRows(Stage& stage)
{
    stage.Fill(0, 0);
    stage.Frame().MakeContextCurrent();
    const bench::DrawList frame = ReadDrawList(Stage::Width, Stage::Height);
    std::vector<std::string> files;
    std::vector<bench::Picture> pictures;
    for (NamedPicture& named : ReadTextures())
    {
        // The scheme loads the skin's own.
        if (named.file != "TavLook.png")
        {
            files.push_back(named.file);
            pictures.push_back(std::move(named.picture));
        }
    }
    stage.Host().Close();

    const auto own = [&]
    {
        stage.Frame().SetCtrlBtnInfo({});
        const Duration duration = Start(stage);
        stage.Host().Close();
        return duration;
    };
    const std::string skin = NativeSkinFolder();
    const auto bare = [&](const bench::DrawList& shown)
    {
        stage.Frame().MakeContextCurrent();
        std::unique_ptr<bench::BareCegui> cegui;
        const Duration duration = TimeOf(
            [&]
            {
                cegui = std::make_unique<bench::BareCegui>(skin, files, pictures, shown);
                bench::FinishDrawing();
            });
        return duration;
    };
    // Of short works that allocate much; they vary more than others.
    constexpr int rounds = 301;
    const std::vector<Series> series = Alternate({own, [&] { return bare(frame); }, [&] { return bare({}); }}, rounds);
    Row startup = Compare("startup", series[0], series[1], 1.3);
    startup.what =
        "Init, frame built and drawn for the first time; reference: CEGUI alone with the scheme and the pictures, shown "
        "at the same places and drawn";
    startup.extra["reference_without_a_frame"] = series[2].Median(&Duration::process);

    const Row memory = MemoryRow(stage);
    for (const int count : {10, 100, 1000})
    {
        stage.Frame().SetCtrlBtnInfo(RecordsOf(count, stage.EntryPicture()));
        startup.growth[count] = Start(stage).process;
        stage.Host().Close();
    }
    stage.Host().Start(GUI_USER_FULL);
    return {startup, memory};
}
