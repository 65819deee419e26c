// SPDX-License-Identifier: MIT
#include "OtherRows.h"
#include "ReadDrawList.h"

#include <KernelCommonUse/StringConvert.h>

#include <stdexcept>

namespace
{
struct File
{
    CString path;
    bench::Picture picture;
};

/// What the frame is made of at present.
std::vector<File> FilesOfFrame(Stage& stage)
{
    stage.Frame().MakeContextCurrent();
    std::vector<File> files;
    for (NamedPicture& named : ReadTextures())
    {
        const CString path = SkinDir() + Utf8ToCString(named.file);
        if (ReadBytes(path).empty())
        {
            throw std::runtime_error("no file of the picture " + named.file);
        }
        files.push_back({path, std::move(named.picture)});
    }
    return files;
}

Duration TimeOfReading(const std::vector<File>& files)
{
    std::vector<unsigned int> textures;
    const Duration duration = TimeOf(
        [&]
        {
            for (const File& file : files)
            {
                ReadBytes(file.path);
                textures.push_back(bench::UploadTexture(file.picture));
            }
            bench::FinishDrawing();
        });
    bench::DeleteTextures(textures);
    return duration;
}

Duration TimeOfResize(Stage& stage)
{
    // As in a host: windows that were taken away are freed with the next frame.
    stage.Host().Viewer().frame();
    stage.Frame().MakeContextCurrent();
    return TimeOf(
        [&]
        {
            stage.HandleResize();
            bench::FinishDrawing();
        });
}

constexpr int Few = 10;
constexpr int Usual = 100;
constexpr int Many = 1000;

/// By turns, since filling the frame takes long.
std::map<int, Series> ResizesBySize(Stage& stage)
{
    constexpr int turns = 10;
    std::map<int, Series> series;
    for (int turn = 0; turn < turns; ++turn)
    {
        for (const int size : {Usual, Many, Few})
        {
            stage.Fill(size, 0);
            // A frame of few entries is built soon, and its times vary more.
            const int perTurn = size == Many ? 4 : 12;
            for (int i = 0; i < perTurn; ++i)
            {
                const Duration all = TimeOfResize(stage);
                series[size].Add({all.process / size, all.thread / size, all.wall / size});
            }
        }
    }
    return series;
}
} // namespace

std::vector<Row> ResizeRows(Stage& stage)
{
    stage.Fill(Usual, 0);
    const std::vector<File> files = FilesOfFrame(stage);
    const std::vector<Series> series = Alternate({[&] { return TimeOfResize(stage); }, [&] { return TimeOfReading(files); }});
    Row resize = Compare("resize_100", series[0], series[1], 2);
    resize.what = "size event to frame rebuilt, 100 control buttons; reference: reading the files' bytes, uploading the textures";
    resize.extra["textures"] = static_cast<double>(files.size());

    const std::map<int, Series> bySize = ResizesBySize(stage);
    Row growth = Compare("resize_growth", bySize.at(Many), bySize.at(Usual), 1.15);
    growth.what = "the same per button at 1,000; reference: at 100";
    for (const auto& [size, one] : bySize)
    {
        growth.growth[size] = one.Median(&Duration::process);
    }
    return {resize, growth};
}
