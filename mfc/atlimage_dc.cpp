// SPDX-License-Identifier: MIT
#include "atlimage.h"

HDC CImage::GetDC() const noexcept
{
    if (!bitmap_)
    {
        return nullptr;
    }
    if (!dc_)
    {
        dc_ = CreateCompatibleDC(nullptr);
        formerBitmap_ = SelectObject(dc_, bitmap_);
    }
    ++dcCount_;
    return dc_;
}

void CImage::ReleaseDC() const noexcept
{
    if (dcCount_ > 0 && --dcCount_ == 0)
    {
        SelectObject(dc_, formerBitmap_);
        DeleteDC(dc_);
        dc_ = nullptr;
        formerBitmap_ = nullptr;
    }
}
