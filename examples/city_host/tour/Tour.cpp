// SPDX-License-Identifier: MIT
#include "Tour.h"

#include "../host/CityHost.h"
#include "Album.h"
#include "FrameGrab.h"
#include "ScreenGrab.h"
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

void TakeScreenPicture(CityHost& host, Album& album, const TourStop& stop)
{
    RECT area = {};
    GetWindowRect(host.Window().Main(), &area);
    album.Add(stop.id, stop.caption, *GrabScreen(area));
}

void Visit(CityHost& host, Album& album, User& user, const TourStop& stop)
{
    bool taken = false;
    if (stop.screen)
    {
        user.WhileMenuIsOpen(
            [&]
            {
                TakeScreenPicture(host, album, stop);
                taken = true;
            });
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
        album.Add(stop.id, stop.caption, *stop.picture(user));
    }
    else if (!stop.screen)
    {
        TakePicture(host, album, stop);
    }
    else if (!taken)
    {
        TakeScreenPicture(host, album, stop);
    }
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
        Album album(folder_);
        User user(host_);
        user.Wait();
        int number = 0;
        const std::vector<TourStop> stops = TourStops(part_);
        for (const TourStop& stop : stops)
        {
            place = stop.id;
            std::printf("tour %2d/%d  %s\n", ++number, static_cast<int>(stops.size()), stop.id);
            std::fflush(stdout);
            Visit(host_, album, user, stop);
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
