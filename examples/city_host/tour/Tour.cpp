// SPDX-License-Identifier: MIT
#include "Tour.h"

#include "../Options.h"
#include "../host/CityHost.h"
#include "Album.h"
#include "StopReferences.h"
#include "Stops.h"
#include "User.h"

#include <cstdio>
#include <exception>
#include <stdexcept>

namespace host
{
namespace
{

void Visit(Album& album, StopReferences& references, User& user, const TourStop& stop)
{
    osg::ref_ptr<osg::Image> picture;
    if (stop.screen)
    {
        user.WhileMenuIsOpen([&] { picture = user.TakeScreenPicture(); });
    }
    if (stop.act)
    {
        stop.act(user);
    }
    user.WhileMenuIsOpen(nullptr);
    if (!stop.moving)
    {
        user.Wait();
    }
    if (stop.picture)
    {
        picture = stop.picture(user);
    }
    else if (!picture)
    {
        picture = stop.screen ? user.TakeScreenPicture() : user.TakePicture();
    }
    album.Add(stop.id, stop.caption, *picture);
    references.Take(stop.id, *picture);
    if (stop.leave)
    {
        stop.leave(user);
    }
}

} // namespace

int Tour::Run()
{
    const char* place = "the start";
    try
    {
        Album album(options_.tourFolder);
        StopReferences references(options_.tourReferences, options_.remakeReferences, album.Folder());
        User user(host_);
        user.Wait();
        int number = 0;
        const std::vector<TourStop> stops = TourStops(options_.tourPart);
        for (const TourStop& stop : stops)
        {
            place = stop.id;
            std::printf("tour %2d/%d  %s\n", ++number, static_cast<int>(stops.size()), stop.id);
            std::fflush(stdout);
            Visit(album, references, user, stop);
        }
        album.Finish();
        place = "the end";
        CloseByButton(user);
        user.Wait();
        if (!host_.IsClosed())
        {
            throw std::runtime_error("the close button did not close the host");
        }
        return references.Report() ? 0 : 1;
    }
    catch (const std::exception& failure)
    {
        std::fprintf(stderr, "tour: at %s: %s\n", place, failure.what());
        return 1;
    }
}

} // namespace host
