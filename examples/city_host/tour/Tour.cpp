// SPDX-License-Identifier: MIT
#include "Tour.h"

#include "../host/CityHost.h"
#include "Album.h"
#include "FrameGrab.h"
#include "Stops.h"
#include "User.h"

#include <cstdio>
#include <exception>
#include <stdexcept>

namespace host
{
namespace
{

void TakePicture(CityHost& host, Album& album, const TourStop& stop)
{
    const FrameGrab grab(host.Viewer());
    // Asks for one more frame of the same picture.
    InvalidateRect(host.Window().View(), nullptr, FALSE);
    for (int i = 0; i < 100 && grab.Picture().s() == 0; ++i)
    {
        host.Step();
    }
    album.Add(stop.id, stop.caption, grab.Picture());
}

} // namespace

int Tour::Run()
{
    const char* place = "the start";
    try
    {
        Album album(folder_);
        User user(host_);
        user.Wait();
        int number = 0;
        for (const TourStop& stop : TourStops())
        {
            place = stop.id;
            std::printf("tour %2d/%d  %s\n", ++number, static_cast<int>(TourStops().size()), stop.id);
            std::fflush(stdout);
            if (stop.act)
            {
                stop.act(user);
            }
            if (!stop.moving)
            {
                user.Wait();
            }
            TakePicture(host_, album, stop);
            if (stop.leave)
            {
                stop.leave(user);
            }
        }
        album.Finish();
        place = "the end";
        CloseByButton(user);
        user.Wait();
        if (!host_.IsClosed())
        {
            throw std::runtime_error("the close button did not close the host");
        }
        return 0;
    }
    catch (const std::exception& failure)
    {
        std::fprintf(stderr, "tour: at %s: %s\n", place, failure.what());
        return 1;
    }
}

} // namespace host
