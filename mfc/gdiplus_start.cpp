// SPDX-License-Identifier: MIT
#include "gdiplus_start.h"

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

namespace
{
ULONG_PTR token = 0;
int images = 0;
} // namespace

bool StartGdiplus() noexcept
{
    if (token == 0)
    {
        const Gdiplus::GdiplusStartupInput input;
        if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok)
        {
            token = 0;
        }
    }
    return token != 0;
}

void StopGdiplus() noexcept
{
    if (token != 0)
    {
        Gdiplus::GdiplusShutdown(token);
        token = 0;
    }
}

void CountImage() noexcept
{
    ++images;
}

void UncountImage() noexcept
{
    if (--images == 0)
    {
        StopGdiplus();
    }
}

bool IsGdiplusStarted() noexcept
{
    return token != 0;
}
