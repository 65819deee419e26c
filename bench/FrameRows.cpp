// SPDX-License-Identifier: MIT
#include "FrameRows.h"

#include "Bout.h"
#include "ReadDrawList.h"
#include "native/Allocations.h"

#include <fstream>
#include <iostream>
#include <stdexcept>

namespace
{
constexpr int UsualEntries = 100;
constexpr int UsualRows = 100;

void WritePicture(const Screenshot& shot, const std::string& path)
{
    std::ofstream file(path, std::ios::binary);
    file << "P6\n" << shot.width << " " << shot.height << "\n255\n";
    for (const Pixel& pixel : shot.pixels)
    {
        const char rgb[] = {static_cast<char>(pixel.red), static_cast<char>(pixel.green), static_cast<char>(pixel.blue)};
        file.write(rgb, sizeof rgb);
    }
}

void RequireSamePictures(Bout& bout, const std::string& folder)
{
    const Screenshot own = bout.Shoot(Bout::Interface);
    WritePicture(own, folder + "/interface.ppm");
    bool alike = true;
    for (std::size_t side = 1; side < bout.Count(); ++side)
    {
        const Screenshot shot = bout.Shoot(side);
        WritePicture(shot, folder + "/" + bout.NameOf(side) + ".ppm");
        const PictureDifference difference = Difference(own, shot);
        std::cout << "picture of " << bout.NameOf(side) << ": " << difference.pixels << " pixels differ by more than "
                  << PixelTolerance << ", at most by " << difference.most << ", in the mean by " << difference.mean << "\n";
        alike = alike && DrawnAlike(difference);
    }
    if (!alike)
    {
        throw std::runtime_error("not all have drawn the same picture");
    }
}

/// Counts what the drawing of one frame allocates.
class CountedDraw : public osg::Drawable::DrawCallback
{
public:
    void drawImplementation(osg::RenderInfo& info, const osg::Drawable* drawable) const override
    {
        bench::AllocationCount count;
        drawable->drawImplementation(info);
        count.Stop();
        own += count.BesidesDriver();
        driver += count.OfDriver();
        for (const auto& [module, number] : count.ByModule())
        {
            byModule[module] += number;
        }
    }
    mutable int own = 0;
    mutable int driver = 0;
    mutable std::map<std::string, int> byModule;
};

/// Adds what the third frame and some after it allocate.
void CountAllocations(Stage& stage, Bout& bout, Row& row)
{
    // Leaves it the only one shown.
    bout.Frame(Bout::Interface);
    constexpr int frames = 10;
    const osg::ref_ptr<osg::Drawable::DrawCallback> former = stage.Drawable().getDrawCallback();
    stage.Drawable().setDrawCallback(nullptr);
    stage.ShowEverything(UsualEntries, UsualRows);
    stage.Host().Viewer().frame();
    stage.Host().Viewer().frame();
    const osg::ref_ptr<CountedDraw> counted = new CountedDraw;
    stage.Drawable().setDrawCallback(counted);
    for (int i = 0; i < frames; ++i)
    {
        stage.Host().Viewer().frame();
    }
    stage.Drawable().setDrawCallback(former);
    row.extra["allocations"] = static_cast<double>(counted->own) / frames;
    row.extra["allocations_limit"] = 0;
    row.extra["allocations_of_driver"] = static_cast<double>(counted->driver) / frames;
    row.alsoHolds = counted->own == 0;
    for (const auto& [module, number] : counted->byModule)
    {
        std::cout << "allocations of " << frames << " draws in " << module << ": " << number << "\n";
    }
}

std::vector<std::function<Duration()>> FramesOf(Bout& bout)
{
    std::vector<std::function<Duration()>> frames;
    for (std::size_t side = 0; side < bout.Count(); ++side)
    {
        frames.push_back([&bout, side] { return bout.Frame(side); });
    }
    return frames;
}

/// The fastest of the peers.
std::size_t Fastest(const std::vector<Series>& series, std::size_t firstPeer, double Duration::*clock)
{
    std::size_t fastest = firstPeer;
    for (std::size_t side = firstPeer; side < series.size(); ++side)
    {
        if (series[side].Median(clock) < series[fastest].Median(clock))
        {
            fastest = side;
        }
    }
    return fastest;
}

Row AgainstPeers(const std::string& name, const Bout& bout, const std::vector<Series>& series, double limit,
                 double Duration::*clock)
{
    constexpr std::size_t firstPeer = 2;
    const std::size_t fastest = Fastest(series, firstPeer, clock);
    Row row = Compare(name, series[Bout::Interface], series[fastest], limit, clock);
    for (std::size_t side = firstPeer; side < series.size(); ++side)
    {
        row.extra[bout.NameOf(side)] = series[side].Median(clock);
    }
    row.note = "fastest peer: " + bout.NameOf(fastest);
    return row;
}
const std::vector<int> EntryCounts = {10, 100, 1000};

/// The interface's frames by the number of entries in its list, by turns.
std::map<int, Series> FramesByEntries(Stage& stage)
{
    constexpr int turns = 5;
    constexpr int framesPerTurn = 8;
    std::map<int, Series> series;
    for (int turn = 0; turn < turns; ++turn)
    {
        for (const int count : EntryCounts)
        {
            stage.ShowEverything(count, UsualRows);
            Bout bout(stage);
            bout.Frame(Bout::Interface);
            for (int i = 0; i < framesPerTurn; ++i)
            {
                series[count].Add(bout.Frame(Bout::Interface));
            }
        }
    }
    return series;
}

std::map<int, double> Growth(const std::map<int, Series>& series, double Duration::*clock)
{
    std::map<int, double> growth;
    for (const auto& [count, one] : series)
    {
        growth[count] = one.Median(clock);
    }
    return growth;
}
} // namespace

std::vector<Row> FrameRows(Stage& stage, const std::string& folder)
{
    stage.ShowEverything(UsualEntries, UsualRows);
    stage.Frame().MakeContextCurrent();
    const bench::DrawList list = ReadDrawList(Stage::Width, Stage::Height);
    double pixels = 0;
    for (const bench::Quad& quad : list.quads)
    {
        pixels += (quad.right - quad.left) * (quad.bottom - quad.top);
    }
    std::cout << list.quads.size() << " rectangles, " << pixels / 1e6 << " million pixels\n";

    Bout bout(stage);
    bout.Add("floor", bench::MakeFloor(list));
    bout.Add("osgWidget", bench::MakeOsgWidget(list, stage.Host().Viewer()));
    bout.Add("DearImGui", bench::MakeDearImGui(list));
    bout.Add("MyGUI", bench::MakeMyGui(list, folder.c_str()));
    RequireSamePictures(bout, folder);

    constexpr std::size_t floor = 1;
    const std::vector<Series> series = Alternate(FramesOf(bout), 2 * UsualRounds, 3);
    Row frameFloor = Compare("frame_floor", series[Bout::Interface], series[floor], 0.85, &Duration::process);
    frameFloor.what = "everything shown, from the first call to the finished picture; floor: one vertex-array loop";
    frameFloor.extra["rectangles"] = static_cast<double>(list.quads.size());
    frameFloor.extra["megapixels"] = pixels / 1e6;
    Row framePeer = AgainstPeers("frame_peer", bout, series, 0.8, &Duration::process);
    framePeer.what = "the same against the fastest peer";
    Row submitFloor = Compare("submit_floor", series[Bout::Interface], series[floor], 1.4, &Duration::thread);
    submitFloor.what = "the same until the calls have returned; floor: the loop";
    CountAllocations(stage, bout, submitFloor);
    Row submitPeer = AgainstPeers("submit_peer", bout, series, 1.15, &Duration::thread);
    submitPeer.what = "the same against the fastest peer";
    frameFloor.growth = Growth(FramesByEntries(stage), &Duration::process);
    return {frameFloor, framePeer, submitFloor, submitPeer};
}

Row SubmitGrowthRow(Stage& stage)
{
    const std::map<int, Series> series = FramesByEntries(stage);
    Row row = Compare("submit_growth", series.at(1000), series.at(10), 1.1, &Duration::thread);
    row.what = "until the calls have returned, with a list of 1,000 entries; reference: of 10";
    row.growth = Growth(series, &Duration::thread);
    return row;
}
